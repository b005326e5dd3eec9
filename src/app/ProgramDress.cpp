#include "app/ProgramDress.h"

#include <QApplication>
#include <QIcon>
#include <QStyleFactory>

namespace app
{

/// One style on every system: the plan's measures are those of its controls.
void chooseStyle()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
}

/// Where the program is installed, the icon comes from the desktop; on Windows from the program's
/// own file, without any doing.
void dressWindows()
{
    QGuiApplication::setDesktopFileName(QStringLiteral("tempora"));
    const QIcon icon = QIcon::fromTheme(QStringLiteral("tempora"));
    if (!icon.isNull()) {
        QGuiApplication::setWindowIcon(icon);
    }
}

} // namespace app
