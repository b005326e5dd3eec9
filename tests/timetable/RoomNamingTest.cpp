#include "timetable/RoomNaming.h"

#include "timetable/Draft.h"

#include <gtest/gtest.h>

using namespace test;
using namespace timetable;

namespace
{

constexpr std::size_t kSalle = field::of(Part::A, field::kRoom);
constexpr std::size_t kYSalle = field::of(Part::A, field::kOtherRoom);
constexpr std::size_t kXSalleB = field::of(Part::SecondB, field::kRoom);

/// Rooms 0 "A1", 1 "B1" and 2 "b1".
class NamingRooms : public testing::Test
{
protected:
    NamingRooms()
    {
        for (const QString name : {"A1", "B1", "b1"}) {
            m_naming.addRoom(name);
        }
    }

    [[nodiscard]] RoomNaming::Result take(const AskNames& ask)
    {
        NameInquiry inquiry;
        m_naming.ask(inquiry);
        inquiry.ask([&](const std::vector<NameQuestion>& questions) {
            m_questions = questions;
            return ask(questions);
        });
        return m_naming.take(inquiry);
    }

    [[nodiscard]] RoomNameId name(std::size_t field, const QString& text)
    {
        return m_naming.name(MeetingKind::Course, field, text);
    }

    RoomNaming m_naming;
    std::vector<NameQuestion> m_questions; ///< that were asked
};

} // namespace

TEST_F(NamingRooms, knowsATextByTheSameIdEachTime)
{
    EXPECT_EQ(name(kSalle, "A1"), RoomNameId(0));
    EXPECT_EQ(name(kSalle, "B1"), RoomNameId(1));
    EXPECT_EQ(name(kSalle, "A1"), RoomNameId(0));
}

TEST_F(NamingRooms, givesTheSameTextAnotherIdInAnotherColumn)
{
    EXPECT_EQ(name(kSalle, "A1"), RoomNameId(0));
    EXPECT_EQ(name(kYSalle, "A1"), RoomNameId(1));
    EXPECT_EQ(m_naming.name(MeetingKind::MakeUp, kSalle, u"A1"), RoomNameId(2));
    EXPECT_EQ(name(kXSalleB, "A1"), RoomNameId(3));
}

TEST_F(NamingRooms, hasNoIdForANullAndForAnEmptyText)
{
    EXPECT_TRUE(m_naming.name(MeetingKind::Course, kSalle, QStringView()).isNone());
    EXPECT_TRUE(name(kSalle, "").isNone());
}

TEST_F(NamingRooms, takesAnEmptyTextForTheRoomWithoutAName)
{
    m_naming.addRoom("");
    static_cast<void>(name(kYSalle, ""));
    static_cast<void>(name(kSalle, ""));
    EXPECT_EQ(take(Draft::spelling).names,
              (std::vector<RoomName>{{"", {RoomId(3)}}, {"", {RoomId(3)}}}));
}

TEST_F(NamingRooms, findsTheRoomThatIsSpeltAlike)
{
    static_cast<void>(name(kSalle, "b1"));
    EXPECT_EQ(take(Draft::spelling).names, (std::vector<RoomName>{{"b1", {RoomId(2)}}}));
}

TEST_F(NamingRooms, findsEveryRoomThatIsEqual)
{
    static_cast<void>(name(kSalle, "B1"));
    static_cast<void>(name(kSalle, "a1"));
    const RoomNaming::Result result = take(Draft::ignoringCase);
    EXPECT_EQ(result.names,
              (std::vector<RoomName>{{"B1", {RoomId(1), RoomId(2)}}, {"a1", {RoomId(0)}}}));
    EXPECT_TRUE(result.unknownRooms.empty());
}

TEST_F(NamingRooms, asksAboutEachColumnWithItsOwnEquality)
{
    static_cast<void>(name(kSalle, "a1"));
    static_cast<void>(name(kYSalle, "a1"));
    const RoomNaming::Result result = take([](const std::vector<NameQuestion>& questions) {
        std::vector<NameGroups> answers;
        for (const NameQuestion& question : questions) {
            const bool ignoresCase = question.column == column::kYSalle;
            answers.push_back((ignoresCase ? Draft::ignoringCase : Draft::spelling)({question})[0]);
        }
        return answers;
    });
    EXPECT_EQ(result.names, (std::vector<RoomName>{{"a1", {RoomId(3)}}, {"a1", {RoomId(0)}}}));
    EXPECT_EQ(result.unknownRooms, std::vector<QString>{"a1"});
    ASSERT_EQ(m_questions.size(), 3U);
    EXPECT_TRUE(m_questions[0].table == table::kEmplois);
    EXPECT_TRUE(m_questions[0].column == column::kSalle);
    EXPECT_TRUE(m_questions[1].column == column::kYSalle);
    EXPECT_TRUE(m_questions[2].table == SqlName(u"salle")); // about rooms that are not in it
}

TEST_F(NamingRooms, countsAnUnknownRoomOnceHoweverItIsSpelt)
{
    static_cast<void>(name(kSalle, "Cave"));
    static_cast<void>(name(kXSalleB, "CAVE"));
    static_cast<void>(name(kXSalleB, "Grenier"));
    const RoomNaming::Result result = take(Draft::ignoringCase);
    EXPECT_EQ(result.unknownRooms, (std::vector<QString>{"Cave", "Grenier"}));
    EXPECT_EQ(result.names,
              (std::vector<RoomName>{
                  {"Cave", {RoomId(3)}}, {"CAVE", {RoomId(3)}}, {"Grenier", {RoomId(4)}}}));
}

TEST_F(NamingRooms, takesBlanksForNoRoom)
{
    static_cast<void>(name(kSalle, "  "));
    const RoomNaming::Result result = take(Draft::spelling);
    EXPECT_EQ(result.names, (std::vector<RoomName>{{"  ", {}}}));
    EXPECT_TRUE(result.unknownRooms.empty());
}

TEST_F(NamingRooms, asksNothingAboutUnknownRoomsWhereThereAreNone)
{
    static_cast<void>(name(kSalle, "A1"));
    static_cast<void>(take(Draft::spelling));
    EXPECT_EQ(m_questions.size(), 1U);
}
