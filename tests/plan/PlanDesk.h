#pragma once

#include "engine/Engine.h"
#include "lookup/Meetings.h"
#include "support/Timetable.h"

#include <QStringList>
#include <functional>
#include <set>
#include <utility>

namespace test
{

/// Absences of a test, by class name.
class FakeAbsences : public plan::AbsenceSource
{
public:
    bool Existe_AbsClasse(const plan::Marqueur& marker, const QString& className) override;
    bool Existe_AbsEtud(const plan::Marqueur& marker, const QString& className,
                        const QString& name) override;

    std::set<QString> classes;
    std::set<QString> students;
    /// What was asked: "class GC1", "student GC1/GC1".
    QStringList asked;
    bool fails = false;
};

/// The plan of rooms R00, R01, ... on Monday, 12 October 2026, by the program's own engine. The day
/// has six slots: 8h00, 9h30, 11h00, 12h30, then 14h00 and 15h30, each of 90 minutes. Rooms and
/// slots lie in an SQLite file, the timetable in `rows`. Places do not follow the window's design:
/// 8h00 stands 1620 twips from the left, room names are 1500 wide, rows start at 345 and are 300
/// high until something fits them to what they show.
class PlanDesk
{
public:
    /// Every room has `places`; the plan is visible and not yet drawn.
    explicit PlanDesk(int roomCount, const QString& lines = "10", int places = 30);

    /// The course of class GC1 in that room and slot.
    Meeting& meeting(int room, int slot);
    /// The make-up of class GC1 in that room and slot.
    Meeting& makeUp(int room, int slot);
    void draw() { engine.refreshPlan(); }
    /// What happens in the `row`-th yield from now on, once.
    void duringRow(int row, std::function<void()> event);
    /// Ticks the box without its reaction.
    static void tick(form::CheckBox& box, bool checked = true) { box.design(checked); }

    [[nodiscard]] const std::vector<plan::PlanRow>& drawn() const { return engine.content().rows; }
    /// The box of a marker. Requires: there is one.
    [[nodiscard]] const plan::PlanBox& box(int marker) const
    {
        return *engine.content().box(marker);
    }
    [[nodiscard]] const plan::Marqueur& marker(int number) const
    {
        return engine.markers().at(number);
    }
    /// The drawn rooms, from row 1 on.
    [[nodiscard]] QStringList drawnRooms() const;
    /// The numbers of all markers, in the order of the boxes.
    [[nodiscard]] std::vector<int> markers() const;
    /// The captions of the totals line, "" for a hidden one, without the empty end of the line.
    [[nodiscard]] QStringList totalsLine() const;

private:
    [[nodiscard]] engine::Surroundings surroundings();
    void writeDatabase(int roomCount, int places);
    void placeRows();
    void yield();

    TestDatabase m_testDatabase{DatabaseKind::Sqlite};
    std::shared_ptr<plan::PlanState> m_state = std::make_shared<plan::PlanState>();
    std::function<void()> m_event;
    int m_eventYield = 0;

public:
    FakeRows rows;
    FakeAbsences absences;
    int yields = 0;
    /// Titles and texts of the message boxes shown.
    std::vector<std::pair<QString, QString>> messages;
    engine::Engine engine;

    plan::PlanState& state = *m_state;
    form::PlanForm& form = state.form;
    context::Totals& totals = state.totals;
    context::RoomPage& page = state.page;
    plan::CellLayout& layout = state.layout;
    plan::RowColors& colors = state.colors;
};

} // namespace test
