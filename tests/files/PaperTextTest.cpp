#include "files/PaperText.h"

#include "paint/Inks.h"

#include <QImage>
#include <gtest/gtest.h>

using files::PaperText;

namespace
{

class TextOnPaper : public testing::Test
{
protected:
    QImage paper{200, 100, QImage::Format_RGB32};
    PaperText text{paint::planFont(20), paper};
};

} // namespace

TEST_F(TextOnPaper, isOneLineWhereThereIsRoom)
{
    EXPECT_EQ(text.lines("un deux", text.width("un deux")), QStringList("un deux"));
    EXPECT_EQ(text.lines({}, 10), QStringList(QString()));
}

TEST_F(TextOnPaper, isBrokenBetweenWords)
{
    EXPECT_EQ(text.lines("un deux trois", text.width("un deux") + 2),
              QStringList({"un deux", "trois"}));
}

TEST_F(TextOnPaper, breaksAWordThatIsTooLong)
{
    const QStringList lines = text.lines("mmmmmmmmmm", text.width("mmmm") + 2);
    EXPECT_EQ(lines, QStringList({"mmmm", "mmmm", "mm"}));
}

TEST_F(TextOnPaper, leavesAPercentageWhole)
{
    EXPECT_EQ(text.lines("taux 62\u202f%", text.width("taux 62\u202f%") - 1),
              QStringList({"taux", "62\u202f%"}));
    EXPECT_DOUBLE_EQ(text.longestWord("a 62\u202f%"), text.width("62\u202f%"));
}

TEST_F(TextOnPaper, takesTheEndOfALineInANameForABlank)
{
    EXPECT_EQ(text.lines("a\nb", 100), QStringList("a b"));
}

TEST_F(TextOnPaper, standsToTheRightWhereItShould)
{
    paper.fill(Qt::white);
    QPainter surface(&paper);
    text.draw(surface, {"l"}, QPointF(0, 0), 200, Qt::AlignRight, Qt::black);
    surface.end();
    const auto isInked = [this](int left, int right) {
        for (int x = left; x < right; ++x) {
            for (int y = 0; y < paper.height(); ++y) {
                if (paper.pixel(x, y) != qRgb(255, 255, 255)) {
                    return true;
                }
            }
        }
        return false;
    };
    EXPECT_FALSE(isInked(0, 180));
    EXPECT_TRUE(isInked(180, 200));
}
