#include "ConnectedTest.h"

using namespace db;
using runtime::ErrorNumber;
using test::errorNumberOf;

namespace
{

class Reading : public ConnectedTest
{
};

} // namespace

TEST_P(Reading, givesEveryColumnItsType)
{
    database().execute({QStringLiteral("create table t (a text, b varchar(20), c integer, "
                                       "d bigint, e double, f decimal(10,2), g bit, h date)"),
                        QStringLiteral("insert into t values ('é', 'b', 5, 9000000000, 1.5, 3.25, "
                                       "1, '2007-03-15')")});
    const Row row = connection().open(QStringLiteral("select * from t")).first();
    EXPECT_EQ(row.field(0), text("é"));
    EXPECT_EQ(row.field(1), text("b"));
    EXPECT_EQ(row.field(2), integer(5));
    EXPECT_EQ(row.field(3), integer(9000000000));
    EXPECT_EQ(row.field(4), Value(1.5));
    EXPECT_EQ(row.field(5).toText(), QStringLiteral("3.25"));
    EXPECT_EQ(row.field(6), Value(true));
    EXPECT_EQ(row.field(7), Value(QDate(2007, 3, 15)));
}

TEST_P(Reading, tellsTrueFromFalseInABitColumn)
{
    database().execute({QStringLiteral("create table t (a integer, b bit)"),
                        QStringLiteral("insert into t values (1, 1), (2, 0), (3, null)")});
    const Recordset rows = connection().open(QStringLiteral("select b from t order by a"));
    EXPECT_EQ(rows.rows()[0].field(0), Value(true));
    EXPECT_EQ(rows.rows()[1].field(0), Value(false));
    EXPECT_TRUE(rows.rows()[2].field(0).isNull());
}

TEST_P(Reading, tellsTrueFromFalseInABooleanColumn)
{
    database().execute({QStringLiteral("create table t (a integer, b boolean)"),
                        QStringLiteral("insert into t values (1, 1), (2, 0)")});
    const Recordset rows = connection().open(QStringLiteral("select b from t order by a"));
    EXPECT_TRUE(rows.rows()[0].field(0).toBoolean());
    EXPECT_FALSE(rows.rows()[1].field(0).toBoolean());
}

TEST_P(Reading, keepsNullsApartFromEmptyTexts)
{
    database().execute({QStringLiteral("create table t (a text, b integer, c double, d date)"),
                        QStringLiteral("insert into t values (null, null, null, null)"),
                        QStringLiteral("insert into t values ('', 0, 0, '2007-03-15')")});
    const Recordset rows = connection().open(QStringLiteral("select * from t order by b"));
    for (int i = 0; i < 4; ++i) {
        EXPECT_TRUE(rows.rows()[0].field(i).isNull()) << i;
    }
    EXPECT_EQ(rows.rows()[1].field(0), text(""));
    EXPECT_EQ(rows.rows()[1].field(1), integer(0));
}

TEST_P(Reading, readsLongTextsWhole)
{
    // 100 kB with characters of one to four bytes, so that pieces end within one.
    const QString piece = QStringLiteral("aé€😀xyz");
    const QString longText = piece.repeated(100000 / static_cast<int>(piece.toUtf8().size()) + 1);
    database().execute({QStringLiteral("create table t (a mediumtext, b text)"),
                        QStringLiteral("insert into t values ('%1', 'after')").arg(longText)});
    const Row row = connection().open(QStringLiteral("select * from t")).first();
    EXPECT_TRUE(row.field(0).toText() == longText); // not shown: it would fill the screen
    EXPECT_EQ(row.field(1), text("after"));
}

TEST_P(Reading, readsTextsOfEveryLengthAroundThatOfTheBuffer)
{
    QStringList statements = {QStringLiteral("create table t (n integer, a text)")};
    QList<int> lengths;
    for (int around : {128, 256, 1024, 2048, 4096}) {
        for (int length = around - 3; length <= around + 3; ++length) {
            lengths << length;
            statements << QStringLiteral("insert into t values (%1, '%2')")
                              .arg(length)
                              .arg(QString(length, u'é'));
        }
    }
    database().execute(statements);
    const Recordset rows = connection().open(QStringLiteral("select * from t order by n"));
    ASSERT_EQ(rows.recordCount(), lengths.size());
    for (const Row& row : rows.rows()) {
        EXPECT_EQ(row.field(1).toText(), QString(row.field(0).toInt32(), u'é'));
    }
}

