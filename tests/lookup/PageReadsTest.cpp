#include "lookup/PageReads.h"

#include "lookup/Meetings.h"
#include "lookup/WatchedRows.h"
#include "support/RuntimeMatchers.h"

using db::DatabaseError;
using db::Failure;
using lookup::PageReads;
using lookup::ReadFault;
using runtime::ErrorNumber;

namespace
{

DatabaseError fault(Failure failure, const char* text = "said")
{
    return {failure, ErrorNumber::DatabaseFailure, QString::fromUtf8(text)};
}

/// The reads of a page over a connection that fails as it is told.
class ThePage : public testing::Test
{
protected:
    /// One read, which fails so; tells whether it was sent.
    bool asks(std::optional<Failure> failure, const QStringList& names = {})
    {
        bool sent = false;
        runtime::skipOnError([&] {
            reads.ask(names, [&] {
                sent = true;
                if (failure) {
                    throw fault(*failure);
                }
            });
        });
        return sent;
    }

    int revivals = 0;
    int renewals = 0;
    std::optional<Failure> connecting; ///< how opening a connection fails
    QDateTime now{{2026, 11, 22}, {10, 32}};
    PageReads reads{{[this] {
                         ++revivals;
                         connect();
                     },
                     [this] {
                         ++renewals;
                         connect();
                     },
                     [](const QString& name) { return !name.contains('\''); },
                     [this] { return now; }}};

private:
    void connect() const
    {
        if (connecting) {
            throw fault(*connecting, "no connection");
        }
    }
};

} // namespace

TEST_F(ThePage, revivesTheConnectionAndHasNoFaults)
{
    reads.begin();
    EXPECT_EQ(revivals, 1);
    EXPECT_TRUE(asks({}));
    reads.end();
    EXPECT_TRUE(reads.faults().empty());
    EXPECT_FALSE(reads.failingSince());
}

TEST_F(ThePage, raisesWhatItNotes)
{
    reads.begin();
    EXPECT_EQ(test::errorOf([&] { reads.ask({}, [] { throw fault(Failure::Refused); }); }).text(),
              "said");
    EXPECT_EQ(reads.faults(), std::vector<ReadFault>({{{}, "said", Failure::Refused}}));
}

TEST_F(ThePage, asksOnAfterARefusal)
{
    reads.begin();
    EXPECT_TRUE(asks(Failure::Refused));
    EXPECT_TRUE(asks(Failure::TableMissing));
    EXPECT_TRUE(asks({}));
}

TEST_F(ThePage, waitsOnceForADatabaseThatIsSilentOrLocked)
{
    for (const Failure failure : {Failure::Locked, Failure::NoAnswer, Failure::ConnectionLost,
                                  Failure::Unreachable, Failure::Other}) {
        reads.begin();
        EXPECT_TRUE(asks(failure));
        EXPECT_FALSE(asks({}));
        EXPECT_EQ(reads.faults(), std::vector<ReadFault>({{{}, "said", failure}}));
    }
}

TEST_F(ThePage, sendsNothingWithoutAConnection)
{
    connecting = Failure::Unreachable;
    reads.begin();
    EXPECT_FALSE(asks({}));
    EXPECT_EQ(reads.faults(),
              std::vector<ReadFault>({{{}, "no connection", Failure::Unreachable}}));
    connecting.reset();
    reads.begin(); // the next action tries again
    EXPECT_TRUE(asks({}));
    EXPECT_TRUE(reads.faults().empty());
}

TEST_F(ThePage, startsAgainOnceWhenTheConnectionWentAway)
{
    reads.begin();
    EXPECT_FALSE(reads.startAgain());
    asks(Failure::ConnectionLost);
    EXPECT_TRUE(reads.startAgain());
    EXPECT_EQ(renewals, 1);
    EXPECT_TRUE(reads.faults().empty());
    asks(Failure::ConnectionLost);
    EXPECT_FALSE(reads.startAgain());
    EXPECT_EQ(renewals, 1);
    EXPECT_EQ(reads.faults().size(), 1U);
    reads.begin();
    asks(Failure::ConnectionLost);
    EXPECT_TRUE(reads.startAgain()); // another page
}

TEST_F(ThePage, doesNotStartAgainWhenNobodyAnswersOrConnects)
{
    reads.begin();
    asks(Failure::NoAnswer);
    EXPECT_FALSE(reads.startAgain()); // it would wait as long again
    reads.begin();
    asks(Failure::ConnectionLost);
    connecting = Failure::Unreachable;
    EXPECT_FALSE(reads.startAgain());
    EXPECT_EQ(reads.faults(),
              std::vector<ReadFault>({{{}, "no connection", Failure::Unreachable}}));
    EXPECT_FALSE(asks({}));
}

TEST_F(ThePage, blamesANameThatCannotStandBetweenQuotes)
{
    reads.begin();
    EXPECT_TRUE(asks(Failure::Refused, {"A1", "Salle d'info"}));
    EXPECT_TRUE(asks(Failure::Refused, {"Salle d'info"}));
    EXPECT_EQ(reads.faults(), std::vector<ReadFault>({{"Salle d'info", "said", Failure::Refused}}));
    EXPECT_FALSE(lookup::isIncomplete(reads.faults()));
    reads.end();
    EXPECT_FALSE(reads.failingSince());
    asks(Failure::NoAnswer, {"Salle d'info"}); // that is not the name's fault
    EXPECT_TRUE(lookup::isIncomplete(reads.faults()));
}

TEST_F(ThePage, tellsEachFaultOnce)
{
    reads.begin();
    asks(Failure::Refused);
    asks(Failure::Refused);
    EXPECT_EQ(reads.faults().size(), 1U);
}

TEST_F(ThePage, failsSinceTheFirstPageThatLacksAnswers)
{
    const QDateTime first = now;
    for (int page = 0; page < 2; ++page) {
        reads.begin();
        asks(Failure::NoAnswer);
        reads.end();
        EXPECT_EQ(reads.failingSince(), first);
        now = now.addSecs(60);
    }
    reads.begin();
    reads.end();
    EXPECT_FALSE(reads.failingSince());
}

namespace
{

class TheWatchedRows : public ThePage
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
