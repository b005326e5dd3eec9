// What reaches the driver of Access, as far as a stand-in for it can tell (StrictDriver.cpp).

#include "db/AccessProduct.h"

#include "db/Connection.h"
#include "support/OdbcConfiguration.h"
#include "support/RuntimeMatchers.h"
#include "support/TestFolder.h"

#include <QFile>
#include <array>

using db::Connection;
using db::Value;
using runtime::ErrorNumber;

namespace
{

class TheDriverOfAccess : public testing::Test
{
protected:
    TheDriverOfAccess() { static_cast<void>(test::OdbcConfiguration::instance()); }

    [[nodiscard]] Connection connect() const
    {
        return Connection(QStringLiteral("Driver=" TEMPORA_STRICT_DRIVER ";Log=") + m_log);
    }
    /// What it was sent, a line for each statement, each parameter and each deletion.
    [[nodiscard]] QStringList sent() const
    {
        QFile file(m_log);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    }
    /// What is written into the column for this date.
    [[nodiscard]] QString recordedDate(const char* column, QDate date) const
    {
        connect().insert(QStringLiteral("t"), {{QLatin1String(column), Value(date)}});
        return sent().last();
    }

private:
    QString m_log = test::processFolder() + QStringLiteral("/strict-driver.log");
};

} // namespace

TEST_F(TheDriverOfAccess, isGivenOnlyTypesThatItKnows)
{
    connect().insert(QStringLiteral("abscence"),
                     {{QStringLiteral("Classe"), Value(QStringLiteral("L1"))},
                      {QStringLiteral("Tranche"), Value(std::int64_t{2})},
                      {QStringLiteral("Commune"), Value(true)},
                      {QStringLiteral("Datex"), Value(QDate(2025, 3, 17))},
                      {QStringLiteral("Debut"), Value(QStringLiteral("03/17/25"))},
                      {QStringLiteral("Choix"), Value()}});
    EXPECT_EQ(sent(),
              (QStringList{"SELECT `Datex` FROM `abscence` WHERE 0 = 1",
                           "INSERT INTO `abscence` (`Classe`, `Tranche`, `Commune`, `Datex`, "
                           "`Debut`, `Choix`) VALUES (?, ?, ?, ?, ?, ?)",
                           "text L1", "integer 2", "bit 1", "time 2025 3 17 0", "text 03/17/25",
                           "null"}));
}

TEST_F(TheDriverOfAccess, refusesIntegersOf64Bits)
{
    Connection connection = connect();
    const auto insert = [&](std::int64_t number) {
        connection.insert(QStringLiteral("t"), {{QStringLiteral("a"), Value(number)}});
    };
    insert(2147483647);
    EXPECT_EQ(sent().last(), QStringLiteral("integer 2147483647"));
    insert(-2147483648);
    EXPECT_EQ(sent().last(), QStringLiteral("integer -2147483648"));
    const runtime::RunTimeError error = test::errorOf([&] { insert(2147483648); });
    EXPECT_EQ(error.number(), ErrorNumber::StatementRefused);
    EXPECT_EQ(error.text(), QStringLiteral("Optional feature not implemented"));
}

TEST_F(TheDriverOfAccess, isGivenTheYearThatItReadsInALiteral)
{
    EXPECT_EQ(recordedDate("Datex", {2029, 12, 31}), QStringLiteral("time 2029 12 31 0"));
    EXPECT_EQ(recordedDate("Datex", {2030, 1, 1}), QStringLiteral("time 1930 1 1 0"));
}

TEST_F(TheDriverOfAccess, isGivenTheDialectsTextForADateInATextColumn)
{
    EXPECT_EQ(recordedDate("Jour", {2026, 10, 5}), QStringLiteral("text 10/05/26"));
}

