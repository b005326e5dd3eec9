#pragma once

#include "context/PlanActions.h"
#include "context/RoomPage.h"
#include "db/Database.h"
#include "form/PlanForm.h"

#include <QString>
#include <optional>

namespace context
{

/// Which rooms make up the plan: those of a zone, optionally widened by the rooms of one
/// department and by the rooms that belong to none. Writes the rooms of the current page into the
/// row labels.
class RoomSet
{
public:
    RoomSet(form::PlanForm& form, db::Database& database, RoomPage& page, PlanActions& plan);

    /// The query for the room set that the filter controls describe.
    [[nodiscard]] QString roomQuery() const;

    /// Position of a room in the list of rooms, 0 upward, by the very name that the room table has;
    /// nothing where the filter leaves it out. Error: any database error.
    [[nodiscard]] std::optional<int> positionOf(const QString& room) const;

    /// Writes the rooms of the current page into `Salle` and `Cap` and sets `RowsShown` and the
    /// rows' visibility. Reaching the end of the rooms ends the page early. With "Toutes les
    /// salles" it also enables the page buttons that lead to a room. `all`: all rooms by name,
    /// where they have just been read; a choice of some asks for these. Error: any database error
    /// of the query itself.
    void FillRoomPage(std::optional<db::Recordset> all = std::nullopt);

    void cb_Locaux_Click();
    void ElemDep_Click();
    void Combo1_Click();
    void Chk_Neutre_Click();

private:
    [[nodiscard]] QString departmentCondition() const;
    /// The filter as a message names it.
    [[nodiscard]] QString filterInWords() const;
    [[nodiscard]] db::Recordset readRooms() const;
    void fillRows(const db::Recordset& rooms);
    void fillEveryRow(const db::Recordset& rooms);
    [[nodiscard]] bool fillRow(int row, const db::Row& room);
    void showRows();
    void showEveryRow();

    form::PlanForm& m_form;
    db::Database& m_database;
    RoomPage& m_page;
    PlanActions& m_plan;
};

} // namespace context
