#include "context/StartReads.h"

#include "support/RuntimeMatchers.h"
#include "support/Timetable.h"

#include <optional>

using namespace test;

namespace
{

/// Start-up's questions, asked in both ways of the same tables.
class ReadsAtStart : public OnBothDatabases
{
protected:
    void SetUp() override
    {
        timetable.emplace(database(), QStringList{"seances", "salle"});
        m_database.emplace(database().usesMySql());
    }
    void load()
    {
        timetable->load();
        m_database->open(database().connectString());
    }
    context::StartReads& plain() { return m_plain.emplace(*m_database, true); }
    context::StartReads& atOnce() { return m_atOnce.emplace(*m_database, false); }
    [[nodiscard]] long long statements() { return m_database->Db().statementCount(); }

    std::optional<Timetable> timetable;

private:
    std::optional<db::Database> m_database;
    std::optional<context::StartReads> m_plain;
    std::optional<context::StartReads> m_atOnce;
};

QStringList starts(const std::vector<db::Recordset>& slots)
{
    QStringList texts;
    for (const db::Recordset& slot : slots) {
        texts << (slot.isEmpty() ? QString("-") : slot.first().field("Horaire1").toText());
    }
    return texts;
}

QStringList names(const db::Recordset& rooms)
{
    QStringList texts;
    for (const db::Row& room : rooms.rows()) {
        texts << room.field("Nom").toText();
    }
    return texts;
}

} // namespace

TEST_P(ReadsAtStart, findEachSlotByItsKey)
{
    timetable->row("seances", {{"Seance", "Lundi1"}, {"Horaire1", "8h00"}});
    timetable->row("seances", {{"Seance", "lundi2"}, {"Horaire1", "9h30"}}); // in any case
    timetable->row("seances", {{"Seance", "Mardi3"}, {"Horaire1", "11h00"}});
    load();
    const QStringList keys{"Lundi1", "Lundi2", "Lundi3"};
    const QStringList expected{"8h00", "9h30", "-"};
    EXPECT_EQ(starts(plain().slotsWithKeys(keys)), expected);
    const long long before = statements();
    EXPECT_EQ(starts(atOnce().slotsWithKeys(keys)), expected);
    EXPECT_EQ(statements() - before, 1);
}

TEST_P(ReadsAtStart, leaveTheOrderOfEqualKeysToThePlainStatement)
{
    timetable->row("seances", {{"Seance", "Lundi1"}, {"Horaire1", "8h00"}});
    timetable->row("seances", {{"Seance", "Lundi1"}, {"Horaire1", "8h15"}});
    timetable->row("seances", {{"Seance", "Lundi2"}, {"Horaire1", "9h30"}});
    load();
    const QStringList expected = starts(plain().slotsWithKeys({"Lundi1", "Lundi2"}));
    const long long before = statements();
    EXPECT_EQ(starts(atOnce().slotsWithKeys({"Lundi1", "Lundi2"})), expected);
    EXPECT_EQ(statements() - before, 2); // one for both, one for the key that two rows bear
}

TEST_P(ReadsAtStart, countAndListTheRoomsOfAZone)
{
    timetable->row("salle", {{"Zone", 2}, {"Nom", "C1"}, {"places", 50}});
    timetable->row("salle", {{"Zone", 1}, {"Nom", "A1"}, {"places", 30}});
    timetable->row("salle", {{"Zone", 2}, {"Nom", "B1"}, {"places", 40}});
    load();
    for (context::StartReads* reads : {&plain(), &atOnce()}) {
        EXPECT_EQ(reads->roomCount("0"), 3);
        EXPECT_EQ(names(reads->roomsByName("0")), (QStringList{"A1", "B1", "C1"}));
        EXPECT_EQ(reads->roomCount("2"), 2);
        EXPECT_EQ(names(reads->roomsByName("2")), (QStringList{"B1", "C1"}));
    }
}

TEST_P(ReadsAtStart, askOnceForTheRoomsThatAreCountedAndListed)
{
    timetable->row("salle", {{"Zone", 1}, {"Nom", "A1"}, {"places", 30}});
    load();
    context::StartReads& reads = atOnce();
    const long long before = statements();
    EXPECT_EQ(reads.roomCount("0"), 1);
    EXPECT_EQ(names(reads.roomsByName("0")), QStringList{"A1"});
    EXPECT_EQ(statements() - before, 1);
}

TEST_P(ReadsAtStart, tellWhatIsMissing)
{
    load();
    database().execute("DROP TABLE seances");
    EXPECT_EQ(errorNumberOf([&] { static_cast<void>(atOnce().slotsWithKeys({"Lundi1"})); }),
              runtime::ErrorNumber::TableMissing);
}

TEMPORA_ON_BOTH_DATABASES(ReadsAtStart);

TEST_P(ReadsAtStart, giveAllRoomsOnceWhereTheyWereCounted)
{
    timetable->row("salle", {{"Zone", 1}, {"Nom", "B"}, {"places", 30}});
    timetable->row("salle", {{"Zone", 2}, {"Nom", "A"}, {"places", 30}});
    load();
    context::StartReads& reads = atOnce();
    EXPECT_FALSE(reads.takeAllRooms());
    EXPECT_EQ(reads.roomCount("0"), 2);
    const std::optional<db::Recordset> rooms = reads.takeAllRooms();
    ASSERT_TRUE(rooms);
    EXPECT_EQ(names(*rooms), QStringList({"A", "B"}));
    EXPECT_FALSE(reads.takeAllRooms());
    EXPECT_EQ(reads.roomCount("1"), 1);
    EXPECT_FALSE(reads.takeAllRooms()); // not all
}
