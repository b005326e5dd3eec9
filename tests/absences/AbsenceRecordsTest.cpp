#include "absences/AbsenceRecords.h"

#include "AbsenceTables.h"
#include "support/RuntimeMatchers.h"

#include <memory>

using namespace test;
using absences::AbsenceRecords;
using plan::Marqueur;
using runtime::ErrorNumber;

namespace
{

class AnAbsence : public OnBothDatabases
{
protected:
    void SetUp() override { createAbsenceTables(database()); }

    AbsenceRecords& records()
    {
        if (!m_records) {
            m_database = std::make_unique<db::Database>(database().usesMySql());
            m_database->open(database().connectString());
            m_records = std::make_unique<AbsenceRecords>(*m_database);
        }
        return *m_records;
    }

private:
    std::unique_ptr<db::Database> m_database;
    std::unique_ptr<AbsenceRecords> m_records;
};

class AKeylessTable : public AnAbsence
{
protected:
    void SetUp() override { createKeylessAbsenceTables(database()); }
};

} // namespace

TEST_P(AnAbsence, ofAClassFillsEighteenColumns)
{
    Marqueur marker = lesson(classA);
    records().Basculer_AbsClasse(marker, classA);
    EXPECT_TRUE(marker.AbsClasse);
    EXPECT_EQ(classAbsences(database()), QList<QStringList>{classAbsence(classA)});
    EXPECT_TRUE(studentAbsences(database()).isEmpty());
}

TEST_P(AnAbsence, ofStudentsFillsNineColumns)
{
    Marqueur marker = lesson(classA);
    records().Basculer_AbsEtud(marker, classA, classA);
    EXPECT_TRUE(marker.AbsEtud);
    EXPECT_EQ(studentAbsences(database()), QList<QStringList>{studentAbsence(classA)});
    EXPECT_TRUE(classAbsences(database()).isEmpty());
}

TEST_P(AnAbsence, ofAClassIsTakenBackByASecondToggle)
{
    Marqueur marker = lesson(classA);
    records().Basculer_AbsClasse(marker, classA);
    records().Basculer_AbsClasse(marker, classB);
    records().Basculer_AbsClasse(marker, classA);
    EXPECT_FALSE(marker.AbsClasse);
    EXPECT_EQ(classAbsences(database()), QList<QStringList>{classAbsence(classB)});
}

TEST_P(AnAbsence, ofStudentsIsTakenBackByASecondToggle)
{
    Marqueur marker = lesson(classA);
    records().Basculer_AbsEtud(marker, classA, classA);
    records().Basculer_AbsEtud(marker, classB, classB);
    records().Basculer_AbsEtud(marker, classA, classA);
    EXPECT_FALSE(marker.AbsEtud);
    EXPECT_EQ(studentAbsences(database()), QList<QStringList>{studentAbsence(classB)});
}

TEST_P(AnAbsence, ofAClassIsFoundByClassDateAndStartAlone)
{
    Marqueur marker = lesson(classA);
    records().Basculer_AbsClasse(marker, classA);
    EXPECT_TRUE(records().Existe_AbsClasse(marker, classA));
    EXPECT_FALSE(records().Existe_AbsClasse(marker, classB));

    Marqueur elsewhere; // the same class, date and start; all else differs
    elsewhere.Jour = marker.Jour;
    elsewhere.Debut = marker.Debut;
    EXPECT_TRUE(records().Existe_AbsClasse(elsewhere, classA));

    Marqueur nextDay = marker;
    nextDay.Jour = QDate(2025, 3, 18);
    EXPECT_FALSE(records().Existe_AbsClasse(nextDay, classA));

    Marqueur later = marker;
    later.Debut = QStringLiteral("11h45");
    EXPECT_FALSE(records().Existe_AbsClasse(later, classA));
}