TEST_F(TheDriverOfAccess, isGivenTheStatementsAsTheyAre)
{
    Connection connection = connect();
    const QString sql = QStringLiteral("select * from t where DateX =#03/15/07# and ISNULL(a)");
    EXPECT_TRUE(connection.open(sql).isEmpty());
    EXPECT_EQ(sent(), QStringList{sql});
    EXPECT_EQ(connection.dialect().dateLiteral({2007, 3, 15}), QStringLiteral("#03/15/07#"));
}

TEST_F(TheDriverOfAccess, isGivenTheDialectOfTheSetting)
{
    const Connection connection(QStringLiteral("Driver=" TEMPORA_STRICT_DRIVER ";Log=/dev/null"),
                                db::SqlDialect(true));
    EXPECT_EQ(connection.dialect().dateLiteral({2007, 3, 15}), QStringLiteral("'2007/03/15'"));
}

TEST_F(TheDriverOfAccess, isNeverAskedToExplain)
{
    Connection connection = connect();
    EXPECT_EQ(connection.rowOrders({{QStringLiteral("t"),
                                     QStringLiteral("a"),
                                     QStringLiteral(" a in (1,2)"),
                                     {{QStringLiteral(" (a=1)"), QStringLiteral(" b=1")}}}}),
              std::vector{db::RowOrder::Untold});
    EXPECT_EQ(connection.statementCount(), 0);
}

TEST_F(TheDriverOfAccess, isNotAskedForWhatItDoesNotKnow)
{
    Connection connection = connect();
    EXPECT_EQ(connection.packing(), std::nullopt);
    EXPECT_EQ(connection.metByMost(QStringLiteral("a=1")), QStringLiteral("a=1"));
    EXPECT_EQ(connection.equalTexts({{"t", "a", {"x", "y"}}})[0], (db::TextGroups{0, 1}));
    EXPECT_EQ(connection.statementCount(), 0); // no two of these are alike
}

TEST_F(TheDriverOfAccess, isAskedInPairsWhichNamesAreEqual)
{
    static_cast<void>(connect().equalTexts({{"t", "a", {"x", "y", "X"}}}));
    EXPECT_EQ(sent(),
              QStringList("select distinct 0,'1,3',2 from t where 'x'='X' or (a='x' and a='X')"));
}

TEST_F(TheDriverOfAccess, isNotSentWhatChoosesByCase)
{
    Connection connection = connect();
    EXPECT_EQ(test::errorNumberOf([&] {
                  static_cast<void>(connection.open(
                      "select case when a is null then 0 else (a='x')*1 end from t"));
              }),
              ErrorNumber::StatementRefused);
    EXPECT_EQ(connection.statementCount(), 0);
    static_cast<void>(connection.open("select * from t where a='case when '"));
    EXPECT_EQ(sent(), QStringList("select * from t where a='case when '"));
}

TEST_F(TheDriverOfAccess, deletesTheFirstRowThroughACursor)
{
    Connection connection = connect();
    const QString query = QStringLiteral("select * from t where a='A'");
    EXPECT_FALSE(connection.deleteFirst(query));
    for (int row = 0; row < 2; ++row) {
        connection.insert(QStringLiteral("t"), {{QStringLiteral("a"), Value(QStringLiteral("A"))}});
    }
    EXPECT_TRUE(connection.deleteFirst(query));
    EXPECT_EQ(sent().mid(sent().size() - 2), (QStringList{query, "delete row 1"}));
    EXPECT_TRUE(connection.deleteFirst(query));
    EXPECT_FALSE(connection.deleteFirst(query));
}

TEST(AccessProduct, readsFlagsAsBitsAndAllElseAsWideText)
{
    const db::AccessProduct access;
    EXPECT_EQ(access.cTypeOf(SQL_BIT), SQL_C_BIT);
    for (const SQLSMALLINT type :
         std::array<SQLSMALLINT, 4>{SQL_WVARCHAR, SQL_INTEGER, SQL_DOUBLE, SQL_TYPE_TIMESTAMP}) {
        EXPECT_EQ(access.cTypeOf(type), SQL_C_WCHAR);
    }
}