/// Behind the first few rows of a result the driver hands over whole rows, not fields.
TEST_P(Reading, readsEveryRowOfAResultAlike)
{
    QStringList statements{QStringLiteral("create table t (n integer, a text, b varchar(20), "
                                          "c bigint, d double, e decimal(10,2), f bit, g date, "
                                          "h datetime, i text)")};
    constexpr int rowCount = 12;
    for (int row = 0; row < rowCount; ++row) {
        statements << QStringLiteral("insert into t values (%1, 'é€😀', '', 9000000000, -1.5, "
                                     "3.25, 1, '2007-03-15', '2007-03-15 08:30:00', '%2')")
                          .arg(row)
                          .arg(QString(300, u'é')); // longer than most fields of a timetable
    }
    database().execute(statements);
    const Recordset rows = connection().open(QStringLiteral("select * from t order by n"));
    ASSERT_EQ(rows.recordCount(), rowCount);
    for (int row = 0; row < rowCount; ++row) {
        const Row& found = rows.rows()[static_cast<std::size_t>(row)];
        EXPECT_EQ(found.field(0), integer(row));
        EXPECT_EQ(found.field(1), text("é€😀"));
        EXPECT_EQ(found.field(2), text(""));
        EXPECT_EQ(found.field(3), integer(9000000000));
        EXPECT_EQ(found.field(4), Value(-1.5));
        EXPECT_EQ(found.field(5).toText(), QStringLiteral("3.25"));
        EXPECT_EQ(found.field(6), Value(true));
        EXPECT_EQ(found.field(7), Value(QDate(2007, 3, 15)));
        EXPECT_EQ(found.field(8), text("2007-03-15 08:30:00"));
        EXPECT_EQ(found.field(9).toText(), QString(300, u'é'));
    }
}

TEST_P(Reading, neverTakesTheTextOfAnotherRowForBytesThatAreNone)
{
    QStringList statements{QStringLiteral("create table t (n integer, a varbinary(20))")};
    for (int row = 0; row < 8; ++row) {
        statements << QStringLiteral("insert into t values (%1, '%2')").arg(row).arg(row + 1000);
    }
    statements << QStringLiteral("insert into t values (8, x'41e942')"); // no UTF-8
    database().execute(statements);
    // What cannot be read is refused by the server's driver; SQLite's gives what there is.
    try {
        const Recordset rows = connection().open(QStringLiteral("select a from t order by n"));
        ASSERT_EQ(rows.recordCount(), 9);
        EXPECT_EQ(rows.rows()[7].field(0), text("1007"));
        EXPECT_NE(rows.rows()[8].field(0), text("1007"));
        EXPECT_FALSE(database().usesMySql());
    } catch (const runtime::RunTimeError& error) {
        EXPECT_TRUE(database().usesMySql());
        EXPECT_EQ(error.number(), ErrorNumber::StatementRefused);
    }
}

TEST_P(Reading, findsNoTraceOfTheRowBeforeInANull)
{
    QStringList statements{QStringLiteral("create table t (n integer, a text, b integer, c double, "
                                          "d decimal(10,2), e bit, f date)")};
    for (int row = 0; row < 10; ++row) {
        statements << (row % 2 == 0 ? QStringLiteral("insert into t values (%1, 'plein', 5, 1.5, "
                                                     "3.25, 1, '2007-03-15')")
                                    : QStringLiteral("insert into t (n) values (%1)"))
                          .arg(row);
    }
    database().execute(statements);
    const Recordset rows = connection().open(QStringLiteral("select * from t order by n"));
    ASSERT_EQ(rows.recordCount(), 10);
    for (int row = 0; row < 10; ++row) {
        for (int column = 1; column < 7; ++column) {
            EXPECT_EQ(rows.rows()[static_cast<std::size_t>(row)].field(column).isNull(),
                      row % 2 == 1)
                << "row " << row << ", column " << column;
        }
    }
}

