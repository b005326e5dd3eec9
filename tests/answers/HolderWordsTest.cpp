#include "answers/HolderWords.h"

#include "answers/ClashDraft.h"

#include <gtest/gtest.h>

using namespace answers;
using namespace test;
using namespace timetable;

namespace
{

class TheHolders : public testing::Test
{
protected:
    TheHolders() { school.draft().room("Amphi B").room("TP 1", 12); }
    /// All that ever holds the room.
    QString ofRoom(const QString& name)
    {
        const Occupancy& occupancy = school.occupancy();
        return holdersWords(occupancy,
                            occupancy.everyHolder(test::roomNamed(occupancy.timetable(), name)));
    }

    ClashDraft school;
};

} // namespace

TEST_F(TheHolders, areToldWithTheirClassesTogether)
{
    school.course({"Lundi2", "Amphi B", "L2 GE A", "Durand"});
    school.course({"Lundi2", "Amphi B", "L2 GE B", "Durand"});
    school.course({"Lundi2", "Amphi B", "L3", "Petit", {}, {}, "60"});
    EXPECT_EQ(ofRoom("Amphi B"),
              "L3, Petit, jusqu’à 10h30 ; L2 GE A, L2 GE B, Durand, jusqu’à 11h00");
}

TEST_F(TheHolders, sayTheirWeek)
{
    school.course({.key = "Lundi1",
                   .room = "Amphi B",
                   .className = "L1",
                   .teacher = "Durand",
                   .nature = "10/20",
                   .roomB = "Amphi B",
                   .teacherB = "Petit"});
    EXPECT_EQ(ofRoom("Amphi B"),
              "L1, Durand, semaine A, jusqu’à 9h30 ; L1, Petit, semaine B, jusqu’à 9h30");
}

TEST_F(TheHolders, sayWhatIsNoCourse)
{
    school.makeUp({.key = "Lundi1",
                   .room = "TP 1",
                   .className = "L1",
                   .teacher = "Durand",
                   .start = "10h00",
                   .length = "60",
                   .date = "2026-11-24"});
    EXPECT_EQ(ofRoom("TP 1"), "rattrapage du 24/11/2026, L1, Durand, jusqu’à 11h00");
}

TEST_F(TheHolders, areNamedByTheirSubjectWhereNobodyIsNamed)
{
    school.course({.key = "Lundi1", .room = "TP 1", .subject = "Chimie"});
    school.course({.key = "Mardi2", .room = "TP 1"});
    EXPECT_EQ(ofRoom("TP 1"), "Chimie, jusqu’à 9h30 ; séance sans nom, jusqu’à 11h00");
}

TEST_F(TheHolders, areNotToldWhereTheyHaveADay)
{
    school.course({"Lundi1", "TP 1", "L1"});
    EXPECT_EQ(unplacedWords(school.occupancy()), "");
}

TEST_F(TheHolders, tellWhyTheyHaveNoDay)
{
    school.course({.key = "Mradi2", .room = "Amphi B", .className = "L1", .xRoom = "TP 1"});
    EXPECT_EQ(unplacedWords(school.occupancy()),
              "1 séance n’a pas de jour et n’occupe donc rien : L1, Amphi B, TP 1 (« Mradi2 » ne "
              "nomme aucun jour)");
}

TEST_F(TheHolders, tellWhatOfTheirDayIsMissing)
{
    school.course({.key = {}, .room = "TP 1", .className = "L1"});
    school.exam({.key = "Lundi1", .room = "TP 1", .className = "L2", .week = "9"});
    EXPECT_EQ(unplacedWords(school.occupancy()),
              "2 séances n’ont pas de jour et n’occupent donc rien : L1, TP 1 (aucune séance n’est "
              "nommée) ; L2, TP 1 (examen d’une semaine sans date)");
}

TEST_F(TheHolders, withoutADayAreNamedUpToThree)
{
    school.course({"Mradi2", "TP 1"});
    school.makeUp({.key = "Lundi1", .room = "TP 1", .className = "L2", .date = "bientôt"});
    school.exam({.key = "Dimanche1", .room = "TP 1", .className = "L3", .week = "1"});
    school.course({"Mradi3", "TP 1", "L4"});
    school.course({"Mradi4", "TP 1", "L5"});
    EXPECT_EQ(unplacedWords(school.occupancy()),
              "5 séances n’ont pas de jour et n’occupent donc rien : séance sans classe, TP 1 "
              "(« Mradi2 » ne nomme aucun jour) ; L2, TP 1 (rattrapage sans date lisible) ; L3, "
              "TP 1 (« Dimanche1 » ne nomme aucun jour) ; et 2 autres");
}

TEST_F(TheHolders, tellWhyTheirTimeIsNotKnown)
{
    school.course({"Lundi9", "TP 1", "L1", "Durand"});
    school.course({.key = "Lundi9", .room = "TP 1"});
    const Occupancy& occupancy = school.occupancy();
    const RoomId room = test::roomNamed(occupancy.timetable(), "TP 1");
    EXPECT_EQ(whyUnknown(occupancy, occupancy.unknown(room, When::weekday(0))),
              "L1 (Lundi9) : ni heure de début, ni séance de ce nom dans la journée ; séance sans "
              "classe (Lundi9) : ni heure de début, ni séance de ce nom dans la journée");
}
