#pragma once

#include "AbsenceTables.h"
#include "engine/Engine.h"

#include <functional>
#include <map>
#include <vector>

namespace test
{

/// What the keyboard answers of a key that went down since it was asked before, and is held.
inline constexpr std::int16_t pressed = absences::AsyncKeyState::kDownAndPressed;

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

    void refresh() { m_engine.refreshPlan(); }
    /// A click on a box of which nothing but these answers of the keyboard is known.
    std::vector<absences::Toggled> click(int index, std::int16_t shift, std::int16_t ctrl);
    void shiftClick(int index) { click(index, absences::AsyncKeyState::kDownAndPressed, 0); }
    void ctrlClick(int index) { click(index, 0, absences::AsyncKeyState::kDownAndPressed); }

    /// The box of a marker. Requires: there is one.
    [[nodiscard]] const plan::PlanBox& box(int index) const
    {
        return *m_engine.content().box(index);
    }
    [[nodiscard]] const plan::Marqueur& marker(int index) const
    {
        return m_engine.markers().at(index);
    }
    [[nodiscard]] engine::Engine& engine() { return m_engine; }
    [[nodiscard]] db::Connection& connection() { return m_database->Db(); }
    [[nodiscard]] form::PlanForm& form() { return m_engine.form(); }
    /// The classes of the rooms; changes show at the next refresh.
    [[nodiscard]] std::vector<QStringList>& rooms() { return m_rooms.classes; }
    /// Changes the subject of all séances, and refreshes.
    void teach(const QString& subject);
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
        QString subject; ///< in the place of the lesson's, unless empty
    };

    class Keys : public absences::AsyncKeyState
    {
    public:
        std::int16_t state(absences::VirtualKey key) override;

        std::map<absences::VirtualKey, std::int16_t> states;
        std::vector<absences::VirtualKey> queries;
    };

    [[nodiscard]] engine::Surroundings surroundings();

    Rooms m_rooms;
    Keys m_keys;
    std::shared_ptr<db::Database> m_database = std::make_shared<db::Database>();
    std::shared_ptr<plan::PlanState> m_state = std::make_shared<plan::PlanState>();
    engine::Engine m_engine;
};

} // namespace test
