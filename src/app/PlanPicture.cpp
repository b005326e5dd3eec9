#include "app/PlanPicture.h"

#include <QPainter>
#include <algorithm>
#include <set>
#include <utility>

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
    const double right = scene.target.onAxis(scene.hours->to) + 4;
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

PlanPicture::Change PlanPicture::draw(const paint::PlanScene& scene, QSize size, double ratio)
{
    Ground ground = groundOf(scene, size, ratio);
    std::vector<DrawnRow> rows = rowsOf(scene);
    DrawnTotals totals{scene.form.Tot, scene.hasOldTotals};
    Change change;
    if (ground == m_ground && rows.size() == m_rows.size()) {
        change = {drawRows(scene, changedRows(rows)), totals != m_drawnTotals};
    } else {
        m_plan = blank(size, ratio);
        m_totals = blank({size.width(), kTotalsHeight}, ratio);
        drawAll(scene, size);
        change = {QRect(QPoint(), size), true};
    }
    if (change.totals) {
        drawTotals(scene);
    }
    m_ground = std::move(ground);
    m_rows = std::move(rows);
    m_drawnTotals = std::move(totals);
    return change;
}

/// By the number of their row.
std::vector<PlanPicture::DrawnRow> PlanPicture::rowsOf(const paint::PlanScene& scene)
{
    std::vector<DrawnRow> rows;
    rows.reserve(scene.form.Salle.size());
    for (std::size_t index = 0; index < scene.form.Salle.size(); ++index) {
        rows.push_back({scene.form.Salle[index], scene.form.Cap[index], {}});
    }
    for (const plan::PlanRow& row : scene.content.rows) {
        rows.at(static_cast<std::size_t>(row.index)).content = row;
    }
    return rows;
}

PlanPicture::Ground PlanPicture::groundOf(const paint::PlanScene& scene, QSize size, double ratio)
{
    Ground ground{scene.form,  scene.layout, scene.target, scene.rowsShown,
                  scene.hours, size,         ratio};
    // Where rows lie decides about others, too: the first one's height is every box's.
    for (form::Label& name : ground.form.Salle) {
        name = form::Label{{}, name.visible, name.place, {}, {}, name.font};
    }
    ground.form.Cap = ground.form.Salle;
    ground.form.Tot = {};
    return ground;
}

void PlanPicture::drawAll(const paint::PlanScene& scene, QSize size)
{
    const form::Place& first = scene.form.Salle.front().place;
    QPainter painter(&m_plan);
    QRectF area = boxStrip(scene, first.top, first.height);
    area.setBottom(size.height());
    painter.fillRect(area, kPlanFill);
    paint::PlanPainter(painter, scene).paintPlan();
}

std::vector<int> PlanPicture::changedRows(const std::vector<DrawnRow>& rows) const
{
    std::vector<int> changed;
    for (std::size_t index = 0; index < rows.size(); ++index) {
        if (rows[index] != m_rows[index]) {
            changed.push_back(static_cast<int>(index));
        }
    }
    return changed;
}

/// Returns the strips that it has drawn. Where rows stand close, a strip holds an edge of the rows
/// beside it, which are drawn there once more.
QRegion PlanPicture::drawRows(const paint::PlanScene& scene, const std::vector<int>& rows)
{
    QRegion strips;
    std::set<int> touched;
    const int last = static_cast<int>(scene.form.Salle.size()) - 1;
    for (const int row : rows) {
        const form::Place& place = scene.form.Salle[static_cast<std::size_t>(row)].place;
        strips +=
            QRectF(0, scene.target.toPixelsY(place.top) - 1, m_plan.deviceIndependentSize().width(),
                   scene.target.toPixelsY(place.height) + 2)
                .toAlignedRect();
        touched.insert({std::max(row - 1, 0), row, std::min(row + 1, last)});
    }
    if (!strips.isEmpty()) {
        QPainter painter(&m_plan);
        painter.setClipRegion(strips);
        const QRectF all = strips.boundingRect();
        painter.fillRect(all, kBandFill);
        const form::Place& first = scene.form.Salle.front().place;
        QRectF boxes = boxStrip(scene, first.top, first.height); // white from the first row on
        boxes.setBottom(all.bottom());
        painter.fillRect(boxes, kPlanFill);
        paint::PlanPainter plan(painter, scene);
        plan.paintGrid();
        plan.paintRows({touched.begin(), touched.end()});
    }
    return strips;
}

void PlanPicture::drawTotals(const paint::PlanScene& scene)
{
    m_totals.fill(kBandFill);
    QPainter painter(&m_totals);
    painter.translate(0, 2);
    paint::PlanPainter(painter, scene).paintTotals();
}

} // namespace app
