#include "plan/PlanRefresh.h"

#include "plan/PlanDesk.h"
#include "support/RuntimeMatchers.h"

using db::Failure;
using lookup::RoomQuestion;
using plan::UnknownCell;
using test::PlanDesk;

namespace
{

/// Rooms R01 to R03 on a day of six slots.
class UnknownCells : public testing::Test
{
protected:
    /// From now on the questions that `isAsked` picks fail so.
    void fail(Failure failure, std::function<bool(const RoomQuestion&)> isAsked)
    {
        desk.rows.beforeAnswer = [failure, isAsked](const RoomQuestion& question) {
            if (isAsked(question)) {
                throw db::DatabaseError(failure, runtime::ErrorNumber::StatementRefused, "said");
            }
        };
    }
    /// The slots of a row that are unknown, from row 1 on.
    [[nodiscard]] std::vector<int> unknownSlots(std::size_t row)
    {
        std::vector<int> slots;
        for (const UnknownCell& cell : desk.drawn().at(row - 1).unknown) {
            slots.push_back(cell.slot);
        }
        return slots;
    }
    [[nodiscard]] const plan::PlanContent& content() const { return desk.engine.content(); }

    PlanDesk desk{4};
    const std::vector<int> all{1, 2, 3, 4, 5, 6};
};

bool any(const RoomQuestion& /*question*/)
{
    return true;
}

} // namespace

TEST_F(UnknownCells, areNoneWhereEveryQuestionIsAnswered)
{
    desk.meeting(1, 2);
    desk.draw();
    for (const std::size_t row : {1U, 2U, 3U}) {
        EXPECT_EQ(unknownSlots(row), std::vector<int>());
    }
    EXPECT_TRUE(content().faults.empty());
    EXPECT_FALSE(content().failingSince);
}

TEST_F(UnknownCells, areTheDaysSlotsWhoseQuestionFails)
{
    desk.meeting(2, 2);
    fail(Failure::Refused, [](const RoomQuestion& question) {
        return question.room == "R02" && question.seanceKey != "Lundi2";
    });
    desk.draw();
    EXPECT_EQ(unknownSlots(1), std::vector<int>());
    EXPECT_EQ(unknownSlots(2), std::vector<int>({1, 3, 4, 5, 6}));
    EXPECT_EQ(desk.box(1).slot, 2);
    EXPECT_EQ(content().faults, std::vector<lookup::ReadFault>({{{}, "said", Failure::Refused}}));
    EXPECT_TRUE(content().failingSince);
}

TEST_F(UnknownCells, standWhereTheirSlotDoes)
{
    fail(Failure::Refused, [](const RoomQuestion& question) {
        return question.room == "R01" && question.seanceKey == "Lundi3";
    });
    desk.draw();
    ASSERT_EQ(unknownSlots(1), std::vector<int>({3}));
    const UnknownCell& cell = desk.drawn()[0].unknown[0];
    EXPECT_EQ(cell.start, "11h00");
    EXPECT_EQ(cell.minutes, 90);
    EXPECT_EQ(cell.x, 1620 + 4800); // 180 minutes behind 8h00
    EXPECT_DOUBLE_EQ(cell.width, 2400);
}

TEST_F(UnknownCells, areAllOnceTheDatabaseIsSilent)
{
    fail(Failure::NoAnswer, any);
    desk.draw();
    for (const std::size_t row : {1U, 2U, 3U}) {
        EXPECT_EQ(unknownSlots(row), all);
    }
    EXPECT_EQ(desk.rows.asked.size(), 1U); // one wait, one verdict
}

TEST_F(UnknownCells, areNoneOnceThePageIsReadOverAnotherConnection)
{
    desk.meeting(1, 2);
    desk.meeting(3, 1);
    bool isLost = false;
    desk.rows.beforeAnswer = [&isLost](const RoomQuestion& question) {
        if (question.room == "R02" && !std::exchange(isLost, true)) {
            throw db::DatabaseError(Failure::ConnectionLost, runtime::ErrorNumber::DatabaseFailure,
                                    "gone");
        }
    };
    desk.form.Chk_Compt.setChecked(true);
    desk.draw();
    EXPECT_EQ(unknownSlots(2), std::vector<int>());
    EXPECT_EQ(desk.drawnRooms(), QStringList({"R01", "R02", "R03"}));
    EXPECT_EQ(desk.markers(), std::vector<int>({1, 2}));
    EXPECT_EQ(desk.totalsLine(), QStringList({"30", "30"})); // each room once
    EXPECT_TRUE(content().faults.empty());
    // The first room's ten slots, one of the second's, then all thirty from the beginning.
    EXPECT_EQ(desk.rows.asked.size(), 10U + 1U + 30U);
}

TEST_F(UnknownCells, areLeftWhenTheOtherConnectionIsLostToo)
{
    fail(Failure::ConnectionLost,
         [](const RoomQuestion& question) { return question.room == "R02"; });
    desk.draw();
    EXPECT_EQ(unknownSlots(1), std::vector<int>());
    EXPECT_EQ(unknownSlots(2), all);
    EXPECT_EQ(unknownSlots(3), all);
    EXPECT_EQ(content().faults.size(), 1U);
}

TEST_F(UnknownCells, areThoseWhereNeitherCourseNorMakeUpIsKnown)
{
    desk.form.Check2.design(true);
    desk.makeUp(1, 1);
    desk.meeting(1, 2);
    fail(Failure::Refused, [](const RoomQuestion& question) {
        const bool ofMakeUps = question.table == RoomQuestion::Table::ratrap;
        return ofMakeUps ? question.seanceKey == "Lundi3"
                         : question.seanceKey == "Lundi1" || question.seanceKey == "Lundi4";
    });
    desk.draw();
    // Slot 1 holds a make-up, slot 2 a course; slot 3 may hold a make-up, slot 4 a course.
    EXPECT_EQ(unknownSlots(1), std::vector<int>({3, 4}));
    EXPECT_EQ(desk.drawn()[0].boxes.size(), 2U);
}

TEST_F(UnknownCells, markTheTotalsThatLackThem)
{
    desk.meeting(1, 1);
    desk.meeting(1, 2);
    fail(Failure::Refused, [](const RoomQuestion& question) {
        return question.room == "R02" && question.seanceKey != "Lundi2";
    });
    desk.form.Chk_Compt.setChecked(true);
    desk.draw();
    EXPECT_EQ(desk.totalsLine(), QStringList({"30 ?", "30", "0 ?", "0 ?", "0 ?", "0 ?"}));
    desk.rows.beforeAnswer = nullptr;
    desk.form.CbJour.setListIndex(0); // counts anew
    EXPECT_EQ(desk.totalsLine(), QStringList({"30", "30"}));
}

TEST_F(UnknownCells, areGoneWithTheFaults)
{
    fail(Failure::NoAnswer, any);
    desk.draw();
    desk.rows.beforeAnswer = nullptr;
    desk.draw();
    EXPECT_EQ(unknownSlots(1), std::vector<int>());
    EXPECT_TRUE(content().faults.empty());
    EXPECT_FALSE(content().failingSince);
}

TEST_F(UnknownCells, areNotWhatAnAbsenceIs)
{
    desk.meeting(1, 1);
    desk.absences.fails = true;
    desk.draw();
    EXPECT_EQ(unknownSlots(1), std::vector<int>());
    EXPECT_FALSE(desk.box(1).classAbsent);
    EXPECT_FALSE(content().faults.empty()); // but it is told
}
