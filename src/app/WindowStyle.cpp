#include "app/WindowStyle.h"

#include "app/PlanPicture.h"

#include <QEvent>
#include <QLineEdit>
#include <QPalette>
#include <QWidget>
#include <array>
#include <utility>

namespace app
{
namespace
{

constexpr int kMiddleLightness = 128;

} // namespace

SchemeColors SchemeColors::light()
{
    SchemeColors colors;
    colors.window = PlanPicture::kBandFill;
    colors.panel = {238, 241, 246};
    colors.group = {250, 251, 253};
    colors.edge = {207, 214, 226};
    colors.ink = {72, 89, 122};
    colors.strong = {28, 44, 71};
    colors.link = {29, 95, 168};
    colors.warning = {168, 28, 28};
    colors.header = {31, 58, 95};
    colors.hovered = {51, 83, 127};
    colors.amber = {247, 212, 136};
    colors.amberInk = {61, 40, 0};
    colors.amberLit = {255, 233, 184};
    return colors;
}

SchemeColors SchemeColors::dark()
{
    SchemeColors colors;
    colors.window = {27, 32, 40};
    colors.panel = {33, 39, 49};
    colors.group = {41, 49, 61};
    colors.edge = {70, 82, 101};
    colors.ink = {178, 192, 216};
    colors.strong = {235, 240, 248};
    colors.link = {130, 184, 245};
    colors.warning = {255, 150, 140};
    colors.header = {20, 38, 63};
    colors.hovered = {44, 70, 107};
    colors.amber = {92, 66, 8};
    colors.amberInk = {255, 232, 184};
    colors.amberLit = {120, 88, 20};
    colors.mark = {130, 146, 172};
    return colors;
}

SchemeColors SchemeColors::of(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < kMiddleLightness ? dark() : light();
}

QColor hintInk()
{
    return {128, 134, 142};
}

void setHint(QLineEdit* field, const QString& hint)
{
    field->setPlaceholderText(hint);
    QPalette palette = field->palette();
    palette.setColor(QPalette::PlaceholderText, hintInk());
    field->setPalette(palette);
}

QString windowStyleSheet(const SchemeColors& colors)
{
    QString sheet = QStringLiteral(R"(
* { font-family: "Segoe UI", "Liberation Sans", Arial, sans-serif; font-size: 12px; }
QMainWindow { background: @window; }
#HeaderBand { background: @header; }
#HeaderBand QLabel { color: #ffffff; }
#HeaderBand QLabel[role="title"] { font-size: 20px; font-weight: bold; }
#HeaderBand QLabel[role="name"] { font-size: 14px; font-weight: bold; }
#HeaderBand QLabel[role="note"] { color: #c9d6e8; }
#HeaderBand QToolButton { color: #ffffff; border: 1px solid #c9d6e8; border-radius: 4px;
                         padding: 4px 10px; }
#HeaderBand QToolButton:hover { background: @hovered; }
#FaultBar { background: #a81c1c; }
#FaultBar QLabel { color: #ffffff; font-weight: bold; }
#FaultBar QToolButton { color: #ffffff; border: 1px solid #ffffff; border-radius: 4px;
                        padding: 3px 10px; font-weight: bold; }
#FaultBar QToolButton:hover, #FaultBar QToolButton:focus { background: #c94a4a; }
#StaleBar { background: @amber; border-bottom: 1px solid @amberInk; }
#StaleBar QLabel { color: @amberInk; font-weight: bold; }
#StaleBar QToolButton { color: @amberInk; border: 1px solid @amberInk; border-radius: 4px;
                        padding: 3px 10px; font-weight: bold; }
#StaleBar QToolButton:hover, #StaleBar QToolButton:focus { background: @amberLit; }
#EmptyPlanNote { background: #ffffff; color: #33415c; border: 1px solid #cfd6e2; border-radius: 8px;
                 padding: 12px 18px; font-size: 14px; }
#Picture1 { background: @panel; }
#HeaderBand QToolButton::menu-indicator { image: none; }
#AnswerStatus { color: @ink; }
#AnswerStatus[warning="true"] { color: @warning; font-weight: bold; }
QLabel[role="strong"] { font-weight: bold; }
QGroupBox { border: 1px solid @edge; border-radius: 4px; margin-top: 9px;
            background: @group; }
QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top left; left: 8px;
                   padding: 0 3px; color: @ink; background: @group; }
QStatusBar { background: @panel; color: @ink; }
QStatusBar QLabel { color: @ink; padding: 0 6px; }
#FirstPage, QToolButton[role="link"] { color: @link; border: none; text-decoration: underline; }
#FirstPage:focus, QToolButton[role="link"]:focus { border: 1px solid @link; border-radius: 3px; }
#StatusNews { background: @panel; }
#StatusNews QLabel { color: @strong; font-weight: bold; padding: 0; }
QStatusBar::item { border: none; }
QToolTip { font-size: 12px; }
)");
    if (colors.mark.isValid()) { // as large as the style draws those that are chosen
        sheet += QStringLiteral(R"(
QCheckBox::indicator:unchecked { width: 12px; height: 12px; border: 1px solid @mark;
                                 background: @window; }
QRadioButton::indicator:unchecked { width: 12px; height: 12px; border: 1px solid @mark;
                                    border-radius: 7px; background: @window; }
)");
    }
    const std::array<std::pair<const char*, QColor>, 14> names{{
        {"@window", colors.window},
        {"@panel", colors.panel},
        {"@group", colors.group},
        {"@edge", colors.edge},
        {"@ink", colors.ink},
        {"@strong", colors.strong},
        {"@link", colors.link},
        {"@warning", colors.warning},
        {"@header", colors.header},
        {"@hovered", colors.hovered},
        {"@amberInk", colors.amberInk},
        {"@amberLit", colors.amberLit},
        {"@amber", colors.amber},
        {"@mark", colors.mark},
    }};
    for (const auto& [name, color] : names) {
        sheet.replace(QLatin1String(name), color.name());
    }
    return sheet;
}

WindowStyle::WindowStyle(QWidget* window)
    : m_window(window), m_colors(SchemeColors::of(window->palette()))
{
    m_window->installEventFilter(this);
    apply();
}

void WindowStyle::setFontName(const QString& name)
{
    if (name != m_fontName) {
        m_fontName = name;
        apply();
    }
}

void WindowStyle::apply()
{
    const QString font = m_fontName.isEmpty()
                             ? QString()
                             : QStringLiteral("* { font-family: \"%1\"; }").arg(m_fontName);
    m_window->setStyleSheet(windowStyleSheet(m_colors) + font);
}

/// The sheet itself changes palettes, so only another scheme counts.
bool WindowStyle::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ApplicationPaletteChange) {
        const SchemeColors colors = SchemeColors::of(QPalette());
        if (colors != m_colors) {
            m_colors = colors;
            apply();
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace app
