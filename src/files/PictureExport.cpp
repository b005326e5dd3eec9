#include "files/PictureExport.h"

#include "paint/Inks.h"
#include "paint/PlanPainter.h"
#include "plan/FaultWords.h"
#include "print/Heading.h"
#include "print/Targets.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <cmath>

namespace files
{
namespace
{

constexpr int kHeaderPixels = 64;
constexpr int kMargin = 12;
constexpr int kTotalsPixels = 30;
constexpr int kFooterPixels = 40;

void paintHeader(QPainter& painter, const plan::PlanState& state, const QRectF& area)
{
    const print::Heading heading = print::headingOf(state);
    painter.setPen(paint::kHeaderInk);
    painter.setFont(paint::planFont(20, true));
    painter.drawText(area, Qt::AlignLeft | Qt::AlignTop, heading.title);
    painter.setFont(paint::planFont(14));
    painter.drawText(area, Qt::AlignLeft | Qt::AlignBottom,
                     heading.period + QStringLiteral("   ") + heading.dates);
    painter.setFont(paint::planFont(16, true));
    painter.drawText(area, Qt::AlignRight | Qt::AlignTop, heading.establishment);
    painter.setFont(paint::planFont(14));
    painter.drawText(area, Qt::AlignRight | Qt::AlignBottom, heading.university);
}

/// What the plan lacks.
void paintFooter(QPainter& painter, const QString& faults, const QRectF& area)
{
    painter.setPen(QColor(150, 0, 0));
    painter.setFont(paint::planFont(13, true));
    painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap, faults);
}

} // namespace

QByteArray planAsPng(const PlanDocument& document)
{
    const plan::PlanState& state = document.state();
    const paint::PlanScene scene =
        paint::sceneOf(state, document.pages.front().content, print::UseScreenTarget());
    const double bottom = paint::PlanPainter::rowsBottom(scene);
    const QString faults = plan::faultSentence(document.pages.front().content);
    const int footer = faults.isEmpty() ? 0 : kFooterPixels;
    const QSize size(
        static_cast<int>(std::ceil(scene.target.toPixelsX(state.form.scaleWidth))) + 2 * kMargin,
        static_cast<int>(std::ceil(bottom)) + kHeaderPixels + kTotalsPixels + 3 * kMargin + footer);
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintHeader(painter, state,
                QRectF(kMargin, kMargin, size.width() - 2 * kMargin, kHeaderPixels - kMargin));
    painter.translate(kMargin, kHeaderPixels + kMargin);
    paint::PlanPainter plan(painter, scene);
    plan.paintPlan();
    painter.translate(0, bottom + 6);
    plan.paintTotals();
    paintFooter(painter, faults, QRectF(0, kTotalsPixels, size.width() - 2 * kMargin, footer));
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

} // namespace files
