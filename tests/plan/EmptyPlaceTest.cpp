#include "plan/EmptyPlace.h"

#include "support/RuntimeMatchers.h"

using namespace plan;

namespace
{

/// Salle 106 on a day of three slots: 8h00 to 9h30, 9h30 to 11h00, 14h00 to 15h30. It is taken in
/// the first.
class AnEmptyPlace : public testing::Test
{
protected:
    AnEmptyPlace()
    {
        state.form.OpEns().select();
        state.form.OptFixe().select();
        state.slots.set(1, context::Slot{"8h00", 28800, 90});
        state.slots.set(2, context::Slot{"9h30", 34200, 90});
        state.slots.set(3, context::Slot{"14h00", 50400, 90});
        row.room = "Salle 106";
        row.places = "60";
        row.asked = Asked::CoursesAndMakeUps;
        box("8h00", 90);
    }
    void box(const QString& start, int minutes)
    {
        PlanBox box;
        box.cell.CellStart = start;
        box.minutes = minutes;
        row.boxes.push_back(box);
    }
    [[nodiscard]] std::optional<DayStretch> at(int hour, int minute) const
    {
        return emptyStretch(state, row, 60 * hour + minute);
    }
    [[nodiscard]] QString wordsAt(int hour, int minute) const
    {
        return emptyPlaceWords(state, row, 60 * hour + minute);
    }

    PlanState state;
    PlanRow row;
};

} // namespace

TEST_F(AnEmptyPlace, reachesFromWhatIsBeforeToWhatComesNext)
{
    box("11h00", 60);
    EXPECT_EQ(at(9, 30), (DayStretch{570, 660}));
    EXPECT_EQ(at(10, 59), (DayStretch{570, 660}));
    EXPECT_EQ(at(12, 0), (DayStretch{720, 930})); // behind 12h00, up to the end of the last slot
}

TEST_F(AnEmptyPlace, isNoneInABoxAndOutsideOfTheSlots)
{
    EXPECT_EQ(at(8, 0), std::nullopt);
    EXPECT_EQ(at(9, 29), std::nullopt);
    EXPECT_EQ(at(7, 59), std::nullopt);
    EXPECT_EQ(at(15, 30), std::nullopt);
}

TEST_F(AnEmptyPlace, endsWhereASeanceThatBeganBeforeEnds)
{
    box("9h30", 120);
    EXPECT_EQ(at(11, 29), std::nullopt);
    EXPECT_EQ(at(11, 30), (DayStretch{690, 930}));
}

TEST_F(AnEmptyPlace, isNoneWhereItIsUnknownWhatIsThere)
{
    row.unknown.push_back({2, "9h30", 90, 0, 0});
    EXPECT_EQ(at(9, 30), std::nullopt);
    EXPECT_EQ(at(11, 0), (DayStretch{660, 930}));
}

TEST_F(AnEmptyPlace, isNoneWhereSomethingIsThatNoBoxTells)
{
    row.untold.push_back({"14h00", 90});
    EXPECT_EQ(at(14, 30), std::nullopt);
    EXPECT_EQ(at(9, 30), (DayStretch{570, 840}));
    row.untold.push_back({QString(), 0}); // at nobody knows what time
    EXPECT_EQ(at(9, 30), std::nullopt);
}

TEST_F(AnEmptyPlace, ofADayWithoutSlotsIsUnknown)
{
    state.slots = {};
    EXPECT_EQ(at(10, 0), std::nullopt);
}

TEST_F(AnEmptyPlace, doesNotKnowASlotThatIsNotAskedAbout)
{
    state.slots.set(11, context::Slot{"18h00", 64800, 90});
    EXPECT_EQ(at(18, 30), std::nullopt);
    EXPECT_EQ(at(14, 30), (DayStretch{570, 930}));
}

TEST_F(AnEmptyPlace, isToldWithItsRoomAndWhatWasNotAsked)
{
    EXPECT_EQ(wordsAt(9, 45), "Salle 106, 60 places, libre de 9h30 à 15h30\nExamens non compris");
    row.asked = Asked::Courses;
    EXPECT_EQ(wordsAt(9, 45), "Salle 106, 60 places, libre de 9h30 à 15h30\nRattrapages et examens "
                              "non compris");
    row.asked = Asked::Exams;
    EXPECT_EQ(wordsAt(9, 45), "Salle 106, 60 places, pas d’examen de 9h30 à 15h30\nCours et "
                              "rattrapages non compris");
}

TEST_F(AnEmptyPlace, isToldForTheChosenWeekAlone)
{
    state.form.OptB().select();
    EXPECT_EQ(wordsAt(9, 45).section('\n', 0, 0),
              "Salle 106, 60 places, libre de 9h30 à 15h30 en semaine B");
    state.form.OptA().select();
    EXPECT_EQ(wordsAt(9, 45).section('\n', 0, 0),
              "Salle 106, 60 places, libre de 9h30 à 15h30 en semaine A");
}

TEST_F(AnEmptyPlace, isTheRoomAloneWhereNothingIsKnown)
{
    row.untold.push_back({QString(), 0});
    EXPECT_EQ(wordsAt(9, 45), "Salle 106, 60 places");
    row.places = "1";
    EXPECT_EQ(wordsAt(9, 45), "Salle 106, 1 place");
    row.places.clear();
    EXPECT_EQ(wordsAt(9, 45), "Salle 106");
}
