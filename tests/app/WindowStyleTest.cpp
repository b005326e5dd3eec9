#include "app/WindowStyle.h"

#include <QGuiApplication>
#include <QLineEdit>
#include <QPalette>
#include <QRegularExpression>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

using app::SchemeColors;
using app::WindowStyle;

namespace
{

double linear(double component)
{
    return component <= 0.03928 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

/// 1 for equal colours, 21 for black on white; from 4.5 on a text can be read by everybody.
double contrast(const QColor& one, const QColor& other)
{
    const auto [low, high] = std::minmax({luminance(one), luminance(other)});
    return (high + 0.05) / (low + 0.05);
}

QPalette systemsOf(const QColor& window)
{
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    return palette;
}

/// Puts the toolkit's palette back.
class TheScheme : public testing::Test
{
protected:
    ~TheScheme() override { QGuiApplication::setPalette(m_before); }

private:
    QPalette m_before = QGuiApplication::palette();
};

} // namespace

TEST(SchemeColors, showAnOptionThatIsNotChosenInTheDark)
{
    const SchemeColors dark = SchemeColors::dark();
    EXPECT_GE(contrast(dark.mark, dark.group), 3); // what a mark needs
    EXPECT_GE(contrast(dark.mark, dark.window), 3);
    EXPECT_TRUE(app::windowStyleSheet(dark).contains("QCheckBox::indicator:unchecked"));
    EXPECT_FALSE(app::windowStyleSheet(dark).contains('@'));
    EXPECT_FALSE(app::windowStyleSheet(SchemeColors::light()).contains("indicator:unchecked"));
}

TEST(Hint, isReadInTheFieldsOfBothSchemes)
{
    QLineEdit field;
    app::setHint(&field, "mardi 9h30");
    EXPECT_EQ(field.placeholderText(), "mardi 9h30");
    const QColor ink = field.palette().color(QPalette::PlaceholderText);
    for (const QColor& ground : {QColor(Qt::white), QColor(35, 38, 41)}) {
        EXPECT_GE(contrast(ink, ground), 3.5) << ground.name().toStdString();
    }
}

TEST(SchemeColors, areReadableInBothSchemes)
{
    for (const SchemeColors& colors : {SchemeColors::light(), SchemeColors::dark()}) {
        for (const QColor& ink : {colors.ink, colors.strong, colors.link}) {
            EXPECT_GE(contrast(ink, colors.panel), 4.5) << ink.name().toStdString();
            EXPECT_GE(contrast(ink, colors.group), 4.5) << ink.name().toStdString();
            EXPECT_GE(contrast(ink, colors.window), 4.5) << ink.name().toStdString();
        }
        EXPECT_GE(contrast(colors.warning, colors.window), 4.5);
        EXPECT_GE(contrast(Qt::white, colors.header), 4.5);
        EXPECT_GE(contrast(Qt::white, colors.hovered), 4.5);
        EXPECT_GE(contrast(colors.amberInk, colors.amber), 4.5);
        EXPECT_GE(contrast(colors.amberInk, colors.amberLit), 4.5);
    }
}

TEST(SchemeColors, followTheLightnessOfTheSystemsWindows)
{
    EXPECT_EQ(SchemeColors::of(systemsOf({239, 239, 239})), SchemeColors::light());
    EXPECT_EQ(SchemeColors::of(systemsOf(Qt::white)), SchemeColors::light());
    EXPECT_EQ(SchemeColors::of(systemsOf({53, 53, 53})), SchemeColors::dark());
    EXPECT_EQ(SchemeColors::of(systemsOf(Qt::black)), SchemeColors::dark());
}

TEST(WindowStyleSheet, leavesNoColourUnnamed)
{
    for (const SchemeColors& colors : {SchemeColors::light(), SchemeColors::dark()}) {
        const QString sheet = app::windowStyleSheet(colors);
        EXPECT_FALSE(sheet.contains('@')) << sheet.toStdString();
        EXPECT_TRUE(sheet.contains("#Picture1 { background: " + colors.panel.name() + "; }"));
        EXPECT_TRUE(sheet.contains("#StaleBar { background: " + colors.amber.name() + ";"));
        EXPECT_TRUE(sheet.contains("#StaleBar QLabel { color: " + colors.amberInk.name() + ";"));
    }
}

TEST_F(TheScheme, isTheSystemsAlsoWhenItChanges)
{
    QGuiApplication::setPalette(systemsOf({239, 239, 239}));
    QWidget window;
    WindowStyle style(&window);
    EXPECT_EQ(window.styleSheet(), app::windowStyleSheet(SchemeColors::light()));
    QGuiApplication::setPalette(systemsOf({40, 40, 40}));
    QCoreApplication::processEvents();
    EXPECT_EQ(window.styleSheet(), app::windowStyleSheet(SchemeColors::dark()));
    QGuiApplication::setPalette(systemsOf({239, 239, 239}));
    QCoreApplication::processEvents();
    EXPECT_EQ(window.styleSheet(), app::windowStyleSheet(SchemeColors::light()));
}

TEST_F(TheScheme, keepsTheFontThatTheWindowWasGiven)
{
    QWidget window;
    WindowStyle style(&window);
    style.setFontName("Liberation Serif");
    EXPECT_TRUE(window.styleSheet().endsWith("* { font-family: \"Liberation Serif\"; }"));
    QGuiApplication::setPalette(systemsOf({40, 40, 40}));
    QCoreApplication::processEvents();
    EXPECT_TRUE(window.styleSheet().startsWith(app::windowStyleSheet(SchemeColors::dark())));
    EXPECT_TRUE(window.styleSheet().endsWith("* { font-family: \"Liberation Serif\"; }"));
    style.setFontName({});
    EXPECT_EQ(window.styleSheet(), app::windowStyleSheet(SchemeColors::dark()));
}
