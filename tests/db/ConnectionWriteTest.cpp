#include "ConnectedTest.h"

#include <array>

using namespace db;
using runtime::ErrorNumber;
using test::errorNumberOf;

namespace
{

class Writing : public ConnectedTest
{
};

const QString abscence =
    QStringLiteral("create table abscence (Classe text, `matière` text, `Durée` integer, "
                   "Commune bit, Debut text, Datex date)");

} // namespace

TEST_P(Writing, insertsExactlyTheGivenColumns)
{
    database().execute(abscence);
    connection().insert(QStringLiteral("abscence"),
                        {{QStringLiteral("Durée"), integer(90)},
                         {QStringLiteral("matière"), text("Génie civil 😀")},
                         {QStringLiteral("Commune"), Value(true)},
                         {QStringLiteral("Classe"), text("A")},
                         {QStringLiteral("Datex"), Value(QDate(2007, 3, 16))}});
    EXPECT_EQ(database().read(QStringLiteral("select Classe, `matière`, `Durée`, Commune+0, Debut, "
                                             "Datex from abscence")),
              QList<QStringList>(
                  {{QStringLiteral("A"), QStringLiteral("Génie civil 😀"), QStringLiteral("90"),
                    QStringLiteral("1"), QStringLiteral("NULL"), QStringLiteral("2007-03-16")}}));
}

TEST_P(Writing, insertsValuesOfEveryType)
{
    database().execute(QStringLiteral("create table t (a double, b bigint, c date, d boolean, "
                                      "e bit, f text, g integer)"));
    connection().insert(QStringLiteral("t"), {{QStringLiteral("a"), Value(1.5)},
                                              {QStringLiteral("b"), integer(-9000000000)},
                                              {QStringLiteral("c"), Value(QDate(2024, 2, 29))},
                                              {QStringLiteral("d"), Value(true)},
                                              {QStringLiteral("e"), Value(false)},
                                              {QStringLiteral("f"), text("")},
                                              {QStringLiteral("g"), Value()}});
    EXPECT_EQ(database().read(QStringLiteral("select a, b, c, d, e+0, f, g from t")),
              QList<QStringList>({{QStringLiteral("1.5"), QStringLiteral("-9000000000"),
                                   QStringLiteral("2024-02-29"), QStringLiteral("1"),
                                   QStringLiteral("0"), QString(), QStringLiteral("NULL")}}));
}

TEST_P(Writing, givesBackTheValuesThatWereInserted)
{
    database().execute(abscence);
    connection().insert(QStringLiteral("abscence"),
                        {{QStringLiteral("Classe"), text(" A\tB ")},
                         {QStringLiteral("Commune"), Value(true)},
                         {QStringLiteral("Datex"), Value(QDate(2007, 3, 16))}});
    const Row row = connection().open(QStringLiteral("select * from abscence")).first();
    EXPECT_EQ(row.field(QStringLiteral("classe")), text(" A\tB "));
    EXPECT_EQ(row.field(QStringLiteral("commune")), Value(true));
    EXPECT_EQ(row.field(QStringLiteral("datex")), Value(QDate(2007, 3, 16)));
    EXPECT_TRUE(row.field(QStringLiteral("durée")).isNull());
}

TEST_P(Writing, findsByTheDialectsLiteralTheDateThatWasInsertedWhateverItsColumnsType)
{
    const std::array<const char*, 5> types = {"date", "text", "varchar(10)", "datetime",
                                              "char(10)"};
    const QDate date(2026, 10, 5);
    for (const char* type : types) {
        SCOPED_TRACE(type);
        database().execute({QStringLiteral("drop table if exists t"),
                            QStringLiteral("create table t (a integer, d ") + type + u')'});
        const QString query = QStringLiteral("Select * from t where d=");
        connection().insert(QStringLiteral("t"), {{QStringLiteral("d"), Value(date)}});
        const SqlDialect dialect = connection().dialect();
        EXPECT_EQ(connection().recordCount(query + dialect.dateLiteral(date)), 1);
        EXPECT_EQ(connection().recordCount(query + dialect.dateLiteral(date.addDays(1))), 0);
        EXPECT_TRUE(connection().deleteFirst(query + dialect.dateLiteral(date)));
        EXPECT_EQ(database().read(QStringLiteral("select * from t")), QList<QStringList>());
    }
}

