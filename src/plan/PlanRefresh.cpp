#include "plan/PlanRefresh.h"

#include "context/AxisLabels.h"
#include "plan/CellNumbers.h"
#include "plan/ClassList.h"
#include "plan/RowLanes.h"
#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"
#include "runtime/TimeOfDay.h"

#include <QScopedValueRollback>
#include <utility>

namespace plan
{
namespace
{

using runtime::leadingNumber;
using runtime::nearestInteger;

// A row takes the colour two entries further on than the one where a random colour is stored:
// entries 0 and 1 of a palette are not meant for rows.
constexpr int kColorStep = 2;
constexpr form::Colour kPlainRow = form::Colour::fromRgb(215, 215, 215);

UntoldCell untoldCell(const QString& start, const QString& duration)
{
    const double minutes = leadingNumber(duration);
    const bool isKnown = minutes >= 1 && minutes <= runtime::kMinutesOfDay;
    return isKnown ? UntoldCell{start, nearestInteger(minutes)} : UntoldCell{};
}

/// What was found and composes no text, and rows that are there at other times than their box.
void noteUntold(PlanRow& row, const lookup::RoomCell& cell)
{
    if (cell.CellText.isEmpty() && !cell.isUnknown && cell != lookup::RoomCell()) {
        row.untold.push_back(untoldCell(cell.CellStart, cell.CellDuration));
    }
    for (const lookup::CellTime& time : cell.otherTimes) {
        row.untold.push_back(untoldCell(time.start, time.duration));
    }
}

} // namespace

std::int16_t CountSlashParts(const QString& text)
{
    const qsizetype first = text.indexOf(u'/');
    if (first < 0) {
        return 1;
    }
    return text.indexOf(u'/', first + 1) < 0 ? 2 : 3;
}

PlanRefresh::PlanRefresh(PlanState& state, Sources sources, std::function<void()> yield)
    : m_state(state), m_sources(sources), m_yield(std::move(yield))
{
}

void PlanRefresh::RefreshPlan(TotalsStart start)
{
    if (!m_state.form.visible) {
        return;
    }
    const std::uint64_t refresh = ++m_refreshes;
    m_began = std::chrono::steady_clock::now();
    m_inProgress = refresh;
    startTotals(start);
    const context::Totals totals = m_state.totals;
    m_sources.reads.begin();
    startRows();
    while (m_nextRow <= m_lastRow) {
        drawRow(m_nextRow++);
        if (m_sources.reads.startAgain()) {
            m_state.totals = totals;
            m_state.totals.show(m_state.form);
            startRows();
            continue;
        }
        if (m_yields) {
            m_yield();
        }
        if (m_inProgress != refresh) {
            return;
        }
    }
    endPage();
    m_state.colors.RedrawMode = true;
}

/// The page from its first row on, all of it over one connection.
void PlanRefresh::startRows()
{
    ClearPlanOverlays();
    m_content.drawnFrom = choiceOf(m_state);
    m_state.colors.reseed();
    m_nextRow = 1;
    m_lastRow = m_state.page.RowsShown;
    prepareQuestions();
    if (m_sources.reads.startAgain()) {
        prepareQuestions();
    }
}

void PlanRefresh::endPage()
{
    m_sources.reads.end();
    m_content.faults = m_sources.reads.faults();
    m_content.failingSince = m_sources.reads.failingSince();
}

/// A line that a refresh leaves standing tells of another choice from then on; nothing can be added
/// to it.
void PlanRefresh::startTotals(TotalsStart start)
{
    context::Totals& totals = m_state.totals;
    m_counting = totals.CountingOn && start != TotalsStart::AsItStands;
    if (!m_counting) {
        totals.isOld = totals.isOld || start != TotalsStart::AsItStands;
    } else if (start == TotalsStart::Zero || totals.isOld) {
        totals.clear(m_state.form);
    }
}

void PlanRefresh::ClearPlanOverlays()
{
    m_content = {};
    m_markers.startAgain();
}

void PlanRefresh::finishRows()
{
    while (m_nextRow <= m_lastRow) {
        drawRow(m_nextRow++);
    }
    endPage();
}

void PlanRefresh::withoutYielding(const std::function<void()>& action)
{
    const QScopedValueRollback<bool> still(m_yields, false);
    action();
}

form::Colour PlanRefresh::rowColor(int row)
{
    RowColors& colors = m_state.colors;
    if (m_state.form.Colorer.isChecked() && colors.PaletteName.isEmpty() && !colors.RedrawMode) {
        const form::Colour color = colors.randomColor();
        colors.set(row, color);
        return color;
    }
    return tabledColor(row);
}

form::Colour PlanRefresh::tabledColor(int row) const
{
    return m_state.form.Colorer.isChecked() ? m_state.colors.at(row + kColorStep) : kPlainRow;
}

QString PlanRefresh::seanceKey(int slot) const
{
    return m_state.form.CbJour.text() + QString::number(slot);
}

/// Everything that the rows are going to ask is known before the first one is drawn.
void PlanRefresh::prepareQuestions()
{
    QStringList rooms;
    for (int row = 1; row <= m_lastRow && row < form::PlanForm::kRows; ++row) {
        rooms << m_state.page.room(row).name;
    }
    QStringList keys;
    for (int slot = 1; slot <= kAskedSlots; ++slot) {
        keys << seanceKey(slot);
    }
    const lookup::View view = viewOf(m_state);
    const lookup::PageFacts facts =
        lookup::OccupancyLookup(m_sources.rows, view)
            .prepare(rooms, keys, QString::number(m_state.period.TrancheIdent));
    AbsenceQuestions absences{m_state.form.DTPicker1.value(), {}, facts.starts};
    for (const QString& className : facts.classNames) {
        absences.classNames << firstClass(className);
    }
    absences.starts += view.tickTimes; // stand in where a row has no start of its own
    m_sources.absences.prepare(absences);
}

void PlanRefresh::drawRow(int row)
{
    const context::RoomPage::Room room = m_state.page.room(row);
    PlanRow planRow{row, room.name, room.places, rowColor(row), {}, {}, {}, askedNow()};
    m_state.form.Salle[static_cast<std::size_t>(row)].backColor = planRow.color;
    m_state.form.Cap[static_cast<std::size_t>(row)].backColor = planRow.color;
    lookup::OccupancyLookup lookup(m_sources.rows, viewOf(m_state));
    QString durationBefore;
    for (int slot = 1; slot <= kAskedSlots; ++slot) {
        try {
            bool makeUp = false;
            lookup::RoomCell cell = lookUp(lookup, planRow, slot, makeUp);
            countSlot(planRow, slot, cell, durationBefore);
            durationBefore = cell.CellDuration;
            if (!cell.CellText.isEmpty()) {
                drawSlot(planRow, slot, std::move(cell), makeUp);
            } else if (cell.isUnknown) {
                noteUnknown(planRow, slot);
            }
        } catch (runtime::RunTimeError& error) {
            error.addPlace(QStringLiteral("Dessin de la salle « %1 », séance « %2 »")
                               .arg(planRow.room, seanceKey(slot)));
            throw;
        }
    }
    assignLanes(planRow);
    m_content.rows.push_back(std::move(planRow));
    if (m_counting) {
        m_state.totals.addRoom(m_state.form, teachersOnly());
    }
}

Asked PlanRefresh::askedNow() const
{
    const form::PlanForm& form = m_state.form;
    if (!form.OpEns().isSelected()) {
        return Asked::Exams;
    }
    return form.Check2.isChecked() ? Asked::CoursesAndMakeUps : Asked::Courses;
}

/// With "Date", a free slot is asked about again among the make-ups.
lookup::RoomCell PlanRefresh::lookUp(lookup::OccupancyLookup& lookup, PlanRow& row, int slot,
                                     bool& makeUp) const
{
    const QString tranche = QString::number(m_state.period.TrancheIdent);
    const QString key = seanceKey(slot);
    lookup::RoomCell cell = *lookup.RoomOccupancy(row.room, key, tranche, false);
    noteUntold(row, cell);
    if (cell.CellText.isEmpty() && m_state.form.Check2.isChecked()) {
        makeUp = true;
        const bool isUnknown = cell.isUnknown;
        if (auto found = lookup.RoomOccupancy(row.room, key, tranche, true)) {
            noteUntold(row, *found);
            cell = std::move(*found);
            cell.isUnknown |= isUnknown;
        }
    }
    return cell;
}

void PlanRefresh::countSlot(const PlanRow& planRow, int slot, const lookup::RoomCell& cell,
                            const QString& durationBefore)
{
    context::Totals& totals = m_state.totals;
    const auto entry = static_cast<std::size_t>(slot - 1);
    totals.SlotSeats.at(entry) = 0;
    bool isHeld = !cell.CellText.isEmpty();
    if (isHeld && teachersOnly()) {
        std::int16_t& teachers = totals.SlotTeacherCount.at(entry);
        teachers = runtime::addInt16(teachers, CountSlashParts(cell.CellText));
    } else if (!isHeld && slot != 1) {
        // What began in the slot before still holds the room.
        isHeld = m_state.slots.OverrunsIntoSlot(
            slot, cellNumber("de la durée", durationBefore, nearestInteger));
    }
    if (isHeld) {
        totals.SlotSeats.at(entry) = seatsOf(planRow);
    }
}

/// Places are counted by the row's number from the page's start, which on later pages is the room
/// before; where every room has a row, they are the room's own.
std::int16_t PlanRefresh::seatsOf(const PlanRow& row) const
{
    return m_state.form.EveryRoom.isChecked()
               ? cellNumber("des places", row.places, runtime::nearestInt16)
               : m_state.places.at(row.index + m_state.page.PageOffset);
}

void PlanRefresh::drawSlot(PlanRow& planRow, int slot, lookup::RoomCell cell, bool makeUp)
{
    const context::TimeAxis axis = context::screenAxis(m_state.form);
    PlanBox box;
    box.slot = slot;
    box.makeUp = makeUp;
    box.cell = std::move(cell);
    box.x = axis.TimeToX(box.cell.CellStart);
    box.minutes = cellNumber("de la durée", box.cell.CellDuration, nearestInteger);
    box.width = axis.widthOf(leadingNumber(box.cell.CellDuration));
    box.marker =
        m_markers.fill(box.cell, m_state.period.TrancheIdent, m_state.form.DTPicker1.value());
    testAbsences(box);
    // Where rows are high, the counter of a box that shows several parts stands in its right
    // corner.
    const bool atRight = m_state.layout.displayStyle >= 2 &&
                         context::linesPerPage(m_state.form) < CellLayout::kManyRooms;
    box.group = groupCounterOf(box.cell, planRow.places, atRight);
    planRow.boxes.push_back(std::move(box));
}

/// Slots that the day does not have are not missed.
void PlanRefresh::noteUnknown(PlanRow& planRow, int slot)
{
    const std::optional<UnknownCell> cell = unknownCell(slot);
    if (!cell) {
        return;
    }
    planRow.unknown.push_back(*cell);
    if (m_counting) {
        m_state.totals.lacks.at(static_cast<std::size_t>(slot - 1)) = true;
    }
}

/// Where the slot stands on the plan. A day that is known does not have slots beyond its own; of
/// one that is not, each slot may be any stretch behind its tick.
std::optional<UnknownCell> PlanRefresh::unknownCell(int slot) const
{
    const context::TimeAxis axis = context::screenAxis(m_state.form);
    UnknownCell cell{slot, {}, context::kSlotMinutes, 0, 0.0};
    if (const auto& facts = m_state.slots.slot(slot)) {
        cell.start = facts->start;
        cell.minutes = facts->minutes;
    } else if (m_state.slots.SlotCount() == 0) {
        cell.start = viewOf(m_state).tickTimes.value(slot - 1);
    }
    try {
        cell.x = axis.TimeToX(cell.start);
    } catch (const runtime::RunTimeError&) {
        return std::nullopt; // no slot of the day
    }
    cell.width = axis.widthOf(cell.minutes);
    return cell;
}

void PlanRefresh::testAbsences(PlanBox& box)
{
    const Marqueur& record = m_markers.at(box.marker);
    const QString className = firstClass(record.Classes);
    // An absence that cannot be asked about counts as none: the plan itself is worth showing.
    runtime::skipOnError(
        [&] { box.classAbsent = m_sources.absences.Existe_AbsClasse(record, className); });
    runtime::skipOnError([&] {
        box.studentAbsent = m_sources.absences.Existe_AbsEtud(record, className, className);
    });
    if (box.studentAbsent) {
        box.absentToolTip = studentAbsentToolTip(record);
    }
}

bool PlanRefresh::teachersOnly() const
{
    const form::PlanForm& form = m_state.form;
    return form.XOpEns.isChecked() && !form.XpMat.isChecked() && !form.XOpCl.isChecked();
}

} // namespace plan
