#include "absences/GestureWords.h"

#include <gtest/gtest.h>

using absences::gestureWords;
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

TEST(GestureWords, countSeveralClasses)
{
    EXPECT_EQ(gestureWords({classes({"A", "B", "C", "D"})}),
              "Absence de 4 classes enregistrée, mardi 24/11 (refaire le geste pour annuler)");
}

TEST(GestureWords, nameASingleClass)
{
    EXPECT_EQ(gestureWords({classes({"G1"})}),
              "Absence de G1 enregistrée, mardi 24/11 (refaire le geste pour annuler)");
    EXPECT_EQ(gestureWords({students({"G1"})}),
              "Absence d’étudiants de G1 enregistrée, mardi 24/11 (refaire le geste pour annuler)");
}

TEST(GestureWords, tellWhatWasTakenBack)
{
    EXPECT_EQ(gestureWords({classes({}, {"G1"})}), "Absence de G1 retirée, mardi 24/11");
    EXPECT_EQ(gestureWords({students({}, {"A", "B"})}),
              "Absence d’étudiants de 2 classes retirée, mardi 24/11");
}

TEST(GestureWords, tellBothWhereClassesDiffered)
{
    EXPECT_EQ(gestureWords({classes({"B", "C"}, {"A"})}),
              "Absence de 2 classes enregistrée, celle de A retirée, mardi 24/11 (refaire le geste "
              "pour annuler)");
}

TEST(GestureWords, tellBothGesturesOfOneClick)
{
    EXPECT_EQ(
        gestureWords({students({"A"}), classes({}, {"A"})}),
        "Absence d’étudiants de A enregistrée ; absence de A retirée, mardi 24/11 (refaire le "
        "geste pour annuler)");
}

TEST(GestureWords, sayThatAClassHasNoName)
{
    EXPECT_EQ(gestureWords({classes({""})}), "Absence de la classe sans nom enregistrée, mardi "
                                             "24/11 (refaire le geste pour annuler)");
}

TEST(GestureWords, areEmptyWhereNothingWasDone)
{
    EXPECT_EQ(gestureWords({}), QString());
}
