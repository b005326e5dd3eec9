#include "db/EqualTexts.h"

#include "db/Session.h"
#include "support/RuntimeMatchers.h"
#include "support/TestDatabase.h"

using namespace db;
using runtime::ErrorNumber;

namespace
{

/// A table whose first column ignores case, whose second does not.
class EqualTexts : public test::OnBothDatabases
{
protected:
    void SetUp() override
    {
        database().execute(
            database().usesMySql()
                ? "create table t (a varchar(50) collate utf8mb4_general_ci, b varchar(50) collate "
                  "utf8mb4_bin, c text character set latin1)"
                : "create table t (a text collate nocase, b text, c text collate nocase)");
    }

    [[nodiscard]] std::vector<TextGroups> ask(const std::vector<TextQuestion>& questions,
                                              int expectedStatements)
    {
        Session session(database().connectString(), SqlDialect(database().usesMySql()));
        std::vector<TextGroups> answers = equalTexts(questions, session);
        EXPECT_EQ(session.statementCount(), expectedStatements);
        return answers;
    }
};

} // namespace

TEST_P(EqualTexts, areThoseThatTheColumnTakesForEqual)
{
    const std::vector<QString> texts{"A1", "B1", "a1", "b1", "O'B\\", "o'b\\"};
    EXPECT_EQ(ask({{"t", "a", texts}, {"t", "b", texts}}, 1),
              (std::vector<TextGroups>{{0, 1, 0, 1, 4, 4}, {0, 1, 2, 3, 4, 5}}));
}

TEST_P(EqualTexts, areAskedForInUnicodeWhereTheColumnsCharacterSetLacksThem)
{
    EXPECT_EQ(ask({{"t", "c", {"قاعة 1", "L1", "l1"}}}, database().usesMySql() ? 2 : 1)[0],
              (TextGroups{0, 1, 1}));
}

TEST_P(EqualTexts, needNoStatementWhereThereIsNothingToCompare)
{
    EXPECT_EQ(ask({{"t", "a", {"A1"}}, {"t", "a", {}}}, 0), (std::vector<TextGroups>{{0}, {}}));
}

TEST_P(EqualTexts, needTheTableAndTheColumn)
{
    Session session(database().connectString(), SqlDialect(database().usesMySql()));
    EXPECT_EQ(test::errorNumberOf([&] {
                  static_cast<void>(equalTexts({{"t", "nowhere", {"a", "b"}}}, session));
              }),
              ErrorNumber::StatementRefused);
    EXPECT_EQ(test::errorNumberOf([&] {
                  static_cast<void>(equalTexts({{"nowhere", "a", {"a", "b"}}}, session));
              }),
              ErrorNumber::TableMissing);
}

TEMPORA_ON_BOTH_DATABASES(EqualTexts);
