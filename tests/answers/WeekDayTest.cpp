#include "answers/WeekDay.h"

#include "timetable/Draft.h"

#include <gtest/gtest.h>

using namespace answers;
using namespace test;
using namespace timetable;

namespace
{

using Times = std::array<std::vector<TimeSpan>, kShownDays>;

QStringList titles(const WeekDays& days)
{
    QStringList told;
    for (const WeekDay& day : days) {
        told << day.title;
    }
    return told;
}

constexpr TimeSpan span(int from, int to)
{
    return between({from}, {to});
}

} // namespace

TEST(TheDaysOfAWeek, goFromMondayToSaturday)
{
    EXPECT_EQ(titles(weekDays(Draft().build(), {}, {})),
              QStringList({"Lundi", "Mardi", "Mercredi", "Jeudi", "Vendredi", "Samedi"}));
}

TEST(TheDaysOfAWeek, haveTheirDatesWhereOneIsAsked)
{
    const AskedWeek sunday{Week::Every, QDate(2026, 11, 29)};
    EXPECT_EQ(titles(weekDays(Draft().build(), sunday, {})),
              QStringList({"Lundi 23/11", "Mardi 24/11", "Mercredi 25/11", "Jeudi 26/11",
                           "Vendredi 27/11", "Samedi 28/11"}));
}

TEST(TheDaysOfAWeek, haveTheirOwnSlotsOrMondays)
{
    Draft draft;
    draft.slot("Lundi2", "9h30", "11h00").slot("Lundi1", "8h00", "9h30");
    draft.slot("Samedi1", "9h00", "10h00");
    const WeekDays days = weekDays(draft.build(), {}, {});
    EXPECT_EQ(days[0].slotTimes, (std::vector{span(480, 570), span(570, 660)}));
    EXPECT_EQ(days[1].slotTimes, days[0].slotTimes);
    EXPECT_EQ(days[5].slotTimes, std::vector{span(540, 600)});
    EXPECT_EQ(days[0].axis, span(480, 660));
    EXPECT_EQ(days[5].axis, span(540, 600));
    EXPECT_EQ(commonAxis(days), span(480, 660));
}

TEST(TheDaysOfAWeek, leaveOutSlotsWithoutAStart)
{
    Draft draft;
    draft.slot("Lundi1", "matin", "9h30").slot("Lundi2", "9h30", "soir");
    EXPECT_EQ(weekDays(draft.build(), {}, {})[0].slotTimes, std::vector{span(570, 660)});
}

TEST(TheDaysOfAWeek, reachToTheirBoxes)
{
    Draft draft;
    draft.slot("Lundi1", "8h00", "9h30");
    Times times;
    times[1] = {span(450, 500), span(600, 700)};
    const WeekDays days = weekDays(draft.build(), {}, times);
    EXPECT_EQ(days[0].axis, span(480, 570));
    EXPECT_EQ(days[1].axis, span(450, 700));
    EXPECT_EQ(commonAxis(days), span(450, 700));
}

TEST(TheDaysOfAWeek, endAtMidnight)
{
    Times times;
    times[0] = {span(1380, 30000)};
    EXPECT_EQ(weekDays(Draft().build(), {}, times)[0].axis, span(1380, 1440));
}

TEST(TheDaysOfAWeek, withNothingAreAsLongAsTheOthersOrAUsualDay)
{
    Times times;
    times[3] = {span(600, 700)};
    EXPECT_EQ(weekDays(Draft().build(), {}, times)[0].axis, span(600, 700));
    EXPECT_EQ(weekDays(Draft().build(), {}, {})[0].axis, span(480, 1080)); // 8h00 to 18h00
}
