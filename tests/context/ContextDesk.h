#pragma once

#include "context/Events.h"
#include "context/LoadSlots.h"
#include "context/Periods.h"
#include "context/PlanActions.h"
#include "context/RoomSet.h"
#include "support/Timetable.h"

#include <QStringList>
#include <functional>

namespace test
{

/// A plan that draws nothing: it records what it is asked for.
class RecordingPlan : public context::PlanActions
{
public:
    void RefreshPlan() override
    {
        calls.append("RefreshPlan");
        if (onRefresh) {
            onRefresh();
        }
    }
    void PlaceRoomRows() override { calls.append("PlaceRoomRows"); }
    void Command2_Click() override { calls.append("Command2_Click"); }
    void Command3_Click() override { calls.append("Command3_Click"); }

    [[nodiscard]] qsizetype redraws() const { return calls.count("RefreshPlan"); }

    QStringList calls;
    /// What a test looks at, or what a user does, in the middle of a redraw.
    std::function<void()> onRefresh;
};

/// The viewing context around one form, its events tied as the program ties them, over a recording
/// plan: what the context asks of the plan is all that there is of one.
/// The time axis starts 1000 twips from the left. Today is Wednesday, 14 October 2026.
struct ContextDesk {
    explicit ContextDesk(bool useMySql = false) : database(useMySql)
    {
        form.Combo10.design({"1ère Sem. d'Examen", "2ème Sem. d'Examen", "Sem. de Contrôle"}, 0);
        form.Label1.front().place.left = 1000;
        form.scaleWidth = 21000;
        form.scaleHeight = 10000;
        context::tieEvents(form, periods, rooms);
    }
    /// The same, with the database open.
    explicit ContextDesk(const TestDatabase& base) : ContextDesk(base.usesMySql())
    {
        database.open(base.connectString());
    }

    void loadSlots() { context::LoadSlots(form, reads, slots, places); }

    form::PlanForm form;
    db::Database database;
    RecordingPlan plan;
    context::Totals totals;
    context::RoomPage page;
    context::ViewedPeriod viewed;
    context::DaySlots slots;
    context::RoomPlaces places;
    context::StartReads reads{database, false};
    QDate today{2026, 10, 14};
    context::Periods periods{form, viewed, database, totals, plan, [this] { return today; }};
    context::RoomSet rooms{form, database, page, plan};
};

} // namespace test
