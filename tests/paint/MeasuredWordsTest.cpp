#include "paint/MeasuredWords.h"

#include "support/RuntimeMatchers.h"

#include <QFont>

using paint::MeasuredWords;
using paint::TextRuler;

namespace
{

class TheWords : public testing::Test
{
protected:
    [[nodiscard]] static QFont arial()
    {
        QFont font("Arial");
        font.setPixelSize(13);
        return font;
    }
    [[nodiscard]] double width(const QString& text) const { return ruler.width(text); }
    [[nodiscard]] QStringList broken(const QStringList& lines, double width) const
    {
        return MeasuredWords(ruler, lines).broken(width);
    }

    TextRuler ruler{arial()};
};

} // namespace

TEST_F(TheWords, stayOnOneLineAsLongAsItHoldsThem)
{
    const QStringList text{"Mécanique des fluides"};
    const double whole = width("Mécanique des fluides");
    EXPECT_EQ(broken(text, whole + 0.01), text);
    EXPECT_EQ(broken(text, whole - 0.01), QStringList({"Mécanique des", "fluides"}));
    EXPECT_EQ(broken(text, width("Mécanique des") - 0.01),
              QStringList({"Mécanique", "des fluides"}));
}

TEST_F(TheWords, areNotJoinedWhereALineWasWritten)
{
    EXPECT_EQ(broken({"a b", "c", "d e"}, 1000), QStringList({"a b", "c", "d e"}));
}

TEST_F(TheWords, standAloneWhereEvenOneIsTooWide)
{
    EXPECT_EQ(broken({"Mécanique des fluides"}, 1), QStringList({"Mécanique", "des", "fluides"}));
}

TEST_F(TheWords, takeTheLinesThatTheyAreBrokenInto)
{
    const QStringList text{"Mécanique des fluides", "GC1"};
    const MeasuredWords words(ruler, text);
    const MeasuredWords::Extent wide = words.extent(1000);
    EXPECT_EQ(wide.lines, 2);
    EXPECT_NEAR(wide.width, width("Mécanique des fluides"), 1e-9);
    const MeasuredWords::Extent narrow = words.extent(width("Mécanique des fluides") - 0.01);
    EXPECT_EQ(narrow.lines, 3);
    EXPECT_NEAR(narrow.width, width("Mécanique des"), 1e-9);
    EXPECT_EQ(words.extent(1).lines, 4);
    EXPECT_NEAR(words.extent(1).width, width("Mécanique"), 1e-9);
}

TEST_F(TheWords, takeNothingWithoutLines)
{
    EXPECT_EQ(MeasuredWords(ruler, {}).extent(100).lines, 0);
    EXPECT_EQ(broken({}, 100), QStringList());
}
