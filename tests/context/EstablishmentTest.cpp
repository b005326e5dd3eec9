#include "context/Establishment.h"

#include "context/ContextDesk.h"
#include "support/RuntimeMatchers.h"

#include <optional>

using namespace test;
using context::EstablishmentHeader;
using runtime::ErrorNumber;

namespace
{

class TheEstablishment : public OnBothDatabases
{
protected:
    void SetUp() override
    {
        Timetable timetable(database(), {"etablissement", "salle", "tranche"});
        timetable.row("etablissement", {{"Université", "Université de Kalo"},
                                        {"Nom", "Faculté des Sciences"},
                                        {"Année", 2026}});
        for (const char* room : {"A1", "A2", "B1"}) {
            timetable.row("salle", {{"Zone", room[0] == 'A' ? 1 : 2}, {"Nom", room}});
        }
        timetable.row("tranche", {{"ident", 1},
                                  {"Tranche", "S1"},
                                  {"DateDebut", QDate(2026, 9, 7)},
                                  {"DateFin", QDate(2027, 1, 29)}});
        timetable.row("tranche", {{"ident", 2},
                                  {"Tranche", "S2"},
                                  {"DateDebut", QDate(2027, 2, 8)},
                                  {"DateFin", QDate(2027, 6, 4)}});
        timetable.load();
        desk.emplace(database().usesMySql());
    }

    EstablishmentHeader load(const QString& tranche = "1")
    {
        return context::LoadEstablishment(desk->form, desk->database, desk->reads, desk->periods,
                                          desk->page,
                                          {"MonKalo", database().connectString(), tranche});
    }

    std::optional<ContextDesk> desk;
};

} // namespace

TEST_P(TheEstablishment, headsTheWindow)
{
    const EstablishmentHeader header = load();
    EXPECT_EQ(header.UniversityName, "Université de Kalo");
    EXPECT_EQ(header.EstablishmentName, "Faculté des Sciences");
    EXPECT_EQ(header.AcademicYear, 2026);
    EXPECT_EQ(desk->form.Label4[4].caption, "Faculté des Sciences");
}

TEST_P(TheEstablishment, isDescribedByTheFirstRowAlone)
{
    database().execute("INSERT INTO etablissement (Nom) VALUES ('Autre')");
    EXPECT_EQ(load().EstablishmentName, "Faculté des Sciences");
}

TEST_P(TheEstablishment, leavesEmptyWhatIsNullOrMissing)
{
    database().execute("UPDATE etablissement SET `Université`=NULL, `Année`=NULL");
    const EstablishmentHeader header = load();
    EXPECT_EQ(header.UniversityName, "");
    EXPECT_EQ(header.AcademicYear, 0);
    database().execute("DELETE FROM etablissement");
    EXPECT_EQ(load().EstablishmentName, "");
}

TEST_P(TheEstablishment, countsAllRooms)
{
    static_cast<void>(load());
    EXPECT_EQ(desk->page.RoomTotal, 3);
}

TEST_P(TheEstablishment, countsTheRoomsOfTheZone)
{
    desk->form.cb_Locaux.design({"0", "1", "2"}, 1);
    static_cast<void>(load());
    EXPECT_EQ(desk->page.RoomTotal, 2);
}

TEST_P(TheEstablishment, offersTheNextPageOnlyForMoreRoomsThanLines)
{
    desk->form.Total_L_P.setText("3");
    static_cast<void>(load());
    EXPECT_FALSE(desk->form.Command3.enabled);
    desk->form.Total_L_P.setText("2");
    static_cast<void>(load());
    EXPECT_TRUE(desk->form.Command3.enabled);
}

TEST_P(TheEstablishment, listsThePeriodsAndChoosesOne)
{
    static_cast<void>(load("2"));
    EXPECT_EQ(desk->form.CbTranche.items(), QStringList({"S1", "S2"}));
    EXPECT_EQ(desk->form.CbTranche.text(), "S2");
    EXPECT_EQ(desk->viewed.TrancheIdent, 2);
    EXPECT_EQ(desk->form.Label4[1].caption, "08/FÉVRIER/2027");
}

TEST_P(TheEstablishment, hasNoPeriodForAnUnknownNumber)
{
    static_cast<void>(load("7"));
    EXPECT_EQ(desk->form.CbTranche.text(), "");
    EXPECT_EQ(desk->viewed.TrancheIdent, 0);
}

TEST_P(TheEstablishment, refusesAPeriodNumberThatIsNone)
{
    const runtime::RunTimeError error = errorOf([&] { static_cast<void>(load("x")); });
    EXPECT_EQ(error.number(), ErrorNumber::TypeMismatch);
    EXPECT_EQ(error.activity(), "Choix de la période du paramètre « Tranche » (valeur « x »)");
}

TEST_P(TheEstablishment, refusesAYearThatDoesNotFitSixteenBits)
{
    database().execute("UPDATE etablissement SET `Année`=40000");
    EXPECT_EQ(errorNumberOf([&] { static_cast<void>(load()); }), ErrorNumber::Overflow);
}

TEST_P(TheEstablishment, namesTheDatabaseThatDoesNotOpenAndNoPassword)
{
    const runtime::RunTimeError error = errorOf([&] {
        static_cast<void>(context::LoadEstablishment(
            desk->form, desk->database, desk->reads, desk->periods, desk->page,
            {"Nulle Part", "DSN=Nulle Part;PASSWORD=s3cr&t", "1"}));
    });
    EXPECT_EQ(error.number(), ErrorNumber::DatabaseFailure);
    EXPECT_EQ(error.activity(), "Ouverture de la base de données « Nulle Part »");
    EXPECT_FALSE(error.message().contains("s3cr&t")) << error.message().toStdString();
}

TEST_P(TheEstablishment, namesTheTableThatIsMissing)
{
    const QList<QStringList> steps = {{"tranche", "Lecture des périodes (table « tranche »)"},
                                      {"salle", "Comptage des salles (table « salle »)"},
                                      {"etablissement", "Lecture de la table « etablissement »"}};
    for (const QStringList& step : steps) { // each of them comes before the one dropped before it
        database().execute("DROP TABLE " + step[0]);
        const runtime::RunTimeError error = errorOf([&] { static_cast<void>(load()); });
        EXPECT_EQ(error.number(), ErrorNumber::TableMissing) << qPrintable(step[0]);
        EXPECT_EQ(error.activity(), step[1]);
    }
}

TEST_P(TheEstablishment, namesTheColumnThatIsMissing)
{
    database().execute("ALTER TABLE etablissement RENAME COLUMN Nom TO Libelle");
    const runtime::RunTimeError error = errorOf([&] { static_cast<void>(load()); });
    EXPECT_EQ(error.number(), ErrorNumber::ItemNotFound);
    EXPECT_EQ(error.activity(), "Lecture de la table « etablissement »");
}

TEMPORA_ON_BOTH_DATABASES(TheEstablishment);
