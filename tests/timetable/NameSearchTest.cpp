#include "timetable/NameSearch.h"

#include "support/Timetable.h"
#include "timetable/Draft.h"
#include "timetable/TimetableReader.h"

#include <gtest/gtest.h>
#include <optional>

using namespace test;
using namespace timetable;

namespace
{

/// Rooms 0 "A1" (INFO), 1 "b1" (info), 2 "C1" (none), and 3 "Cave", which only a row names.
class SearchingNames : public OnBothDatabases
{
protected:
    void SetUp() override
    {
        test::Timetable tables(database());
        tables.row("salle", {{"Nom", "A1"}, {"Département", "INFO"}});
        tables.row("salle", {{"Nom", "b1"}, {"Département", "info"}});
        tables.row("salle", {{"Nom", "C1"}});
        tables.row("emplois", {{"Tranche", 1},
                               {"Salle", "Cave"},
                               {"Enseignant1", "D'Or"},
                               {"Enseignant2", "d'or"},
                               {"Classe", "L1"},
                               {"matière", "Algèbre"}});
        tables.load();
        m_connection.emplace(database().connectString());
        timetable = readTimetable(*m_connection, 1);
        m_before = m_connection->statementCount();
    }

    [[nodiscard]] db::Connection& connection() { return *m_connection; }
    [[nodiscard]] long long statements() const { return m_connection->statementCount() - m_before; }

    timetable::Timetable timetable;

private:
    std::optional<db::Connection> m_connection;
    long long m_before = 0;
};

using Rooms = std::vector<RoomId>;

} // namespace

TEST_P(SearchingNames, findsRoomsAsTheDatabaseCompares)
{
    EXPECT_EQ(findRooms(connection(), timetable, "a1"), Rooms{RoomId(0)});
    EXPECT_EQ(findRooms(connection(), timetable, "B1"), Rooms{RoomId(1)});
    EXPECT_EQ(findRooms(connection(), timetable, "CAVE"), Rooms{RoomId(3)});
    EXPECT_EQ(findRooms(connection(), timetable, "A2"), Rooms{});
    EXPECT_EQ(findRooms(connection(), timetable, "x' or '1'='1"), Rooms{});
}

TEST_P(SearchingNames, findsTheRoomsOfADepartment)
{
    EXPECT_EQ(findRoomsOf(connection(), timetable, "Info"), (Rooms{RoomId(0), RoomId(1)}));
    EXPECT_EQ(findRoomsOf(connection(), timetable, "MATH"), Rooms{});
    EXPECT_EQ(findRoomsOf(connection(), timetable, ""), Rooms{});
}

TEST_P(SearchingNames, findsPeopleClassesAndSubjects)
{
    const TeacherId teacher = timetable.teachers().find(u"D'Or");
    EXPECT_EQ(findTeacher(connection(), timetable, "D'OR"), teacher);
    EXPECT_EQ(findClass(connection(), timetable, "l1"), ClassId(0));
    EXPECT_EQ(findSubject(connection(), timetable, "algèbre"), SubjectId(0));
    EXPECT_EQ(findTeacher(connection(), timetable, "Dor"), TeacherId());
    EXPECT_EQ(statements(), 4);
}

TEST_P(SearchingNames, asksNothingAboutANameThatIsSpeltLikeOneOfTheRows)
{
    EXPECT_EQ(findTeacher(connection(), timetable, "d'or"), timetable.teachers().find(u"D'Or"));
    EXPECT_EQ(statements(), 0);
}

TEST_P(SearchingNames, findsNobodyAmongNobody)
{
    EXPECT_TRUE(findTeacher(connection(), Draft().build(), "Durand").isNone());
    EXPECT_EQ(statements(), 0);
}

TEMPORA_ON_BOTH_DATABASES(SearchingNames);
