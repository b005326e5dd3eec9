#include "app/PlanPicture.h"

#include <QPainter>

namespace app
{
namespace
{

constexpr QColor kPlanFill(255, 255, 255);

/// The band between the names and the places, where boxes lie, at the height of `row` twips.
QRectF boxStrip(const paint::PlanScene& scene, int top, int height)
{
    const form::PlanForm& form = scene.form;
    const double left = scene.target.toPixelsX(form.Label1.front().place.left) - 4;
    const double right = scene.target.toPixelsX(scene.axisEnd) + 4;
    return {left, scene.target.toPixelsY(top), right - left, scene.target.toPixelsY(height)};
}

QPixmap blank(QSize size, double ratio)
{
    QPixmap pixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(PlanPicture::kBandFill);
    return pixmap;
}

} // namespace

void PlanPicture::draw(const paint::PlanScene& scene, QSize size, double ratio)
{
    m_plan = blank(size, ratio);
    m_totals = blank({size.width(), kTotalsHeight}, ratio);
    const form::Place& first = scene.form.Salle.front().place;
    QPainter painter(&m_plan);
    QRectF area = boxStrip(scene, first.top, first.height);
    area.setBottom(size.height());
    painter.fillRect(area, kPlanFill);
    paint::PlanPainter(painter, scene).paintPlan();
    drawTotals(scene);
}

void PlanPicture::drawLastRow(const paint::PlanScene& scene)
{
    if (m_plan.isNull() || scene.content.rows.empty()) {
        return;
    }
    const plan::PlanRow& row = scene.content.rows.back();
    const form::Place& place = scene.form.Salle.at(static_cast<std::size_t>(row.index)).place;
    QPainter painter(&m_plan);
    painter.setClipRect(QRectF(0, scene.target.toPixelsY(place.top) - 1, m_plan.width(),
                               scene.target.toPixelsY(place.height) + 2));
    painter.fillRect(boxStrip(scene, place.top, place.height).adjusted(0, -1, 0, 1), kPlanFill);
    paint::PlanPainter plan(painter, scene);
    plan.paintGrid();
    plan.paintBoxesOf(row);
    plan.paintLabelsOf(row);
    drawTotals(scene);
}

void PlanPicture::drawTotals(const paint::PlanScene& scene)
{
    m_totals.fill(kBandFill);
    QPainter painter(&m_totals);
    painter.translate(0, 2);
    paint::PlanPainter(painter, scene).paintTotals();
}

} // namespace app