TEST_P(AnAbsence, ofStudentsIsFoundByClassNameDateAndStartAlone)
{
    Marqueur marker = lesson(classA);
    records().Basculer_AbsEtud(marker, classA, classB);
    EXPECT_TRUE(records().Existe_AbsEtud(marker, classA, classB));
    EXPECT_FALSE(records().Existe_AbsEtud(marker, classB, classB));
    EXPECT_FALSE(records().Existe_AbsEtud(marker, classA, classA));

    Marqueur nextDay = marker;
    nextDay.Jour = QDate(2025, 3, 18);
    EXPECT_FALSE(records().Existe_AbsEtud(nextDay, classA, classB));

    Marqueur later = marker;
    later.Debut = QStringLiteral("11h45");
    EXPECT_FALSE(records().Existe_AbsEtud(later, classA, classB));
}

TEST_P(AnAbsence, keepsDayAndMonthApart)
{
    Marqueur marker = lesson(classA);
    marker.Jour = QDate(2025, 4, 3);
    records().Basculer_AbsClasse(marker, classA);
    EXPECT_EQ(database().read(QStringLiteral("select Datex from abscence")),
              QList<QStringList>{{QStringLiteral("2025-04-03")}});
    Marqueur swapped = marker;
    swapped.Jour = QDate(2025, 3, 4);
    EXPECT_TRUE(records().Existe_AbsClasse(marker, classA));
    EXPECT_FALSE(records().Existe_AbsClasse(swapped, classA));
}

TEST_P(AnAbsence, ofStudentsHoldsFifteenCharactersOfALongName)
{
    const QString name = QStringLiteral("Licence1-Groupe-ÉéÀ1");
    ASSERT_EQ(name.size(), 20);
    Marqueur marker = lesson(name);
    records().Basculer_AbsEtud(marker, name, name);
    EXPECT_EQ(database().read(QStringLiteral("select Classe, Nom, Ident from etud_abs")),
              QList<QStringList>({{name, name, QStringLiteral("Licence1-Groupe")}}));
}

TEST_P(AnAbsence, withAnApostropheIsRefusedAndNothingIsWritten)
{
    const QString name = QStringLiteral("L'été");
    Marqueur marker = lesson(name);
    const runtime::RunTimeError byClass =
        errorOf([&] { records().Basculer_AbsClasse(marker, name); });
    EXPECT_EQ(byClass.number(), ErrorNumber::StatementRefused);
    EXPECT_FALSE(byClass.text().isEmpty());
    EXPECT_EQ(byClass.activity(), QStringLiteral("Recherche de l’absence de la classe « L'été » "
                                                 "(17/03/2025, 10h15, salle A101)"));
    EXPECT_EQ(errorNumberOf([&] { records().Basculer_AbsEtud(marker, name, name); }),
              ErrorNumber::StatementRefused);
    EXPECT_FALSE(marker.AbsClasse);
    EXPECT_FALSE(marker.AbsEtud);
    EXPECT_TRUE(classAbsences(database()).isEmpty());
    EXPECT_TRUE(studentAbsences(database()).isEmpty());
}

TEST_P(AnAbsence, ofAClassWhoseNameBeginsACommentRemovesNobodysRecord)
{
    // The comment hides the rest of the search, so that it finds every record of the class L1.
    QStringList names = {QStringLiteral("L1' -- x")};
    if (database().usesMySql()) {
        names << QStringLiteral("L1'#2"); // no comment to SQLite, which refuses it
    }
    database().execute(
        {QStringLiteral("insert into abscence (Classe, Datex, Debut) values "
                        "('L1', '2025-03-18', '8h30'), ('L1', '2025-03-17', '10h15'), "
                        "('L1', '2025-03-19', '8h30'), ('L2', '2025-03-17', '10h15')"),
         QStringLiteral("insert into etud_abs (Classe, Nom, Jour, HeureD) values "
                        "('L1', 'L1', '2025-03-18', '8h30'), ('L1', 'L1', '2025-03-17', '10h15'), "
                        "('L1', 'X', '2025-03-19', '8h30'), ('L2', 'L2', '2025-03-17', '10h15')")});
    const QStringList all = {QStringLiteral("L1"), QStringLiteral("L1"), QStringLiteral("L1"),
                             QStringLiteral("L2")};
    for (const QString& name : names) {
        Marqueur marker = lesson(name);
        EXPECT_EQ(errorNumberOf([&] { records().Basculer_AbsClasse(marker, name); }),
                  runtime::ErrorNumber::StatementRefused);
        EXPECT_EQ(errorNumberOf([&] { records().Basculer_AbsEtud(marker, name, name); }),
                  runtime::ErrorNumber::StatementRefused);
        EXPECT_EQ(absentClasses(database()), all);
        EXPECT_EQ(classesOfAbsentStudents(database()), all);
    }
}

