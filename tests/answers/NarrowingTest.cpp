#include "answers/Narrowing.h"

#include "timetable/Draft.h"

#include <gtest/gtest.h>

using namespace answers;
using namespace test;
using namespace timetable;

namespace
{

/// R1 of zone 1 on Monday and Tuesday, R2 of zone 2 on Monday in week B.
class TheNarrowing : public testing::Test
{
protected:
    TheNarrowing()
    {
        Draft draft;
        draft.period(QDate(2026, 9, 7), QDate(2026, 12, 18));
        Room room{"R1", 1, "INFO", 30};
        draft.builder().addRoom(room);
        room = {"R2", 2, std::nullopt, 30};
        draft.builder().addRoom(room);
        add(draft, "Lundi1", "R1");
        add(draft, "Mardi1", "R1");
        draft.course({{column::kSeance, "Lundi1"},
                      {column::kDebut, "8h00"},
                      {column::kSalleB, "R2"},
                      {column::kNewNature, "10/20"}});
        m_known.emplace(draft.occupancy());
    }
    static void add(Draft& draft, const QString& key, const QString& room)
    {
        draft.course({{column::kSeance, key}, {column::kDebut, "8h00"}, {column::kSalle, room}});
    }
    /// The ids that are left of 0, 1 and 2.
    std::vector<int> items(const Narrowing& narrowing)
    {
        std::vector<HoldingId> all{HoldingId(0), HoldingId(1), HoldingId(2)};
        narrowing.apply(*m_known, all);
        std::vector<int> left;
        for (const HoldingId id : all) {
            left.push_back(id.index());
        }
        return left;
    }
    /// Of a clash on Monday (R1, any week), one on Tuesday 24 November (R1), one in R2 (Monday, B)
    /// and one without holders or day: the places of those that are left.
    std::vector<int> clashes(const Narrowing& narrowing)
    {
        std::vector<Clash> all(4);
        all[0].day = 0;
        all[0].holders = {HoldingId(0)};
        all[1].day = 1;
        all[1].date = QDate(2026, 11, 24);
        all[1].holders = {HoldingId(1)};
        all[2].day = 0;
        all[2].weeks = Week::B;
        all[2].holders = {HoldingId(2)};
        for (int index = 0; index < 4; ++index) {
            all[static_cast<std::size_t>(index)].students = index;
        }
        narrowing.apply(*m_known, all);
        std::vector<int> left;
        for (const Clash& clash : all) {
            left.push_back(clash.students);
        }
        return left;
    }

private:
    std::optional<Occupancy> m_known;
};

} // namespace

TEST_F(TheNarrowing, leavesAllWhereNothingIsWanted)
{
    EXPECT_EQ(items({}), std::vector<int>({0, 1, 2}));
    EXPECT_EQ(clashes({}), std::vector<int>({0, 1, 2, 3}));
}

TEST_F(TheNarrowing, keepsWhatIsInTheRooms)
{
    EXPECT_EQ(items({{2, std::nullopt}, {}, Week::Every, {}}), std::vector<int>({2}));
    EXPECT_EQ(items({{std::nullopt, "INFO"}, {}, Week::Every, {}}), std::vector<int>({0, 1}));
    EXPECT_EQ(clashes({{2, std::nullopt}, {}, Week::Every, {}}), std::vector<int>({2}));
}

TEST_F(TheNarrowing, keepsARowWithoutADayByItsRooms)
{
    Draft draft;
    draft.builder().addRoom({"R1", 1, std::nullopt, 30});
    draft.builder().addRoom({"R2", 2, std::nullopt, 30});
    draft.course({{column::kSeance, "Mradi2"}, {column::kSalle, "R2"}});
    const Occupancy occupancy = draft.occupancy();
    std::vector<Clash> clashes = answers::clashes(occupancy);
    ASSERT_EQ(clashes.size(), 1U);
    Narrowing{{2, std::nullopt}, {}, Week::Every, {}}.apply(occupancy, clashes);
    EXPECT_EQ(clashes.size(), 1U);
    Narrowing{{1, std::nullopt}, {}, Week::Every, {}}.apply(occupancy, clashes);
    EXPECT_EQ(clashes.size(), 0U);
}

TEST_F(TheNarrowing, keepsWhatIsOnTheDay)
{
    EXPECT_EQ(items({{}, 1, Week::Every, {}}), std::vector<int>({1}));
    EXPECT_EQ(clashes({{}, 0, Week::Every, {}}), std::vector<int>({0, 2}));
}

TEST_F(TheNarrowing, keepsAnUnknownRoomByTheTimesOfItsHolders)
{
    Draft draft;
    draft.period(QDate(2026, 9, 7), QDate(2026, 12, 18));
    draft.room("R1");
    add(draft, "Mardi1", "Annexe");
    draft.course({{column::kSeance, "Jeudi1"},
                  {column::kDebut, "8h00"},
                  {column::kSalleB, "Annexe"},
                  {column::kNewNature, "10/20"}});
    const Occupancy occupancy = draft.occupancy();
    const auto left = [&](const Narrowing& narrowing) {
        std::vector<Clash> clashes = answers::clashes(occupancy);
        EXPECT_EQ(clashes.size(), 1U);
        narrowing.apply(occupancy, clashes);
        return clashes.size();
    };
    EXPECT_EQ(left({{}, 1, Week::Every, {}}), 1U);
    EXPECT_EQ(left({{}, 2, Week::Every, {}}), 0U);
    EXPECT_EQ(left({{}, 3, Week::B, {}}), 1U);
    EXPECT_EQ(left({{}, 3, Week::A, {}}), 0U);
    EXPECT_EQ(left({{}, {}, Week::Every, QDate(2026, 11, 24)}), 1U); // a Tuesday
    EXPECT_EQ(left({{}, {}, Week::Every, QDate(2026, 11, 25)}), 0U);
    EXPECT_EQ(left({{}, {}, Week::Every, QDate(2027, 1, 5)}), 0U); // a Tuesday beyond
}

TEST_F(TheNarrowing, keepsTheClashesOfAWeek)
{
    EXPECT_EQ(clashes({{}, {}, Week::A, {}}), std::vector<int>({0, 1, 3}));
    EXPECT_EQ(clashes({{}, {}, Week::B, {}}), std::vector<int>({0, 1, 2, 3}));
}

TEST_F(TheNarrowing, keepsTheClashesOfADate)
{
    EXPECT_EQ(clashes({{}, {}, Week::Every, QDate(2026, 11, 24)}), std::vector<int>({1}));
    EXPECT_EQ(clashes({{}, {}, Week::A, QDate(2026, 11, 23)}), std::vector<int>({0}));
    EXPECT_EQ(clashes({{}, {}, Week::Every, QDate(2027, 1, 4)}), std::vector<int>()); // beyond
}