TEST_P(Reading, reachesAccentedTablesAndColumns)
{
    database().execute({QStringLiteral("create table `Département` (`matière` text, `Durée` "
                                       "integer)"),
                        QStringLiteral("insert into `Département` values ('Génie civil', 90)")});
    const Recordset rows =
        connection().open(QStringLiteral("select * from Département where matière='Génie civil'"));
    ASSERT_EQ(rows.recordCount(), 1);
    EXPECT_EQ(rows.columns()->names(),
              QStringList({QStringLiteral("matière"), QStringLiteral("Durée")}));
    EXPECT_EQ(rows.first().field(QStringLiteral("DURÉE")), integer(90));
}

TEST_P(Reading, sendsEveryCharacterAsItIs)
{
    database().execute({QStringLiteral("create table t (a text)"),
                        QStringLiteral("insert into t values ('Ω 😀 日本'), ('? 😀 日本')")});
    EXPECT_EQ(connection().recordCount(QStringLiteral("select * from t where a='Ω 😀 日本'")), 1);
    EXPECT_EQ(single(QStringLiteral("select 'Ω 😀 日本'")), text("Ω 😀 日本"));
}

TEST_P(Reading, keepsTheByteOrderMarkThatANameBeginsWith)
{
    database().execute("create table t (r varchar(20))");
    const QString name = QChar(QChar::ByteOrderMark) + QStringLiteral("A101");
    connection().insert(QStringLiteral("t"), {{QStringLiteral("r"), Value(name)}});
    EXPECT_EQ(connection().open(QStringLiteral("select r from t")).first().field(0), Value(name));
    const QString sql = QStringLiteral("select r from t where r='") + name + u'\'';
    EXPECT_EQ(connection().open(sql).recordCount(), 1);
}

TEST_P(Reading, findsADateByTheDialectsLiteral)
{
    database().execute({QStringLiteral("create table ratrap (n integer, DateX date)"),
                        QStringLiteral("insert into ratrap values (1, '2007-03-15')"),
                        QStringLiteral("insert into ratrap values (2, '2007-03-16')")});
    EXPECT_EQ(single(QStringLiteral("select n from ratrap where DateX =") +
                     connection().dialect().dateLiteral(QDate(2007, 3, 15))),
              integer(1));
}

TEST_P(Reading, findsNullsByTheAccessFunction)
{
    database().execute({QStringLiteral("create table salle (Nom text, `Département` text)"),
                        QStringLiteral("insert into salle values ('A', null), ('B', 'x')")});
    EXPECT_EQ(single(QStringLiteral("select Nom from salle where ISNULL(Département)")), text("A"));
}

TEST_P(Reading, keepsTheOrderOfTheRows)
{
    database().execute({QStringLiteral("create table t (a integer)"),
                        QStringLiteral("insert into t values (3), (1), (2)")});
    const Recordset rows = connection().open(QStringLiteral("select a from t order by a desc"));
    ASSERT_EQ(rows.recordCount(), 3);
    EXPECT_EQ(rows.rows()[0].field(0), integer(3));
    EXPECT_EQ(rows.rows()[2].field(0), integer(1));
}

TEST_P(Reading, givesAnEmptyRecordsetWhenNothingMatches)
{
    database().execute(QStringLiteral("create table t (a integer)"));
    EXPECT_TRUE(connection().open(QStringLiteral("select * from t")).isEmpty());
    EXPECT_EQ(connection().recordCount(QStringLiteral("select * from t")), 0);
}

TEST_P(Reading, countsRowsWithoutReadingThem)
{
    QStringList statements = {QStringLiteral("create table etudiant (Nom text, classe text)")};
    for (int i = 0; i < 300; ++i) {
        statements << QStringLiteral("insert into etudiant values ('N%1', '%2')")
                          .arg(i)
                          .arg(i % 3 == 0 ? QStringLiteral("A") : QStringLiteral("B"));
    }
    database().execute(statements);
    EXPECT_EQ(connection().recordCount(QStringLiteral("Select * from etudiant")), 300);
    EXPECT_EQ(connection().recordCount(QStringLiteral("Select * from etudiant WHERE classe='A'")),
              100);
}

