#pragma once

#include <QSize>

class QWidget;

namespace app
{

/// The size that is wanted for a window, or as much of it as its screen has room for.
[[nodiscard]] QSize fittingScreen(QSize wanted, const QWidget& window);

} // namespace app
