#include "shell/ShellDesk.h"
#include "support/WithoutPrivileges.h"

#include <QFile>
#include <array>
#include <tuple>

using namespace test;

namespace
{

class Shutdown : public OnBothDatabases
{
protected:
    void SetUp() override
    {
        createTinyFaculty(database());
        desk.start();
    }

    /// Closes the window and returns the settings that were written, "key=value".
    QStringList writtenAtClosing()
    {
        const QStringList before = desk.setup.settingsText().split('\n');
        desk.shell().Form_Unload();
        QStringList written;
        for (const QString& line : desk.setup.settingsText().split('\n')) {
            if (!before.contains(line)) {
                written.append(line);
            }
        }
        return written;
    }

    ShellDesk desk{database()};
};

TEMPORA_ON_BOTH_DATABASES(Shutdown);

} // namespace

TEST_P(Shutdown, writesNothingWhenNothingChanged)
{
    EXPECT_EQ(writtenAtClosing(), QStringList());
}

TEST_P(Shutdown, writesNothingWhenTheRoomsPerPageAreTheSameNumberAgain)
{
    desk.form().Total_L_P.setText("20");
    desk.form().Total_L_P.setText("19");
    EXPECT_EQ(writtenAtClosing(), QStringList());
}

TEST_P(Shutdown, writesTheRoomsPerPageAsTheyStand)
{
    desk.form().Total_L_P.setText("20");
    EXPECT_EQ(writtenAtClosing(), QStringList({"Total_L_P=20"}));
}

TEST_P(Shutdown, comparesTheRoomsPerPageAsNumbers)
{
    desk.form().Total_L_P.setText("19,0");
    EXPECT_EQ(writtenAtClosing(), QStringList());
}

TEST_P(Shutdown, writesTheDisplayOptionsThatChanged)
{
    desk.form().XOpEns.setChecked(false);
    EXPECT_EQ(writtenAtClosing(), QStringList({"ChkEnseignant=0"}));
    desk.start();
    EXPECT_FALSE(desk.form().XOpEns.isChecked());
    desk.form().XOpEns.setChecked(true);
    desk.form().XOpCl.setChecked(false);
    desk.form().XpMat.setChecked(false);
    EXPECT_EQ(writtenAtClosing(), QStringList({"ChkClasse=0", "ChkEnseignant=1", "ChkMatiere=0"}));
}

TEST_P(Shutdown, writesThePaletteThatWasChosen)
{
    desk.chosenFile = desk.writePalette("Bleu.mpl");
    desk.form().Command4.press();
    EXPECT_EQ(writtenAtClosing(), QStringList({"Palette=" + desk.chosenFile}));
}

TEST_P(Shutdown, writesNoPaletteThatWasChosenAgain)
{
    desk.setup.set("Palette", desk.writePalette("Bleu.mpl"));
    desk.start();
    desk.chosenFile = desk.setup.path("Bleu.mpl");
    desk.form().Command4.press();
    EXPECT_EQ(writtenAtClosing(), QStringList());
}

TEST_P(Shutdown, writesAnEmptyPaletteInThePlaceOfOneThatFailed)
{
    desk.setup.set("Palette", desk.setup.path("Absente.mpl"));
    desk.start();
    EXPECT_EQ(writtenAtClosing(), QStringList({"Palette="}));
}

TEST_P(Shutdown, writesNoOtherChoice)
{
    form::PlanForm& form = desk.form();
    form.ChkGrille.setChecked(false);
    form.CbTranche.setListIndex(1);
    form.cb_Locaux.setListIndex(2);
    form.Colorer.setChecked(false);
    form.Chk_Type.setChecked(true);
    EXPECT_EQ(writtenAtClosing(), QStringList());
}

TEST_P(Shutdown, writesWhatHasChangedSinceTheOptionsWereSaved)
{
    form::CheckBox& classes = desk.form().XOpCl;
    const bool atStart = classes.isChecked();
    classes.setChecked(!atStart);
    desk.form().Total_L_P.setText("20");
    desk.shell().saveOptions(); // the session may end
    EXPECT_EQ(desk.setup.saved("ChkClasse"), atStart ? "0" : "1");
    EXPECT_EQ(desk.setup.saved("Total_L_P"), "20");
    classes.setChecked(atStart); // but went on
    desk.form().Total_L_P.setText("21");
    desk.shell().Form_Unload();
    EXPECT_EQ(desk.setup.saved("ChkClasse"), atStart ? "1" : "0");
    EXPECT_EQ(desk.setup.saved("Total_L_P"), "21");
}

TEST_P(Shutdown, closesTheDatabaseAndHappensOnce)
{
    desk.form().Total_L_P.setText("20");
    desk.shell().Form_Unload();
    EXPECT_EQ(errorNumberOf([&] { desk.shell().engine().readSeanceTypes(); }),
              runtime::ErrorNumber::DatabaseFailure);
    desk.setup.set("Total_L_P", "7");
    desk.shell().Form_Unload();
    EXPECT_EQ(desk.setup.saved("Total_L_P"), "7");
}

