#pragma once

#include <QColor>
#include <QObject>
#include <QString>

class QLineEdit;
class QPalette;
class QWidget;

namespace app
{

/// The colours around the plan. The plan itself, the weeks and the sheets are paper, white in every
/// scheme: their colours are chosen against it.
struct SchemeColors {
    QColor window;
    QColor panel;    ///< behind the groups of options, and the status bar
    QColor group;    ///< a group of options
    QColor edge;     ///< of a group
    QColor ink;      ///< titles of groups, the status bar
    QColor strong;   ///< what has just been done
    QColor link;     ///< what leads elsewhere
    QColor warning;  ///< a sentence that nobody should overlook
    QColor header;   ///< the band at the top
    QColor hovered;  ///< one of its buttons under the mouse
    QColor amber;    ///< the line about options that the plan does not follow
    QColor amberInk; ///< its text
    QColor amberLit; ///< its button under the mouse
    QColor mark; ///< edge of an option that is not chosen; invalid where the style's own is seen

    [[nodiscard]] static SchemeColors light();
    [[nodiscard]] static SchemeColors dark();
    /// The one that suits the system's: dark where its windows are.
    [[nodiscard]] static SchemeColors of(const QPalette& palette);

    friend bool operator==(const SchemeColors&, const SchemeColors&) = default;
};

/// Colours, spacing and fonts of the window.
[[nodiscard]] QString windowStyleSheet(const SchemeColors& colors);

/// For hints and for what is out of reach, on the fields of either scheme. The toolkit's own stays
/// black on some desktops that are dark.
[[nodiscard]] QColor hintInk();

/// Tells in an empty field what it is for.
void setHint(QLineEdit* field, const QString& hint);

/// Keeps a window, and those that open over it, in the style of the system's scheme, also when that
/// changes meanwhile.
class WindowStyle : public QObject
{
public:
    /// `window` is styled at once, and outlives this.
    explicit WindowStyle(QWidget* window);

    /// Gives everything another font; empty: the style's own.
    void setFontName(const QString& name);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void apply();

    QWidget* m_window;
    SchemeColors m_colors;
    QString m_fontName;
};

} // namespace app
