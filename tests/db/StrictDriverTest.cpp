// What reaches the driver of Access, as far as a stand-in for it can tell (StrictDriver.cpp).

#include "db/Connection.h"

#include "db/SqlDialect.h"
#include "support/OdbcConfiguration.h"
#include "support/RuntimeMatchers.h"
#include "support/TestFolder.h"

#include <QFile>

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
    /// The date that stands in the record when this one is written in the dialect's format.
    [[nodiscard]] QString recordedDate(QDate date) const
    {
        const Value text(db::SqlDialect(false).dateText(date));
        connect().insert(QStringLiteral("t"), {{QStringLiteral("Datex"), text}});
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
                      {QStringLiteral("Datex"), Value(QStringLiteral("03/17/25"))},
                      {QStringLiteral("Jour"), Value(QDate(2025, 3, 17))},
                      {QStringLiteral("Debut"), Value(QStringLiteral("03/17/25"))},
                      {QStringLiteral("Choix"), Value()}});
    EXPECT_EQ(sent(), (QStringList{"SELECT `Datex` FROM `abscence` WHERE 0 = 1",
                                   "SELECT `Debut` FROM `abscence` WHERE 0 = 1",
                                   "INSERT INTO `abscence` (`Classe`, `Tranche`, `Commune`, "
                                   "`Datex`, `Jour`, `Debut`, `Choix`) VALUES (?, ?, ?, ?, ?, ?, "
                                   "?)",
                                   "text L1", "integer 2", "bit 1", "time 2025 3 17 0",
                                   "time 2025 3 17 0", "text 03/17/25", "null"}));
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
    EXPECT_EQ(recordedDate(QDate(2029, 12, 31)), QStringLiteral("time 2029 12 31 0"));
    EXPECT_EQ(recordedDate(QDate(2030, 1, 1)), QStringLiteral("time 1930 1 1 0"));
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
