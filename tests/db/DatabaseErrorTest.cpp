#include "db/DatabaseError.h"

#include "db/RefusedTable.h"
#include "db/Repeated.h"
#include "support/RuntimeMatchers.h"

#include <vector>

using namespace db;
using runtime::ErrorNumber;
using runtime::RunTimeError;

namespace
{

DatabaseError refusal(const char* text = "refused")
{
    return {Failure::Refused, ErrorNumber::StatementRefused, QString::fromUtf8(text)};
}

DatabaseError loss()
{
    return {Failure::ConnectionLost, ErrorNumber::DatabaseFailure, QStringLiteral("gone")};
}

} // namespace

TEST(AFailure, concernsAllReadsUnlessTheStatementIsToBlame)
{
    for (const Failure ofOne : {Failure::Refused, Failure::TableMissing, Failure::RolledBack}) {
        EXPECT_FALSE(concernsAllReads(ofOne));
    }
    for (const Failure ofAll : {Failure::Locked, Failure::NoAnswer, Failure::ConnectionLost,
                                Failure::Unreachable, Failure::Other}) {
        EXPECT_TRUE(concernsAllReads(ofAll));
    }
}

TEST(AFailure, isToldByTheErrorOrByItsNumber)
{
    EXPECT_EQ(failureOf(loss()), Failure::ConnectionLost);
    EXPECT_EQ(failureOf(RunTimeError(ErrorNumber::DatabaseFailure, QStringLiteral("x"))),
              Failure::Other);
    EXPECT_EQ(failureOf(RunTimeError(ErrorNumber::TableMissing, QStringLiteral("x"))),
              Failure::TableMissing);
    EXPECT_EQ(failureOf(RunTimeError(ErrorNumber::StatementRefused, QStringLiteral("x"))),
              Failure::Refused);
    EXPECT_EQ(failureOf(RunTimeError(ErrorNumber::Overflow)), Failure::Refused);
}

TEST(SkipWhenRefused, raisesWhatConcernsAllReads)
{
    EXPECT_TRUE(skipWhenRefused([] {}));
    EXPECT_FALSE(skipWhenRefused([] { throw refusal(); }));
    EXPECT_THROW(static_cast<void>(skipWhenRefused([] { throw loss(); })), DatabaseError);
}

TEST(ARefusedTable, isAskedOnceMoreAndThenNoLonger)
{
    RefusedTable table;
    table.suspect();
    int asked = 0;
    const auto ask = [&](const QString& name) {
        return test::errorOf([&] {
                   table.ask({{name}, {}, {}}, SqlDialect(false), [&]() -> int {
                       ++asked;
                       throw refusal();
                   });
               })
            .text();
    };
    EXPECT_EQ(ask("A1"), "refused");
    EXPECT_EQ(ask("A''2"), "refused");
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(ask("A' or 1=1"), "refused"); // its own words may be the reason
    EXPECT_EQ(asked, 2);
}

TEST(ARefusedTable, isAskedOnWhileItAnswers)
{
    RefusedTable table;
    table.suspect();
    EXPECT_EQ(table.ask({{"A1"}, {}, {}}, SqlDialect(false), [] { return 1; }), 1);
    EXPECT_EQ(table.ask({{"A1"}, {}, {}}, SqlDialect(false), [] { return 2; }), 2);
    // What is refused later is not the table's fault.
    const auto refused = [] { return throw refusal(), 0; };
    EXPECT_THROW(std::ignore = table.ask({{"A2"}, {}, {}}, SqlDialect(false), refused),
                 DatabaseError);
    EXPECT_EQ(table.ask({{"A1"}, {}, {}}, SqlDialect(false), [] { return 3; }), 3);
}

TEST(ARefusedTable, isAskedAboutEachThingWhenThePageWasNotRefused)
{
    RefusedTable table;
    int asked = 0;
    for (int i = 0; i < 2; ++i) {
        EXPECT_THROW(table.ask({{"A1"}, {}, {}}, SqlDialect(false),
                               [&]() -> int {
                                   ++asked;
                                   throw refusal();
                               }),
                     DatabaseError);
    }
    EXPECT_EQ(asked, 2);
}

TEST(AStepThatIsRolledBack, isRunAgainFourTimesAtMost)
{
    int runs = 0;
    const auto failing = [&runs](int times) {
        return [&runs, times] {
            if (runs++ < times) {
                throw DatabaseError(Failure::RolledBack, ErrorNumber::StatementRefused,
                                    QStringLiteral("deadlock"));
            }
            return runs;
        };
    };
    EXPECT_EQ(againWhile({Failure::RolledBack}, failing(4)), 5);
    runs = 0;
    EXPECT_THROW(static_cast<void>(againWhile({Failure::RolledBack}, failing(5))), DatabaseError);
    EXPECT_EQ(runs, 5);
}

TEST(AStepThatFailsOtherwise, isNotRunAgain)
{
    int runs = 0;
    EXPECT_THROW(againWhile({Failure::RolledBack, Failure::Locked},
                            [&] {
                                ++runs;
                                throw loss();
                            }),
                 DatabaseError);
    EXPECT_EQ(runs, 1);
}

TEST(FailureWords, tellTheFailuresApart)
{
    QStringList words;
    for (const Failure failure :
         {Failure::Refused, Failure::TableMissing, Failure::Locked, Failure::NoAnswer,
          Failure::ConnectionLost, Failure::Unreachable, Failure::Other}) {
        words << failureWords(failure);
    }
    EXPECT_EQ(words.removeDuplicates(), 0);
    EXPECT_EQ(words[4], "la connexion à la base de données est coupée");
}

TEST(DatabaseError, isExplainedByItsFailure)
{
    EXPECT_EQ(DatabaseError(Failure::NoAnswer, runtime::ErrorNumber::DatabaseFailure, "timed out")
                  .explanation(),
              "La base de données ne répond pas.");
}

TEST(ARefusedTable, isNotAskedAboutANameWhoseStatementIsNone)
{
    RefusedTable table;
    bool asked = false;
    const auto error = test::errorOf([&] {
        table.ask({{"A1", "Salle d'informatique"}, {}, {}}, SqlDialect(false),
                  [&] { return asked = true; });
    });
    EXPECT_FALSE(asked);
    EXPECT_EQ(error.number(), ErrorNumber::StatementRefused);
    // Behind a name that ends early, the quotes of the next one may stand otherwise.
    EXPECT_TRUE(table.ask({{"A'", "Salle d'informatique"}, {}, {}}, SqlDialect(false),
                          [] { return true; }));
    EXPECT_TRUE(table.ask({{"Salle d'informatique"}, {}, {}},
                          SqlDialect(false, SqlDialect::Quotes::Doubled), [] { return true; }));
}

TEST(ARefusedTable, isNotAskedWhatTheWholeStatementIsRefusedFor)
{
    RefusedTable table;
    bool asked = false;
    const auto ask = [&](const RefusedTable::Question& question) {
        return test::errorOf(
            [&] { table.ask(question, SqlDialect(true), [&] { return asked = true; }); });
    };
    EXPECT_EQ(ask({{"L2 d'or"}, "Select * from etudiant WHERE Classe='L2 d'or'", {}}).number(),
              ErrorNumber::StatementRefused);
    EXPECT_FALSE(asked);
    // A text that is not between quotes counts, too: it may hide the rest.
    EXPECT_TRUE(table.ask({{"d'or"}, "Select * from e where S='d'or' and T =3 -- 2", {"3 -- 2"}},
                          SqlDialect(true), [] { return true; }));
}
