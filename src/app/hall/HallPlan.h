#pragma once

#include "plan/PlanPage.h"
#include "timetable/Week.h"

#include <QDate>
#include <QDateTime>
#include <QString>
#include <vector>

namespace app
{

/// The plan of one day with all rooms, as it was read for the screen in the hall.
struct HallPlan {
    QDate day; ///< not valid: nothing has been read so far
    QDateTime readAt;
    QString establishment;
    QString zone;                                  ///< "Zone 2"; empty where all zones are shown
    timetable::Week week = timetable::Week::Every; ///< A or B where somebody knows which it is
    std::vector<plan::PlanPage> pages;             ///< of every room once; empty without rooms

    [[nodiscard]] bool isThere() const { return day.isValid(); }
    [[nodiscard]] int pageCount() const { return static_cast<int>(pages.size()); }
    [[nodiscard]] int roomCount() const
    {
        int rooms = 0;
        for (const plan::PlanPage& page : pages) {
            rooms += page.state.page.RowsShown;
        }
        return rooms;
    }
};

} // namespace app
