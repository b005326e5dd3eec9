#include "shell/ShellDesk.h"

using namespace test;
using runtime::ErrorNumber;

namespace
{

class Startup : public OnBothDatabases
{
protected:
    void SetUp() override { createTinyFaculty(database()); }

    /// The error that the start ends with. The settings file must be as it was.
    runtime::RunTimeError errorAtStart()
    {
        const QString before = desk.setup.settingsText();
        const runtime::RunTimeError error = errorOf([this] { static_cast<void>(desk.load()); });
        EXPECT_EQ(desk.setup.settingsText(), before);
        return error;
    }

    ShellDesk desk{database()};
};

TEMPORA_ON_BOTH_DATABASES(Startup);

} // namespace

TEST_P(Startup, withNoSettingsShowsNineteenRoomsTheGridAndAllThreeParts)
{
    desk.load();
    EXPECT_EQ(desk.form().Total_L_P.text(), "19");
    EXPECT_TRUE(desk.form().ChkGrille.isChecked());
    EXPECT_TRUE(desk.form().XOpEns.isChecked());
    EXPECT_TRUE(desk.form().XOpCl.isChecked());
    EXPECT_TRUE(desk.form().XpMat.isChecked());
    EXPECT_EQ(desk.form().Label5.caption, "Défaut"); // no palette
}

TEST_P(Startup, showsWhichKindOfDatabaseIsInUse)
{
    desk.load();
    const bool mySql = database().usesMySql();
    EXPECT_EQ(desk.form().ImgSql.visible, mySql);
    EXPECT_EQ(desk.form().ImgAccess.visible, !mySql);
}

TEST_P(Startup, leavesTheOptionsAsTheWindowsDesignHasThem)
{
    desk.load();
    const form::PlanForm& form = desk.form();
    EXPECT_EQ(form.CbJour.text(), "Lundi");
    EXPECT_TRUE(form.OptFixe().isSelected());
    EXPECT_TRUE(form.OpEns().isSelected());
    EXPECT_EQ(form.cb_Locaux.text(), "0");
    EXPECT_FALSE(form.Chk_Type.isChecked());
    EXPECT_FALSE(form.xOpExam.isChecked());
    EXPECT_FALSE(form.Check1.isChecked());
    EXPECT_FALSE(form.Check2.isChecked());
    EXPECT_FALSE(form.EveryRoom.isChecked());
    EXPECT_FALSE(form.Chk_Compt.isChecked());
    EXPECT_TRUE(form.Colorer.isChecked());
    EXPECT_TRUE(form.Check3.isChecked());
    EXPECT_EQ(desk.shell().engine().state().period.CurrentDate, QDate(2025, 3, 17));
}

TEST_P(Startup, listsTheExamWeeks)
{
    desk.load();
    EXPECT_EQ(desk.form().Combo10.items(),
              QStringList({"1ère Sem. d'Examen", "2ème Sem. d'Examen", "Sem. de Contrôle"}));
    EXPECT_EQ(desk.form().Combo10.listIndex(), 0);
    EXPECT_EQ(desk.form().Semn.caption, "1");
}

TEST_P(Startup, showsTheProgramsVersion)
{
    desk.load();
    EXPECT_EQ(desk.form().Lab_Ver.caption, TEMPORA_VERSION);
    EXPECT_EQ(desk.form().Lab_Ver.caption.count('.'), 2);
}

TEST_P(Startup, readsHeaderPeriodsDepartmentsAndRooms)
{
    desk.load();
    const form::PlanForm& form = desk.form();
    EXPECT_EQ(form.Label4[4].caption, "Faculté Témoin");
    EXPECT_EQ(desk.shell().engine().state().establishment.UniversityName, "Université d'Essai");
    EXPECT_EQ(desk.shell().engine().state().establishment.AcademicYear, 2025);
    EXPECT_EQ(form.CbTranche.items(), QStringList({"Printemps", "Automne"}));
    EXPECT_EQ(form.CbTranche.text(), "Printemps");
    EXPECT_EQ(form.Label11.caption, "1");
    EXPECT_EQ(form.Label4[1].caption, "03/FÉVRIER/2025");
    EXPECT_EQ(form.Label4[3].caption, "06/JUIN/2025");
    EXPECT_EQ(form.Combo1.items(), QStringList({"INFO", "MATH"}));
    EXPECT_EQ(desk.shell().engine().state().page.RoomTotal, 5);
    EXPECT_EQ(desk.shell().engine().state().page.RowsShown, 4);
    EXPECT_FALSE(form.Command3.enabled); // 5 rooms, 19 a page
}

