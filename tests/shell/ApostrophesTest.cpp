// Names with an apostrophe, everyday words in French: as they stand, and with the setting
// "Apostrophes".

#include "absences/HeldKey.h"
#include "shell/ShellDesk.h"

using namespace test;

namespace
{

/// The tiny faculty whose rooms, classes, periods and departments have such names.
class Apostrophes : public OnBothDatabases
{
protected:
    void SetUp() override
    {
        createTinyFaculty(database());
        database().execute(
            {"update salle set Nom = 'Salle d''info' where Nom = 'A2'",
             "update salle set Département = 'L''info' where Nom = 'B1'",
             "update emplois set Salle = 'Salle d''info' where Salle = 'A2'",
             "update emplois set Classe = '1re d''anglais' where Classe = 'G1'",
             "update classe set Nom = '1re d''anglais' where Nom = 'G1'",
             "update etudiant set classe = '1re d''anglais' where classe = 'G1'",
             "update abscence set Classe = '1re d''anglais' where Classe = 'G1'",
             "update tranche set Tranche = 'Fin d''année' where Tranche = 'Automne'"});
    }
    /// The row of the room, as the export tells it.
    [[nodiscard]] static QJsonObject row(ShellDesk& desk, const QString& room)
    {
        for (const QJsonValue& each : desk.plan()["rows"].toArray()) {
            if (each.toObject()["room"].toString() == room) {
                return each.toObject();
            }
        }
        ADD_FAILURE() << room.toStdString();
        return {};
    }
    void click(ShellDesk& desk, absences::VirtualKey key)
    {
        absences::HeldKey keys(key);
        for (const plan::PlanRow& row : desk.shell().engine().content().rows) {
            if (row.room == "Salle d'info") {
                desk.shell().engine().clickMarker(row.boxes.at(0).marker, keys);
                return;
            }
        }
    }
};

TEMPORA_ON_BOTH_DATABASES(Apostrophes);

} // namespace

TEST_P(Apostrophes, areNotAskedAboutUnlessTurnedOn)
{
    for (const bool plain : {false, true}) {
        ShellDesk desk(database());
        desk.plain = plain;
        desk.play({"--day", "0"});
        EXPECT_EQ(row(desk, "Salle d'info")["unknown"].toArray().size(), 4);
        EXPECT_EQ(row(desk, "Salle d'info")["boxes"].toArray().size(), 0);
    }
}

TEST_P(Apostrophes, areNamesLikeAllOthersOnceTurnedOn)
{
    for (const bool plain : {false, true}) {
        ShellDesk desk(database());
        desk.setup.set("Apostrophes", "True");
        desk.plain = plain;
        desk.play({"--date", "2025-03-17"});
        const QJsonObject room = row(desk, "Salle d'info");
        EXPECT_FALSE(room.contains("unknown"));
        ASSERT_EQ(room["boxes"].toArray().size(), 1);
        const QJsonObject box = room["boxes"].toArray()[0].toObject();
        EXPECT_TRUE(box["text"].toString().startsWith("1re d'anglais"));
        EXPECT_EQ(box["students"].toInt(), 3);
        EXPECT_EQ(box["capacity"].toInt(), 25);
        EXPECT_TRUE(box["class_absent"].toBool());
        EXPECT_FALSE(desk.plan().contains("faults"));
    }
}

TEST_P(Apostrophes, chooseAPeriodAndADepartmentOnceTurnedOn)
{
    ShellDesk desk(database());
    desk.setup.set("Apostrophes", "True");
    desk.play({"--tranche", "Fin d'année"});
    EXPECT_EQ(desk.plan()["tranche"].toObject()["ident"].toInt(), 2);
}

TEST_P(Apostrophes, areMarkedAndTakenBackOnceTurnedOn)
{
    ShellDesk desk(database());
    desk.setup.set("Apostrophes", "True");
    desk.play({"--date", "2025-03-17"});
    const QString recorded = "select count(*) from abscence where Classe = '1re d''anglais'";
    click(desk, absences::VirtualKey::Shift); // recorded already: taken back
    EXPECT_EQ(database().read(recorded), QList<QStringList>({{"0"}}));
    click(desk, absences::VirtualKey::Shift);
    EXPECT_EQ(database().read(recorded), QList<QStringList>({{"1"}}));
    click(desk, absences::VirtualKey::Ctrl);
    EXPECT_EQ(database().read("select Classe, Nom from etud_abs"),
              QList<QStringList>({{"1re d'anglais", "1re d'anglais"}}));
}

/// A class whose name turns the search for its absence into one for anybody's.
TEST_P(Apostrophes, deleteNobodyElsesAbsence)
{
    const QString name = "x' OR '1'='1";
    database().execute({"update emplois set Salle = 'A2', Classe = 'x'' OR ''1''=''1' "
                        "where Classe = '1re d''anglais'",
                        "update salle set Nom = 'A2' where Nom = 'Salle d''info'"});
    const QList<QStringList> before = database().read("select Classe from abscence");
    for (const bool turnedOn : {false, true}) {
        ShellDesk desk(database());
        desk.setup.set("Apostrophes", turnedOn ? "True" : "False");
        desk.play({"--date", "2025-03-17"});
        absences::HeldKey keys(absences::VirtualKey::Shift);
        const auto& rows = desk.shell().engine().content().rows;
        const int marker = rows.at(0).boxes.at(0).marker;
        EXPECT_EQ(desk.shell().engine().markers().at(marker).Classes, name);
        if (turnedOn) {
            desk.shell().engine().clickMarker(marker, keys);
            EXPECT_EQ(database().read("select count(*) from abscence"),
                      QList<QStringList>({{QString::number(before.size() + 1)}}));
        } else {
            const runtime::RunTimeError error =
                errorOf([&] { desk.shell().engine().clickMarker(marker, keys); });
            EXPECT_EQ(error.number(), runtime::ErrorNumber::StatementRefused);
            EXPECT_EQ(error.text(), "The record found belongs to another class.");
            EXPECT_EQ(database().read("select Classe from abscence"), before);
        }
    }
}

TEST_P(Apostrophes, sayWhichValueOfTheirsDoesNotConvert)
{
    ShellDesk desk(database());
    desk.setup.set("Apostrophes", "peut-être");
    EXPECT_EQ(errorOf([&] { desk.load(); }).activity(),
              "Lecture du paramètre « Apostrophes » (valeur « peut-être »)");
}
