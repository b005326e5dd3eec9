#include "paint/CellBox.h"

#include "paint/Canvas.h"
#include "plan/RowColors.h"
#include "support/RuntimeMatchers.h"

#include <array>

using namespace paint;
using namespace plan;
using form::Colour;
using test::Canvas;

namespace
{

const DrawingTarget screen;
// 1200 dots per inch.
const DrawingTarget printer{true, 150, 1.2, 1, context::TimeAxis::kPrinterSlotWidth};

constexpr int rowHeight = 300; // 20 pixels of the screen
constexpr Colour yellow = Colour::fromRgb(250, 230, 120);
constexpr Colour navy = Colour::fromRgb(20, 30, 90);

BoxStyle filled(Colour fill, bool hatched = false)
{
    BoxStyle style;
    style.fill = fill;
    style.hatched = hatched;
    style.rowHeight = rowHeight;
    return style;
}

/// A box of 90 minutes, 160 pixels wide, at 100, 50.
Canvas drawn(const BoxStyle& style, const QString& text, int minutes = 90)
{
    Canvas canvas;
    canvas.draw(
        [&](QPainter& painter) { DrawCellBox(painter, screen, style, 100, 50, minutes, text); });
    return canvas;
}

constexpr QRect box(100, 50, 160, 20);
constexpr QRect inside(101, 51, 158, 18); // without the outline

QColor toColor(Colour color)
{
    return {color.red(), color.green(), color.blue()};
}

} // namespace

TEST(CellBox, is2400TwipsWideFor90MinutesOnTheScreen)
{
    EXPECT_EQ(boxRectangle(screen, 268, 23, 90, rowHeight), QRect(268, 23, 160, 20));
    EXPECT_EQ(boxRectangle(screen, 268, 23, 45, rowHeight), QRect(268, 23, 80, 20));
}

TEST(CellBox, is1700TwipsWideFor90MinutesOnThePrinter)
{
    // 1700 / 1.2 = 1416.67 pixels; the left edge is moved by 150.
    const QRect place = boxRectangle(printer, 1350, 345, 90, rowHeight);
    EXPECT_EQ(place, QRect(1500, 345, 1417, 300));
}

TEST(CellBox, roundsItsEdgesToTheNearestPixelHalvesToTheEvenOne)
{
    // 50 minutes are 88.89 pixels; the edges lie at 0.5 and 89.39, at 47.53 and 67.53.
    EXPECT_EQ(boxRectangle(screen, 0.5, 713 / 15.0, 50, rowHeight), QRect(0, 48, 89, 20));
    EXPECT_EQ(boxRectangle(screen, 1.5, 2.5, 90, rowHeight), QRect(2, 2, 160, 20));
}

TEST(CellBox, isDrawnInItsRectangleAlone)
{
    EXPECT_EQ(drawn(filled(yellow), "").touched(), box);
    EXPECT_EQ(
        drawn(filled(yellow), QString("Mécanique des milieux continus ").repeated(20)).touched(),
        box);
}

TEST(CellBox, isMovedByThePrintersOffset)
{
    DrawingTarget moved = screen;
    moved.TargetXOffset = 120;
    Canvas canvas;
    canvas.draw(
        [&](QPainter& painter) { DrawCellBox(painter, moved, filled(yellow), 100, 50, 90, ""); });
    EXPECT_EQ(canvas.touched(), box.translated(120, 0));
}

TEST(CellBox, isNotDrawnWithoutALength)
{
    EXPECT_TRUE(drawn(filled(yellow), "GC1", 0).touched().isEmpty());
    EXPECT_TRUE(drawn(filled(yellow), "GC1", -90).touched().isEmpty());
}

TEST(CellBox, isFilledWithItsColour)
{
    const Canvas canvas = drawn(filled(yellow), "");
    EXPECT_EQ(canvas.count(toColor(yellow), inside), inside.width() * inside.height());
}

