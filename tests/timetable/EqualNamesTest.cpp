#include "timetable/EqualNames.h"

#include "support/RuntimeMatchers.h"
#include "support/TestDatabase.h"
#include "timetable/MeetingColumns.h"

#include <gtest/gtest.h>

using namespace test;
using namespace timetable;

namespace
{

NameQuestion about(SqlName column, const QStringList& texts)
{
    NameQuestion question{table::kEmplois, column, {}};
    for (const QString& text : texts) {
        question.texts.add(text);
    }
    return question;
}

/// A table whose first room column ignores case, whose second does not.
class EqualNames : public OnBothDatabases
{
protected:
    void SetUp() override
    {
        database().execute(
            database().usesMySql()
                ? "create table emplois (Salle varchar(50) collate utf8mb4_general_ci, XSalle "
                  "varchar(50) collate utf8mb4_bin, Classe text character set latin1, YSalle int)"
                : "create table emplois (Salle text collate nocase, XSalle text, Classe text "
                  "collate nocase, YSalle integer)");
    }

    [[nodiscard]] std::vector<NameGroups> ask(const std::vector<NameQuestion>& questions)
    {
        db::Connection connection(database().connectString());
        std::vector<NameGroups> answers = askEqualNames(connection, questions);
        statements = connection.statementCount();
        return answers;
    }

    long long statements = 0;
};

} // namespace

TEST_P(EqualNames, areGroupedAsTheColumnCompares)
{
    const QStringList texts{"A1", "B1", "a1", "b1", "A1"};
    EXPECT_EQ(ask({about(column::kSalle, texts), about(column::kXSalle, texts)}),
              (std::vector<NameGroups>{{0, 1, 0, 1}, {0, 1, 2, 3}}));
    EXPECT_EQ(statements, 1);
}

TEST_P(EqualNames, mayHoldQuotesBackslashesAndEmptyTexts)
{
    const QStringList texts{"O'Brien", "o'brien", "B\\2", "b\\2", "%1", "", "a''b", "\"x\"", "é"};
    EXPECT_EQ(ask({about(column::kSalle, texts)})[0], (NameGroups{0, 0, 2, 2, 4, 5, 6, 7, 8}));
    // Without a backslash among them a server is sent other literals.
    EXPECT_EQ(ask({about(column::kSalle, {"O'Brien", "", "o'brien"})})[0], (NameGroups{0, 1, 0}));
}

TEST_P(EqualNames, differByAccentsAndTrailingBlanksAsTheProductHasIt)
{
    const NameGroups groups = ask({about(column::kSalle, {"E1", "é1", "A1", "A1 "})})[0];
    EXPECT_EQ(groups, database().usesMySql() ? (NameGroups{0, 0, 2, 2}) : (NameGroups{0, 1, 2, 3}));
}

TEST_P(EqualNames, mayBeComparedWithAColumnOfAnotherCharacterSet)
{
    EXPECT_EQ(ask({about(column::kClasse, {"élève", "B\\1", "b\\1"})})[0], (NameGroups{0, 1, 1}));
}

TEST_P(EqualNames, mayHoldLettersThatTheColumnsCharacterSetLacks)
{
    EXPECT_EQ(ask({about(column::kClasse, {"قاعة 1", "قاعة 2", "L1", "l1"})})[0],
              (NameGroups{0, 1, 2, 2}));
}

TEST_P(EqualNames, mayBeComparedWithAColumnOfNumbers)
{
    EXPECT_EQ(ask({about(column::kYSalle, {"101", "102"})})[0], (NameGroups{0, 1}));
}

TEST_P(EqualNames, mayBeVeryMany)
{
    QStringList texts;
    for (int number = 0; number < 3000; ++number) {
        texts << QStringLiteral("Salle %1").arg(number);
    }
    texts << "SALLE 7"
          << "salle 2999";
    const NameGroups groups = ask({about(column::kSalle, texts)})[0];
    ASSERT_EQ(groups.size(), 3002U);
    EXPECT_EQ(groups[3000], 7);
    EXPECT_EQ(groups[3001], 2999);
    EXPECT_EQ(groups[2998], 2998);
}

TEST_P(EqualNames, mayAllBeOne)
{
    QStringList texts;
    for (int spelling = 0; spelling < 1024; ++spelling) {
        QString text = "abcdefghij";
        for (int letter = 0; letter < 10; ++letter) {
            if ((spelling >> letter & 1) != 0) {
                text[letter] = text[letter].toUpper();
            }
        }
        texts << text;
    }
    EXPECT_EQ(ask({about(column::kSalle, texts)})[0], NameGroups(1024, 0));
}

TEST_P(EqualNames, areNotAskedAboutWhereThereIsNothingToCompare)
{
    EXPECT_EQ(ask({about(column::kSalle, {"A1"}), about(column::kXSalle, {})}),
              (std::vector<NameGroups>{{0}, {}}));
    EXPECT_EQ(statements, 0);
}

TEST_P(EqualNames, cannotBeComparedWithAColumnThatIsNotThere)
{
    EXPECT_EQ(errorNumberOf([&] {
                  static_cast<void>(ask({about(column::kSalleB, {"a", "b"})}));
              }),
              runtime::ErrorNumber::StatementRefused);
}

TEMPORA_ON_BOTH_DATABASES(EqualNames);