TEST_P(AnAbsence, ofAClassWhoseNameHoldsADoubledApostropheIsNeverFoundAgain)
{
    // Nothing is doubled in a search, so it reads the two apostrophes as the one of another class;
    // the record holds the name as it is. The class is marked once more at every gesture.
    const QString name = QStringLiteral("L''1");
    Marqueur marker = lesson(name);
    for (int count = 1; count <= 2; ++count) {
        records().Basculer_AbsClasse(marker, name);
        records().Basculer_AbsEtud(marker, name, name);
        EXPECT_TRUE(marker.AbsClasse);
        EXPECT_TRUE(marker.AbsEtud);
        EXPECT_FALSE(records().Existe_AbsClasse(marker, name));
        EXPECT_FALSE(records().Existe_AbsEtud(marker, name, name));
        EXPECT_EQ(classAbsences(database()), QList<QStringList>(count, classAbsence(name)));
        EXPECT_EQ(studentAbsences(database()), QList<QStringList>(count, studentAbsence(name)));
    }
    database().execute(QStringLiteral("insert into abscence (Classe, Datex, Debut) values "
                                      "('L''1', '2025-03-17', '10h15')"));
    EXPECT_TRUE(records().Existe_AbsClasse(marker, name));
    // That record is another class's, which its own gesture takes back.
    EXPECT_EQ(errorNumberOf([&] { records().Basculer_AbsClasse(marker, name); }),
              runtime::ErrorNumber::StatementRefused);
    EXPECT_EQ(absentClasses(database()), (QStringList{name, name, QStringLiteral("L'1")}));
}

TEST_P(AnAbsence, keepsPercentAndQuestionMarks)
{
    const QString name = QStringLiteral("%1 %2 ? # \"%3\"");
    Marqueur marker = lesson(name);
    marker.Matiere = QStringLiteral("C++ / C# (l'un ou l'autre ?)");
    records().Basculer_AbsClasse(marker, name);
    EXPECT_TRUE(records().Existe_AbsClasse(marker, name));
    EXPECT_EQ(database().read(QStringLiteral("select Classe, `matière` from abscence")),
              QList<QStringList>({{name, marker.Matiere}}));
    records().Basculer_AbsClasse(marker, name);
    EXPECT_TRUE(classAbsences(database()).isEmpty());
}

TEST_P(AnAbsence, ofAnEmptyClassNameIsARowLikeAnyOther)
{
    Marqueur marker = lesson(QString());
    records().Basculer_AbsClasse(marker, QString());
    EXPECT_EQ(absentClasses(database()), QStringList{QString()});
    records().Basculer_AbsClasse(marker, QString());
    EXPECT_TRUE(classAbsences(database()).isEmpty());
}

TEST_P(AnAbsence, ofStudentsNeedsATimeOfDay)
{
    for (const QString& start : {QString(), QStringLiteral("matin"), QStringLiteral("25h00")}) {
        Marqueur marker = lesson(classA);
        marker.Debut = start;
        const runtime::RunTimeError error =
            errorOf([&] { records().Basculer_AbsEtud(marker, classA, classA); });
        EXPECT_EQ(error.number(), ErrorNumber::TypeMismatch);
        EXPECT_EQ(error.activity(),
                  QStringLiteral("Enregistrement de l’absence d’étudiants de la classe « L1-A » "
                                 "(17/03/2025, ") +
                      start + QStringLiteral(", salle A101)"));
        EXPECT_FALSE(marker.AbsEtud);
    }
    EXPECT_TRUE(studentAbsences(database()).isEmpty());
}

