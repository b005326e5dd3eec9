#include "shell/PictureExport.h"

#include "plan/PlanPainter.h"
#include "print/Targets.h"
#include "runtime/FrenchDate.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <cmath>

namespace shell
{
namespace
{

constexpr int kHeaderPixels = 64;
constexpr int kMargin = 12;
constexpr int kTotalsPixels = 30;

QFont headerFont(int pixels, bool bold)
{
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

void paintHeader(QPainter& painter, const Shell& shell, const QRectF& area)
{
    const form::PlanForm& form = shell.form();
    painter.setPen(QColor(40, 50, 70));
    painter.setFont(headerFont(20, true));
    painter.drawText(area, Qt::AlignLeft | Qt::AlignTop, form.title());
    painter.setFont(headerFont(14, false));
    painter.drawText(area, Qt::AlignLeft | Qt::AlignBottom,
                     form.CbTranche.text() + QStringLiteral("   ") + form.Label4[0].caption + u' ' +
                         form.Label4[1].caption + u' ' + form.Label4[2].caption + u' ' +
                         form.Label4[3].caption);
    painter.setFont(headerFont(16, true));
    painter.drawText(area, Qt::AlignRight | Qt::AlignTop, shell.establishment().EstablishmentName);
    painter.setFont(headerFont(14, false));
    painter.drawText(area, Qt::AlignRight | Qt::AlignBottom, shell.establishment().UniversityName);
}

} // namespace

QByteArray planAsPng(const Shell& shell)
{
    const plan::PlanScene scene = shell.scene(print::UseScreenTarget());
    const double bottom = plan::PlanPainter::rowsBottom(scene);
    const QSize size(
        static_cast<int>(std::ceil(scene.target.toPixelsX(shell.form().scaleWidth))) + 2 * kMargin,
        static_cast<int>(std::ceil(bottom)) + kHeaderPixels + kTotalsPixels + 3 * kMargin);
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintHeader(painter, shell,
                QRectF(kMargin, kMargin, size.width() - 2 * kMargin, kHeaderPixels - kMargin));
    painter.translate(kMargin, kHeaderPixels + kMargin);
    plan::PlanPainter plan(painter, scene);
    plan.paintTicks();
    plan.paintGrid();
    plan.paintBoxes();
    plan.paintRoomLabels();
    plan.paintPlaces();
    painter.translate(0, bottom + 6);
    plan.paintTotals();
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

} // namespace shell
