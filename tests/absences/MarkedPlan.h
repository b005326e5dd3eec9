#pragma once

#include "AbsenceTables.h"
#include "absences/Marking.h"
#include "lookup/OccupancyLookup.h"

#include <functional>
#include <map>
#include <vector>

namespace test
{

/// The plan of one Monday, 17 March 2025: each room of the list is held from 10h15 on for 90
/// minutes by its classes. The séance is that of `lesson`.
class MarkedPlan
{
public:
    /// `rooms`: the class names of each room, from row 1 on. A room without any is free.
    MarkedPlan(const TestDatabase& database, std::vector<QStringList> rooms);
    /// The same with a connection of the test's own making; `preparation`, if any, is run on it.
    MarkedPlan(bool useMySql, const QString& connectString, std::vector<QStringList> rooms,
               const QString& preparation = {});

    void refresh() { m_plan.RefreshPlan(); }
    /// A click on a box of which nothing but these answers of the keyboard is known.
    void click(int index, std::int16_t shift, std::int16_t ctrl);
    void shiftClick(int index) { click(index, absences::AsyncKeyState::kDownAndPressed, 0); }
    void ctrlClick(int index) { click(index, 0, absences::AsyncKeyState::kDownAndPressed); }

    [[nodiscard]] plan::PlanBox& box(int index) { return *m_plan.box(index); }
    [[nodiscard]] plan::PlanRefresh& plan() { return m_plan; }
    [[nodiscard]] form::PlanForm& form() { return m_form; }
    [[nodiscard]] db::Database& connection() { return m_database; }
    /// The classes of the rooms; changes show at the next refresh.
    [[nodiscard]] std::vector<QStringList>& rooms() { return m_rooms.classes; }
    /// The keys asked for since the last call.
    [[nodiscard]] std::vector<absences::VirtualKey> takeQueries();

    /// Runs once per row, as waiting events would.
    std::function<void()> whileYielding;

private:
    class Rooms : public lookup::RowSource
    {
    public:
        db::Recordset timetableRows(const lookup::RoomQuestion& question) override;
        int studentRows(const QString&) override { return 0; }
        db::Recordset classRows(const QString&) override { return {}; }

        std::vector<QStringList> classes;
    };

    class Keys : public absences::AsyncKeyState
    {
    public:
        std::int16_t state(absences::VirtualKey key) override;

        std::map<absences::VirtualKey, std::int16_t> states;
        std::vector<absences::VirtualKey> queries;
    };

    class NoActions : public context::PlanActions
    {
        void RefreshPlan() override {}
        void PlaceRoomRows() override {}
        void Command2_Click() override {}
        void Command3_Click() override {}
    };

    form::PlanForm m_form;
    db::Database m_database;
    NoActions m_actions;
    context::Totals m_totals;
    context::Periods m_periods;
    context::TimeSlots m_slots;
    context::RoomPage m_page;
    Rooms m_rooms;
    plan::CellLayout m_layout;
    lookup::SeanceTypeShortNames m_typeNames;
    lookup::OccupancyLookup m_lookup;
    absences::AbsenceRecords m_records;
    runtime::RandomSource m_random{1};
    plan::RowColors m_colors{m_random};
    plan::PlanRefresh m_plan;
    Keys m_keys;
    absences::Marking m_marking;
};

} // namespace test