TEST_P(AnAbsence, ofAClassNeedsNoTimeOfDay)
{
    Marqueur marker = lesson(classA);
    marker.Debut.clear();
    records().Basculer_AbsClasse(marker, classA);
    EXPECT_EQ(database().read(QStringLiteral("select Classe, Debut from abscence")),
              QList<QStringList>({{classA, QString()}}));
}

TEST_P(AnAbsence, withoutItsTableIsARunTimeError)
{
    database().execute(
        {QStringLiteral("drop table abscence"), QStringLiteral("drop table etud_abs")});
    Marqueur marker = lesson(classA);
    EXPECT_EQ(errorNumberOf([&] { records().Basculer_AbsClasse(marker, classA); }),
              ErrorNumber::TableMissing);
    EXPECT_EQ(errorNumberOf([&] { records().Basculer_AbsEtud(marker, classA, classA); }),
              ErrorNumber::TableMissing);
    EXPECT_EQ(errorNumberOf([&] { static_cast<void>(records().Existe_AbsClasse(marker, classA)); }),
              ErrorNumber::TableMissing);
}

TEMPORA_ON_BOTH_DATABASES(AnAbsence);

TEST_P(AKeylessTable, losesIdenticalClassAbsencesOneByOne)
{
    // Two programs that marked the same séance at the same moment left these.
    Marqueur marker = lesson(classA);
    records().Basculer_AbsClasse(marker, classA);
    database().execute({QStringLiteral("insert into abscence select * from abscence"),
                        QStringLiteral("insert into abscence select * from abscence")});
    for (int left = 3; left >= 0; --left) {
        records().Basculer_AbsClasse(marker, classA);
        EXPECT_FALSE(marker.AbsClasse);
        EXPECT_EQ(classAbsences(database()), QList<QStringList>(left, classAbsence(classA)));
    }
    records().Basculer_AbsClasse(marker, classA);
    EXPECT_TRUE(marker.AbsClasse);
    EXPECT_EQ(classAbsences(database()), QList<QStringList>{classAbsence(classA)});
}

TEST_P(AKeylessTable, losesIdenticalStudentAbsencesOneByOne)
{
    Marqueur marker = lesson(classA);
    records().Basculer_AbsEtud(marker, classA, classA);
    database().execute(QStringLiteral("insert into etud_abs select * from etud_abs"));
    for (int left = 1; left >= 0; --left) {
        records().Basculer_AbsEtud(marker, classA, classA);
        EXPECT_FALSE(marker.AbsEtud);
        EXPECT_EQ(studentAbsences(database()), QList<QStringList>(left, studentAbsence(classA)));
    }
}

TEST_P(AKeylessTable, keepsEveryRowButTheOneFound)
{
    Marqueur marker = lesson(classA);
    records().Basculer_AbsClasse(marker, classA);
    records().Basculer_AbsClasse(marker, classB);
    Marqueur later = marker;
    later.Debut = QStringLiteral("11h45");
    records().Basculer_AbsClasse(later, classA);
    records().Basculer_AbsClasse(marker, classA);
    EXPECT_EQ(
        database().read(QStringLiteral("select Classe, Debut from abscence order by Debut")),
        QList<QStringList>({{classB, QStringLiteral("10h15")}, {classA, QStringLiteral("11h45")}}));
}

TEMPORA_ON_BOTH_DATABASES(AKeylessTable);