TEST_P(Writing, keepsATextThatLooksLikeADateAsItIs)
{
    database().execute(abscence);
    connection().insert(QStringLiteral("abscence"),
                        {{QStringLiteral("Debut"), text("03/15/07")},
                         {QStringLiteral("Classe"), text("10/05/26")},
                         {QStringLiteral("matière"), text("2026/10/05")}});
    EXPECT_EQ(database().read(QStringLiteral("select Debut, Classe, `matière` from abscence")),
              QList<QStringList>({{QStringLiteral("03/15/07"), QStringLiteral("10/05/26"),
                                   QStringLiteral("2026/10/05")}}));
}

TEST_P(Writing, takesADateThatIsNoneForNull)
{
    database().execute(abscence);
    connection().insert(QStringLiteral("abscence"), {{QStringLiteral("Datex"), Value(QDate())}});
    EXPECT_EQ(database().read(QStringLiteral("select Datex from abscence")),
              QList<QStringList>({{QStringLiteral("NULL")}}));
}

TEST_P(Writing, acceptsAnApostropheInAParameterButNotInAConcatenatedText)
{
    database().execute(abscence);
    connection().insert(QStringLiteral("abscence"), {{QStringLiteral("Classe"), text("L'été")}});
    EXPECT_EQ(database().read(QStringLiteral("select Classe from abscence")),
              QList<QStringList>({{QStringLiteral("L'été")}}));
    EXPECT_EQ(errorNumberOf([this] {
                  return connection().open(
                      QStringLiteral(" Select * from abscence Where Classe='L'été' and Debut=''"));
              }),
              ErrorNumber::StatementRefused);
}

TEST_P(Writing, quotesTablesAndColumnsThatNeedIt)
{
    database().execute(QStringLiteral("create table `la table` (`order` text, `a\"b` text)"));
    connection().insert(QStringLiteral("la table"), {{QStringLiteral("order"), text("x")},
                                                     {QStringLiteral("a\"b"), text("03/15/07")}});
    EXPECT_EQ(database().read(QStringLiteral("select `order`, `a\"b` from `la table`")),
              QList<QStringList>({{QStringLiteral("x"), QStringLiteral("03/15/07")}}));
}

TEST_P(Writing, insertsLongTextsWhole)
{
    database().execute(QStringLiteral("create table t (a mediumtext)"));
    const QString longText = QStringLiteral("aé€😀").repeated(12000);
    connection().insert(QStringLiteral("t"), {{QStringLiteral("a"), Value(longText)}});
    EXPECT_TRUE(database().read(QStringLiteral("select a from t"))[0][0] == longText);
}

TEST_P(Writing, insertsNothingOfARowThatIsRefused)
{
    database().execute(QStringLiteral("create table t (a text not null, b integer)"));
    EXPECT_EQ(errorNumberOf([this] {
                  connection().insert(QStringLiteral("t"), {{QStringLiteral("b"), integer(1)},
                                                            {QStringLiteral("a"), Value()}});
              }),
              ErrorNumber::StatementRefused);
    EXPECT_EQ(database().read(QStringLiteral("select * from t")), QList<QStringList>());
}

TEST_P(Writing, refusesAMissingColumnAndAMissingTable)
{
    database().execute(abscence);
    EXPECT_EQ(errorNumberOf([this] {
                  connection().insert(QStringLiteral("abscence"),
                                      {{QStringLiteral("Absente"), integer(1)}});
              }),
              ErrorNumber::StatementRefused);
    EXPECT_EQ(
        errorNumberOf([this] {
            connection().insert(QStringLiteral("absente"), {{QStringLiteral("a"), integer(1)}});
        }),
        ErrorNumber::TableMissing);
}

TEST_P(Writing, deletesIdenticalRowsOneAtATime)
{
    database().execute({QStringLiteral("create table t (a text, b bit, c double, d date, e text)"),
                        QStringLiteral("insert into t values ('A', 1, 0.1, '2007-03-15', null), "
                                       "('A', 1, 0.1, '2007-03-15', null), "
                                       "('A', 1, 0.1, '2007-03-15', null), "
                                       "('B', 1, 0.1, '2007-03-15', null)")});
    const QString query = QStringLiteral(" Select * from t Where a='A'");
    const QString rest = QStringLiteral("select a from t order by a");
    const QStringList a = {QStringLiteral("A")};
    const QStringList b = {QStringLiteral("B")};
    EXPECT_TRUE(connection().deleteFirst(query));
    EXPECT_EQ(database().read(rest), QList<QStringList>({a, a, b}));
    EXPECT_TRUE(connection().deleteFirst(query));
    EXPECT_TRUE(connection().deleteFirst(query));
    EXPECT_EQ(database().read(rest), QList<QStringList>({b}));
    EXPECT_FALSE(connection().deleteFirst(query));
    EXPECT_EQ(database().read(rest), QList<QStringList>({b}));
}

