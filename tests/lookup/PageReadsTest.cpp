#include "lookup/PageReads.h"

#include "lookup/ReadPage.h"

using db::Failure;
using lookup::PageReads;
using lookup::ReadFault;
using runtime::ErrorNumber;
using test::ThePage;

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
    EXPECT_EQ(
        test::errorOf([&] { reads.ask({}, [] { throw test::faultOf(Failure::Refused); }); }).text(),
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
