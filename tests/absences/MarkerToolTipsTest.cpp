#include "absences/MarkerToolTips.h"

#include "support/RuntimeMatchers.h"

using namespace absences;

namespace
{

const QDate tuesday(2026, 11, 24);

plan::PlanBox boxOf(const QString& classList)
{
    plan::PlanBox box;
    box.cell.CellClassList = classList;
    return box;
}

} // namespace

TEST(MarkerToolTips, tellWhatAClickRecords)
{
    const plan::PlanBox box = boxOf(QStringLiteral("L1-INFO"));
    const QString gestures = QStringLiteral(
        "Maj + clic : enregistrer l’absence de la classe L1-INFO le mardi 24/11/2026\n"
        "Ctrl + clic : enregistrer l’absence d’étudiants de la classe L1-INFO le mardi 24/11/2026");
    EXPECT_EQ(ZAbsToolTip(box, tuesday), gestures);
}

TEST(MarkerToolTips, tellWhatAClickTakesBack)
{
    plan::PlanBox box = boxOf(QStringLiteral("L1-INFO"));
    box.classAbsent = true;
    EXPECT_EQ(
        ZAbsToolTip(box, tuesday),
        QStringLiteral("Maj + clic : retirer l’absence de la classe L1-INFO le mardi 24/11/2026\n"
                       "Ctrl + clic : enregistrer l’absence d’étudiants de la classe "
                       "L1-INFO le mardi 24/11/2026"));
    box.classAbsent = false;
    box.studentAbsent = true;
    EXPECT_EQ(ZAbsToolTip(box, tuesday),
              QStringLiteral(
                  "Maj + clic : enregistrer l’absence de la classe L1-INFO le mardi 24/11/2026\n"
                  "Ctrl + clic : retirer l’absence d’étudiants de la classe L1-INFO le mardi "
                  "24/11/2026"));
}

TEST(MarkerToolTips, leaveTheOutcomeOpenWithSeveralClasses)
{
    const QString gestures =
        QStringLiteral("Maj + clic : enregistrer ou retirer l’absence de chacune des classes A, B "
                       "le mardi 24/11/2026\n"
                       "Ctrl + clic : enregistrer ou retirer l’absence d’étudiants de chacune des "
                       "classes A, B le mardi 24/11/2026");
    EXPECT_EQ(ZAbsToolTip(boxOf(QStringLiteral("A\tB")), tuesday), gestures);
    EXPECT_EQ(ZAbsToolTip(boxOf(QStringLiteral("A\tB\t")), tuesday), gestures);
}

TEST(MarkerToolTips, countTheClassesWhereTheyAreTooManyToBeNamed)
{
    const plan::PlanBox box = boxOf(QStringLiteral("L1\tL2\tL3"));
    EXPECT_EQ(gestureWords(VirtualKey::Shift, box, tuesday, 3),
              QStringLiteral("enregistrer ou retirer l’absence de chacune des classes L1, L2, L3 "
                             "le mardi 24/11/2026"));
    EXPECT_EQ(gestureWords(VirtualKey::Ctrl, box, tuesday, 2),
              QStringLiteral("enregistrer ou retirer l’absence d’étudiants de chacune des 3 "
                             "classes le mardi 24/11/2026"));
}

TEST(MarkerToolTips, nameADozenClassesAndCountTheOthers)
{
    QStringList classes;
    for (int number = 1; number <= 29; ++number) {
        classes << QString("G%1").arg(number);
    }
    const QString text = ZAbsToolTip(boxOf(classes.join('\t')), tuesday);
    EXPECT_EQ(text.count(" G1, G2, G3, G4, G5, G6, G7, G8, G9, G10, G11, G12 et 17 autres le "), 2)
        << text.toStdString();
}
