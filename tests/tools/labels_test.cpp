#include <gtest/gtest.h>

#include "tools/labels.h"

TEST(RecordLabels, AcceptsTheLabelsTheProgramMakes) {
  for (const char* label : {"W14X90", "Pipe1-1/2SCH40", "Steel-A53.Gr.B--Fy35", "Concrete40", "RIGID_LINK",
                            "Rect12x24", "WideF1e+20x2x0.5x0.3", "Béton_C30", "(temp)#2"})
    EXPECT_EQ(tools::IsValidLabel(label), "") << label;
}

TEST(RecordLabels, RefusesBlanksPunctuationAndBrokenText) {
  for (const char* label : {"", "two words", "a,b", "semi;colon", "quote\"", "\xC3", "tab\there"})
    EXPECT_NE(tools::IsValidLabel(label), "") << label;
  EXPECT_EQ("Section label can only " + tools::IsValidLabel("a b"),
            "Section label can only contain letters, digits and the characters _ - . / ( ) + # and must not be empty");
}