/// Databases that grew over the years keep dates in columns of many types; SQLite asks for none.
class ADateColumn : public OnBothDatabases
{
protected:
    [[nodiscard]] QStringList types()
    {
        const QStringList everywhere{"DATE", "TEXT", "VARCHAR(10)", "DATETIME"};
        return database().usesMySql() ? everywhere
                                      : everywhere + QStringList{QString(), "INTEGER", "BLOB"};
    }

    /// Both tables anew, empty, with the dates declared as this type.
    void declare(const QString& type)
    {
        database().execute({"drop table if exists abscence", "drop table if exists etud_abs"});
        createKeylessAbsenceTables(database(), type);
    }
};

TEST_P(ADateColumn, ofAnyTypeHoldsWhatTheSearchFinds)
{
    for (const QString& type : types()) {
        SCOPED_TRACE(type.toStdString());
        declare(type);
        db::Database opened(database().usesMySql());
        opened.open(database().connectString());
        AbsenceRecords records(opened);
        Marqueur marker = lesson(classA);
        marker.Jour = QDate(2026, 10, 5);
        Marqueur nextDay = marker;
        nextDay.Jour = QDate(2026, 10, 6);

        records.Basculer_AbsClasse(marker, classA);
        records.Basculer_AbsEtud(marker, classA, classA);
        EXPECT_TRUE(records.Existe_AbsClasse(marker, classA));
        EXPECT_TRUE(records.Existe_AbsEtud(marker, classA, classA));
        EXPECT_FALSE(records.Existe_AbsClasse(nextDay, classA));
        EXPECT_FALSE(records.Existe_AbsEtud(nextDay, classA, classA));

        records.Basculer_AbsClasse(marker, classA);
        records.Basculer_AbsEtud(marker, classA, classA);
        EXPECT_FALSE(marker.AbsClasse);
        EXPECT_FALSE(marker.AbsEtud);
        EXPECT_TRUE(classAbsences(database()).isEmpty());
        EXPECT_TRUE(studentAbsences(database()).isEmpty());
    }
}

TEST_P(ADateColumn, isTheOnlyOneThatADateIsWrittenTo)
{
    declare(QStringLiteral("VARCHAR(10)"));
    const QString name = QStringLiteral("10/05/26"); // of a class
    db::Database opened(database().usesMySql());
    opened.open(database().connectString());
    AbsenceRecords records(opened);
    Marqueur marker = lesson(name);
    marker.Jour = QDate(2026, 10, 5);
    marker.Matiere = QStringLiteral("2026/10/05");
    records.Basculer_AbsClasse(marker, name);
    records.Basculer_AbsEtud(marker, name, name);
    const QString date =
        database().usesMySql() ? QStringLiteral("2026/10/05") : QStringLiteral("2026-10-05");
    EXPECT_EQ(database().read("select Classe, `matière`, Datex from abscence"),
              QList<QStringList>({{name, marker.Matiere, date}}));
    EXPECT_EQ(database().read("select Classe, Nom, `matière`, Jour, Ident from etud_abs"),
              QList<QStringList>({{name, name, marker.Matiere, date, name}}));
}

TEMPORA_ON_BOTH_DATABASES(ADateColumn);

TEST(EndTime, isTheStartAndTheLength)
{
    EXPECT_EQ(absences::endTime(QStringLiteral("10:15"), 90), QStringLiteral("11:45"));
    EXPECT_EQ(absences::endTime(QStringLiteral("8h30"), 45), QStringLiteral("09:15"));
    EXPECT_EQ(absences::endTime(QStringLiteral(" 8H "), 0), QStringLiteral("08:00"));
}

TEST(EndTime, startsAgainAtMidnight)
{
    EXPECT_EQ(absences::endTime(QStringLiteral("23:00"), 90), QStringLiteral("00:30"));
    EXPECT_EQ(absences::endTime(QStringLiteral("22:30"), 90), QStringLiteral("00:00"));
    EXPECT_EQ(absences::endTime(QStringLiteral("10:00"), 24 * 60), QStringLiteral("10:00"));
}
