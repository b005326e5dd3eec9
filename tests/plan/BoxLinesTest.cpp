#include "plan/BoxLines.h"

#include "support/RuntimeMatchers.h"

using namespace plan;

TEST(BoxLines, areTheLinesOfTheTextWithoutBlanksAroundThem)
{
    EXPECT_EQ(writtenLines("GC1\r\n Dupont\r\n [Algèbre]\r\n"),
              (QStringList{"GC1", "Dupont", "[Algèbre]"}));
    EXPECT_EQ(writtenLines("a\nb\rc"), (QStringList{"a", "b", "c"}));
    EXPECT_EQ(writtenLines(" \r\n"), QStringList());
}

TEST(BoxLines, haveBlanksForBracketsAndAmpersands)
{
    EXPECT_EQ(SanitizeCellText("R&D [Algèbre]"), "R D  Algèbre ");
    EXPECT_EQ(SanitizeCellText("R&D [a&b]]"), "R D  a b  ");
    EXPECT_EQ(SanitizeCellText("A\r\nB"), "A\r\nB");
}
