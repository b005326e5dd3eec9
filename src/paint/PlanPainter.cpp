#include "paint/PlanPainter.h"

#include "paint/AbsencePictures.h"
#include "paint/BoxText.h"
#include "paint/CellBox.h"
#include "paint/HourMarks.h"
#include "paint/Inks.h"
#include "paint/Overlays.h"
#include "paint/PlanGrid.h"
#include "paint/RowTexts.h"
#include "paint/UnknownMark.h"
#include "plan/BoxLines.h"
#include "plan/BoxWords.h"
#include "plan/RoomRows.h"

#include <QColor>
#include <algorithm>

namespace paint
{
namespace
{

constexpr int kTextPixels = 13;
constexpr int kPlacesPixels = 12; // of a room's places beside its name
constexpr double kBesideName = 6; // pixels between the two
constexpr int kSmallestName = 10; // that a name shrinks to for them
constexpr int kTotalPixels = 20;
constexpr QMarginsF kLabelMargins(5, 0, 5, 0);
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
      m_labelRuler(planFont(kTextPixels, true)), m_rowZeroRuler(rowZeroFont()),
      m_placesRuler(planFont(kPlacesPixels))
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
    std::vector<LaidOutBox> boxes;
    boxes.reserve(row.boxes.size());
    for (const plan::PlanBox& box : row.boxes) {
        boxes.push_back(layOut(row, box));
    }
    const std::vector<TextSetting> texts = textsOf(row, boxes);
    for (std::size_t index = 0; index < boxes.size(); ++index) {
        if (!texts.empty()) {
            boxes[index].style.setting = &texts[index];
        }
        paintBox(boxes[index], row.boxes[index]);
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

PlanPainter::LaidOutBox PlanPainter::layOut(const plan::PlanRow& row,
                                            const plan::PlanBox& box) const
{
    LaidOutBox laidOut;
    laidOut.places = drawnPlaces(
        m_scene.form, overlayPlaces(m_scene.form, m_scene.target, row.index, box, m_overlayFonts),
        box);
    laidOut.share = shareOf(m_scene.form, m_scene.target, row.index, box);
    BoxStyle& style = laidOut.style;
    style.fill = row.color;
    style.hatched = box.makeUp;
    style.rowHeight = laidOut.share.height;
    style.textFormat = m_scene.layout.CellTextFormat;
    style.ruler = &m_ruler;
    style.reserved = reservedByOverlays(m_scene.form, laidOut.places, box);
    return laidOut;
}

/// In the window in one size; none where each has the size that it has room for.
std::vector<TextSetting> PlanPainter::textsOf(const plan::PlanRow& row,
                                              const std::vector<LaidOutBox>& boxes) const
{
    if (!m_scene.hours) {
        return {};
    }
    const DrawingTarget& target = m_scene.target;
    std::vector<RowText> texts;
    texts.reserve(boxes.size());
    for (std::size_t index = 0; index < boxes.size(); ++index) {
        const plan::PlanBox& box = row.boxes[index];
        const QRect place =
            boxRectangle(target, target.toPixelsX(box.x), target.toPixelsY(boxes[index].share.top),
                         box.minutes, boxes[index].share.height);
        texts.push_back({textRectangle(target, boxes[index].style, place),
                         plan::SanitizeCellText(box.cell.CellText)});
    }
    return fitRowTexts(texts, m_scene.layout.CellTextFormat, m_ruler);
}

void PlanPainter::paintBox(const LaidOutBox& laidOut, const plan::PlanBox& box)
{
    DrawCellBox(m_surface, m_scene.target, laidOut.style, m_scene.target.toPixelsX(box.x),
                m_scene.target.toPixelsY(laidOut.share.top), box.minutes, box.cell.CellText);
    paintOverlays(laidOut.places, box, laidOut.style.fill);
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
    // The labels are dark: on a row as dark as that they would have no end.
    const bool isEdged = toColor(readableOn(under)) == Qt::white;
    m_surface.setPen(Qt::white);
    if (!places.week.isEmpty()) {
        paintOverlayLabel(places.week, kHeaderInk, isEdged, plan::weekLetter(box));
    }
    if (!box.group || !m_scene.form.Check3.isChecked()) {
        return;
    }
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

QColor PlanPainter::greyedInk() const
{
    return m_scene.hours ? kReadableGreyedInk : kGreyedInk;
}

/// Row 0 is the room before the first drawn one: greyed, so that nobody takes it for free.
void PlanPainter::fillRowLabel(const QRectF& place, const form::Label& label, bool isRowZero)
{
    m_surface.fillRect(place, isRowZero ? kGreyedFill : toColor(label.backColor));
    m_surface.setPen(isRowZero ? greyedInk() : toColor(readableOn(label.backColor)));
}

void PlanPainter::paintRowLabel(const form::Label& label, bool isRowZero, Qt::AlignmentFlag side)
{
    const QRectF place = m_scene.target.toPixels(label.place);
    fillRowLabel(place, label, isRowZero);
    drawLabelText(m_surface, place.marginsRemoved(kLabelMargins), label.caption, side,
                  isRowZero ? m_rowZeroRuler : m_labelRuler);
}

void PlanPainter::paintName(std::size_t row)
{
    const form::Label& label = m_scene.form.Salle[row];
    const QString& places = m_scene.form.Cap[row].caption;
    const bool isRowZero = row == 0;
    if (!m_scene.hours || places.isEmpty()) {
        paintRowLabel(label, isRowZero, Qt::AlignLeft);
        return;
    }
    const QRectF place = m_scene.target.toPixels(label.place);
    const QRectF room = place.marginsRemoved(kLabelMargins);
    const QRectF name = room.adjusted(0, 0, -m_placesRuler.width(places) - kBesideName, 0);
    const TextRuler& ruler = isRowZero ? m_rowZeroRuler : m_labelRuler;
    const TextSetting setting = fitBoxText(name, label.caption, plan::CellLayout::kCentredLines,
                                           ruler, ruler.font().pixelSize());
    // A long name is worth more than its places, which stand at the row's end as well.
    const bool hasRoom = setting.fits && setting.pixels >= kSmallestName;
    fillRowLabel(place, label, isRowZero);
    drawLabelText(m_surface, hasRoom ? name : room, label.caption, Qt::AlignLeft, ruler);
    if (hasRoom) {
        drawLabelText(m_surface, room, places, Qt::AlignRight, m_placesRuler);
    }
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
    for (const int row : rows) {
        const auto index = static_cast<std::size_t>(row);
        if (m_scene.form.Salle.at(index).visible) {
            paintName(index);
        }
        if (m_scene.form.Cap.at(index).visible) {
            paintRowLabel(m_scene.form.Cap[index], row == 0, Qt::AlignRight);
        }
    }
    m_surface.restore();
}

void PlanPainter::paintRoomLabels()
{
    m_surface.save();
    for (std::size_t row = 0; row < m_scene.form.Salle.size(); ++row) {
        if (m_scene.form.Salle[row].visible) {
            paintName(row);
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
            m_surface.setPen(QPen(m_scene.hasOldTotals ? greyedInk() : kHeaderInk, 0));
            m_surface.setBrush(m_scene.hasOldTotals ? kGreyedFill : QColor(Qt::white));
            m_surface.drawRect(place.adjusted(0.5, 0.5, -1.5, -0.5));
            m_surface.drawText(place, Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip,
                               total.caption);
        }
    }
    m_surface.restore();
}

} // namespace paint
