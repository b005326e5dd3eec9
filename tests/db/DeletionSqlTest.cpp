#include "db/DeletionSql.h"

#include "support/RuntimeMatchers.h"

using db::DeletionSql;
using runtime::ErrorNumber;

TEST(DeletionSql, keepsTheConditionWord)
{
    const DeletionSql deletion(
        QStringLiteral(" Select * from abscence Where Classe='A' or Debut='8h00'"));
    EXPECT_EQ(deletion.deletingFirst(),
              QStringLiteral("DELETE FROM abscence WHERE Classe='A' or Debut='8h00'\nLIMIT 1"));
    EXPECT_EQ(deletion.selectingRowId(),
              QStringLiteral("SELECT _ROWID_, * FROM abscence WHERE Classe='A' or Debut='8h00'"));
    // Without the parentheses the second term would delete by itself.
    EXPECT_EQ(deletion.deletingRowId(QStringLiteral("7")),
              QStringLiteral("DELETE FROM abscence WHERE _ROWID_ = 7 AND (Classe='A' or "
                             "Debut='8h00'\n)"));
}

TEST(DeletionSql, worksWithoutACondition)
{
    const DeletionSql deletion(QStringLiteral("SELECT * FROM t"));
    EXPECT_EQ(deletion.deletingFirst(), QStringLiteral("DELETE FROM t\nLIMIT 1"));
    EXPECT_EQ(deletion.selectingRowId(), QStringLiteral("SELECT _ROWID_, * FROM t"));
    EXPECT_EQ(deletion.deletingRowId(QStringLiteral("7")),
              QStringLiteral("DELETE FROM t WHERE _ROWID_ = 7"));
}

TEST(DeletionSql, takesAQuotedTableWhole)
{
    EXPECT_EQ(DeletionSql(QStringLiteral("select * from `the where of` where a=1")).deletingFirst(),
              QStringLiteral("DELETE FROM `the where of` WHERE a=1\nLIMIT 1"));
    EXPECT_EQ(DeletionSql(QStringLiteral("select * from [a b]")).deletingFirst(),
              QStringLiteral("DELETE FROM [a b]\nLIMIT 1"));
    EXPECT_EQ(DeletionSql(QStringLiteral("select * from \"é è\" where\na=1")).deletingFirst(),
              QStringLiteral("DELETE FROM \"é è\" WHERE a=1\nLIMIT 1"));
}

TEST(DeletionSql, isLimitedWhateverCommentTheConditionBegins)
{
    const DeletionSql deletion(QStringLiteral("select * from t where a='L1' -- x'"));
    EXPECT_EQ(deletion.deletingFirst(),
              QStringLiteral("DELETE FROM t WHERE a='L1' -- x'\nLIMIT 1"));
    EXPECT_EQ(deletion.deletingRowId(QStringLiteral("7")),
              QStringLiteral("DELETE FROM t WHERE _ROWID_ = 7 AND (a='L1' -- x'\n)"));
}

TEST(DeletionSql, refusesWhatIsNotASelectionOfWholeRowsOfOneTable)
{
    for (const char* sql :
         {"", "select a from t", "select * from a, b where x=1", "select * from a b",
          "delete from t", "select * from t order by a", "select * from a;delete from b"}) {
        EXPECT_EQ(test::errorNumberOf([&] { DeletionSql(QString::fromUtf8(sql)); }),
                  ErrorNumber::InvalidProcedureCall)
            << sql;
    }
}
