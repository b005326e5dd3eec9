#include "app/ScreenFit.h"

#include <QScreen>
#include <QWidget>

namespace app
{

QSize fittingScreen(QSize wanted, const QWidget& window)
{
    constexpr QSize frame(16, 48); // what a window manager puts around it, at most about
    return wanted.boundedTo(window.screen()->availableSize() - frame);
}

} // namespace app