TEST_P(Shutdown, closesTheDatabaseAlsoWhenTheSettingsCannotBeSaved)
{
    desk.form().Total_L_P.setText("20");
    QFile::setPermissions(desk.setup.settingsFile(), QFile::ReadOwner);
    const WithoutPrivileges ordinaryUser;
    const runtime::RunTimeError error = errorOf([&] { desk.shell().Form_Unload(); });
    EXPECT_EQ(error.number(), runtime::ErrorNumber::PathFileAccess);
    EXPECT_TRUE(error.activity().contains(desk.setup.settingsFile()))
        << error.activity().toStdString();
    EXPECT_EQ(errorNumberOf([&] { desk.shell().engine().readSeanceTypes(); }),
              runtime::ErrorNumber::DatabaseFailure);
}

TEST_P(Shutdown, afterAStartThatFailedWritesNothing)
{
    database().execute("DROP TABLE typeseance");
    const QString before = desk.setup.settingsText();
    static_cast<void>(errorOf([&] { static_cast<void>(desk.load()); }));
    desk.form().XOpEns.setChecked(false);
    desk.shell().Form_Unload();
    EXPECT_EQ(desk.setup.settingsText(), before);
}

TEST_P(Shutdown, inTheMiddleOfARefreshEndsIt)
{
    int rows = 0;
    desk.whileYielding = [&] {
        if (++rows == 2) {
            desk.shell().Form_Unload();
        }
    };
    desk.form().OptA().select();
    EXPECT_EQ(rows, 2);
}

TEST_P(Shutdown, leavesAnotherNumberOfAnOptionAloneUntilItChanges)
{
    const QStringList keys{"ChkEnseignant", "ChkClasse", "ChkMatiere"};
    for (const QString& key : keys) {
        desk.setup.set(key, "2"); // only 1 is ticked
    }
    desk.start();
    const auto options = [this] {
        form::PlanForm& form = desk.form();
        return std::array{&form.XOpEns, &form.XOpCl, &form.XpMat};
    };
    for (const form::CheckBox* option : options()) {
        EXPECT_FALSE(option->isChecked());
    }
    EXPECT_EQ(writtenAtClosing(), QStringList());
    desk.start();
    for (form::CheckBox* option : options()) {
        option->setChecked(true);
        option->setChecked(false); // as at the start again
    }
    EXPECT_EQ(writtenAtClosing(), QStringList());
    EXPECT_EQ(desk.setup.saved("ChkMatiere"), "2");
    desk.start();
    for (form::CheckBox* option : options()) {
        option->setChecked(true);
    }
    EXPECT_EQ(writtenAtClosing(), QStringList({"ChkClasse=1", "ChkEnseignant=1", "ChkMatiere=1"}));
    desk.start();
    for (form::CheckBox* option : options()) {
        option->setChecked(false);
    }
    EXPECT_EQ(writtenAtClosing(), QStringList({"ChkClasse=0", "ChkEnseignant=0", "ChkMatiere=0"}));
}

TEST_P(Shutdown, leavesARoomsPerPageThatTheBoxCannotShowAloneUntilItChanges)
{
    // As the settings have it, as box and plan take it, and how many of A2, B1, B2 and C1 are
    // drawn below A1.
    for (const auto& [set, taken, drawn] :
         {std::tuple("0", "1", 1U), std::tuple("-3", "1", 1U), std::tuple("40", "29", 4U)}) {
        desk.setup.set("Total_L_P", set);
        desk.start();
        EXPECT_EQ(desk.form().Total_L_P.text(), taken) << set;
        EXPECT_EQ(desk.shell().engine().content().rows.size(), drawn) << set;
        EXPECT_EQ(writtenAtClosing(), QStringList()) << set;
        EXPECT_EQ(desk.setup.saved("Total_L_P"), set);
        desk.start();
        desk.form().Total_L_P.setText("3");
        EXPECT_EQ(writtenAtClosing(), QStringList({"Total_L_P=3"})) << set;
    }
}

TEST_P(Shutdown, writesWhetherEveryRoomHasARowOnceThatWasChanged)
{
    desk.form().EveryRoom.setChecked(true);
    EXPECT_EQ(writtenAtClosing(), QStringList({"Toutes_Salles=True"}));
    desk.start();
    desk.form().EveryRoom.setChecked(false);
    EXPECT_EQ(writtenAtClosing(), QStringList({"Toutes_Salles=False"}));
}

TEST_P(Shutdown, leavesOtherWordsForEveryRoomAsTheyAre)
{
    desk.setup.set("Toutes_Salles", "Vrai");
    desk.start();
    EXPECT_EQ(writtenAtClosing(), QStringList());
}