TEST(CellBox, hasAGreyFrameOfOnePixelAtEachSide)
{
    const Canvas canvas = drawn(filled(yellow), "");
    const QColor grey(60, 60, 60);
    EXPECT_EQ(canvas.count(grey, box), 2 * 160 + 2 * 18);
    for (const QPoint& on : {QPoint(100, 50), QPoint(259, 50), QPoint(100, 69), QPoint(259, 69),
                             QPoint(180, 50), QPoint(180, 69), QPoint(100, 60), QPoint(259, 60)}) {
        EXPECT_EQ(canvas.at(on.x(), on.y()), grey) << on.x() << ' ' << on.y();
    }
}

TEST(CellBox, isHatchedForAMakeUp)
{
    const Canvas canvas = drawn(filled(yellow, true), "");
    const int filled = canvas.count(toColor(yellow), inside);
    EXPECT_GT(filled, 0);
    EXPECT_LT(filled, inside.width() * inside.height());
    EXPECT_EQ(canvas.touched(), box);
}

TEST(CellBox, isHatchedInTheTextsColourWhereThatContrastsAmply)
{
    // Black at 64 of 255 over yellow: 250 * 191 / 255 = 187, 230 → 172, 120 → 90.
    const Canvas canvas = drawn(filled(yellow, true), "");
    const int crosses = canvas.count(QColor(187, 172, 90), inside);
    const int rest = canvas.count(toColor(yellow), inside);
    EXPECT_EQ(crosses + rest, inside.width() * inside.height());
    // Two diagonals in every eight by eight pixels, which meet twice at most.
    EXPECT_NEAR(crosses * 64.0 / (crosses + rest), 15, 1.5);
}

TEST(CellBox, isHatchedInTheOtherColourWhereTheTextNeedsIt)
{
    // White on purple has a contrast of 10.2; black at 160 of 255 leaves 95 / 255 of it.
    const Colour purple = Colour::fromRgb(85, 45, 125);
    const Canvas canvas = drawn(filled(purple, true), "");
    const int crosses = canvas.count(QColor(32, 17, 47), inside);
    EXPECT_EQ(crosses + canvas.count(toColor(purple), inside), inside.width() * inside.height());
    EXPECT_GT(crosses, 0);
}

TEST(CellBox, isHatchedSoThatItsTextStaysReadable)
{
    // White on purple has a contrast of 10.2, black on pink one of 4.8, black on yellow 16.7.
    const Colour purple = Colour::fromRgb(85, 45, 125);
    const Colour pink = Colour::fromRgb(190, 85, 130);
    for (const auto& [fill, least] :
         {std::pair(purple, 10.1), std::pair(pink, 4.8), std::pair(yellow, 7.0)}) {
        const Canvas canvas = drawn(filled(fill, true), "");
        double lowest = 21;
        for (int y = inside.top(); y < inside.bottom(); ++y) {
            for (int x = inside.left(); x < inside.right(); ++x) {
                const QColor at = canvas.at(x, y);
                const Colour color = Colour::fromRgb(at.red(), at.green(), at.blue());
                lowest = std::min(lowest, contrastRatio(color, readableOn(fill)));
            }
        }
        EXPECT_GE(lowest, least) << toColor(fill).name().toStdString();
        EXPECT_LT(canvas.count(toColor(fill), inside), inside.width() * inside.height());
    }
}

TEST(CellBox, isSolidAgainAfterAMakeUp)
{
    Canvas canvas;
    canvas.draw([](QPainter& painter) {
        DrawCellBox(painter, screen, filled(navy, true), 100, 20, 90, "");
        DrawCellBox(painter, screen, filled(yellow), 100, 50, 90, "");
    });
    EXPECT_EQ(canvas.count(toColor(yellow), inside), inside.width() * inside.height());
}

TEST(CellBox, writesDarkOnLightAndLightOnDark)
{
    const auto [darkestOnLight, lightestOnLight] = drawn(filled(yellow), "GC1").lightness(inside);
    EXPECT_LT(darkestOnLight, 60);
    EXPECT_EQ(lightestOnLight, toColor(yellow).lightness());
    const auto [darkestOnDark, lightestOnDark] = drawn(filled(navy), "GC1").lightness(inside);
    EXPECT_GT(lightestOnDark, 195);
    EXPECT_EQ(darkestOnDark, toColor(navy).lightness());
}

