#include "app/WindowPlacement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStringList>
#include <QWidget>
#include <algorithm>

namespace app
{
namespace
{

constexpr int kMostPixels = 32767; // what window systems count to

/// Whether enough of the place is on a screen to be taken hold of.
bool isOnAScreen(const QRect& place)
{
    constexpr int hold = 80; // pixels of the title bar
    const QRect title(place.left(), place.top(), place.width(), hold / 2);
    const QList<QScreen*> screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(), [&title](const QScreen* screen) {
        const QRect seen = screen->availableGeometry().intersected(title);
        return seen.width() >= hold && seen.height() >= hold / 4;
    });
}

} // namespace

QString WindowPlacement::toText() const
{
    return QStringLiteral("%1 %2 %3 %4 %5")
        .arg(isMaximised ? 1 : 0)
        .arg(normal.x())
        .arg(normal.y())
        .arg(normal.width())
        .arg(normal.height());
}

std::optional<WindowPlacement> WindowPlacement::fromText(const QString& text)
{
    const QStringList words = text.split(u' ');
    std::vector<int> numbers;
    for (const QString& word : words) {
        bool isNumber = false;
        numbers.push_back(word.toInt(&isNumber));
        if (!isNumber || std::abs(numbers.back()) > kMostPixels) {
            return std::nullopt;
        }
    }
    if (numbers.size() != 5 || numbers[3] < 1 || numbers[4] < 1) {
        return std::nullopt;
    }
    return WindowPlacement{numbers[0] != 0, QRect(numbers[1], numbers[2], numbers[3], numbers[4])};
}

WindowPlacement WindowPlacement::of(const QWidget& window)
{
    return {window.isMaximized(), window.normalGeometry()};
}

bool WindowPlacement::looksLike(const WindowPlacement& other) const
{
    return isMaximised == other.isMaximised && (isMaximised || normal == other.normal);
}

void WindowPlacement::apply(QWidget& window) const
{
    if (isOnAScreen(normal)) {
        window.setGeometry(normal);
    } else if (!normal.isEmpty()) {
        window.resize(normal.size());
    }
    if (isMaximised) {
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
    }
}

} // namespace app
