#include "files/AnswerCsv.h"

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

/// The lines behind the byte order mark, and a last empty text behind the end of the last one.
QStringList linesOf(const AnswerDocument& document)
{
    const QByteArray csv = answerAsCsv(document);
    EXPECT_TRUE(csv.startsWith("\xef\xbb\xbf"));
    return QString::fromUtf8(csv).split("\r\n");
}

class AnswerCsv : public testing::Test
{
protected:
    AnswerSamples school;
};

} // namespace

TEST_F(AnswerCsv, saysOfEachRoomWhichListItIsOf)
{
    EXPECT_EQ(linesOf(school.freeRooms()),
              QStringList({"État;Salle;Places;Zone;Département;Libre de;à;Par;Pourquoi",
                           "libre;TP 1;12;2;INFO;8h00;9h30;;",
                           "occupée;Amphi;100;;;;;L1 A, L1 B, Durand, jusqu’à 9h30;",
                           "inconnue;TP 2;;;;;;;L2 (Lundi9) : ni heure de début, ni séance de ce "
                           "nom dans la journée",
                           ""}));
}

TEST_F(AnswerCsv, hasTheSameColumnsWhereNothingIsFound)
{
    const auto nothing = [this](Answer answer) {
        return linesOf({school.freeRooms().occupancy, {}, {}, std::move(answer), {}, {}, {}});
    };
    EXPECT_EQ(nothing(answers::FreeRooms()),
              QStringList({"État;Salle;Places;Zone;Département;Libre de;à;Par;Pourquoi", ""}));
    EXPECT_EQ(nothing(ClashList()),
              QStringList({"Conflit;Nom;Jour;Date;Heure;Semaine;Ce qui ne va pas", ""}));
    EXPECT_EQ(nothing(HitList()).first(),
              "Quoi;Nom;Jour;Début;Fin;Salle;Classe;Enseignant;Matière;Semaine;Nature");
}

TEST_F(AnswerCsv, holdsOneListWithoutAColumnForIt)
{
    EXPECT_EQ(linesOf(school.week()),
              QStringList({"Jour;Début;Fin;Salle;Classe;Enseignant;Matière;Semaine;Nature",
                           "Lundi;8h00;9h30;Amphi;L1 A;Durand;Algèbre;toutes;cours",
                           "Lundi;9h30;11h00;TP 1;L1 A;Petit;Chimie;A;cours", ""}));
}

TEST_F(AnswerCsv, tellsSharesAsNumbersThatSpreadsheetsRead)
{
    const QStringList lines = linesOf(school.roomUse());
    ASSERT_EQ(lines.size(), 1 + 3 + 3 + 12 + 1 + 1);
    EXPECT_EQ(lines[0], "Vue;Salle;Zone;Places;Créneaux tenus;sur;Taux;Taux des sièges;"
                        "Salles;Jour;Créneau;Heure;Salles tenues");
    EXPECT_EQ(lines[1], "salle;Amphi;1;100;1;12;8,3%;3,3%;;;;;"); // 1 / 12; 40 / 1200
    EXPECT_EQ(lines[2], "salle;TP 1;2;12;0,5;12;4,2%;3,5%;;;;;"); // 0.5 / 12; 5 / 144
    EXPECT_EQ(lines[3], "salle;TP 2;;;0;12;0%;;;;;;");
    EXPECT_EQ(lines[5], "zone;;1;100;1;12;8,3%;3,3%;1;;;;");
    EXPECT_EQ(lines[7], "créneau;;;;;;33,3%;;3;Lundi;1;8h00–9h30;1");
    EXPECT_EQ(lines[19], "ensemble;;;112;1,5;36;4,2%;3,3%;3;;;;"); // 1.5 / 36; 45 / 1344
}

TEST_F(AnswerCsv, makesNoFormulaOfANameAndBreaksNoLine)
{
    school.draft().course(
        {{kSeance, "Mardi1"}, {kSalle, "Amphi"}, {kClasse, "L1 A"}, {kEnseignant1, "=1+1;\"x\""}});
    EXPECT_TRUE(linesOf(school.week()).last().isEmpty());
    EXPECT_TRUE(linesOf(school.week())
                    .contains("Mardi;8h00;9h30;Amphi;L1 A;\"'=1+1;\"\"x\"\"\";;toutes;cours"));
}
