#include "answers/ClashSentence.h"

#include "answers/ClashDraft.h"

#include <gtest/gtest.h>

using namespace answers;
using namespace test;
using namespace timetable;

namespace
{

class TheSentence : public testing::Test
{
protected:
    TheSentence() { school.draft().room("Amphi B").room("TP 1", 12); }
    QStringList sentences()
    {
        QStringList all;
        for (const Clash& clash : school.clashes()) {
            all << clashSentence(school.occupancy(), clash);
        }
        return all;
    }

    ClashDraft school;
};

} // namespace

TEST_F(TheSentence, tellsOfARoom)
{
    school.course({.key = "Lundi1",
                   .room = "Amphi B",
                   .className = "L1 A",
                   .teacher = "Durand",
                   .nature = "10/20"});
    school.course({"Lundi1", "Amphi B", "L2 B", "Petit"});
    EXPECT_EQ(sentences(), QStringList("Salle Amphi B, lundi de 8h00 à 9h30, semaine A : deux "
                                       "séances à la fois (L1 A avec Durand, L2 B avec Petit)."));
}

TEST_F(TheSentence, tellsOfATeacher)
{
    school.course({"Mardi2", "Amphi B", "L1 A", "Durand"});
    school.course({.key = "Mardi2", .room = {}, .roomB = "TP 1", .teacherB = "Durand"});
    EXPECT_EQ(sentences(), QStringList("Enseignant Durand, mardi de 9h30 à 11h00, semaine B : dans "
                                       "deux salles à la fois (Amphi B avec L1 A, TP 1)."));
}

TEST_F(TheSentence, namesTheSubjectWhereThereIsNoClass)
{
    school.course({.key = "Lundi1", .room = "Amphi B", .teacher = "Durand", .subject = "Chimie"});
    school.course({"Lundi1", "Amphi B", "L2 B", "Petit", "Algèbre"});
    school.course({.key = "Mardi1", .room = "Amphi B", .teacher = "Roux", .subject = "Chimie"});
    school.course({"Mardi1", "TP 1", "L2 B", "Roux", "Algèbre"});
    EXPECT_EQ(sentences(),
              QStringList({"Salle Amphi B, lundi de 8h00 à 9h30 : deux séances à la fois (Chimie "
                           "avec Durand, L2 B avec Petit).",
                           "Enseignant Roux, mardi de 8h00 à 9h30 : dans deux salles à la fois "
                           "(Amphi B pour Chimie, TP 1 avec L2 B)."}));
}

TEST_F(TheSentence, namesTheSubjectWhereTheWordsWouldRepeat)
{
    school.course({"Lundi1", "Amphi B", "L1 A", "Durand", "Chimie"});
    school.course({"Lundi1", "Amphi B", "L1 B", "Durand", "Chimie"});
    school.course({"Lundi1", "Amphi B", "L1 A", "Durand", "Algèbre"});
    const QStringList all = sentences();
    ASSERT_FALSE(all.isEmpty());
    EXPECT_EQ(all[0], "Salle Amphi B, lundi de 8h00 à 9h30 : plusieurs séances à la fois (L1 A "
                      "avec Durand pour Chimie, L1 B avec Durand, L1 A avec Durand pour Algèbre).");
}

TEST_F(TheSentence, namesHoursAndWeeksWhereAllElseIsTheSame)
{
    school.course({"Lundi1", "Amphi B", "L1 A", "Durand", "Analyse"});
    school.course({"Lundi1", "Amphi B", "L1 A", "Durand", "Analyse", "8h30"});
    EXPECT_EQ(sentences().value(0),
              "Salle Amphi B, lundi de 8h30 à 9h30 : deux séances à la fois (L1 A avec Durand pour "
              "Analyse de 8h00 à 9h30, L1 A avec Durand pour Analyse de 8h30 à 10h00).");
}