TEST_P(Startup, drawsOnceTheWindowIsShown)
{
    desk.load();
    EXPECT_EQ(desk.shell().engine().refreshCount(), 0U);
    desk.shell().Form_Activate();
    EXPECT_EQ(desk.shell().engine().refreshCount(), 1U);
    EXPECT_EQ(shownRooms(desk.plan()), QStringList({"A2", "B1", "B2", "C1"}));
}

TEST_P(Startup, asksTheDatabaseEightTimes)
{
    // The establishment, the rooms (counted, listed and shown), all periods, the one of the
    // settings, its dates, the slots, the types of séances, the departments.
    desk.load();
    EXPECT_EQ(desk.shell().engine().statementCount(), 8);
}

TEST_P(Startup, asksTheDatabaseOneQuestionATimeInThePlainWay)
{
    // The rooms are counted and listed by statements of their own, and so is each of eleven slots.
    desk.plain = true;
    desk.load();
    EXPECT_EQ(desk.shell().engine().statementCount(), 20);
}

TEST_P(Startup, placesTheTotalsAboveTheWindowsBottom)
{
    desk.load();
    desk.form().scaleHeight = 10000;
    desk.shell().Form_Activate();
    const form::Place& total = desk.form().Tot[0].place;
    EXPECT_EQ(total.top, 10000 - total.height - 470);
    desk.shell().layOut(20000, 9000);
    EXPECT_EQ(total.top, 9000 - total.height - 470);
}

TEST_P(Startup, givesTheFocusToColorerOnActivationAndResize)
{
    desk.load();
    const int before = desk.form().colorerFocusRequests;
    desk.shell().Form_Activate();
    EXPECT_EQ(desk.form().colorerFocusRequests, before + 1);
    desk.shell().layOut(20000, 9000); // the plan's rows have changed, not the window
    EXPECT_EQ(desk.form().colorerFocusRequests, before + 1);
    desk.shell().Form_Resize();
    EXPECT_EQ(desk.form().colorerFocusRequests, before + 2);
}

TEST_P(Startup, takesTheSettings)
{
    desk.setup.set("Total_L_P", "3");
    desk.setup.set("ChkEnseignant", "0");
    desk.setup.set("ChkClasse", "0");
    desk.setup.set("ChkMatiere", "1");
    desk.setup.set("Grille_Visible", "False");
    desk.setup.set("Tranche", "2");
    desk.load();
    const form::PlanForm& form = desk.form();
    EXPECT_EQ(form.Total_L_P.text(), "3");
    EXPECT_EQ(desk.shell().engine().state().page.RowsShown, 3);
    EXPECT_TRUE(form.Command3.enabled); // 5 rooms, 3 a page
    EXPECT_FALSE(form.XOpEns.isChecked());
    EXPECT_FALSE(form.XOpCl.isChecked());
    EXPECT_TRUE(form.XpMat.isChecked());
    EXPECT_FALSE(form.ChkGrille.isChecked());
    EXPECT_EQ(form.CbTranche.text(), "Automne");
    EXPECT_EQ(form.Label4[1].caption, "16/SEPTEMBRE/2024");
}

TEST_P(Startup, readsBooleansAsWordsInTwoLanguagesAndAsNumbers)
{
    for (const char* no : {"False", "false", "Faux", "FAUX", "0", "0.0"}) {
        desk.setup.set("Grille_Visible", no);
        EXPECT_FALSE(desk.load().form().ChkGrille.isChecked()) << no;
    }
    for (const char* yes : {"True", "TRUE", "Vrai", "vrai", "1", "-1", "2", "0.5"}) {
        desk.setup.set("Grille_Visible", yes);
        EXPECT_TRUE(desk.load().form().ChkGrille.isChecked()) << yes;
    }
}

TEST_P(Startup, capsTheRoomsOfAPageAtTwentyNine)
{
    desk.setup.set("Total_L_P", "35");
    desk.load();
    EXPECT_EQ(desk.form().Total_L_P.text(), "29");
}

TEST_P(Startup, loadsThePaletteOfTheSettings)
{
    desk.setup.set("Palette", desk.writePalette("Été.mpl"));
    desk.start();
    EXPECT_EQ(desk.form().Label5.caption, "Été");
    // Row i has entry i + 2.
    EXPECT_EQ(rowColors(desk.plan()), QStringList({"#030a14", "#040a14", "#050a14", "#060a14"}));
}

TEST_P(Startup, withAPaletteThatCannotBeReadUsesNone)
{
    desk.setup.set("Palette", desk.setup.path("Styles/Absente.mpl"));
    desk.load();
    EXPECT_EQ(desk.form().Label5.caption, "Défaut");
}

