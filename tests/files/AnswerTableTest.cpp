#include "files/AnswerTable.h"

#include "files/AnswerSamples.h"

#include <gtest/gtest.h>

using namespace files;
using namespace test;
using timetable::column::kClasse;
using timetable::column::kEnseignant1;
using timetable::column::kSalle;
using timetable::column::kSeance;

namespace
{

/// The rows of a section, the cells with bars between them.
QStringList rowsOf(const TableSection& section)
{
    QStringList rows;
    for (const TableRow& row : section.rows) {
        QStringList cells;
        for (const TableCell& cell : row) {
            cells << cell.text;
        }
        rows << cells.join('|');
    }
    return rows;
}

QString columnsOf(const TableSection& section)
{
    QStringList titles;
    for (const TableColumn& column : section.columns) {
        titles << column.title;
    }
    return titles.join('|');
}

QStringList headingsOf(const AnswerTable& table)
{
    QStringList headings;
    for (const TableSection& section : table.sections) {
        headings << section.heading;
    }
    return headings;
}

class AnswersAsTables : public testing::Test
{
protected:
    AnswerSamples school;
};

} // namespace

TEST_F(AnswersAsTables, tellWhichRoomsAreFreeTakenAndUnknown)
{
    const AnswerTable table = answerTable(school.freeRooms(), TableUse::Page);
    EXPECT_EQ(table.title, "Salles libres");
    EXPECT_EQ(table.about, QStringList({"Toute semaine", "Période 1"}));
    ASSERT_EQ(headingsOf(table), QStringList({"Salles libres (1)", "Salles occupées (1)",
                                              "Salles dont on ne sait rien (1)"}));
    EXPECT_EQ(columnsOf(table.sections[0]), "Salle|Places|Zone|Département|Libre de|à");
    EXPECT_EQ(rowsOf(table.sections[0]), QStringList("TP 1|12|2|INFO|8h00|9h30"));
    EXPECT_EQ(columnsOf(table.sections[1]), "Salle|Places|Par");
    EXPECT_EQ(rowsOf(table.sections[1]), QStringList("Amphi|100|L1 A, L1 B, Durand, jusqu’à 9h30"));
    EXPECT_EQ(rowsOf(table.sections[2]),
              QStringList("TP 2||L2 (Lundi9) : ni heure de début, ni séance de ce nom dans la "
                          "journée"));
    ASSERT_EQ(table.notes.size(), 3);
    EXPECT_TRUE(table.notes[2].startsWith("Sans date, seuls les cours comptent"));
}

TEST_F(AnswersAsTables, tellOfAWeekItsItems)
{
    const AnswerTable table = answerTable(school.week(), TableUse::Spreadsheet);
    ASSERT_EQ(table.sections.size(), 1U);
    EXPECT_EQ(columnsOf(table.sections[0]),
              "Jour|Début|Fin|Salle|Classe|Enseignant|Matière|Semaine|Nature");
    EXPECT_EQ(rowsOf(table.sections[0]),
              QStringList({"Lundi|8h00|9h30|Amphi|L1 A|Durand|Algèbre|toutes|cours",
                           "Lundi|9h30|11h00|TP 1|L1 A|Petit|Chimie|A|cours"}));
}

TEST_F(AnswersAsTables, tellTheDatesOfAWeekThatHasSome)
{
    // A Tuesday; the courses are of its Monday, the make-up of its Wednesday.
    const AnswerTable table = answerTable(school.week(QDate(2026, 11, 24)), TableUse::Spreadsheet);
    EXPECT_EQ(columnsOf(table.sections[0]),
              "Jour|Date|Début|Fin|Salle|Classe|Enseignant|Matière|Semaine|Nature");
    EXPECT_EQ(rowsOf(table.sections[0]),
              QStringList({"Lundi|23/11/2026|8h00|9h30|Amphi|L1 A|Durand|Algèbre|toutes|cours",
                           "Lundi|23/11/2026|9h30|11h00|TP 1|L1 A|Petit|Chimie|A|cours",
                           "Mercredi|25/11/2026|10h00|11h00|TP 1|L1 A|Petit|||rattrapage"}));
}

TEST_F(AnswersAsTables, leaveATimeThatIsNotKnownEmpty)
{
    const AnswerTable table = answerTable(school.find("TP 2"), TableUse::Spreadsheet);
    EXPECT_EQ(rowsOf(table.sections[0]), QStringList("Salle|TP 2|Lundi|||TP 2|L2|||toutes|cours"));
}

