#include "paint/ClockLine.h"

#include "paint/Lettering.h"

#include <QColor>
#include <algorithm>

namespace paint
{
namespace
{

constexpr int kMinutesPerHour = 60;
constexpr QColor kClockLine(208, 2, 27);
constexpr double kLineWidth = 2;
constexpr double kBadgeWidth = 46;
constexpr int kBadgeTextPixels = 14;

} // namespace

std::optional<int> clockMinute(const QDateTime& now, QDate shown)
{
    if (!shown.isValid() || shown != now.date()) {
        return std::nullopt;
    }
    return now.time().hour() * kMinutesPerHour + now.time().minute();
}

QString clockText(int minute)
{
    return QStringLiteral("%1:%2")
        .arg(minute / kMinutesPerHour, 2, 10, QLatin1Char('0'))
        .arg(minute % kMinutesPerHour, 2, 10, QLatin1Char('0'));
}

void drawClockLine(QPainter& surface, double x, const QRectF& hours, const QRectF& boxes,
                   int minute)
{
    if (x < boxes.left() || x > boxes.right()) {
        return;
    }
    surface.fillRect(QRectF(x - kLineWidth / 2, hours.bottom(), kLineWidth, boxes.height()),
                     kClockLine);
    const QRectF badge(std::clamp(x - kBadgeWidth / 2, hours.left(),
                                  std::max(hours.left(), hours.right() - kBadgeWidth)),
                       hours.top() + 1, kBadgeWidth, hours.height() - 2);
    const int pixels = std::min(kBadgeTextPixels, static_cast<int>(badge.height()) - 2);
    surface.save();
    surface.setRenderHint(QPainter::Antialiasing);
    surface.setPen(Qt::NoPen);
    surface.setBrush(kClockLine);
    surface.drawRoundedRect(badge, 3, 3);
    surface.setPen(Qt::white);
    Lettering(DrawingTarget(), pixels, true)
        .draw(surface, badge, clockText(minute), Qt::AlignHCenter);
    surface.restore();
}

} // namespace paint