TEST_F(TheSentence, namesTheWeeksOfTheTwoRoomsOfARow)
{
    // The same room twice, in week A and every week, and somebody else.
    ClashRow row{"Lundi1", "TP 1", "L1 A", "Durand", "Analyse"};
    row.nature = "10/20";
    row.yRoom = "TP 1";
    school.course(row);
    school.course({"Lundi1", "TP 1", "L2 B", "Petit"});
    EXPECT_EQ(
        sentences().value(0),
        "Salle TP 1, lundi de 8h00 à 9h30 : plusieurs séances à la fois (L1 A avec Durand pour "
        "Analyse semaine A, L1 A avec Durand pour Analyse toute semaine, L2 B avec Petit).");
}

TEST_F(TheSentence, tellsOfAClass)
{
    school.course({.key = "Samedi1",
                   .room = "Amphi B",
                   .className = "L1 A",
                   .teacher = "Durand",
                   .secondTeacher = "Roux"});
    school.course({"Samedi1", "TP 1", "L1 A", "Petit"});
    EXPECT_EQ(sentences(),
              QStringList("Classe L1 A, samedi de 8h00 à 9h30 : deux séances à la fois (Amphi B "
                          "avec Durand et Roux, TP 1 avec Petit)."));
}

TEST_F(TheSentence, tellsOfACrowd)
{
    school.students("L1 A", 20);
    school.students("L2 B", 5);
    school.course({"Lundi1", "TP 1", "L1 A", "Durand", "Chimie"});
    school.course({"Lundi1", "TP 1", "L2 B", "Durand", "Chimie"});
    school.course({"Lundi1", "TP 1", "L1 A", "Durand", "Chimie"});
    EXPECT_EQ(sentences(), QStringList("Salle TP 1, lundi de 8h00 à 9h30 : 25 étudiants pour 12 "
                                       "places (L1 A, L2 B)."));
}

TEST_F(TheSentence, tellsOfAMakeUpWithItsDate)
{
    school.makeUp({.key = "Lundi1",
                   .room = "Amphi B",
                   .className = "L1 A",
                   .teacher = "Durand",
                   .date = "2026-10-05"});
    school.exam({.key = "Lundi1", .room = "Amphi B", .className = "L2 B", .week = "3"});
    school.course({.key = "Lundi1", .room = "Amphi B", .subject = "Chimie"});
    EXPECT_EQ(sentences(),
              QStringList("Salle Amphi B, lundi 05/10/2026 de 8h00 à 9h30 : plusieurs séances à la "
                          "fois (rattrapage L1 A avec Durand, examen L2 B, Chimie)."));
}

TEST_F(TheSentence, tellsOfAnUnknownRoom)
{
    school.course({"Lundi1", "Annexe", "L1 A", "Durand"});
    school.course({"Mardi9", "Annexe", {}, "Petit"});
    school.course({"Stage", "Usine"});
    EXPECT_EQ(sentences().mid(0, 2),
              QStringList({"Salle Annexe : absente de la liste des salles, mais nommée par 2 "
                           "séances (L1 A avec Durand lundi de 8h00 à 9h30, avec Petit mardi à une "
                           "heure inconnue).",
                           "Salle Usine : absente de la liste des salles, mais nommée par une "
                           "séance dont le jour est inconnu."}));
}

TEST_F(TheSentence, tellsOfAnUnknownTime)
{
    school.course({"Mercredi9", "Amphi B"});
    EXPECT_EQ(sentences(),
              QStringList("Salle Amphi B, mercredi : heure inconnue, le début ne se lit ni dans la "
                          "séance ni dans son créneau (séance sans nom)."));
}

