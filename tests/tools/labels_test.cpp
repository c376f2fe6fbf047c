#include <gtest/gtest.h>

#include <string>

#include "tools/labels.h"

namespace {

const std::string kAllowed = "contain letters, digits, blanks between words and the characters _ - . ( ) + /";

}  // namespace

TEST(IsValidLabel, AcceptsLettersOfAnyScriptDigitsAndSeparators) {
  const char* good[] = {
      "Dead", "Wind X", "IBC-2015_Eq16-3a_f1", "1.2D+1.6L", "Roof (east)", "Snow/drift", "Überlast",
      "Сейсмика", "Σεισμός 2", "風荷重", "ثابت", "Caf\u0065\u0301", "A", "٣",
  };
  for (const char* label : good) EXPECT_EQ(tools::IsValidLabel(label), "") << label;
}

TEST(IsValidLabel, RefusalsCompleteTheSentenceAndNameTheFault) {
  struct Case {
    std::string label;
    std::string completion;
  };
  const Case cases[] = {
      {"", kAllowed + ", and may not be empty."},
      {" Dead", kAllowed + "; it may not begin with a blank."},
      {"Dead ", kAllowed + "; it may not end with a blank."},
      {"Dead#1", kAllowed + "; the character \"#\" at position 5 is not allowed."},
      {"A,B", kAllowed + "; the character \",\" at position 2 is not allowed."},
      {"Live\tload", kAllowed + "; the character U+0009 at position 5 is not allowed."},
      {"Dead\xC2\xA0load", kAllowed + "; the character U+00A0 at position 5 is not allowed."},
      {"Load\xC2\xA7" "1", kAllowed + "; the character \"\xC2\xA7\" (U+00A7) at position 5 is not allowed."},
      {"Bad\xFF", kAllowed + "; a byte that is not valid UTF-8 at position 4 is not allowed."},
      {"\xCC\x81" "A", kAllowed + "; the character \"\xCC\x81\" (U+0301) at position 1 is not allowed."},
  };
  for (const Case& c : cases) EXPECT_EQ(tools::IsValidLabel(c.label), c.completion) << c.label;
}

TEST(CutLabel, CutsToCharactersNeverInsideOne) {
  EXPECT_EQ(tools::CutLabel(std::string(200, 'x')), std::string(127, 'x'));
  EXPECT_EQ(tools::CutLabel("short"), "short");

  // Two-byte letters: 127 of them, 254 bytes, not a byte more or less.
  std::string greek;
  for (int i = 0; i < 200; ++i) greek += "\xCE\xA3";  // Σ
  const std::string cut = tools::CutLabel(greek);
  EXPECT_EQ(cut.size(), 254u);
  EXPECT_EQ(tools::CountChars(cut), 127u);

  // Mixed widths straddling the limit: 126 ASCII then a three-byte letter fits whole.
  const std::string mixed = std::string(126, 'a') + "\xE9\xA2\xA8" + "\xE9\xA2\xA8";
  EXPECT_EQ(tools::CutLabel(mixed), std::string(126, 'a') + "\xE9\xA2\xA8");

  // A letter whose combining accent would be cut off goes with it.
  const std::string accented = std::string(126, 'a') + "e\xCC\x81" + "z";
  EXPECT_EQ(tools::CutLabel(accented), std::string(126, 'a'));
  // A four-byte character at the limit stays whole.
  const std::string emojiEdge = std::string(126, 'a') + "\xF0\x9F\x98\x80" + "b";
  EXPECT_EQ(tools::CutLabel(emojiEdge), std::string(126, 'a') + "\xF0\x9F\x98\x80");
}

TEST(LabelsEqual, IgnoresCaseInEveryScript) {
  struct Case {
    const char* a;
    const char* b;
    bool equal;
  };
  const Case cases[] = {
      {"Dead", "DEAD", true},
      {"dead-d", "Dead-D", true},
      {"Dead", "Dead ", false},
      {"Überlast", "überlast", true},
      {"ÜBERLAST", "überlast", true},
      {"ΣΤΑΘΕΡΟ", "σταθερο", true},
      {"σ", "ς", true},  // final sigma folds with sigma
      {"Сейсмика", "СЕЙСМИКА", true},
      {"Ǆ", "ǆ", true},
      {"\xE2\x84\xAA" "N", "kn", true},  // KELVIN SIGN folds to k
      {"Wind", "Wind2", false},
      {"", "", true},
      {"a\xFF", "A\xFF", true},
      {"a\xFF", "a\xFE", false},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(tools::LabelsEqual(c.a, c.b), c.equal) << c.a << " / " << c.b;
    EXPECT_EQ(tools::LabelsEqual(c.b, c.a), c.equal) << c.b << " / " << c.a;
  }
  EXPECT_EQ(tools::FoldCase("Überlast ΣΤ"), "überlast στ");
}

TEST(LabelStartsWith, ComparesOverThePrefixWithoutCase) {
  EXPECT_TRUE(tools::LabelStartsWith("ibc-2015_Eq16-1", "IBC-2015_"));
  EXPECT_FALSE(tools::LabelStartsWith("IBC-2015ASD_Eq16-8", "IBC-2015_"));
  EXPECT_TRUE(tools::LabelStartsWith("IBC-2015ASD_Eq16-8", "IBC-2015"));
  EXPECT_FALSE(tools::LabelStartsWith("IBC", "IBC-2015_"));
  EXPECT_TRUE(tools::LabelStartsWith("anything", ""));
  EXPECT_TRUE(tools::LabelStartsWith("ÜBERLAST 1", "über"));
}