TEST_P(Startup, withAnUnknownPeriodShowsAnEmptyPlan)
{
    desk.setup.set("Tranche", "9");
    desk.start();
    const QJsonObject plan = desk.plan();
    EXPECT_EQ(plan["tranche"]["ident"].toInt(-1), 0);
    EXPECT_EQ(plan["tranche"]["name"].toString("none"), "");
    EXPECT_EQ(shownRooms(plan), QStringList({"A2", "B1", "B2", "C1"}));
    for (const QString& room : shownRooms(plan)) {
        EXPECT_TRUE(boxTexts(plan, room).isEmpty());
    }
}

TEST_P(Startup, withoutAnyRoomShowsAnEmptyPlan)
{
    database().execute("DELETE FROM salle");
    desk.start();
    EXPECT_EQ(desk.shell().engine().state().page.RowsShown, -1);
    EXPECT_EQ(shownRooms(desk.plan()), QStringList());
}

TEST_P(Startup, servesTwoHundredAndFiftySixRoomsAndRefusesOneMore)
{
    database().execute("DELETE FROM salle");
    QStringList rooms;
    for (int room = 0; room < 256; ++room) {
        rooms.append(QString("('R%1', 1, 20)").arg(room, 3, 10, QChar('0')));
    }
    database().execute("INSERT INTO salle (Nom, Zone, places) VALUES " + rooms.join(", "));
    desk.load();
    EXPECT_EQ(desk.shell().engine().state().page.RoomTotal, 256);
    database().execute("INSERT INTO salle (Nom, Zone, places) VALUES ('R256', 1, 20)");
    const runtime::RunTimeError error = errorAtStart();
    EXPECT_EQ(error.number(), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(error.activity(), "Lecture des places de 257 salles (256 au plus)");
}

TEST_P(Startup, keepsTheSixteenSeanceTypesAndRefusesOneMore)
{
    database().execute("INSERT INTO typeseance (Ref, NomCourt) VALUES (15, 'Stage')");
    desk.load();
    database().execute("INSERT INTO typeseance (Ref, NomCourt) VALUES (16, 'Visite')");
    const runtime::RunTimeError error = errorAtStart();
    EXPECT_EQ(error.number(), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(error.activity(), "Lecture du type de séance de référence 16");
}

TEST_P(Startup, refusesANegativeSeanceType)
{
    database().execute("INSERT INTO typeseance (Ref, NomCourt) VALUES (-1, 'Visite')");
    EXPECT_EQ(errorAtStart().number(), ErrorNumber::SubscriptOutOfRange);
}

TEST_P(Startup, stopsAtASlotWhoseTimeIsNone)
{
    database().execute("UPDATE seances SET Horaire1 = 'midi' WHERE Seance = 'Lundi2'");
    const runtime::RunTimeError error = errorAtStart();
    EXPECT_EQ(error.number(), ErrorNumber::TypeMismatch);
    EXPECT_TRUE(error.activity().contains("midi")) << error.activity().toStdString();
}

TEST_P(Startup, stopsAtASettingThatDoesNotConvert)
{
    struct Wrong {
        const char* key;
        const char* value;
        ErrorNumber number;
    };
    for (const Wrong& wrong : {Wrong{"SKin", "oui", ErrorNumber::TypeMismatch},
                               Wrong{"Total_L_P", "x", ErrorNumber::TypeMismatch},
                               Wrong{"Total_L_P", "", ErrorNumber::TypeMismatch},
                               Wrong{"Total_L_P", "40000", ErrorNumber::Overflow},
                               Wrong{"ChkEnseignant", "oui", ErrorNumber::TypeMismatch},
                               Wrong{"ChkClasse", "a", ErrorNumber::TypeMismatch},
                               Wrong{"ChkMatiere", "99999", ErrorNumber::Overflow},
                               Wrong{"Grille_Visible", "abc", ErrorNumber::TypeMismatch},
                               Wrong{"Tranche", "premier", ErrorNumber::TypeMismatch},
                               Wrong{"Tranche", "3000000000", ErrorNumber::Overflow}}) {
        ShellDesk one(database());
        one.setup.set(wrong.key, wrong.value);
        const runtime::RunTimeError error = errorOf([&] { static_cast<void>(one.load()); });
        EXPECT_EQ(error.number(), wrong.number) << wrong.key;
        EXPECT_TRUE(error.activity().contains(
            QString("paramètre « %1 » (valeur « %2 »)").arg(wrong.key, wrong.value)))
            << error.activity().toStdString();
    }
}

TEST_P(Startup, stopsAtADatabaseKindThatDoesNotConvert)
{
    desk.setup.set("Mysql", "abc");
    const runtime::RunTimeError error = errorAtStart();
    EXPECT_EQ(error.message(), "Run-time error '13':\n\nType mismatch\n\nLecture du paramètre "
                               "« Mysql » (valeur « abc »)");
}

TEST_P(Startup, stopsAtTheFirstTableThatIsMissing)
{
    for (const char* table : {"Département", "typeseance", "seances", "tranche", "etablissement"}) {
        database().execute(QString("DROP TABLE `%1`").arg(table));
        const runtime::RunTimeError error = errorAtStart();
        EXPECT_EQ(error.number(), ErrorNumber::TableMissing) << table;
        EXPECT_NE(error.activity(), "") << table;
    }
}

TEST_P(Startup, stopsAtAColumnThatIsMissing)
{
    database().execute("ALTER TABLE typeseance RENAME COLUMN NomCourt TO Nom");
    const runtime::RunTimeError error = errorAtStart();
    EXPECT_EQ(error.number(), ErrorNumber::ItemNotFound);
    EXPECT_EQ(error.activity(), "Lecture du type de séance de référence 0");
}

TEST(StartupOnSqlite, stopsAtADateThatIsNone) // elsewhere a date column holds nothing but dates
{
    TestDatabase database(DatabaseKind::Sqlite);
    createTinyFaculty(database);
    database.execute("UPDATE tranche SET DateDebut = 'bientôt' WHERE ident = 1");
    ShellDesk desk(database);
    const runtime::RunTimeError error = errorOf([&] { static_cast<void>(desk.load()); });
    EXPECT_EQ(error.number(), ErrorNumber::TypeMismatch);
    EXPECT_EQ(error.activity(), "Lecture des dates de la période « Printemps »");
}

// What follows concerns the choice of the database itself.

TEST(StartupChoice, withNoSettingsOpensTheDataSourceMonKalo)
{
    const TestDatabase database(DatabaseKind::Sqlite);
    ShellDesk desk(database);
    desk.setup.unset("Base");
    const runtime::RunTimeError error = errorOf([&] { static_cast<void>(desk.load()); });
    // This machine has no such data source: the name is in what the driver manager looked for.
    EXPECT_EQ(error.number(), ErrorNumber::DatabaseFailure);
    EXPECT_EQ(error.activity(), "Ouverture de la base de données « MonKalo »");
    EXPECT_TRUE(desk.form().ImgAccess.visible);
}

TEST(StartupChoice, ofMySqlReadsTheFileOfTheBaseSaKalo)
{
    const TestDatabase database(DatabaseKind::Sqlite);
    ShellDesk desk(database);
    desk.setup.set("Mysql", "True");
    const runtime::RunTimeError error = errorOf([&] { static_cast<void>(desk.load()); });
    EXPECT_EQ(error.number(), ErrorNumber::FileNotFound);
    EXPECT_TRUE(error.activity().contains("SaKalo")) << error.activity().toStdString();
    EXPECT_TRUE(desk.form().ImgSql.visible);
}

TEST_P(Startup, leavesNoRoomOutWhereTheSettingsSaySo)
{
    desk.setup.set("Toutes_Salles", "True");
    desk.setup.set("Total_L_P", "2");
    desk.start();
    EXPECT_TRUE(desk.form().EveryRoom.isChecked());
    EXPECT_EQ(shownRooms(desk.plan()), QStringList({"A1", "A2"}));
    EXPECT_TRUE(desk.form().Command3.enabled);
    EXPECT_FALSE(desk.form().Command2.enabled);
    desk.form().Command3.press();
    EXPECT_EQ(shownRooms(desk.plan()), QStringList({"B1", "B2"}));
    desk.form().Command3.press();
    EXPECT_EQ(shownRooms(desk.plan()), QStringList({"C1"}));
    EXPECT_FALSE(desk.form().Command3.enabled);
}

TEST_P(Startup, leavesARoomOutWithoutTheSetting)
{
    desk.start();
    EXPECT_FALSE(desk.form().EveryRoom.isChecked());
    EXPECT_EQ(shownRooms(desk.plan()), QStringList({"A2", "B1", "B2", "C1"}));
}

TEST_P(Startup, opensOnTodayWhereTheSettingsSaySo)
{
    desk.setup.set("Ouvrir_Aujourdhui", "True");
    desk.start();
    EXPECT_EQ(desk.form().CbJour.text(), "Mercredi");
    EXPECT_EQ(desk.form().DTPicker1.value(), QDate(2025, 3, 19));
    EXPECT_EQ(desk.shell().engine().state().period.CurrentDate, QDate(2025, 3, 17));
    EXPECT_FALSE(desk.form().DTPicker1.visible);
    EXPECT_FALSE(desk.shell().fileDate().isValid());
    EXPECT_EQ(desk.shell().engine().refreshCount(), 1U);
}

TEST_P(Startup, opensOnTheMondayToComeOnASunday)
{
    desk.today = QDate(2025, 3, 23);
    desk.setup.set("Ouvrir_Aujourdhui", "1");
    desk.start();
    EXPECT_EQ(desk.form().CbJour.text(), "Lundi");
    EXPECT_EQ(desk.form().DTPicker1.value(), QDate(2025, 3, 24));
}
