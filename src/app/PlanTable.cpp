#include "app/PlanTable.h"

#include "app/PlanHit.h"
#include "paint/Overlays.h"
#include "plan/BoxLines.h"
#include "plan/BoxWords.h"
#include "plan/EmptyPlan.h"
#include "plan/FaultWords.h"
#include "plan/RoomRows.h"
#include "plan/SlotColumns.h"
#include "print/Heading.h"
#include "runtime/FrenchDate.h"

#include <algorithm>

namespace app
{
namespace
{

/// Read aloud: a dash between two times would be swallowed.
QString timeWords(const QString& start, int minutes)
{
    return plan::stretchWords(start, QStringLiteral(" à "), minutes);
}

/// Like what is drawn, in one line.
QString inOneLine(QStringList parts)
{
    for (QString& part : parts) {
        part = part.simplified();
    }
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

} // namespace

PlanTable::PlanTable(const plan::PlanState& state, const plan::PlanContent& content,
                     const paint::DrawingTarget& target)
    : m_state(state), m_content(content), m_target(target),
      m_slots(plan::slotColumns(state.slots, {content}))
{
    for (const plan::PlanRow& row : content.rows) {
        if (plan::isShown(state.form, row)) {
            m_rows.push_back(&row);
        }
    }
}

const plan::PlanRow& PlanTable::rowOf(const Cell& cell) const
{
    return *m_rows.at(static_cast<std::size_t>(cell.row));
}

int PlanTable::slotOf(const Cell& cell) const
{
    return cell.column == 0 ? 0 : m_slots.at(static_cast<std::size_t>(cell.column - 1));
}

const plan::PlanBox* PlanTable::boxOf(const Cell& cell) const
{
    return cell.column == 0 ? nullptr : plan::boxAt(rowOf(cell), slotOf(cell));
}

std::vector<PlanTable::Cell> PlanTable::cellsOf(int row) const
{
    std::vector<Cell> cells{{row, 0, 1}};
    while (cells.back().column + cells.back().span < columnCount()) {
        Cell cell{row, cells.back().column + cells.back().span, 1};
        if (const plan::PlanBox* box = boxOf(cell)) {
            cell.span =
                static_cast<int>(plan::columnsOf(m_state.slots, rowOf(cell), *box, m_slots,
                                                 static_cast<std::size_t>(cell.column - 1)));
        }
        cells.push_back(cell);
    }
    return cells;
}

std::optional<PlanTable::Cell> PlanTable::cellAt(int row, int column) const
{
    if (row < 0 || row >= rowCount()) {
        return std::nullopt;
    }
    for (const Cell& cell : cellsOf(row)) {
        if (column >= cell.column && column < cell.column + cell.span) {
            return cell;
        }
    }
    return std::nullopt;
}

std::optional<PlanTable::Cell> PlanTable::cellOf(const QString& room, int slot) const
{
    for (int row = 0; row < rowCount(); ++row) {
        if (rowOf({row, 0, 1}).room == room) {
            const auto found = cellIn(row, slot);
            return found ? found : cellAt(row, 0);
        }
    }
    return std::nullopt;
}

std::optional<PlanTable::Cell> PlanTable::cellIn(int row, int slot) const
{
    if (slot == 0) {
        return cellAt(row, 0);
    }
    const auto found = std::find(m_slots.begin(), m_slots.end(), slot);
    return found == m_slots.end() ? std::nullopt
                                  : cellAt(row, static_cast<int>(found - m_slots.begin()) + 1);
}

std::optional<PlanTable::Cell> PlanTable::roomAtHeight(double y) const
{
    for (int row = 0; row < rowCount(); ++row) {
        const QRectF place = placeOf({row, 0, 1});
        if (y >= place.top() && y < place.bottom()) {
            return Cell{row, 0, 1};
        }
    }
    return std::nullopt;
}

std::optional<PlanTable::Cell> PlanTable::cellUnder(QPointF point) const
{
    const PlanHit hit = hitPlan(m_state.form, m_content, m_target, point);
    if (hit.box != nullptr) {
        const auto row = std::find(m_rows.begin(), m_rows.end(), hit.row) - m_rows.begin();
        const auto column =
            std::find(m_slots.begin(), m_slots.end(), hit.box->slot) - m_slots.begin();
        return cellAt(static_cast<int>(row), static_cast<int>(column) + 1);
    }
    const auto room = roomAtHeight(point.y());
    if (!room) {
        return std::nullopt;
    }
    for (const Cell& cell : cellsOf(room->row)) {
        if (cell.column > 0 && boxOf(cell) == nullptr && placeOf(cell).contains(point)) {
            return cell;
        }
    }
    return std::nullopt;
}

QString PlanTable::nameOf(const Cell& cell) const
{
    const plan::PlanRow& row = rowOf(cell);
    if (cell.column == 0) {
        return inOneLine({row.room, row.places + QStringLiteral(" places")});
    }
    const plan::PlanBox* box = boxOf(cell);
    if (box == nullptr) {
        return inOneLine({row.room, columnTitle(cell.column),
                          plan::isUnknown(row, slotOf(cell)) ? QStringLiteral("inconnu")
                                                             : QStringLiteral("pas de case")});
    }
    QStringList parts{row.room, timeWords(box->cell.CellStart, box->minutes)};
    parts += plan::writtenLines(plan::SanitizeCellText(box->cell.CellText));
    const QString week = plan::weekLetter(*box);
    parts << (week.isEmpty() ? QString() : QStringLiteral("semaine ") + week);
    parts += plan::groupWords(m_state.form, *box);
    parts += plan::remarkWords(m_state.form, *box);
    for (const QString& other : plan::overlapWords(row, *box)) {
        parts << plan::SanitizeCellText(other);
    }
    return inOneLine(parts);
}

QRectF PlanTable::placeOf(const Cell& cell) const
{
    const form::PlanForm& form = m_state.form;
    const plan::PlanRow& row = rowOf(cell);
    const form::Place& room = form.Salle.at(static_cast<std::size_t>(row.index)).place;
    if (cell.column == 0) {
        return m_target.toPixels(room);
    }
    if (const plan::PlanBox* box = boxOf(cell)) {
        return paint::overlayPlaces(form, m_target, row.index, *box).ZAbs;
    }
    const int slot = slotOf(cell);
    if (!m_state.slots.slot(slot)) {
        return {};
    }
    const form::Place& across = form.Tot.at(static_cast<std::size_t>(slot - 1)).place;
    return m_target.toPixels(QRectF(across.left, room.top, across.width, room.height))
        .translated(m_target.TargetXOffset, 0);
}

QString PlanTable::slotTitle(int slot) const
{
    const auto& facts = m_state.slots.slot(slot);
    return facts ? timeWords(facts->start, facts->minutes) : QStringLiteral("séance %1").arg(slot);
}

QString PlanTable::columnTitle(int column) const
{
    if (column < 0 || column >= columnCount()) {
        return {};
    }
    return column == 0 ? QStringLiteral("Salle") : slotTitle(slotOf({0, column, 1}));
}

QStringList PlanTable::words() const
{
    QStringList words;
    for (int row = 0; row < rowCount(); ++row) {
        for (const Cell& cell : cellsOf(row)) {
            words << nameOf(cell);
        }
    }
    return words;
}

QString PlanTable::title() const
{
    const form::PlanForm& form = m_state.form;
    const print::Heading heading = print::headingOf(m_state);
    const QString day = form.DTPicker1.visible ? runtime::frenchDayAndDate(form.DTPicker1.value())
                                               : form.CbJour.text();
    QString title = inOneLine(
        {QStringLiteral("Plan des salles"), day, heading.periodAndWeek(), heading.choice});
    return title.replace(QStringLiteral(" · "), QStringLiteral(", ")); // for reading aloud
}

QString PlanTable::note() const
{
    const form::PlanForm& form = m_state.form;
    QStringList sentences;
    const QString faults = plan::faultSentence(m_content);
    if (!faults.isEmpty()) {
        sentences << faults;
    }
    const QString empty = plan::emptyPlanReason(m_state, m_content);
    if (!empty.isEmpty()) {
        sentences << empty;
    }
    const form::Label& rowZero = form.Salle.front();
    if (rowZero.visible) {
        sentences << QStringLiteral("Première ligne, grisée, hors du tableau : %1. Ses séances ne "
                                    "sont pas dessinées ici.")
                         .arg(m_state.page.room(0).name);
    }
    QStringList totals;
    for (int slot = 1; slot <= form::PlanForm::kSlotLabels; ++slot) {
        const auto& total = m_state.totals.line.at(static_cast<std::size_t>(slot - 1));
        if (total.isShown) {
            totals << slotTitle(slot) + QStringLiteral(" : ") + total.text;
        }
    }
    if (!totals.isEmpty()) {
        const QString counted = m_state.totals.isOld
                                    ? QStringLiteral("Places occupées, comptées avant le dernier "
                                                     "choix, %1.")
                                    : QStringLiteral("Places occupées, %1.");
        sentences << counted.arg(totals.join(QStringLiteral(", ")));
    }
    return sentences.join(u' ');
}

} // namespace app