TEST_P(Writing, deletesTheRowThatTheQueryFindsFirst)
{
    database().execute({QStringLiteral("create table t (a varchar(20), n integer)"),
                        QStringLiteral("create index ta on t (a)"),
                        QStringLiteral("insert into t values ('B', 1), ('A', 2), ('A', 3), "
                                       "('A', 4)")});
    const QString query = QStringLiteral("Select * from t Where a='A'");
    const auto first = connection().open(query).first().field(1).toInt32();
    EXPECT_TRUE(connection().deleteFirst(query));
    EXPECT_EQ(connection().recordCount(query), 2);
    EXPECT_EQ(connection().recordCount(QStringLiteral("select * from t where n=%1").arg(first)), 0);
}

TEST_P(Writing, deletesByADateLiteralAndAnAccentedName)
{
    database().execute({abscence, QStringLiteral("insert into abscence (`matière`, Datex) values "
                                                 "('été', '2007-03-15'), ('été', '2007-03-16')")});
    EXPECT_TRUE(connection().deleteFirst(
        QStringLiteral("Select * from abscence Where matière='été' and Datex=") +
        connection().dialect().dateLiteral(QDate(2007, 3, 15))));
    EXPECT_EQ(database().read(QStringLiteral("select Datex from abscence")),
              QList<QStringList>({{QStringLiteral("2007-03-16")}}));
}

TEST_P(Writing, deletesWithinATermOfAlternatives)
{
    database().execute({QStringLiteral("create table t (a text)"),
                        QStringLiteral("insert into t values ('A'), ('B'), ('C')")});
    EXPECT_TRUE(connection().deleteFirst(QStringLiteral("select * from t where a='B' or a='C'")));
    EXPECT_EQ(connection().recordCount(QStringLiteral("select * from t")), 2);
    EXPECT_EQ(connection().recordCount(QStringLiteral("select * from t where a='A'")), 1);
}

TEST_P(Writing, showsAnotherConnectionEveryRowAtOnce)
{
    database().execute(abscence);
    Connection other(database().connectString());
    connection().insert(QStringLiteral("abscence"), {{QStringLiteral("Classe"), text("A")}});
    EXPECT_EQ(other.recordCount(QStringLiteral("select * from abscence")), 1);
    EXPECT_TRUE(other.deleteFirst(QStringLiteral("select * from abscence")));
    EXPECT_FALSE(connection().deleteFirst(QStringLiteral("select * from abscence")));
}

TEST_P(Writing, deletesNothingForAQueryThatIsNoSelectionOfWholeRows)
{
    database().execute(
        {QStringLiteral("create table t (a text)"), QStringLiteral("insert into t values ('A')")});
    EXPECT_EQ(
        errorNumberOf([this] { connection().deleteFirst(QStringLiteral("select a from t")); }),
        ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(connection().recordCount(QStringLiteral("select * from t")), 1);
}

TEMPORA_ON_BOTH_DATABASES(Writing);

TEST_P(Writing, waitsOnceForARowThatAServerHoldsLocked)
{
    if (!database().usesMySql()) {
        GTEST_SKIP() << "SQLite locks whole files";
    }
    database().execute("create table t (a integer)");
    connection().insert("t", {{"a", integer(1)}}); // readies the connection for writes
    connection().execute("set innodb_lock_wait_timeout = 1");
    db::Connection other(database().connectString(), SqlDialect(true));
    other.execute("set autocommit = 0");
    other.execute("delete from t");
    const long long before = connection().statementCount();
    EXPECT_EQ(test::errorOf([this] {
                  std::ignore = connection().deleteFirst("select * from t");
              }).explanation(),
              "Un autre programme tient la base de données verrouillée.");
    EXPECT_EQ(connection().statementCount(), before + 1);
}
