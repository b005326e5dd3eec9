#include "demo/Database.h"

#include "demo/Samples.h"
#include "support/TestDatabase.h"

#include <QCryptographicHash>
#include <QLocale>
#include <gtest/gtest.h>
#include <stdexcept>

using namespace demo;

namespace
{

QStringList statementsOf(const FacultyOptions& options, Flavour flavour)
{
    QStringList statements;
    writeDatabase(options, flavour,
                  [&](const QString& statement) { statements.append(statement); });
    return statements;
}

} // namespace

class DemoDatabase : public test::OnBothDatabases
{
protected:
    void load(const FacultyOptions& options)
    {
        const bool sqlite = GetParam() == test::DatabaseKind::Sqlite;
        database().execute(statementsOf(options, sqlite ? Flavour::Sqlite : Flavour::MariaDb));
    }

    [[nodiscard]] int number(const QString& query)
    {
        return database().read(query).at(0).at(0).toInt();
    }
};

TEST_P(DemoDatabase, holdsTheFacultyWithEverythingThatThePlanCanShow)
{
    load(test::optionsOf(test::referenceDay()));
    EXPECT_EQ(number("select count(*) from salle"), 64);
    EXPECT_GE(number("select count(distinct Zone) from salle"), 4);
    EXPECT_GT(number("select count(*) from salle where Département is null"), 10);
    EXPECT_EQ(number("select count(*) from Département"), 8);
    EXPECT_EQ(number("select count(*) from classe"), 120);
    EXPECT_EQ(number("select count(*) from etudiant"), 3000);
    EXPECT_EQ(number("select count(*) from matière"), 90);
    EXPECT_EQ(number("select count(*) from seances"), 48);
    EXPECT_EQ(number("select count(*) from typeseance where Ref between 0 and 15"), 16);
    EXPECT_EQ(number("select count(*) from tranche"), 2);
    EXPECT_GT(number("select count(*) from emplois where Tranche = 1"), 1500);
    EXPECT_GT(number("select count(*) from emplois where newnature = '10/20'"), 100);
    EXPECT_GT(number("select count(*) from emplois where XSalle is not null"), 10);
    EXPECT_GT(number("select count(*) from emplois where YSalle is not null"), 0);
    EXPECT_GT(number("select count(*) from emplois where XSalleB is not null"), 3);
    EXPECT_GT(number("select count(*) from emplois where Commune = 1"), 500);
    EXPECT_EQ(number("select count(distinct Durée) from emplois"), 4);
    EXPECT_EQ(number("select count(distinct Semaine) from examen where Tranche = 1"), 3);
    EXPECT_GT(number("select count(*) from examen where Resp3 is not null"), 50);
    EXPECT_GT(number("select count(*) from ratrap where DateX = '2026-11-23'"), 5);
    EXPECT_GT(number("select count(*) from abscence where Datex = '2026-11-23'"), 5);
    EXPECT_GT(number("select count(*) from etud_abs where Jour = '2026-11-23'"), 5);
}

TEST_P(DemoDatabase, namesOnlyRoomsAndClassesThatExist)
{
    load(test::optionsOf(test::referenceDay()));
    for (const char* column : {"Salle", "XSalle", "YSalle", "SalleB", "XSalleB", "YSalleB"}) {
        const QString query = "select count(*) from emplois where %1 is not null and not exists "
                              "(select 1 from salle s where s.Nom = emplois.%1)";
        EXPECT_EQ(number(query.arg(column)), 0);
    }
    for (const char* table : {"emplois", "ratrap", "examen", "abscence", "etud_abs"}) {
        const QString query = "select count(*) from %1 where not exists "
                              "(select 1 from classe where classe.Nom = %1.Classe)";
        EXPECT_EQ(number(query.arg(table)), 0);
    }
    EXPECT_EQ(number("select count(*) from emplois where not exists "
                     "(select 1 from seances where seances.Seance = emplois.Seance)"),
              0);
}

TEST_P(DemoDatabase, marksAbsencesAsTheProgramDoes)
{
    load(test::optionsOf(test::referenceDay()));
    // Each belongs to a row of the timetable, by what the program looks for.
    EXPECT_EQ(number("select count(*) from abscence a where not exists (select 1 from emplois e "
                     "where e.Classe = a.Classe and e.Debut = a.Debut and e.Seance = a.Seance "
                     "and e.Tranche = a.Tranche and e.Salle = a.Salle)"),
              0);
    EXPECT_EQ(number("select count(*) from abscence where TypeS2 <> 0 or TypeS3 <> 0 or "
                     "TypeS1B <> 0 or TypeS2B <> 0 or Choix <> 1 or Datex is null"),
              0);
    EXPECT_EQ(number("select count(*) from etud_abs where Nom <> Classe or Ident <> Nom"), 0);
    const QString ends = "select count(*) from etud_abs where HeureD = '%1' and HeureF = '%2'";
    EXPECT_GT(number(ends.arg("8h00", "09:30")), 0);
}

TEST_P(DemoDatabase, isMadeForTheSmallestFaculty)
{
    FacultyOptions options = test::tinyOptions();
    for (const SizeOption& size : sizeOptions()) {
        options.*size.value = size.least;
    }
    load(options);
    EXPECT_EQ(number("select count(*) from salle"), 1);
    EXPECT_EQ(number("select count(*) from etudiant"), 0);
}

TEMPORA_ON_BOTH_DATABASES(DemoDatabase);

TEST(DemoStatements, areTheSameForTheSameOptionsInAnyLanguage)
{
    const FacultyOptions options = test::optionsOf(test::referenceDay());
    const QLocale before;
    const QStringList first = statementsOf(options, Flavour::Sqlite);
    QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
    const QStringList second = statementsOf(options, Flavour::Sqlite);
    QLocale::setDefault(before);
    EXPECT_EQ(first, second);
}

TEST(DemoStatements, areTheSameFromEveryCompilerAndPlatform)
{
    // To be renewed with every wanted change of the faculty, by the value that the test reports.
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const QString& statement :
         statementsOf(test::optionsOf(test::referenceDay()), Flavour::Sqlite)) {
        hash.addData(statement.toUtf8());
    }
    EXPECT_EQ(hash.result().toHex().toStdString(),
              "7e15de22e26a75831fd2d74ae0555d358768d1191aff1f2ac94e327d6bf9dd29");
}

TEST(DemoStatements, differForAnotherSeed)
{
    FacultyOptions options = test::tinyOptions();
    const QStringList first = statementsOf(options, Flavour::Sqlite);
    options.seed = 2;
    EXPECT_NE(first, statementsOf(options, Flavour::Sqlite));
}

TEST(DemoStatements, takeQuotesAndBackslashesAsTheyAre)
{
    QStringList statements;
    Inserts inserts(Flavour::MariaDb, [&](const QString& one) { statements.append(one); });
    inserts.add("matière", {QString("L'air \\ l'eau")});
    inserts.add("matière", {Field()});
    inserts.flush();
    const QStringList expected = {
        "INSERT INTO `matière` (`Nom`) VALUES\n('L''air \\\\ l''eau'),\n(NULL)"};
    EXPECT_EQ(statements, expected);
}

TEST(DemoStatements, refuseATableThatThereIsNot)
{
    Inserts inserts(Flavour::Sqlite, [](const QString&) {});
    EXPECT_THROW(inserts.add("salles", {1}), std::logic_error);
}
