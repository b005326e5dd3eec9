#include "paint/PlanPainter.h"

#include "paint/AbsencePictures.h"
#include "paint/BoxText.h"
#include "paint/CellBox.h"
#include "paint/HourMarks.h"
#include "paint/Inks.h"
#include "paint/Overlays.h"
#include "paint/PlanGrid.h"
#include "paint/UnknownMark.h"
#include "plan/RoomRows.h"

#include <QColor>
#include <algorithm>

namespace paint
{
namespace
{

constexpr int kTextPixels = 13;
constexpr int kTotalPixels = 20;
constexpr QColor kGreyedFill(236, 236, 236);
constexpr QColor kOverfullFill(178, 24, 32);
constexpr QColor kCounterFill(30, 45, 75);

} // namespace

PlanScene sceneOf(const plan::PlanState& state, const plan::PlanContent& content,
                  const DrawingTarget& target)
{
    return {state.form, content, state.layout, target, state.page.RowsShown, state.totals.isOld};
}

PlanScene windowSceneOf(const plan::PlanState& state, const plan::PlanContent& content,
                        const DrawingTarget& target, const plan::ShownHours& hours)
{
    return {state.form,         content, state.layout, target, state.page.RowsShown,
            state.totals.isOld, hours};
}

PlanPainter::PlanPainter(QPainter& surface, const PlanScene& scene)
    : m_surface(surface), m_scene(scene), m_ruler(planFont(kTextPixels)),
      m_labelRuler(planFont(kTextPixels, true)), m_rowZeroRuler(rowZeroFont())
{
}

QFont PlanPainter::rowZeroFont()
{
    QFont font = planFont(kTextPixels);
    font.setItalic(true);
    return font;
}

double PlanPainter::rowsBottom(const PlanScene& scene)
{
    const int last = std::clamp(scene.rowsShown, 0, form::PlanForm::kRows - 1);
    const form::Place& place = scene.form.Salle[static_cast<std::size_t>(last)].place;
    return scene.target.toPixelsY(place.top + place.height);
}

void PlanPainter::paintPlan()
{
    paintTicks();
    paintGrid();
    paintBoxes();
    paintRoomLabels();
    paintPlaces();
}

void PlanPainter::paintTicks()
{
    m_surface.save();
    m_surface.setPen(kHeaderInk);
    m_surface.setFont(planFont(kTextPixels, true));
    if (m_scene.hours) {
        for (const HourMark& mark : hourMarks(m_scene.form, *m_scene.hours)) {
            paintTick(mark.x, m_scene.form.Label1.front().place, mark.caption);
        }
    } else {
        for (const form::Label& tick : m_scene.form.Label1) {
            paintTick(tick.place.left, tick.place, tick.caption);
        }
    }
    m_surface.restore();
}

void PlanPainter::paintTick(double x, const form::Place& label, const QString& caption)
{
    const double left = m_scene.target.onAxis(x);
    const double top = m_scene.target.toPixelsY(label.top);
    const double height = m_scene.target.toPixelsY(label.height);
    m_surface.drawLine(QPointF(left, top + height - 4), QPointF(left, top + height));
    m_surface.drawText(QRectF(left + 2, top, m_scene.target.toPixelsX(label.width), height),
                       Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, caption);
}

void PlanPainter::paintGrid()
{
    DrawPlanGrid(m_surface, m_scene.target,
                 m_scene.hours ? windowGridLines(m_scene.form, m_scene.rowsShown, *m_scene.hours)
                               : planGridLines(m_scene.form, m_scene.rowsShown,
                                               m_scene.target.TargetIsPrinter));
}

void PlanPainter::paintBoxes()
{
    for (const plan::PlanRow& row : m_scene.content.rows) {
        paintBoxesOf(row);
    }
}

void PlanPainter::paintBoxesOf(const plan::PlanRow& row)
{
    // A row that the page has no room for stays out of sight with its label.
    if (!plan::isShown(m_scene.form, row)) {
        return;
    }
    m_surface.save();
    m_surface.setFont(planFont(kTextPixels));
    paintUnknownCells(row);
    for (const plan::PlanBox& box : row.boxes) {
        paintBox(row, box);
    }
    m_surface.restore();
}

void PlanPainter::paintUnknownCells(const plan::PlanRow& row)
{
    const form::Place& room = m_scene.form.Salle[static_cast<std::size_t>(row.index)].place;
    for (const plan::UnknownCell& cell : row.unknown) {
        drawUnknownMark(m_surface, m_scene.target, m_scene.target.toPixelsX(cell.x),
                        m_scene.target.toPixelsY(room.top), cell.minutes,
                        m_scene.form.Salle.front().place.height);
    }
}

void PlanPainter::paintBox(const plan::PlanRow& row, const plan::PlanBox& box)
{
    const form::Place& room = m_scene.form.Salle[static_cast<std::size_t>(row.index)].place;
    const OverlayPlaces places = drawnPlaces(
        m_scene.form, overlayPlaces(m_scene.form, m_scene.target, row.index, box, m_overlayFonts),
        box);
    BoxStyle style;
    style.fill = row.color;
    style.hatched = box.makeUp;
    style.rowHeight = m_scene.form.Salle.front().place.height;
    style.textFormat = m_scene.layout.CellTextFormat;
    style.ruler = &m_ruler;
    style.reserved = reservedByOverlays(m_scene.form, places, box);
    DrawCellBox(m_surface, m_scene.target, style, m_scene.target.toPixelsX(box.x),
                m_scene.target.toPixelsY(room.top), box.minutes, box.cell.CellText);
    paintOverlays(places, box, row.color);
}

void PlanPainter::paintOverlays(const OverlayPlaces& places, const plan::PlanBox& box,
                                form::Colour under)
{
    if (box.classAbsent) {
        paintClassAbsent(m_surface, places.XAbs);
    }
    if (box.studentAbsent) {
        paintStudentAbsent(m_surface, places.YAbs);
    }
    if (!box.group || !m_scene.form.Check3.isChecked()) {
        return;
    }
    // The labels are dark: on a row as dark as that they would have no end.
    const bool isEdged = toColor(readableOn(under)) == Qt::white;
    m_surface.setPen(Qt::white);
    paintOverlayLabel(places.Label2, kCounterFill, isEdged, box.group->counter);
    paintOverlayLabel(places.Labelz, box.group->overfull ? kOverfullFill : kCounterFill, isEdged,
                      box.group->sizeLabel);
}

void PlanPainter::paintOverlayLabel(const QRectF& place, const QColor& fill, bool isEdged,
                                    const QString& text)
{
    if (place.isEmpty()) {
        return; // a séance without a length
    }
    const GlyphFont& font = m_overlayFonts.fitting(text, place.width());
    QString shown = text;
    double width = font.width(text);
    if (width > place.width()) {
        shown = font.elided(text, place.width());
        width = font.width(shown);
    }
    QRectF line(0, 0, width, font.height());
    line.moveCenter(place.center());
    if (isEdged) {
        m_surface.fillRect(place, Qt::white);
    }
    m_surface.fillRect(isEdged ? place.adjusted(1, 1, -1, -1) : place, fill);
    const bool cut = line.width() > place.width() || line.height() > place.height();
    if (cut) {
        m_surface.save();
        m_surface.setClipRect(place, Qt::IntersectClip);
    }
    font.draw(m_surface, {line.left(), line.top() + font.ascent()}, shown);
    if (cut) {
        m_surface.restore();
    }
}

void PlanPainter::paintRowLabel(const form::Label& label, bool isRowZero, Qt::AlignmentFlag side)
{
    const QRectF place = m_scene.target.toPixels(label.place);
    // Row 0 is the room before the first drawn one: greyed, so that nobody takes it for free.
    m_surface.fillRect(place, isRowZero ? kGreyedFill : toColor(label.backColor));
    m_surface.setPen(isRowZero ? kGreyedInk : toColor(readableOn(label.backColor)));
    drawLabelText(m_surface, place.marginsRemoved(QMarginsF(5, 0, 5, 0)), label.caption, side,
                  isRowZero ? m_rowZeroRuler : m_labelRuler);
}

void PlanPainter::paintRows(const std::vector<int>& rows)
{
    const auto isOne = [&rows](int row) {
        return std::find(rows.begin(), rows.end(), row) != rows.end();
    };
    for (const plan::PlanRow& row : m_scene.content.rows) {
        if (isOne(row.index)) {
            paintBoxesOf(row);
        }
    }
    m_surface.save();
    for (const auto& [labels, side] : {std::pair(&m_scene.form.Salle, Qt::AlignLeft),
                                       std::pair(&m_scene.form.Cap, Qt::AlignRight)}) {
        for (const int row : rows) {
            const form::Label& label = labels->at(static_cast<std::size_t>(row));
            if (label.visible) {
                paintRowLabel(label, row == 0, side);
            }
        }
    }
    m_surface.restore();
}

void PlanPainter::paintRoomLabels()
{
    m_surface.save();
    for (std::size_t row = 0; row < m_scene.form.Salle.size(); ++row) {
        if (m_scene.form.Salle[row].visible) {
            paintRowLabel(m_scene.form.Salle[row], row == 0, Qt::AlignLeft);
        }
    }
    m_surface.restore();
}

void PlanPainter::paintPlaces()
{
    m_surface.save();
    for (std::size_t row = 0; row < m_scene.form.Cap.size(); ++row) {
        if (m_scene.form.Cap[row].visible) {
            paintRowLabel(m_scene.form.Cap[row], row == 0, Qt::AlignRight);
        }
    }
    m_surface.restore();
}

void PlanPainter::paintTotals()
{
    m_surface.save();
    m_surface.setFont(planFont(kTextPixels, true));
    for (const form::Label& total : m_scene.form.Tot) {
        if (total.visible) {
            const QRectF place(m_scene.target.onAxis(total.place.left), 0,
                               m_scene.target.toPixelsX(total.place.width), kTotalPixels);
            m_surface.setPen(QPen(m_scene.hasOldTotals ? kGreyedInk : kHeaderInk, 0));
            m_surface.setBrush(m_scene.hasOldTotals ? kGreyedFill : QColor(Qt::white));
            m_surface.drawRect(place.adjusted(0.5, 0.5, -1.5, -0.5));
            m_surface.drawText(place, Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip,
                               total.caption);
        }
    }
    m_surface.restore();
}

} // namespace paint
