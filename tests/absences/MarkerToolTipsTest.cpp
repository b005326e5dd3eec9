#include "absences/MarkerToolTips.h"

#include "support/RuntimeMatchers.h"

using namespace absences;

namespace
{

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
    const QString gestures =
        QStringLiteral("Maj + clic : enregistrer l’absence de la classe L1-INFO\n"
                       "Ctrl + clic : enregistrer l’absence d’étudiants de la classe L1-INFO");
    EXPECT_EQ(ZAbsToolTip(box), gestures);
    EXPECT_EQ(XAbsToolTip(box), gestures);
}

TEST(MarkerToolTips, tellWhatAClickTakesBack)
{
    plan::PlanBox box = boxOf(QStringLiteral("L1-INFO"));
    box.classAbsent = true;
    EXPECT_EQ(ZAbsToolTip(box),
              QStringLiteral("Maj + clic : retirer l’absence de la classe L1-INFO\n"
                             "Ctrl + clic : enregistrer l’absence d’étudiants de la classe "
                             "L1-INFO"));
    EXPECT_EQ(XAbsToolTip(box), QStringLiteral("Classe absente\n") + ZAbsToolTip(box));
    box.classAbsent = false;
    box.studentAbsent = true;
    EXPECT_EQ(ZAbsToolTip(box),
              QStringLiteral("Maj + clic : enregistrer l’absence de la classe L1-INFO\n"
                             "Ctrl + clic : retirer l’absence d’étudiants de la classe L1-INFO"));
}

TEST(MarkerToolTips, leaveTheOutcomeOpenWithSeveralClasses)
{
    const QString gestures = QStringLiteral(
        "Maj + clic : enregistrer ou retirer l’absence de chacune des classes A, B\n"
        "Ctrl + clic : enregistrer ou retirer l’absence d’étudiants de chacune des classes A, B");
    EXPECT_EQ(ZAbsToolTip(boxOf(QStringLiteral("A\tB"))), gestures);
    EXPECT_EQ(ZAbsToolTip(boxOf(QStringLiteral("A\tB\t"))), gestures);
}
