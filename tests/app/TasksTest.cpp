// Whole tasks of a user with the keyboard alone, from the window's start to what he wanted. The
// keys of each are counted in docs/tasks.md; the third one, an absence, is in AbsenceMenuTest.cpp.

#include "app/asking/AskingDesk.h"
#include "print/Pdf.h"
#include "support/TestFolder.h"

#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>

using namespace test;

namespace
{

/// Today is Wednesday, 19 March 2025. Salle 205, in zone 2 like B1, has G2 on Mondays at 14h00 and
/// G3 on Thursdays at 10h15.
class ATask : public TheAnswers, public testing::WithParamInterface<DatabaseKind>
{
protected:
    ATask() : TheAnswers(GetParam())
    {
        database.execute("update salle set Nom='Salle 205' where Nom='B2'");
        database.execute("update emplois set Salle='Salle 205', Seance='Lundi3', Debut='14h00' "
                         "where Salle='B2'");
        database.execute("update emplois set Salle='Salle 205', Seance='Jeudi2' "
                         "where Seance='Mardi2'");
    }
};

TEMPORA_ON_BOTH_DATABASES(ATask);

} // namespace

TEST_P(ATask, whoIsInARoomOnADateAtTwo)
{
    open();
    hands.press({"ctrl+d"});
    hands.type("31032025"); // a Monday
    ASSERT_TRUE(until([this] { return plan()["date"].toString() == "2025-03-31"; }));
    ASSERT_NE(ask<QWidget>({"ctrl+f"}, "FindWindow"), nullptr);
    hands.type("205");
    expectRows("Found",
               {"Le jour affiché, lundi",
                "Salle 205|lundi 14h00–15h30|Salle 205|G2, Physique, Petit", "Dans la semaine",
                "Salle 205|jeudi 10h15–11h45|Salle 205|G3, Chimie, Roux"});
    hands.press({"Return"}); // and to its box, with who else it may be
    ASSERT_TRUE(until([this] { return view()->framedRoom() == "Salle 205"; }));
    const auto cell = view()->framedCell();
    ASSERT_TRUE(cell);
    EXPECT_TRUE(view()->table().nameOf(*cell).startsWith("Salle 205, 14h00 à 15h30, G2, Petit"))
        << view()->table().nameOf(*cell).toStdString();
    EXPECT_EQ(plan()["date"].toString(), "2025-03-31");
}

TEST_P(ATask, printsThePlanOfAZoneForTomorrow)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("demain.pdf");
    open();
    int dialogs = 0;
    const DialogAnswer answers([&](QDialog& dialog) {
        ++dialogs;
        auto* name = dialog.findChild<QLineEdit*>("filename"); // of "Print to File (PDF)"
        ASSERT_NE(name, nullptr);
        name->setText(path); // a user has a printer, or the folder of last time
        ASSERT_TRUE(until([&] { return dialog.isActiveWindow(); }));
        hands.press({"Return"});
        EXPECT_TRUE(until([&] { return !dialog.isVisible(); }));
    });
    hands.press({"ctrl+t", "alt+Right", "alt+o", "alt+z", "Down", "Down"});
    ASSERT_TRUE(until([this] { return form().cb_Locaux.text() == "2"; }));
    expectRooms({"B1", "Salle 205"});
    EXPECT_EQ(plan()["date"].toString(), "2025-03-20");
    hands.press({"ctrl+p"});
    ASSERT_TRUE(until([&] { return dialogs == 1 && bytesOf(path).contains("%%EOF"); }));
    const Pdf printed(bytesOf(path));
    EXPECT_EQ(printed.pageCount(), 1);
    const QString text = printed.text(1);
    EXPECT_TRUE(text.contains("Occupation des Salles du Jeudi")) << text.toStdString();
    EXPECT_TRUE(text.contains("Salle 205")) << text.toStdString();
    EXPECT_TRUE(text.contains("B1")) << text.toStdString();
    EXPECT_TRUE(text.contains("Roux")) << text.toStdString();
    EXPECT_FALSE(text.contains("A2")) << text.toStdString();
}
