#include "plan/PlanRefresh.h"

#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"

#include <QScopedValueRollback>
#include <utility>

namespace plan
{
namespace
{

using runtime::leadingNumber;
using runtime::nearestInt16;
using runtime::nearestInteger;

// Slots that a refresh asks about; the totals line has room for one more.
constexpr int kSlots = 10;
// A row takes the colour two entries further on than the one where a random colour is stored:
// entries 0 and 1 of a palette are not meant for rows.
constexpr int kColorStep = 2;
constexpr form::Colour kPlainRow = form::Colour::fromRgb(215, 215, 215);

// Texts for errors are made only when there is one: this runs for every box.

/// The number that `text` begins with, as `convert` rounds it. Error: Overflow, which then says
/// what was read and from which text.
template <typename Convert>
auto converted(const char* what, const QString& text, Convert convert)
{
    try {
        return convert(leadingNumber(text));
    } catch (runtime::RunTimeError& error) {
        error.addActivity(QStringLiteral("Lecture %1 « %2 »").arg(QString::fromUtf8(what), text));
        throw;
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

QString firstClass(const QString& classes)
{
    return runtime::trimBlanks(classes.left(classes.indexOf(u'\t')));
}

QString studentAbsentToolTip(const Marqueur& marker)
{
    return marker.Classes + QStringLiteral(" Absent");
}

PlanRefresh::PlanRefresh(RefreshContext context, std::function<void()> yield)
    : m_c(context), m_yield(std::move(yield))
{
}

void PlanRefresh::RefreshPlan(TotalsStart start)
{
    if (!m_c.form.visible) {
        return;
    }
    const std::uint64_t refresh = ++m_refreshes;
    ++m_started;
    if (start == TotalsStart::Zero) {
        m_c.totals.clear(m_c.form);
    }
    ClearPlanOverlays();
    m_c.colors.reseed();
    m_counting = m_c.totals.CountingOn;
    m_nextRow = 1;
    m_lastRow = m_c.page.RowsShown;
    prepareQuestions();
    while (m_nextRow <= m_lastRow) {
        drawRow(m_nextRow++);
        if (m_yields) {
            m_yield();
        }
        if (refresh != m_refreshes) {
            return;
        }
    }
    m_c.colors.RedrawMode = true;
}

void PlanRefresh::ClearPlanOverlays()
{
    m_content.rows.clear();
    m_MarkerCount = 0;
}

void PlanRefresh::finishRows()
{
    while (m_nextRow <= m_lastRow) {
        drawRow(m_nextRow++);
    }
}

void PlanRefresh::withoutYielding(const std::function<void()>& action)
{
    const QScopedValueRollback<bool> still(m_yields, false);
    action();
}

form::Colour PlanRefresh::rowColor(int row)
{
    if (!m_c.form.Colorer.isChecked()) {
        return kPlainRow;
    }
    if (m_c.colors.PaletteName.isEmpty() && !m_c.colors.RedrawMode) {
        const form::Colour color = m_c.colors.randomColor();
        m_c.colors.set(row, color);
        return color;
    }
    return m_c.colors.at(row + kColorStep);
}

QString PlanRefresh::seanceKey(int slot) const
{
    return m_c.form.CbJour.text() + QString::number(slot);
}

/// Everything that the rows are going to ask is known before the first one is drawn.
void PlanRefresh::prepareQuestions()
{
    QStringList rooms;
    for (int row = 1; row <= m_lastRow && row < form::PlanForm::kRows; ++row) {
        rooms << m_c.form.Salle[static_cast<std::size_t>(row)].caption;
    }
    QStringList keys;
    for (int slot = 1; slot <= kSlots; ++slot) {
        keys << seanceKey(slot);
    }
    const PageFacts facts =
        m_c.lookup.prepare(rooms, keys, QString::number(m_c.periods.TrancheIdent()));
    AbsenceQuestions absences{m_c.form.DTPicker1.value(), {}, facts.starts};
    for (const QString& className : facts.classNames) {
        absences.classNames << firstClass(className);
    }
    for (const form::Label& tick : m_c.form.Label1) {
        absences.starts << tick.caption; // stands in where a row has no start of its own
    }
    m_c.absences.prepare(absences);
}

void PlanRefresh::drawRow(int row)
{
    if (row >= form::PlanForm::kRows) {
        throw runtime::RunTimeError(runtime::ErrorNumber::SubscriptOutOfRange);
    }
    form::Label& room = m_c.form.Salle[static_cast<std::size_t>(row)];
    form::Label& places = m_c.form.Cap[static_cast<std::size_t>(row)];
    PlanRow planRow{row, room.caption, places.caption, rowColor(row), {}};
    room.backColor = planRow.color;
    places.backColor = planRow.color;
    for (int slot = 1; slot <= kSlots; ++slot) {
        try {
            drawSlot(planRow, slot);
        } catch (runtime::RunTimeError& error) {
            error.addPlace(QStringLiteral("Dessin de la salle « %1 », séance « %2 »")
                               .arg(planRow.room, seanceKey(slot)));
            throw;
        }
    }
    m_content.rows.push_back(std::move(planRow));
    if (m_counting) {
        addTotals();
    }
}

void PlanRefresh::drawSlot(PlanRow& planRow, int slot)
{
    const QString durationBefore = m_c.lookup.cell().CellDuration;
    const QString tranche = QString::number(m_c.periods.TrancheIdent());
    QString text = m_c.lookup.RoomOccupancy(planRow.room, seanceKey(slot), tranche, false);
    bool makeUp = false;
    if (text.isEmpty() && m_c.form.Check2.isChecked()) {
        text = m_c.lookup.RoomOccupancy(planRow.room, seanceKey(slot), tranche, true);
        makeUp = true;
    }
    const auto entry = static_cast<std::size_t>(slot - 1);
    const int roomIndex = planRow.index + m_c.page.PageOffset;
    m_c.totals.SlotSeats.at(entry) = 0;
    if (!text.isEmpty()) {
        if (teachersOnly()) {
            std::int16_t& teachers = m_c.totals.SlotTeacherCount.at(entry);
            teachers = runtime::addInt16(teachers, CountSlashParts(text));
        }
        m_c.totals.SlotSeats.at(entry) = m_c.slots.RoomPlaces(roomIndex);
        planRow.boxes.push_back(makeBox(planRow, slot, makeUp));
    } else if (slot != 1 && m_c.slots.OverrunsIntoSlot(
                                slot, converted("de la durée", durationBefore, nearestInteger))) {
        // What began in the slot before still holds the room.
        m_c.totals.SlotSeats.at(entry) = m_c.slots.RoomPlaces(roomIndex);
    }
}

PlanBox PlanRefresh::makeBox(const PlanRow& row, int slot, bool makeUp)
{
    PlanBox box;
    box.slot = slot;
    box.makeUp = makeUp;
    box.cell = m_c.lookup.cell();
    const double minutes = leadingNumber(box.cell.CellDuration);
    box.x = m_c.slots.TimeToX(box.cell.CellStart);
    box.minutes = converted("de la durée", box.cell.CellDuration, nearestInteger);
    box.width = m_c.slots.axis().widthOf(minutes);
    fillMarker(box);
    testAbsences(box);
    box.group = groupCounter(row);
    return box;
}

void PlanRefresh::fillMarker(PlanBox& box)
{
    box.marker = ++m_MarkerCount;
    if (m_markers.size() < static_cast<std::size_t>(m_MarkerCount)) {
        m_markers.resize(static_cast<std::size_t>(m_MarkerCount));
    }
    const RoomCell& cell = box.cell;
    Marqueur& record = m_markers[static_cast<std::size_t>(m_MarkerCount - 1)];
    record.Classes = cell.CellClassList;
    record.Seance = cell.CellSeance;
    record.Tranche = converted("du numéro de période", QString::number(m_c.periods.TrancheIdent()),
                               nearestInt16);
    record.Matiere = cell.CellSubject;
    record.Salle = cell.CellRoom;
    record.Enseignant1 = cell.CellTeacher;
    record.TypeS1 = converted("du type de séance", cell.CellTypeA, nearestInt16);
    record.TypeS3B = converted("du type de séance", cell.CellTypeB, nearestInt16);
    record.Duree = converted("de la durée", cell.CellDuration, nearestInt16);
    record.Commune = cell.CellCommon;
    record.Debut = cell.CellStart;
    record.Jour = m_c.form.DTPicker1.value();
    record.Choix = 1;
    record.newnature = cell.CellWeekNature;
}

void PlanRefresh::testAbsences(PlanBox& box)
{
    const Marqueur& record = marker(box.marker);
    const QString className = firstClass(record.Classes);
    // An absence that cannot be asked about counts as none: the plan itself is worth showing.
    runtime::skipOnError(
        [&] { box.classAbsent = m_c.absences.Existe_AbsClasse(record, className); });
    runtime::skipOnError(
        [&] { box.studentAbsent = m_c.absences.Existe_AbsEtud(record, className, className); });
    if (box.studentAbsent) {
        box.absentToolTip = studentAbsentToolTip(record);
    }
}

std::optional<GroupCounter> PlanRefresh::groupCounter(const PlanRow& row) const
{
    const RoomCell& cell = m_c.lookup.cell();
    const double seats = leadingNumber(row.places);
    const bool overfull = seats < cell.CellStudents || seats < cell.CellCapacity;
    if (cell.CellRowCount == 1 && !overfull) {
        return std::nullopt;
    }
    GroupCounter group;
    group.counter = QString::number(cell.CellRowCount);
    group.sizeLabel = QString::number(cell.CellStudents);
    group.details = cell.CellClasses;
    group.overfull = overfull;
    group.atRight = m_c.layout.displayStyle >= 2 && leadingNumber(m_c.form.Total_L_P.text()) < 20;
    if (overfull) {
        const int size = cell.CellStudents != 0 ? cell.CellStudents : cell.CellCapacity;
        group.sizeLabel =
            QStringLiteral("Dépassement ") + QString::number(size) + u'/' + row.places;
    }
    return group;
}

bool PlanRefresh::teachersOnly() const
{
    const form::PlanForm& form = m_c.form;
    return form.XOpEns.isChecked() && !form.XpMat.isChecked() && !form.XOpCl.isChecked();
}

void PlanRefresh::addTotals()
{
    for (std::size_t slot = 0; slot < m_c.form.Tot.size(); ++slot) {
        form::Label& total = m_c.form.Tot.at(slot);
        const int seats =
            m_c.totals.SlotSeats.at(slot) + nearestInteger(leadingNumber(total.caption));
        total.caption = QString::number(seats);
        if (teachersOnly()) {
            total.caption += u'/' + QString::number(m_c.totals.SlotTeacherCount.at(slot));
        }
        total.visible = seats != 0;
    }
}

const Marqueur& PlanRefresh::marker(int index) const
{
    if (index < 1 || index > static_cast<int>(m_markers.size())) {
        throw runtime::RunTimeError(runtime::ErrorNumber::SubscriptOutOfRange);
    }
    return m_markers[static_cast<std::size_t>(index - 1)];
}

Marqueur& PlanRefresh::marker(int index)
{
    static_cast<void>(std::as_const(*this).marker(index)); // checks the index
    return m_markers[static_cast<std::size_t>(index - 1)];
}

PlanBox* PlanRefresh::box(int marker)
{
    for (PlanRow& row : m_content.rows) {
        for (PlanBox& box : row.boxes) {
            if (box.marker == marker) {
                return &box;
            }
        }
    }
    return nullptr;
}

} // namespace plan