TEST_F(AnswersAsTables, listTheItemsOfAllThatWasFound)
{
    school.draft().builder().addRoom({"Petite salle", 1, std::nullopt, 5});
    const AnswerTable table = answerTable(school.find("pet"), TableUse::Spreadsheet);
    ASSERT_EQ(table.sections.size(), 1U);
    EXPECT_EQ(columnsOf(table.sections[0]),
              "Quoi|Nom|Jour|Début|Fin|Salle|Classe|Enseignant|Matière|Semaine|Nature");
    EXPECT_EQ(rowsOf(table.sections[0]),
              QStringList({"Salle|Petite salle|||||||||",
                           "Enseignant|Petit|Lundi|9h30|11h00|TP 1|L1 A|Petit|Chimie|A|cours"}));
}

TEST_F(AnswersAsTables, giveEachThatWasFoundAListOnPages)
{
    const AnswerTable table = answerTable(school.find("l1 a"), TableUse::Page);
    ASSERT_EQ(headingsOf(table), QStringList({"Trouvés (1)", "L1 A (classe)"}));
    EXPECT_EQ(columnsOf(table.sections[0]), "Nom|Quoi|Séances");
    EXPECT_EQ(rowsOf(table.sections[0]), QStringList("L1 A|Classe|2"));
    EXPECT_EQ(table.sections[1].rows.size(), 2U);
}

TEST_F(AnswersAsTables, sayThatNothingIsThere)
{
    const AnswerTable found = answerTable(school.find("zzz"), TableUse::Page);
    EXPECT_EQ(found.sections[0].none, "Aucun nom ne contient ce texte.");
    EXPECT_TRUE(found.sections[0].rows.empty());
}

TEST_F(AnswersAsTables, tellTheClashesOneByOneInASpreadsheet)
{
    school.draft().course(
        {{kSeance, "Lundi1"}, {kSalle, "Amphi"}, {kClasse, "L3"}, {kEnseignant1, "Roux"}});
    const AnswerTable table = answerTable(school.clashes(), TableUse::Spreadsheet);
    ASSERT_EQ(table.sections.size(), 1U);
    EXPECT_EQ(columnsOf(table.sections[0]), "Conflit|Nom|Jour|Date|Heure|Semaine|Ce qui ne va pas");
    EXPECT_EQ(rowsOf(table.sections[0]),
              QStringList({"Salle en double|Amphi|Lundi||8h00–9h30|toutes|Salle Amphi, lundi de "
                           "8h00 à 9h30 : plusieurs séances à la fois (L1 A avec Durand, L1 B "
                           "avec Durand, L3 avec Roux).",
                           "Heure inconnue|TP 2|Lundi|||toutes|Salle TP 2, lundi : heure inconnue, "
                           "le début ne se lit ni dans la séance ni dans son créneau (L2)."}));
}

TEST_F(AnswersAsTables, tellTheClashesOfEachKindTogetherOnPages)
{
    school.draft().course(
        {{kSeance, "Lundi1"}, {kSalle, "Amphi"}, {kClasse, "L3"}, {kEnseignant1, "Roux"}});
    const AnswerTable table = answerTable(school.clashes(), TableUse::Page);
    ASSERT_EQ(headingsOf(table), QStringList({"Salle en double (1)", "Heure inconnue (1)"}));
    EXPECT_EQ(columnsOf(table.sections[0]), "Nom|Jour|Heure|Semaine|Ce qui ne va pas");
    EXPECT_EQ(rowsOf(table.sections[0]),
              QStringList("Amphi|Lundi|8h00–9h30|toutes|plusieurs séances à la fois (L1 A avec "
                          "Durand, L1 B avec Durand, L3 avec Roux)"));
}

TEST_F(AnswersAsTables, sayThatNothingClashes)
{
    const AnswerDocument nothing{
        school.clashes().occupancy, "Conflits", {}, ClashList(), {}, {}, {}};
    const AnswerTable table = answerTable(nothing, TableUse::Page);
    ASSERT_EQ(table.sections.size(), 1U);
    EXPECT_EQ(table.sections[0].none, "Aucun conflit.");
}

TEST(DayTitle, isTheDayWithACapital)
{
    EXPECT_EQ(dayTitle(0), "Lundi");
    EXPECT_EQ(dayTitle(timetable::kSunday), "Dimanche");
    EXPECT_EQ(dayTitle(timetable::kNoDay), "");
}
