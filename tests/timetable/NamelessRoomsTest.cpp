#include "timetable/NamelessRooms.h"

#include "timetable/Draft.h"

#include <gtest/gtest.h>

using namespace test;
using namespace timetable;

namespace
{

constexpr TimeSpan kFirstSlot{{8 * 60}, {90}};

/// A room without a name beside A1, and Monday's first slot.
class RoomsWithoutAName : public testing::Test
{
protected:
    RoomsWithoutAName() { m_draft.room("").room("A1").slot("Lundi1", "8h00", "9h30"); }

    /// The parts that hold the room in that week.
    static std::vector<Part> parts(const Occupancy& occupancy, const QString& room, Week week)
    {
        std::vector<Part> parts;
        for (const HoldingId id : occupancy.holders(roomNamed(occupancy.timetable(), room),
                                                    When::weekday(kMonday, week), kFirstSlot)) {
            parts.push_back(occupancy.holding(id).part);
        }
        return parts;
    }

    Draft m_draft;
};

/// Takes all texts of blanks for one.
std::vector<NameGroups> paddingBlanks(const std::vector<NameQuestion>& questions)
{
    std::vector<NameGroups> answers = Draft::spelling(questions);
    for (std::size_t number = 0; number < questions.size(); ++number) {
        const std::vector<QString>& texts = questions[number].texts.texts();
        int first = -1;
        for (std::size_t index = 0; index < texts.size(); ++index) {
            if (texts[index].trimmed().isEmpty()) {
                first = first < 0 ? static_cast<int>(index) : first;
                answers[number][index] = first;
            }
        }
    }
    return answers;
}

} // namespace

TEST_F(RoomsWithoutAName, areHeldByEveryColumnOfARowWhoseSalleIsEmpty)
{
    m_draft.course({{column::kSeance, "Lundi1"},
                    {column::kNewNature, "10/20"},
                    {column::kSalle, ""},
                    {column::kXSalle, ""}});
    const Occupancy occupancy = m_draft.occupancy();
    EXPECT_EQ(parts(occupancy, "", Week::A), (std::vector{Part::A, Part::SecondA}));
    EXPECT_EQ(parts(occupancy, "", Week::B), std::vector{Part::SecondA});
}

TEST_F(RoomsWithoutAName, areNotHeldByTheEmptyColumnsOfARowWithAnotherSalle)
{
    m_draft.course({{column::kSeance, "Lundi1"},
                    {column::kSalle, "A1"},
                    {column::kXSalle, ""},
                    {column::kSalleB, ""}});
    const Occupancy occupancy = m_draft.occupancy();
    EXPECT_TRUE(parts(occupancy, "", Week::Every).empty());
    EXPECT_EQ(occupancy.holdings().size(), 1U);
}

TEST_F(RoomsWithoutAName, areNotHeldByTheEmptyColumnsOfARowWithoutASalle)
{
    m_draft.course({{column::kSeance, "Lundi1"}, {column::kXSalle, ""}});
    EXPECT_TRUE(m_draft.occupancy().holdings().empty());
}

TEST_F(RoomsWithoutAName, leaveAnEmptyTextToARoomOfBlanksThatIsEqual)
{
    m_draft.room(" ");
    m_draft.course({{column::kSeance, "Lundi1"}, {column::kSalle, "A1"}, {column::kXSalle, ""}});
    const Occupancy occupancy(
        std::make_shared<const timetable::Timetable>(m_draft.build(paddingBlanks)));
    EXPECT_TRUE(parts(occupancy, "", Week::Every).empty());
    EXPECT_EQ(parts(occupancy, " ", Week::Every), std::vector{Part::SecondA});
}

TEST_F(RoomsWithoutAName, areFoundByASalleThatIsEqualToNothing)
{
    m_draft.course({{column::kSeance, "Lundi1"}, {column::kSalle, " "}, {column::kSalleB, ""}});
    const Occupancy occupancy(
        std::make_shared<const timetable::Timetable>(m_draft.build(paddingBlanks)));
    EXPECT_EQ(parts(occupancy, "", Week::Every), (std::vector{Part::A, Part::B}));
}
