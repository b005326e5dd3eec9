#pragma once

#include <QObject>

namespace app
{

/// Keeps the wheel from changing a list, a number or a date that the mouse happens to lie over:
/// only the one that has the focus turns with it, and the wheel gives no focus. In all windows of
/// the application, as long as the guard lives.
class WheelGuard : public QObject
{
public:
    /// Requires: the application object exists.
    explicit WheelGuard(QObject* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace app
