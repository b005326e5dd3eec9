#include "db/TextCounts.h"

#include "db/Session.h"
#include "support/RuntimeMatchers.h"
#include "support/TestDatabase.h"

#include <numeric>

using namespace db;
using runtime::ErrorNumber;

namespace
{

/// Students, whose classes do not tell case, and classes with places, whose names do.
class TextCounts : public test::OnBothDatabases
{
protected:
    void SetUp() override
    {
        const bool onServer = database().usesMySql();
        database().execute(QStringList{
            QString("create table s (c %1)")
                .arg(onServer ? "varchar(50) collate utf8mb4_general_ci" : "text collate nocase"),
            QString("create table k (n %1, p integer)")
                .arg(onServer ? "varchar(50) collate utf8mb4_bin" : "text"),
            "insert into s values ('GC1'), ('gc1'), ('GC2'), (null), ('D''Or'), ('GC9')",
            "insert into k values ('GC1', 40), ('gc1', 41), ('GC2', 30), ('GC2', 30), ('M1', 20), "
            "('V', 10), ('V', 11), ('N', null), ('N', 5), ('L', null), ('L', null)"});
    }

    /// `isSpelt`: as the rows spell the texts; else SQLite is asked once more.
    [[nodiscard]] std::vector<std::vector<TextCount>>
    ask(const std::vector<CountQuestion>& questions, const QStringList& texts, bool isSpelt = true)
    {
        Session session(database().connectString(), SqlDialect(database().usesMySql()));
        std::vector<std::vector<TextCount>> counts = countTexts(questions, texts, session);
        EXPECT_EQ(session.statementCount(), texts.isEmpty()                     ? 0
                                            : isSpelt || database().usesMySql() ? 1
                                                                                : 2);
        return counts;
    }
    [[nodiscard]] std::vector<int> rows(const CountQuestion& question, const QStringList& texts,
                                        bool isSpelt = true)
    {
        std::vector<int> numbers;
        const auto counts = ask({question}, texts, isSpelt);
        for (const TextCount& count : counts[0]) {
            numbers.push_back(count.rows);
        }
        return numbers;
    }
    [[nodiscard]] ErrorNumber errorOf(const CountQuestion& question, const QStringList& texts)
    {
        Session session(database().connectString(), SqlDialect(database().usesMySql()));
        return test::errorNumberOf([&] { std::ignore = countTexts({question}, texts, session); });
    }

    const CountQuestion students{"s", "c", {}};
    const CountQuestion classes{"k", "n", "p"};
};

} // namespace

TEST_P(TextCounts, areThoseOfTheRowsThatTheColumnTakesForEqual)
{
    EXPECT_EQ(rows(students, {"GC2", "gc1", "GC3", "GC1", "Gc1", ""}),
              (std::vector<int>{1, 2, 0, 2, 2, 0}));
    EXPECT_EQ(rows(classes, {"GC2", "gc1", "GC3", "GC1", "Gc1", ""}),
              (std::vector<int>{2, 1, 0, 1, 0, 0}));
}

TEST_P(TextCounts, areThoseOfRowsInAnotherSpellingToo)
{
    EXPECT_EQ(rows(students, {"gC2", "GC9"}, false), (std::vector<int>{1, 1}));
    EXPECT_EQ(rows(students, {"GC9", "gc9", "Gc9", "GC8", "gc8"}),
              (std::vector<int>{1, 1, 1, 0, 0}));
}

TEST_P(TextCounts, answerSeveralQuestionsByOneStatement)
{
    const auto counts = ask({classes, students}, {"GC1", "M1"});
    EXPECT_EQ(counts[0][0].rows, 1);
    EXPECT_EQ(counts[0][1].rows, 1);
    EXPECT_EQ(counts[1][0].rows, 2);
    EXPECT_EQ(counts[1][1].rows, 0);
}

TEST_P(TextCounts, bringTheValueThatAllRowsHave)
{
    const auto counts = ask({classes}, {"GC1", "GC2", "V", "N", "L", "X"})[0];
    EXPECT_EQ(counts[0].value.toInt16(), 40);
    EXPECT_FALSE(counts[0].rowsDiffer);
    EXPECT_EQ(counts[1].value.toInt16(), 30); // twice
    EXPECT_FALSE(counts[1].rowsDiffer);
    EXPECT_TRUE(counts[2].rowsDiffer);
    EXPECT_TRUE(counts[3].rowsDiffer); // a null is something else
    EXPECT_EQ(counts[4].rows, 2);
    EXPECT_FALSE(counts[4].rowsDiffer);
    EXPECT_TRUE(counts[4].value.isNull());
    EXPECT_EQ(counts[5].rows, 0);
    EXPECT_FALSE(counts[5].rowsDiffer);
}

TEST_P(TextCounts, takeTextsForWhatTheirLiteralsMean)
{
    EXPECT_EQ(rows(students, {"D''Or", "GC9"}), (std::vector<int>{1, 1}));
    // A server's backslash is the beginning of the character behind it.
    EXPECT_EQ(rows(classes, {"M\\1"}), (std::vector<int>{database().usesMySql() ? 1 : 0}));
}

TEST_P(TextCounts, takeManyTexts)
{
    QStringList texts;
    for (int i = 1; i <= 1200; ++i) {
        texts << QString("GC%1").arg(i);
    }
    const std::vector<int> numbers = rows(students, texts);
    EXPECT_EQ(numbers[0], 2);
    EXPECT_EQ(numbers[1], 1);
    EXPECT_EQ(numbers[8], 1);
    EXPECT_EQ(std::accumulate(numbers.begin(), numbers.end(), 0), 4);
}

TEST_P(TextCounts, needNoStatementWithoutTexts)
{
    EXPECT_EQ(ask({students, classes}, {}), (std::vector<std::vector<TextCount>>(2)));
}

TEST_P(TextCounts, areRefusedForAColumnOfNumbers)
{
    // '01' would find the row, and "01" is another text than "1".
    database().execute({"create table z (c integer)", "insert into z values (1)"});
    EXPECT_EQ(errorOf({"z", "c", {}}, {"01", "2"}), ErrorNumber::StatementRefused);
}

TEST_P(TextCounts, areRefusedWhereTheTableOrAColumnIsMissing)
{
    EXPECT_EQ(errorOf({"nowhere", "c", {}}, {"1"}), ErrorNumber::TableMissing);
    EXPECT_EQ(errorOf({"s", "nothing", {}}, {"1"}), ErrorNumber::StatementRefused);
    EXPECT_EQ(errorOf({"s", "c", "nothing"}, {"1"}), ErrorNumber::StatementRefused);
}

TEST_P(TextCounts, needACharacterSetThatHoldsTheTexts)
{
    if (!database().usesMySql()) {
        GTEST_SKIP() << "SQLite has one character set";
    }
    database().execute("create table l (c varchar(20) character set latin1)");
    EXPECT_EQ(errorOf({"l", "c", {}}, {"قاعة", "A"}), ErrorNumber::StatementRefused);
    EXPECT_EQ(rows({"l", "c", {}}, {"é", "A"}), (std::vector<int>{0, 0}));
}

TEMPORA_ON_BOTH_DATABASES(TextCounts);
