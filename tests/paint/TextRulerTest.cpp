#include "paint/TextRuler.h"

#include "support/RuntimeMatchers.h"

#include <QFont>

using paint::TextRuler;

namespace
{

QFont arial()
{
    QFont font("Arial");
    font.setPixelSize(13);
    return font;
}

} // namespace

TEST(TextRuler, addsUpTheWidthsOfTheCharacters)
{
    const TextRuler ruler(arial());
    EXPECT_DOUBLE_EQ(ruler.width(QString()), 0);
    EXPECT_GT(ruler.width(QString("GC1")), 0);
    EXPECT_DOUBLE_EQ(ruler.width(QString("GC1")),
                     ruler.width(QChar('G')) + ruler.width(QChar('C')) + ruler.width(QChar('1')));
}

TEST(TextRuler, leavesATextThatFits)
{
    const TextRuler ruler(arial());
    const QString text = "Mécanique";
    EXPECT_EQ(ruler.elided(text, ruler.width(text)), text);
}

TEST(TextRuler, endsALongTextInAnEllipsisThatFits)
{
    const TextRuler ruler(arial());
    const QString text = "Mécanique des milieux continus";
    for (double width = ruler.width(QString("M…")); width < ruler.width(text); width += 5) {
        const QString elided = ruler.elided(text, width);
        EXPECT_TRUE(elided.endsWith(u'…'));
        EXPECT_TRUE(text.startsWith(elided.chopped(1)));
        EXPECT_LE(ruler.width(elided), width);
    }
}
