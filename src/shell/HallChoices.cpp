#include "shell/HallChoices.h"

#include "timetable/WeekRhythm.h"

namespace shell
{

CommandLine hallChoices(CommandLine line, QDate day, QDate weekA)
{
    line.makeup = true;
    line.date = day;
    const timetable::Week week = timetable::WeekRhythm(weekA).weekOf(day);
    if (!line.week && week != timetable::Week::Every) {
        line.week = week == timetable::Week::A ? CommandLine::Week::A : CommandLine::Week::B;
    }
    return line;
}

CommandLine hallPageChoices(CommandLine line, QDate today, QDate weekA)
{
    line.everyRoom = true;
    line.allPages = line.allPages || line.page == 1;
    if (line.day) {
        line.makeup = true;
        return line;
    }
    const QDate day = line.date.value_or(today);
    return hallChoices(std::move(line), day, weekA);
}

void hideAbsences(std::vector<plan::PlanPage>& pages)
{
    for (plan::PlanPage& page : pages) {
        for (plan::PlanRow& row : page.content.rows) {
            for (plan::PlanBox& box : row.boxes) {
                box.classAbsent = false;
                box.studentAbsent = false;
                box.absentToolTip.clear();
            }
        }
    }
}

} // namespace shell
