#include <gtest/gtest.h>

#include <string>

#include "tools/labels.h"

TEST(IsValidLabel, AcceptsLettersOfAnyScriptAndRefusalsNameTheFault) {
  for (const char* label : {"Wind X", "IBC-2015_Eq16-3a_f1", "1.2D+1.6L", "Roof (east)", "Snow/drift", "Überlast",
                            "Σεισμός 2", "風荷重", "ثابت", "Caf\u0065\u0301", "٣"})
    EXPECT_EQ(tools::IsValidLabel(label), "") << label;

  const std::string allowed = "contain letters, digits, blanks between words and the characters _ - . ( ) + /";
  const std::pair<std::string, std::string> cases[] = {
      {"", ", and may not be empty."},
      {" Dead", "; it may not begin with a blank."},
      {"Dead#1", "; the character \"#\" at position 5 is not allowed."},
      {"Dead\xC2\xA0load", "; the character U+00A0 at position 5 is not allowed."},
      {"Load\xC2\xA7" "1", "; the character \"\xC2\xA7\" (U+00A7) at position 5 is not allowed."},
      {"Bad\xFF", "; a byte that is not valid UTF-8 at position 4 is not allowed."},
      {"\xCC\x81" "A", "; the character \"\xCC\x81\" (U+0301) at position 1 is not allowed."},
  };
  for (const auto& [label, completion] : cases) EXPECT_EQ(tools::IsValidLabel(label), allowed + completion) << label;
}

TEST(FirstInvalidUtf8, RefusesOverlongFormsSurrogatesAndBytesAboveF4) {
  const std::pair<std::string, size_t> cases[] = {
      {"plain", std::string::npos}, {"\xC3\xA9t\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80 \xF4\x8F\xBF\xBF", std::string::npos},
      {"a\xC0\x80", 1},          // overlong NUL
      {"ab\xE0\x80\xAF", 2},     // overlong "/"
      {"\xED\xA0\x80", 0},       // a surrogate, U+D800
      {"x\xF5\x80\x80\x80", 1},  // lead byte above F4
      {"\xF4\x90\x80\x80", 0},   // above U+10FFFF
      {"caf\xE9", 3},             // Latin-1
      {"\xE2\x82", 0},            // cut short
      {"\x80", 0},                // a lone continuation byte
  };
  for (const auto& [text, at] : cases) EXPECT_EQ(tools::FirstInvalidUtf8(text), at) << text;
}

TEST(CutLabel, CutsTo127CharactersNeverInsideOne) {
  std::string greek;
  for (int i = 0; i < 200; ++i) greek += "\xCE\xA3";  // Σ
  const std::string a126(126, 'a');
  const std::pair<std::string, std::string> cases[] = {
      {std::string(200, 'x'), std::string(127, 'x')}, {greek, greek.substr(0, 254)},
      {a126 + "\xE9\xA2\xA8\xE9\xA2\xA8", a126 + "\xE9\xA2\xA8"},         // a three-byte letter fits whole
      {a126 + "e\xCC\x81z", a126},                                         // the accent goes with its letter
      {a126 + "\xF0\x9F\x98\x80" "b", a126 + "\xF0\x9F\x98\x80"},         // a four-byte character stays whole
  };
  for (const auto& [text, cut] : cases) EXPECT_EQ(tools::CutLabel(text), cut) << text.substr(0, 10);
  EXPECT_EQ(tools::CountChars(tools::CutLabel(greek)), 127u);
}

TEST(LabelsEqual, IgnoresCaseInEveryScript) {
  // Final sigma folds with sigma, the KELVIN SIGN with k; invalid bytes compare as they are.
  const struct { const char *a, *b; bool equal; } cases[] = {
      {"dead-d", "Dead-D", true}, {"Dead", "Dead ", false}, {"ÜBERLAST", "überlast", true},
      {"ΣΤΑΘΕΡΟ", "σταθερο", true}, {"σ", "ς", true}, {"Сейсмика", "СЕЙСМИКА", true},
      {"\xE2\x84\xAA" "N", "kn", true}, {"a\xFF", "A\xFF", true}, {"a\xFF", "a\xFE", false},
  };
  for (const auto& c : cases)  // both ways round
    EXPECT_TRUE(tools::LabelsEqual(c.a, c.b) == c.equal && tools::LabelsEqual(c.b, c.a) == c.equal) << c.a << c.b;
  EXPECT_EQ(tools::FoldCase("Überlast ΣΤ"), "überlast στ");
  EXPECT_TRUE(tools::LabelStartsWith("ibc-2015_Eq16-1", "IBC-2015_"));
  EXPECT_FALSE(tools::LabelStartsWith("IBC-2015ASD_Eq16-8", "IBC-2015_"));
  EXPECT_TRUE(tools::LabelStartsWith("ÜBERLAST 1", "über"));
}
