#pragma once

#include <QRect>
#include <QString>
#include <optional>

class QWidget;

namespace app
{

/// Where a window lies and how large it is, as it is remembered from one session to the next.
struct WindowPlacement {
    bool isMaximised = true;
    QRect normal; ///< in pixels of the desktop, when it is not maximised; empty: not known

    /// "1 100 50 1280 720": maximised or not, left, top, width, height.
    [[nodiscard]] QString toText() const;
    /// Nothing for any other text.
    [[nodiscard]] static std::optional<WindowPlacement> fromText(const QString& text);

    /// Of a window that is or was shown.
    [[nodiscard]] static WindowPlacement of(const QWidget& window);
    /// Whether both would be shown alike: where a maximised window would else lie does not matter.
    [[nodiscard]] bool looksLike(const WindowPlacement& other) const;
    /// Gives a window that is not shown yet its place. A place that no screen shows any more, such
    /// as that of one which is gone, is not taken.
    void apply(QWidget& window) const;

    friend bool operator==(const WindowPlacement&, const WindowPlacement&) = default;
};

} // namespace app
