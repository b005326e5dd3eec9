#include "db/Connection.h"

#include "support/RuntimeMatchers.h"
#include "support/TestDatabase.h"

using namespace db;

namespace
{

class AConnection : public test::OnBothDatabases
{
protected:
    Connection& connection()
    {
        if (!m_connection) {
            m_connection = std::make_unique<Connection>(database().connectString());
        }
        return *m_connection;
    }

private:
    std::unique_ptr<Connection> m_connection;
};

} // namespace

TEST_P(AConnection, readsEveryColumnByItsType)
{
    database().execute(
        {QStringLiteral("create table matière (Durée text, n integer, b bit, d date, "
                        "dt datetime, r double)"),
         QStringLiteral("insert into matière values ('éà😀', 5, 1, '2007-03-15', "
                        "'2007-03-15 10:00:00', 1.5)"),
         QStringLiteral("insert into matière (Durée) values (null)")});
    const Recordset rows =
        connection().open(QStringLiteral("select * from matière order by n desc"));
    ASSERT_EQ(rows.recordCount(), 2);
    const Row& first = rows.first();
    EXPECT_EQ(first.field(QStringLiteral("durée")), Value(QStringLiteral("éà😀")));
    EXPECT_EQ(first.field(1), Value(std::int64_t{5}));
    EXPECT_EQ(first.field(2), Value(true));
    EXPECT_EQ(first.field(3), Value(QDate(2007, 3, 15)));
    EXPECT_EQ(first.field(4), Value(QStringLiteral("2007-03-15 10:00:00")));
    EXPECT_EQ(first.field(5), Value(1.5));
    for (int i = 0; i < 6; ++i) {
        EXPECT_TRUE(rows.rows()[1].field(i).isNull());
    }
}

TEST_P(AConnection, deletesIdenticalRowsOneAtATime)
{
    database().execute(
        {QStringLiteral(
             "create table abscence (Classe text, `Durée` integer, r double, b bit, d date)"),
         QStringLiteral("insert into abscence values ('A😀', 90, 0.1, 1, '2007-03-15')"),
         QStringLiteral("insert into abscence values ('A😀', 90, 0.1, 1, '2007-03-15')"),
         QStringLiteral("insert into abscence values ('B', 90, null,null,null)")});
    const QString query = QStringLiteral(" Select * from abscence Where Classe='A😀'");
    EXPECT_TRUE(connection().deleteFirst(query));
    EXPECT_EQ(database().read(QStringLiteral("select Classe from abscence order by 1")),
              QList<QStringList>({{QStringLiteral("A😀")}, {QStringLiteral("B")}}));
    EXPECT_TRUE(connection().deleteFirst(query));
    EXPECT_FALSE(connection().deleteFirst(query));
    EXPECT_EQ(database().read(QStringLiteral("select Classe from abscence order by 1")),
              QList<QStringList>({{QStringLiteral("B")}}));
}

TEST_P(AConnection, insertsValuesOfEveryType)
{
    database().execute(QStringLiteral("create table abscence (Classe text, `Durée` integer, r "
                                      "double, b bit, c boolean, d date, e text, f date)"));
    connection().insert(
        QStringLiteral("abscence"),
        {{QStringLiteral("Classe"), Value(QStringLiteral("l'été 😀"))},
         {QStringLiteral("Durée"), Value(std::int64_t{90})},
         {QStringLiteral("r"), Value(1.5)},
         {QStringLiteral("b"), Value(true)},
         {QStringLiteral("c"), Value(true)},
         {QStringLiteral("d"), Value(database().usesMySql() ? QStringLiteral("2007/03/16")
                                                            : QStringLiteral("03/16/07"))},
         {QStringLiteral("e"), Value()},
         {QStringLiteral("f"), Value(QDate(2024, 2, 29))}});
    EXPECT_EQ(
        database().read(QStringLiteral("select Classe, `Durée`, r, b+0, c, d, e, f from abscence")),
        QList<QStringList>({{QStringLiteral("l'été 😀"), QStringLiteral("90"), QStringLiteral("1.5"),
                             QStringLiteral("1"), QStringLiteral("1"), QStringLiteral("2007-03-16"),
                             QStringLiteral("NULL"), QStringLiteral("2024-02-29")}}));
}

TEMPORA_ON_BOTH_DATABASES(AConnection);
