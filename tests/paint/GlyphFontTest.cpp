#include "paint/GlyphFont.h"

#include "paint/Canvas.h"
#include "support/RuntimeMatchers.h"

#include <QFontMetricsF>

using paint::GlyphFont;
using test::Canvas;

namespace
{

QFont arial(bool bold = false)
{
    QFont font("Arial");
    font.setPixelSize(13);
    font.setBold(bold);
    return font;
}

Canvas drawn(const QString& text, Qt::LayoutDirection direction = Qt::LeftToRight)
{
    Canvas canvas;
    canvas.draw([&](QPainter& painter) {
        painter.setLayoutDirection(direction);
        GlyphFont(arial()).draw(painter, {20.3, 50.6}, text);
    });
    return canvas;
}

Canvas laidOut(const QString& text, Qt::LayoutDirection direction = Qt::LeftToRight)
{
    Canvas canvas;
    canvas.draw([&](QPainter& painter) {
        painter.setLayoutDirection(direction);
        painter.setFont(arial());
        painter.drawText(QPointF(20.3, 50.6), text);
    });
    return canvas;
}

// What needs a layout: another direction, marks that combine, characters beyond 16 bits, a font
// that helps out, characters that are seen in some places only.
const QStringList kNotPlain{"قاعة", "Ahmed محمد",      "שלום", "A\u0300V", "Ελλάς", "日本",
                            "GC 🎓", "a\u00ADb\u200Bc", "a\tb", "\uE000",   "Łódź",  "ﬁn"};

} // namespace

TEST(GlyphFont, looksLikeALayoutForPlainTexts)
{
    for (const QString text :
         {"L1 PHYS B1", "Dr Mézières, n° 12/3…", "AVATAR Té L’Œuvre", "« fi ffl »", "!\"#~", " "}) {
        SCOPED_TRACE(text.toStdString());
        EXPECT_EQ(drawn(text).image(), laidOut(text).image());
    }
    EXPECT_EQ(drawn("").image(), laidOut("").image());
}

TEST(GlyphFont, laysOutEveryTextThatIsNotPlain)
{
    const GlyphFont font(arial());
    for (const QString& text : kNotPlain) {
        SCOPED_TRACE(text.toStdString());
        EXPECT_FALSE(font.isPlain(text));
        EXPECT_EQ(drawn(text).image(), laidOut(text).image());
        EXPECT_EQ(font.width(text), QFontMetricsF(arial()).horizontalAdvance(text));
    }
}

TEST(GlyphFont, laysOutATextInALineFromRightToLeft)
{
    const QString text = "GC1 (TD).";
    ASSERT_NE(laidOut(text, Qt::RightToLeft).image(), laidOut(text).image());
    EXPECT_EQ(drawn(text, Qt::RightToLeft).image(), laidOut(text, Qt::RightToLeft).image());
}

TEST(GlyphFont, laysOutWhatAFontWouldJoin)
{
    // Its letters f, f and i become one glyph.
    QFont joining("DejaVu Sans");
    joining.setPixelSize(13);
    if (QFontInfo(joining).family() != joining.family()) {
        GTEST_SKIP() << "that font is not installed";
    }
    const GlyphFont font(joining);
    EXPECT_FALSE(font.isPlain("Coefficient"));
    EXPECT_EQ(font.width("Coefficient"), QFontMetricsF(joining).horizontalAdvance("Coefficient"));
}

TEST(GlyphFont, setsPairsCloserTogether)
{
    const GlyphFont font(arial());
    EXPECT_LT(font.width("AV"), font.width("A") + font.width("V"));
    EXPECT_NEAR(font.width("AV"), QFontMetricsF(arial()).horizontalAdvance("AV"), 1.0 / 32);
}

TEST(GlyphFont, measuresAsTheFontDoes)
{
    for (const bool bold : {false, true}) {
        const GlyphFont font(arial(bold));
        const QFontMetricsF metrics(arial(bold));
        EXPECT_EQ(font.height(), metrics.height());
        EXPECT_EQ(font.ascent(), metrics.ascent());
        EXPECT_EQ(font.width("183"), metrics.horizontalAdvance("183"));
        EXPECT_EQ(font.width(""), 0);
    }
}

TEST(GlyphFont, shortensATextThatIsTooLong)
{
    const GlyphFont font(arial());
    const QString text = "Dépassement 12/3";
    EXPECT_EQ(font.elided(text, font.width(text)), text);
    const QString shortened = font.elided(text, font.width(text) - 1);
    EXPECT_TRUE(shortened.endsWith(u'…'));
    EXPECT_LE(font.width(shortened), font.width(text) - 1);
}

TEST(GlyphFont, leavesThePaintersFontAsItIs)
{
    Canvas canvas;
    canvas.draw([](QPainter& painter) {
        QFont own("Arial");
        own.setPixelSize(20);
        painter.setFont(own);
        const GlyphFont font(arial());
        font.draw(painter, {20, 50}, "GC1");
        font.draw(painter, {20, 80}, "قاعة");
        EXPECT_EQ(painter.font(), own);
    });
}