TEST(CellBox, leavesTheReservedEdgesFree)
{
    BoxStyle style = filled(yellow);
    style.reserved = QMarginsF(60, 0, 40, 0);
    const Canvas canvas = drawn(style, "GC1 Dupont Algèbre linéaire");
    const QRect ink = canvas.bounds(toColor(yellow), inside);
    EXPECT_FALSE(ink.isEmpty());
    EXPECT_GE(ink.left(), 100 + 60);
    EXPECT_LT(ink.right(), 260 - 40);
}

TEST(CellBox, leavesThePainterAsItWas)
{
    Canvas canvas;
    canvas.draw([](QPainter& painter) {
        painter.setPen(Qt::red);
        painter.setBrush(Qt::green);
        DrawCellBox(painter, screen, filled(yellow, true), 100, 50, 90, "GC1");
        EXPECT_EQ(painter.pen().color(), Qt::red);
        EXPECT_EQ(painter.brush().color(), Qt::green);
        EXPECT_FALSE(painter.hasClipping());
    });
}

TEST(ReadableInk, isWhicheverContrastsMore)
{
    const Colour black = Colour::fromRgb(0, 0, 0);
    const Colour white = Colour::fromRgb(255, 255, 255);
    EXPECT_EQ(readableOn(white), black);
    EXPECT_EQ(readableOn(black), white);
    EXPECT_EQ(readableOn(yellow), black);
    EXPECT_EQ(readableOn(navy), white);
    EXPECT_EQ(readableOn(Colour::fromRgb(0, 180, 0)), black); // light to the eye
    EXPECT_EQ(readableOn(Colour::fromRgb(0, 0, 255)), white);
}

TEST(ReadableInk, isMeasuredFrom1To21)
{
    const Colour black = Colour::fromRgb(0, 0, 0);
    const Colour white = Colour::fromRgb(255, 255, 255);
    EXPECT_NEAR(contrastRatio(black, white), 21.0, 1e-9);
    EXPECT_NEAR(contrastRatio(white, black), 21.0, 1e-9);
    EXPECT_NEAR(contrastRatio(navy, navy), 1.0, 1e-9);
    // Linear value of 118 is 0.1812: (1 + 0.05) / (0.1812 + 0.05)
    EXPECT_NEAR(contrastRatio(white, Colour::fromRgb(118, 118, 118)), 4.54, 0.01);
}

namespace
{

/// What F2 makes of random colours, and of the ends of the range.
std::vector<Colour> paleColours()
{
    plan::RowColors colors(runtime::RandomSource(7));
    colors.PaleColors = true;
    colors.fillRandomly();
    std::vector<Colour> pale;
    for (int index = 0; index < plan::RowColors::kColors; ++index) {
        pale.push_back(colors.at(index));
    }
    constexpr std::array<std::int16_t, 2> ends{0, 255};
    for (std::int16_t red : ends) {
        for (std::int16_t green : ends) {
            std::int16_t blue = 0;
            pale.push_back(colors.MakeColor(red, green, blue));
        }
    }
    return pale;
}

constexpr double readable = 4.5; // for text of this size, by the guidelines for the web

} // namespace

TEST(PaleColours, keepTheTextReadableOnEveryRow)
{
    for (const Colour colour : paleColours()) {
        EXPECT_GE(contrastRatio(colour, readableOn(colour)), readable) << colour.value;
    }
}

TEST(PaleColours, keepTheTextReadableOverTheCrossesOfAMakeUp)
{
    for (const Colour colour : paleColours()) {
        const Canvas canvas = drawn(filled(colour, true), {});
        for (int x = inside.left(); x <= inside.right(); x += 3) {
            const QColor under = canvas.at(x, inside.center().y());
            EXPECT_GE(contrastRatio(Colour::fromRgb(under.red(), under.green(), under.blue()),
                                    readableOn(colour)),
                      readable)
                << colour.value;
        }
    }
}

TEST(AnyColour, keepsTheTextReadable)
{
    for (int red = 0; red < 256; red += 15) {
        for (int green = 0; green < 256; green += 15) {
            for (int blue = 0; blue < 256; blue += 15) {
                const Colour colour = Colour::fromRgb(red, green, blue);
                ASSERT_GE(contrastRatio(colour, readableOn(colour)), readable) << colour.value;
            }
        }
    }
}
