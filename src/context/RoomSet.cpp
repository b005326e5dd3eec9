#include "context/RoomSet.h"

#include "context/PageRule.h"
#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"
#include "timetable/SchoolColumns.h"

#include <algorithm>

namespace context
{
namespace
{

void setVisible(form::PlanForm& form, int row, bool visible)
{
    if (row >= 0 && row < form::PlanForm::kRows) {
        form.Salle[static_cast<std::size_t>(row)].visible = visible;
        form.Cap[static_cast<std::size_t>(row)].visible = visible;
    }
}

} // namespace

RoomSet::RoomSet(form::PlanForm& form, db::Database& database, RoomPage& page, PlanActions& plan)
    : m_form(form), m_database(database), m_page(page), m_plan(plan)
{
}

QString RoomSet::departmentCondition() const
{
    if (!m_form.ElemDep.isChecked()) {
        return {};
    }
    const QString department = runtime::trimBlanks(m_form.Combo1.text());
    return QStringLiteral("  ( Département=") + m_database.dialect().literal(department) +
           (m_form.Chk_Neutre.isChecked() ? QStringLiteral(" or  ISNULL(Département)) ")
                                          : QStringLiteral(")"));
}

QString RoomSet::roomQuery() const
{
    const QString zone = m_form.cb_Locaux.text();
    const QString department = departmentCondition();
    if (zone != u"0") {
        // The department's rooms are added to the zone's, not intersected with them.
        const QString part =
            department.isEmpty() ? QString() : QStringLiteral(" or (") + department + u')';
        return QStringLiteral("select * from Salle where ( Zone=") + zone + QStringLiteral(" )  ") +
               part + QStringLiteral(" order by nom");
    }
    const QString part =
        department.isEmpty() ? QString() : QStringLiteral(" where ( ") + department + u')';
    return QStringLiteral("select * from Salle ") + part + QStringLiteral(" order by nom");
}

QString RoomSet::filterInWords() const
{
    const QString zone = QStringLiteral("zone ") + m_form.cb_Locaux.text();
    return m_form.ElemDep.isChecked()
               ? zone + QStringLiteral(", département « %1 »").arg(m_form.Combo1.text())
               : zone;
}

db::Recordset RoomSet::readRooms() const
{
    return runtime::during(QStringLiteral("Lecture des salles (%1)").arg(filterInWords()),
                           [&] { return m_database.read(roomQuery()); });
}

std::optional<int> RoomSet::positionOf(const QString& room) const
{
    const db::Recordset rooms = readRooms();
    const auto found =
        std::find_if(rooms.rows().begin(), rooms.rows().end(), [&room](const db::Row& row) {
            return row.field(timetable::column::kNom).toJoinedText() == room;
        });
    if (found == rooms.rows().end()) {
        return std::nullopt;
    }
    return static_cast<int>(found - rooms.rows().begin());
}

void RoomSet::FillRoomPage(std::optional<db::Recordset> all)
{
    if (!all || m_form.cb_Locaux.text() != u"0" || m_form.ElemDep.isChecked()) {
        all = readRooms();
    }
    m_page.listed = static_cast<int>(all->recordCount());
    if (m_form.EveryRoom.isChecked()) {
        fillEveryRow(*all);
        showEveryRow();
    } else {
        fillRows(*all);
        showRows();
    }
}

bool RoomSet::fillRow(int row, const db::Row& room)
{
    return runtime::skipOnError([&] {
        m_page.setName(m_form, row, room.field(timetable::column::kNom).toJoinedText());
        m_page.setPlaces(m_form, row, room.field(timetable::column::kPlaces).toJoinedText());
    });
}

void RoomSet::fillRows(const db::Recordset& rooms)
{
    const double lines = linesPerPage(m_form);
    const int first = PageRule(m_form).positionOf(m_page.PageOffset, 0);
    int filled = 0;
    // Row 0 is filled too: it holds the room just before the first drawn one.
    while (filled <= lines && filled < form::PlanForm::kRows &&
           first + filled < rooms.recordCount()) {
        if (!fillRow(filled, rooms.rows()[static_cast<std::size_t>(first + filled)])) {
            break;
        }
        ++filled;
    }
    m_page.RowsShown = static_cast<std::int16_t>(filled - 1);
    if (lines < m_page.RowsShown) {
        m_page.RowsShown = runtime::toInt16(m_form.Total_L_P.text());
    }
}

/// Row 0 holds nothing; the rows are the rooms one after the other.
void RoomSet::fillEveryRow(const db::Recordset& rooms)
{
    const PageRule rule(m_form);
    m_page.setName(m_form, 0, QString());
    m_page.setPlaces(m_form, 0, QString());
    int row = 0;
    while (row < rule.rows()) {
        const int position = rule.positionOf(m_page.PageOffset, row + 1);
        if (position >= rooms.recordCount() ||
            !fillRow(row + 1, rooms.rows()[static_cast<std::size_t>(position)])) {
            break;
        }
        ++row;
    }
    m_page.RowsShown = static_cast<std::int16_t>(row);
}

void RoomSet::showEveryRow()
{
    for (int row = 0; row < form::PlanForm::kRows; ++row) {
        setVisible(m_form, row, row >= 1 && row <= m_page.RowsShown);
    }
    m_form.Command2.enabled = m_page.PageOffset > 0;
    m_form.Command3.enabled = m_page.PageOffset + PageRule(m_form).rows() < m_page.listed;
}

void RoomSet::showRows()
{
    const double lines = linesPerPage(m_form);
    int row = 0;
    for (; row <= lines; ++row) {
        setVisible(m_form, row, true);
    }
    const int firstHidden = m_page.RowsShown + 1;
    const bool lastPage = row == m_page.RoomTotal || m_page.RoomTotal - lines <= m_page.PageOffset;
    if (lastPage && firstHidden >= 0 && firstHidden < form::PlanForm::kRows) {
        m_page.setName(m_form, firstHidden, QString());
    }
    for (int hidden = firstHidden; hidden <= lines; ++hidden) {
        setVisible(m_form, hidden, false);
    }
}

void RoomSet::cb_Locaux_Click()
{
    if (m_form.EveryRoom.isChecked()) {
        m_page.PageOffset = 0; // of another list no page but the first one is sure to be there
        m_page.PageStart = 0;
        m_plan.PlaceRoomRows();
        FillRoomPage();
        m_plan.RefreshPlan();
        return;
    }
    if (m_page.PageOffset > m_page.RoomTotal) {
        m_page.PageOffset = m_page.RoomTotal - 1;
        m_page.PageStart = m_page.RoomTotal - 1;
        // The lines-per-page box takes the offset: the page then reaches back over the new set.
        m_form.Total_L_P.setText(QString::number(m_page.PageOffset));
    }
    m_plan.PlaceRoomRows();
    FillRoomPage();
    // Back, forth and back again: the buttons' state and the page position agree with the new set.
    m_plan.Command2_Click();
    m_plan.Command3_Click();
    m_plan.Command2_Click();
    m_plan.RefreshPlan();
}

void RoomSet::ElemDep_Click()
{
    m_form.Chk_Neutre.visible = m_form.ElemDep.isChecked();
    cb_Locaux_Click();
}

void RoomSet::Combo1_Click()
{
    cb_Locaux_Click();
}

void RoomSet::Chk_Neutre_Click()
{
    cb_Locaux_Click();
}

} // namespace context