TEST_P(Reading, countsTheStatementsSent)
{
    database().execute(QStringLiteral("create table t (a integer)"));
    const long long before = connection().statementCount();
    connection().execute(QStringLiteral("insert into t values (1)"));
    EXPECT_EQ(connection().recordCount(QStringLiteral("select * from t")), 1);
    EXPECT_EQ(connection().open(QStringLiteral("select * from t")).recordCount(), 1);
    EXPECT_EQ(connection().statementCount(), before + 3);
}

TEST_P(Reading, keepsAFieldThatIsNoDateAsItStands)
{
    // MariaDB's date without a date, SQLite's text in a date column.
    const QString noDate =
        database().usesMySql() ? QStringLiteral("0000-00-00") : QStringLiteral("demain");
    QStringList statements{QStringLiteral("create table t (d date)")};
    if (database().usesMySql()) {
        statements << QStringLiteral("set sql_mode=''");
    }
    database().execute(statements << QStringLiteral("insert into t values ('%1')").arg(noDate));
    const Value value = single(QStringLiteral("select d from t"));
    EXPECT_EQ(value, Value(noDate));
    EXPECT_EQ(errorNumberOf([&] { return value.toDate(); }), ErrorNumber::TypeMismatch);
}

TEST_P(Reading, takesMidnightForTheDateAndKeepsEveryOtherTime)
{
    database().execute({QStringLiteral("create table t (a integer, d datetime)"),
                        QStringLiteral("insert into t values (1, '2007-03-15 00:00:00')"),
                        QStringLiteral("insert into t values (2, '2007-03-15 08:30:00')")});
    const Recordset rows = connection().open(QStringLiteral("select d from t order by a"));
    EXPECT_EQ(rows.rows()[0].field(0), Value(QDate(2007, 3, 15)));
    EXPECT_EQ(rows.rows()[1].field(0), text("2007-03-15 08:30:00"));
    EXPECT_EQ(rows.rows()[1].field(0).toDate(), QDate(2007, 3, 15));
}

TEST_P(Reading, readsComputedColumnsByTheirName)
{
    EXPECT_EQ(connection()
                  .open(QStringLiteral("select count(*) as nombre from (select 1 as x) as t"))
                  .first()
                  .field(QStringLiteral("Nombre"))
                  .toInt32(),
              1);
}

TEMPORA_ON_BOTH_DATABASES(Reading);

TEST(ReadingSqlite, keepsATextInANumberColumn)
{
    test::TestDatabase database(test::DatabaseKind::Sqlite);
    database.execute({QStringLiteral("create table t (a integer, b double, c bit, d boolean)"),
                      QStringLiteral("insert into t values ('douze', 'x', 'oui', 'True')"),
                      QStringLiteral("insert into t values (1.5, 2, -1, 1)")});
    Connection connection(database.connectString());
    const Recordset rows = connection.open(QStringLiteral("select * from t order by _ROWID_"));
    const Row& texts = rows.rows()[0];
    EXPECT_EQ(texts.field(0), text("douze"));
    EXPECT_EQ(texts.field(1), text("x"));
    EXPECT_EQ(texts.field(2), text("oui"));
    EXPECT_TRUE(texts.field(3).toBoolean());
    const Row& numbers = rows.rows()[1];
    EXPECT_EQ(numbers.field(0), Value(1.5));
    EXPECT_EQ(numbers.field(1), Value(2.0));
    EXPECT_EQ(numbers.field(2), Value(true));
    EXPECT_EQ(numbers.field(3), Value(true));
}

TEST(ReadingSqlite, keepsATextLongerThanItsColumn)
{
    test::TestDatabase database(test::DatabaseKind::Sqlite);
    database.execute(
        {QStringLiteral("create table t (a varchar(5), b integer)"),
         QStringLiteral("insert into t values ('été comme hiver', 'été comme hiver')")});
    const Row row =
        Connection(database.connectString()).open(QStringLiteral("select * from t")).first();
    EXPECT_EQ(row.field(0), text("été comme hiver"));
    EXPECT_EQ(row.field(1), text("été comme hiver"));
}
