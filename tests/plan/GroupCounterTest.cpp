#include "plan/GroupCounter.h"

#include "plan/PlanDesk.h"
#include "support/RuntimeMatchers.h"

using plan::GroupCounter;
using plan::groupCounterOf;
using test::PlanDesk;

namespace
{

/// A cell of that many rows.
lookup::RoomCell cellOf(std::int16_t rows, std::int16_t students, std::int16_t capacity)
{
    lookup::RoomCell cell;
    cell.CellRowCount = rows;
    cell.CellStudents = students;
    cell.CellCapacity = capacity;
    cell.CellClasses = "GC1\r\n";
    return cell;
}

/// One box in a room of 30 places, held by class GC1.
class GroupCounters : public testing::Test
{
protected:
    GroupCounters() { desk.meeting(1, 1); }

    void sizes(int students, int capacity)
    {
        desk.rows.students["GC1"] = students;
        desk.rows.capacities["GC1"] = db::Value(std::int64_t{capacity});
    }
    std::optional<GroupCounter> draw()
    {
        desk.draw();
        return desk.box(1).group;
    }

    PlanDesk desk{2, "10", 30};
};

} // namespace

TEST(GroupCounter, isNoneForOneClassThatFillsTheRoom)
{
    EXPECT_FALSE(groupCounterOf(cellOf(1, 30, 30), "30", false));
    EXPECT_TRUE(groupCounterOf(cellOf(1, 31, 0), "30", false));
    EXPECT_TRUE(groupCounterOf(cellOf(1, 0, 31), "30", false));
}

TEST(GroupCounter, countsTheRowsAndTellsTheirStudents)
{
    const auto group = groupCounterOf(cellOf(3, 12, 20), "30", false);
    ASSERT_TRUE(group);
    EXPECT_EQ(group->counter, "3");
    EXPECT_EQ(group->sizeLabel, "12");
    EXPECT_EQ(group->details, "GC1\r\n");
    EXPECT_FALSE(group->overfull);
    EXPECT_FALSE(group->atRight);
}

TEST(GroupCounter, tellsBySoManyWhatIsTooManyForTheRoom)
{
    EXPECT_EQ(groupCounterOf(cellOf(1, 31, 40), "30", true)->sizeLabel, "Dépassement 31/30");
    EXPECT_EQ(groupCounterOf(cellOf(1, 0, 40), "30", true)->sizeLabel, "Dépassement 40/30");
    EXPECT_TRUE(groupCounterOf(cellOf(2, 0, 40), "30", true)->overfull);
    EXPECT_TRUE(groupCounterOf(cellOf(2, 0, 40), "30", true)->atRight);
}

TEST(GroupCounter, takesAPlaceLessTextForNoPlaces)
{
    EXPECT_EQ(groupCounterOf(cellOf(1, 1, 0), "", false)->sizeLabel, "Dépassement 1/");
    EXPECT_FALSE(groupCounterOf(cellOf(1, 0, 0), "", false));
    EXPECT_FALSE(groupCounterOf(cellOf(1, 35, 35), "40 places", false));
}

TEST_F(GroupCounters, areNotShownForASingleClassThatFits)
{
    sizes(30, 30);
    EXPECT_FALSE(draw());
}

TEST_F(GroupCounters, tellTheOverflowOfTheStudents)
{
    sizes(35, 0);
    const auto group = draw();
    ASSERT_TRUE(group);
    EXPECT_EQ(group->counter, "1");
    EXPECT_EQ(group->sizeLabel, "Dépassement 35/30");
    EXPECT_EQ(group->details, "GC1\r\n");
    EXPECT_TRUE(group->overfull);
}

TEST_F(GroupCounters, tellTheOverflowOfTheDeclaredSizeWithoutStudents)
{
    sizes(0, 35);
    const auto group = draw();
    ASSERT_TRUE(group);
    EXPECT_EQ(group->sizeLabel, "Dépassement 35/30");
}

TEST_F(GroupCounters, tellTheStudentsWhenOnlyTheDeclaredSizeIsTooLarge)
{
    sizes(20, 35);
    const auto group = draw();
    ASSERT_TRUE(group);
    EXPECT_EQ(group->sizeLabel, "Dépassement 20/30");
}

TEST_F(GroupCounters, tellTheStudentsOfSeveralRowsThatFit)
{
    sizes(12, 12);
    desk.meeting(1, 1).set("Classe", "GC2").set("Enseignant1", "Martin");
    desk.rows.students["GC2"] = 13;
    const auto group = draw();
    ASSERT_TRUE(group);
    EXPECT_EQ(group->counter, "2");
    EXPECT_EQ(group->sizeLabel, "25");
    EXPECT_EQ(group->details, "GC1\tDupont\r\nGC2\tMartin");
    EXPECT_FALSE(group->overfull);
}

TEST_F(GroupCounters, takeARoomWithoutANumberOfPlacesForOneOfNone)
{
    sizes(1, 0);
    desk.page.setPlaces(desk.form, 1, "");
    const auto group = draw();
    ASSERT_TRUE(group);
    EXPECT_EQ(group->sizeLabel, "Dépassement 1/");
}

TEST_F(GroupCounters, readThePlacesAtTheStartOfTheirCaption)
{
    sizes(35, 0);
    desk.page.setPlaces(desk.form, 1, "40 places");
    EXPECT_FALSE(draw());
}

TEST_F(GroupCounters, areThereWhetherOrNotTheyAreShown)
{
    sizes(35, 0);
    desk.form.Check3.setChecked(false);
    EXPECT_TRUE(draw());
}

TEST_F(GroupCounters, standAtTheRightOverTextsOfSeveralLines)
{
    sizes(35, 0);
    desk.layout.displayStyle = 2;
    EXPECT_TRUE(draw()->atRight);
    desk.layout.displayStyle = 1;
    EXPECT_FALSE(draw()->atRight);
    desk.layout.displayStyle = 3;
    desk.form.Total_L_P.change = nullptr;
    desk.form.Total_L_P.setText("19");
    EXPECT_TRUE(draw()->atRight);
    desk.form.Total_L_P.setText("20");
    EXPECT_FALSE(draw()->atRight);
}

TEST_F(GroupCounters, showTheirClassesWhenClicked)
{
    sizes(35, 0);
    const auto group = draw();
    desk.engine.Label2_Click(*group);
    ASSERT_EQ(desk.messages.size(), 1U);
    EXPECT_EQ(desk.messages[0].first, "Salles Occupées");
    EXPECT_EQ(desk.messages[0].second, "GC1\r\n");
    EXPECT_EQ(desk.engine.refreshCount(), 1U);
}
