#include "paint/WeekLegend.h"

#include "paint/Weeks.h"
#include "support/RuntimeMatchers.h"

using namespace test;
using timetable::MeetingKind;

TEST(TheLegendOfAWeek, isEmptyWhereThereIsNothingToExplain)
{
    answers::WeekGrid grid = plainGrid();
    grid.boxes = {boxAt(0, 480, 90)};
    EXPECT_EQ(paint::weekLegend(grid), QString());
    EXPECT_EQ(paint::weekLegend(plainRooms(2)), QString());
}

TEST(TheLegendOfAWeek, explainsWhatThereIs)
{
    answers::WeekGrid grid = plainGrid();
    grid.boxes = {boxAt(0, 480, 90), boxAt(1, 480, 90)};
    grid.boxes[0].kind = MeetingKind::MakeUp;
    grid.boxes[1].corner = "B";
    EXPECT_EQ(paint::weekLegend(grid), "Case hachurée : rattrapage · A, B : une semaine sur deux");
    grid.boxes = {boxAt(0, 480, 90)};
    grid.boxes[0].kind = MeetingKind::Exam;
    grid.unplaced = {{timetable::HoldingId(0), 0, "Lundi"}};
    EXPECT_EQ(paint::weekLegend(grid), "Cadre épais : examen · ? : heure inconnue");
}

TEST(TheLegendOfAWeek, explainsTheHalvesOfARow)
{
    answers::RoomWeeks weeks = plainRooms(2);
    weeks.rows[1].boxes = {boxAt(0, 480, 90)};
    weeks.rows[1].boxes[0].corner = "A";
    weeks.rows[0].unknown[2] = "L1";
    EXPECT_EQ(paint::weekLegend(weeks),
              "Moitié haute : semaine A, moitié basse : semaine B · ? : heure inconnue");
}
