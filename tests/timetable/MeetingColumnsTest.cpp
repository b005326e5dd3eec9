#include "timetable/MeetingColumns.h"

#include "demo/Schema.h"
#include "support/RuntimeMatchers.h"
#include "timetable/SchoolColumns.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace timetable;

namespace
{

/// The columns that the table has in the demo faculty, `Num` aside.
QStringList columnsOfDemo(SqlName table)
{
    QStringList names;
    for (const demo::Table& each : demo::tables()) {
        if (each.name == table) {
            for (const demo::Column& column : each.columns) {
                names << column.name;
            }
        }
    }
    return names;
}

QStringList texts(std::initializer_list<SqlName> names)
{
    QStringList list;
    for (const SqlName& name : names) {
        list << name;
    }
    return list;
}

} // namespace

TEST(SqlName, becomesAText)
{
    const QString duration = column::kDuree;
    EXPECT_EQ(duration, QStringLiteral("Durée"));
    EXPECT_EQ(QStringLiteral("select ") + column::kSalle, QStringLiteral("select Salle"));
    EXPECT_EQ(column::kSalle.view(), u"Salle");
}

TEST(SqlName, isEqualWhereItsLettersAre)
{
    EXPECT_TRUE(column::kSalle == SqlName(u"Salle"));
    EXPECT_FALSE(column::kSalle == table::kSalle); // the table is spelt "salle"
}

TEST(MeetingColumns, nameEveryColumnOfTheCourses)
{
    using namespace column;
    EXPECT_EQ(columnsOfDemo(table::kEmplois),
              texts({kSalle,        kXSalle,        kYSalle,        kSalleB,        kXSalleB,
                     kYSalleB,      kSeance,        kTranche,       kNewNature,     kTypeS1,
                     kTypeS3B,      kClasse,        kEnseignant1,   kEnseignant2,   kEnseignant3,
                     kXEnseignant1, kXEnseignant2,  kXEnseignant3,  kEnseignant1b,  kEnseignant2b,
                     kEnseignant3b, kXEnseignant1B, kXEnseignant2B, kXEnseignant3B, kMatiere,
                     kXMatiere,     kMatiereb,      kXMatiereB,     kDebut,         kDuree,
                     kCommune}));
}

TEST(MeetingColumns, nameTheDateOfMakeUps)
{
    EXPECT_EQ(columnsOfDemo(table::kRatrap), columnsOfDemo(table::kEmplois)
                                                 << QString(column::kDateX));
}

TEST(MeetingColumns, nameEveryColumnOfTheExams)
{
    using namespace column;
    EXPECT_EQ(columnsOfDemo(table::kExamen),
              texts({kSalle, kSeance, kTranche, kSemaine, kNewNature, kTypeS1, kTypeS3B, kClasse,
                     kEnseignant1, kEnseignant2, kEnseignant3, kResp1, kResp2, kResp3, kMatiere,
                     kDebut, kDuree, kCommune}));
}

TEST(MeetingColumns, listTheRoomsAsThePlanAsksForThem)
{
    QStringList rooms;
    for (const SqlName& room : column::kRooms) {
        rooms << room;
    }
    EXPECT_EQ(rooms, (QStringList{"Salle", "XSalle", "YSalle", "SalleB", "XSalleB", "YSalleB"}));
    ASSERT_EQ(column::kExamRooms.size(), 1U);
    EXPECT_TRUE(column::kExamRooms.front() == column::kSalle);
}

TEST(SchoolColumns, areThoseOfTheOtherTables)
{
    const auto has = [](SqlName table, SqlName column) {
        return columnsOfDemo(table).contains(QString(column));
    };
    for (const SqlName& each :
         {column::kNom, column::kZone, column::kDepartement, column::kPlaces}) {
        EXPECT_TRUE(has(table::kSalle, each)) << QString(each).toStdString();
    }
    for (const SqlName& each : {column::kSeance, column::kHoraire1, column::kHoraire2}) {
        EXPECT_TRUE(has(table::kSeances, each)) << QString(each).toStdString();
    }
    EXPECT_TRUE(has(table::kClasseTable, column::kNom));
    EXPECT_TRUE(has(table::kClasseTable, column::kCapacite));
    EXPECT_TRUE(has(table::kEtudiant, column::kClasseOfStudent));
    EXPECT_TRUE(has(table::kDatExam, column::kTranche));
}
