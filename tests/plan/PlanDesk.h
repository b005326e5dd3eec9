#pragma once

#include "context/PlanActions.h"
#include "lookup/Meetings.h"
#include "plan/Paging.h"
#include "plan/PlanOptions.h"
#include "plan/PlanRefresh.h"
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

/// The plan of rooms R00, R01, ... on Monday, 12 October 2026, around one form whose events are
/// wired as in the program. The day has six slots: 8h00, 9h30, 11h00, 12h30, then 14h00 and 15h30,
/// each of 90 minutes. Rooms and slots lie in an SQLite file, the timetable in `rows`. Places do
/// not follow the window's design: 8h00 stands 1620 twips from the left, room names are 1500 wide,
/// rows start at 345 and are 300 high.
class PlanDesk : private context::PlanActions
{
public:
    /// Every room has `places`; the plan is visible and not yet drawn.
    explicit PlanDesk(int roomCount, const QString& lines = "10", int places = 30);

    /// The course of class GC1 in that room and slot.
    Meeting& meeting(int room, int slot);
    /// The make-up of class GC1 in that room and slot.
    Meeting& makeUp(int room, int slot);
    void draw() { refresh.RefreshPlan(); }
    /// What happens in the `row`-th yield from now on, once.
    void duringRow(int row, std::function<void()> event);
    /// Ticks the box without its reaction.
    static void tick(form::CheckBox& box, bool checked = true);

    [[nodiscard]] const std::vector<plan::PlanRow>& drawn() const { return refresh.content().rows; }
    [[nodiscard]] const plan::PlanBox& box(int marker) { return *refresh.box(marker); }
    /// The drawn rooms, from row 1 on.
    [[nodiscard]] QStringList drawnRooms() const;
    /// The numbers of all markers, in the order of the boxes.
    [[nodiscard]] std::vector<int> markers() const;
    /// The captions of the totals line, "" for a hidden one, without the empty end of the line.
    [[nodiscard]] QStringList totalsLine() const;

private:
    TestDatabase m_testDatabase{DatabaseKind::Sqlite};

public:
    form::PlanForm form;
    db::Database database{false};
    context::Totals totals;
    context::RoomPage page;
    context::Periods periods{form, database, totals, *this, [] { return QDate(2026, 10, 14); }};
    context::TimeSlots slots{form, database};
    context::RoomSet rooms{form, database, page, *this};
    FakeRows rows;
    plan::CellLayout layout;
    lookup::SeanceTypeShortNames typeNames;
    lookup::OccupancyLookup lookup{form, rows, layout, typeNames};
    FakeAbsences absences;
    runtime::RandomSource random{7};
    plan::RowColors colors{random};
    int yields = 0;
    plan::PlanRefresh refresh;
    int adaptations = 0;
    plan::Paging paging;
    /// Titles and texts of the message boxes shown.
    std::vector<std::pair<QString, QString>> messages;
    plan::PlanOptions options;

private:
    void RefreshPlan() override { refresh.RefreshPlan(); }
    void PlaceRoomRows() override;
    void Command2_Click() override { paging.Command2_Click(); }
    void Command3_Click() override { paging.Command3_Click(); }

    void writeDatabase(int roomCount, int places);
    void wireEvents();
    void yield();

    std::function<void()> m_event;
    int m_eventYield = 0;
};

} // namespace test