TEST_F(TheSentence, countsTheRowsWithoutADayThatNameAnUnknownRoom)
{
    school.course({"Lundi1", "Annexe", "L1"});
    school.course({"Stage", "Annexe", "L2", {}, {}, "8h00"});
    school.course({"Stage", "Usine", "L3", {}, {}, "8h00"});
    school.course({"Stage", "Usine", "L4", {}, {}, "8h00"});
    EXPECT_EQ(sentences(),
              QStringList({"Salle Annexe : absente de la liste des salles, mais nommée par 2 "
                           "séances (L1 lundi de 8h00 à 9h30).",
                           "Salle Usine : absente de la liste des salles, mais nommée par 2 "
                           "séances dont le jour est inconnu."}));
}

TEST_F(TheSentence, tellsOfAnUnknownDay)
{
    school.course({"Mradi2", "Amphi B", "L1 A", "Durand"});
    school.makeUp({.key = "Lundi9", .room = "TP 1", .className = "L2", .date = "bientôt"});
    EXPECT_EQ(sentences(),
              QStringList({"Salle Amphi B, jour inconnu : heure inconnue elle aussi, « Mradi2 » ne "
                           "nomme aucun jour (L1 A avec Durand).",
                           "Salle TP 1, jour inconnu : heure inconnue elle aussi, rattrapage sans "
                           "date lisible (rattrapage L2)."}));
}

TEST_F(TheSentence, saysOnceThatARoomIsARoom)
{
    school.draft().room("Salle 205");
    school.course({"Lundi9", "Salle 205", "L1"});
    EXPECT_TRUE(sentences().value(0).startsWith("Salle 205, lundi : heure inconnue"))
        << sentences().value(0).toStdString();
}

TEST_F(TheSentence, namesFiveOfManyHolders)
{
    for (int number = 1; number <= 6; ++number) {
        school.course(
            {"Lundi1", "Amphi B", QString("L%1").arg(number), QString("P%1").arg(number)});
    }
    for (int number = 1; number <= 7; ++number) {
        school.course(
            {"Mardi1", "Amphi B", QString("L%1").arg(number), QString("P%1").arg(number)});
    }
    const QString five = "plusieurs séances à la fois (L1 avec P1, L2 avec P2, L3 avec P3, "
                         "L4 avec P4, L5 avec P5 et ";
    EXPECT_EQ(sentences(),
              QStringList({"Salle Amphi B, lundi de 8h00 à 9h30 : " + five + "une autre).",
                           "Salle Amphi B, mardi de 8h00 à 9h30 : " + five + "2 autres)."}));
}

TEST_F(TheSentence, knowsSundaysAndRoomsWithoutAName)
{
    school.draft().room("");
    school.makeUp({.key = "Lundi1", .room = "", .className = "L1", .date = "2026-11-22"});
    school.makeUp(
        {"Lundi1", "", "L2", "Petit", {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, "2026-11-22"});
    EXPECT_EQ(sentences(),
              QStringList("Salle sans nom, dimanche 22/11/2026 de 8h00 à 9h30 : deux "
                          "séances à la fois (rattrapage L1, rattrapage L2 avec Petit)."));
}

TEST_F(TheSentence, isAlsoToldWithoutWhereAndWhen)
{
    school.course({"Lundi1", "Amphi B", "L1 A", "Durand"});
    school.course({"Lundi1", "Amphi B", "L2 B", "Petit"});
    const std::vector<Clash> clashes = school.clashes();
    ASSERT_EQ(clashes.size(), 1U);
    EXPECT_EQ(clashFault(school.occupancy(), clashes.front()),
              "deux séances à la fois (L1 A avec Durand, L2 B avec Petit)");
}

TEST_F(TheSentence, hasAFewWordsForEachKind)
{
    EXPECT_EQ(kindWords(ClashKind::Room), "Salle en double");
    EXPECT_EQ(kindWords(ClashKind::Overfull), "Salle trop petite");
    EXPECT_EQ(kindWords(ClashKind::MakeupRoom), "Rattrapage : salle en double");
    EXPECT_EQ(kindWords(ClashKind::NoTime), "Heure inconnue");
}
