#include "absences/DoneWords.h"

#include <gtest/gtest.h>

using absences::doneWords;
using absences::Toggled;

namespace
{

const QDate kTuesday(2026, 11, 24);

Toggled classes(const QStringList& recorded, const QStringList& takenBack = {})
{
    return {Toggled::What::Classes, kTuesday, recorded, takenBack};
}

Toggled students(const QStringList& recorded, const QStringList& takenBack = {})
{
    return {Toggled::What::Students, kTuesday, recorded, takenBack};
}

} // namespace

TEST(DoneWords, countSeveralClasses)
{
    EXPECT_EQ(doneWords({classes({"A", "B", "C", "D"})}),
              "Absence de 4 classes enregistrée, mardi 24/11 (refaire le geste pour annuler)");
}

TEST(DoneWords, nameASingleClass)
{
    EXPECT_EQ(doneWords({classes({"G1"})}),
              "Absence de G1 enregistrée, mardi 24/11 (refaire le geste pour annuler)");
    EXPECT_EQ(doneWords({students({"G1"})}),
              "Absence d’étudiants de G1 enregistrée, mardi 24/11 (refaire le geste pour annuler)");
}

TEST(DoneWords, tellWhatWasTakenBack)
{
    EXPECT_EQ(doneWords({classes({}, {"G1"})}), "Absence de G1 retirée, mardi 24/11");
    EXPECT_EQ(doneWords({students({}, {"A", "B"})}),
              "Absence d’étudiants de 2 classes retirée, mardi 24/11");
}

TEST(DoneWords, tellBothWhereClassesDiffered)
{
    EXPECT_EQ(doneWords({classes({"B", "C"}, {"A"})}),
              "Absence de 2 classes enregistrée, celle de A retirée, mardi 24/11 (refaire le geste "
              "pour annuler)");
}

TEST(DoneWords, tellBothGesturesOfOneClick)
{
    EXPECT_EQ(
        doneWords({students({"A"}), classes({}, {"A"})}),
        "Absence d’étudiants de A enregistrée ; absence de A retirée, mardi 24/11 (refaire le "
        "geste pour annuler)");
}

TEST(DoneWords, sayThatAClassHasNoName)
{
    EXPECT_EQ(doneWords({classes({""})}), "Absence de la classe sans nom enregistrée, mardi "
                                          "24/11 (refaire le geste pour annuler)");
}

TEST(DoneWords, areEmptyWhereNothingWasDone)
{
    EXPECT_EQ(doneWords({}), QString());
}
