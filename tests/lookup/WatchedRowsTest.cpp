#include "lookup/WatchedRows.h"

#include "lookup/Meetings.h"
#include "lookup/ReadPage.h"

using runtime::ErrorNumber;

namespace
{

class TheWatchedRows : public test::ThePage
{
protected:
    test::FakeRows rows;
    lookup::WatchedRows watched{rows, reads};

    [[nodiscard]] lookup::RoomQuestion question(const QString& room) const
    {
        lookup::RoomQuestion asked;
        asked.room = room;
        asked.seanceKey = "Lundi1";
        asked.tranche = "1";
        return asked;
    }
};

} // namespace

TEST_F(TheWatchedRows, areThoseOfTheSource)
{
    rows.emplois("A1", "Lundi1");
    rows.students["GC1"] = 35;
    rows.capacities["GC1"] = db::Value(std::int64_t{40});
    reads.begin();
    EXPECT_EQ(watched.timetableRows(question("A1")).recordCount(), 1);
    EXPECT_TRUE(watched.timetableRows(question("A2")).isEmpty());
    EXPECT_EQ(watched.studentRows("GC1"), 35);
    EXPECT_EQ(watched.classRows("GC1").recordCount(), 1);
    EXPECT_TRUE(reads.faults().empty());
}

TEST_F(TheWatchedRows, doNotFindARoomFreeThatCannotBeAskedAbout)
{
    reads.begin();
    EXPECT_EQ(
        test::errorNumberOf([&] { static_cast<void>(watched.timetableRows(question("A'1"))); }),
        ErrorNumber::StatementRefused);
    ASSERT_EQ(reads.faults().size(), 1U);
    EXPECT_EQ(reads.faults()[0].name, "A'1");
}

TEST_F(TheWatchedRows, areThoseThatWereFoundUnderSuchAName)
{
    rows.emplois("A'1", "Lundi1");
    reads.begin();
    EXPECT_EQ(watched.timetableRows(question("A'1")).recordCount(), 1);
    EXPECT_TRUE(reads.faults().empty());
}

TEST_F(TheWatchedRows, noteWhatFails)
{
    rows.classesFail = true;
    reads.begin();
    EXPECT_THROW(static_cast<void>(watched.classRows("GC1")), runtime::RunTimeError);
    EXPECT_EQ(reads.faults().size(), 1U);
}
