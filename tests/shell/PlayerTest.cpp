#include "shell/ShellDesk.h"

using namespace test;

namespace
{

class Player : public OnBothDatabases
{
protected:
    void SetUp() override { createTinyFaculty(database()); }

    QJsonObject planAfter(const QStringList& arguments)
    {
        desk.play(arguments);
        return desk.plan();
    }

    /// The line that names the choice that the database does not have.
    QString refusal(const QStringList& arguments)
    {
        try {
            desk.play(arguments);
        } catch (const shell::UsageError& error) {
            return QString::fromUtf8(error.what());
        }
        ADD_FAILURE() << "everything is found";
        return {};
    }

    ShellDesk desk{database()};
};

TEMPORA_ON_BOTH_DATABASES(Player);

} // namespace

TEST_P(Player, playsNothingWithoutOptions)
{
    desk.start();
    const std::uint64_t redraws = desk.shell().engine().refreshCount();
    shell::play(desk.shell(), {});
    EXPECT_EQ(desk.shell().engine().refreshCount(), redraws);
}

TEST_P(Player, choosesThePeriodByName)
{
    const QJsonObject plan = planAfter({"--tranche", "Automne"});
    EXPECT_EQ(plan["tranche"]["ident"].toInt(), 2);
    EXPECT_EQ(boxTexts(plan, "A2").size(), 0);
    EXPECT_EQ(desk.form().Label4[1].caption, "16/SEPTEMBRE/2024");
}

TEST_P(Player, choosesThePeriodBeforeTheMode)
{
    // Automne ends on Friday, 31 January 2025 and has no exam weeks of its own: week 2 opens on the
    // second Monday after it.
    planAfter({"--tranche", "Automne", "--mode", "exam", "--exam-week", "2"});
    EXPECT_EQ(desk.form().Label4[1].caption, "10/FÉVRIER/2025");
    EXPECT_EQ(desk.form().Semn.caption, "2");
}

TEST_P(Player, choosesTheExamWeek)
{
    for (const auto& [week, monday] : QMap<QString, QString>{
             {"1", "2025-06-09"},
             {"2", "2025-06-16"},
             {"3", "2025-03-24"}}.toStdMap()) {
        EXPECT_EQ(planAfter({"--mode", "exam", "--exam-week", week})["date"].toString(), monday);
    }
}

TEST_P(Player, staysInTeachingMode)
{
    EXPECT_EQ(planAfter({"--mode", "teaching"})["mode"].toString(), "teaching");
}

TEST_P(Player, ticksExactlyTheListedDisplayOptions)
{
    EXPECT_EQ(boxTexts(planAfter({"--show", "class,type"}), "A2")[1], "G1\r\n (TD)\r\n");
    EXPECT_EQ(boxTexts(planAfter({"--show", "teacher"}), "A2")[1], " Dupont/Durand\r\n\r\n");
    EXPECT_EQ(boxTexts(planAfter({"--show", "subject"}), "A2")[1], " [Algèbre]\r\n");
    EXPECT_TRUE(boxTexts(planAfter({"--show", ""}), "A2").isEmpty());
}

TEST_P(Player, choosesTheKindOfWeek)
{
    EXPECT_EQ(boxTexts(planAfter({"--week", "A"}), "C1")[1], "G3\r\n Roux\r\n [Chimie]\r\n");
    EXPECT_EQ(boxTexts(planAfter({"--week", "B"}), "C1")[1], "G3  Blanc [Optique]\r\n");
    EXPECT_EQ(boxTexts(planAfter({"--week", "all"}), "C1")[1],
              "G3\r\n Roux\r\n [Chimie] = G3  Blanc [Optique]\r\n");
}

TEST_P(Player, filtersBySubject)
{
    const QJsonObject plan = planAfter({"--subject", "Physique"});
    EXPECT_EQ(boxTexts(plan, "B2")[2], "G2\r\n Petit\r\n \r\n");
    EXPECT_TRUE(boxTexts(plan, "A2").isEmpty());
    EXPECT_TRUE(desk.form().Cb_Mat.visible);
    EXPECT_FALSE(desk.form().Frame1.visible);
    EXPECT_EQ(desk.form().Cb_Mat.items(),
              QStringList({"Algèbre", "Analyse", "Chimie", "Optique", "Physique"}));
}

TEST_P(Player, choosesTheZone)
{
    // Room 0 of the page is never drawn: it is the room before the first one.
    const QJsonObject plan = planAfter({"--zone", "2"});
    EXPECT_EQ(plan["page"]["row0_room"].toString(), "B1");
    EXPECT_EQ(shownRooms(plan), QStringList({"B2"}));
}

TEST_P(Player, addsTheRoomsOfADepartmentToTheZone)
{
    EXPECT_EQ(shownRooms(planAfter({"--zone", "3", "--department", "INFO"})),
              QStringList({"B1", "C1"})); // A1 is row 0
    EXPECT_EQ(shownRooms(planAfter({"--zone", "3", "--department", "INFO", "--neutral"})),
              QStringList({"B1", "B2", "C1"}));
}

TEST_P(Player, showsADepartmentAloneInZoneZero)
{
    EXPECT_EQ(shownRooms(planAfter({"--department", "INFO"})), QStringList({"B1"}));
    EXPECT_EQ(shownRooms(planAfter({"--department", "MATH", "--neutral"})),
              QStringList({"B2", "C1"})); // A2 is row 0
}

TEST_P(Player, stepsThroughThePages)
{
    // With 2 rooms a page the pages start at 0 and 2; the second one skips 3 rooms, so B2 is its
    // row 0 and C1 its only drawn row.
    const QJsonObject first = planAfter({"--rooms-per-page", "2"});
    EXPECT_EQ(shownRooms(first), QStringList({"A2", "B1"}));
    EXPECT_TRUE(first["page"]["next_enabled"].toBool());
    const QJsonObject plan = planAfter({"--rooms-per-page", "2", "--page", "2"});
    EXPECT_EQ(shownRooms(plan), QStringList({"C1"}));
    EXPECT_EQ(QJsonDocument(plan["page"].toObject()).toJson(QJsonDocument::Compact),
              R"({"next_enabled":false,"offset":2,"previous_enabled":true,"room_total":5,)"
              R"("row0_room":"B2","rows_shown":1,"start":2})");
}

TEST_P(Player, staysOnTheLastPage)
{
    const QJsonObject plan = planAfter({"--rooms-per-page", "2", "--page", "9"});
    EXPECT_EQ(plan["page"]["start"].toInt(), 2);
    EXPECT_EQ(shownRooms(plan), QStringList({"C1"}));
}

TEST_P(Player, countsBeforeItChoosesTheDayAndAddsThePagesThatFollow)
{
    // Page 1: A2 40 in slot 1, B1 100 in slots 3 and 4. Page 2 adds C1 in slot 1 with the places of
    // its position in the list, one before its own: B2's 20.
    const QJsonObject plan =
        planAfter({"--page", "2", "--day", "0", "--counting", "--rooms-per-page", "2"});
    EXPECT_EQ(totals(plan),
              QStringList({"60", "-", "100", "100", "-", "-", "-", "-", "-", "-", "-"}));
}

TEST_P(Player, choosesTheDay)
{
    const QJsonObject plan = planAfter({"--day", "1"});
    EXPECT_EQ(plan["title"].toString(), "Occupation des Salles du Mardi");
    EXPECT_EQ(plan["date"].toString(), "2025-03-18");
    EXPECT_EQ(boxTexts(plan, "A2"), (QMap<int, QString>{{2, "G3\r\n Roux\r\n [Chimie]\r\n"}}));
}

TEST_P(Player, choosesTheDayOfADateWhileThePickerIsHidden)
{
    const QJsonObject plan = planAfter({"--date", "2025-04-22"});
    EXPECT_EQ(plan["title"].toString(), "Occupation des Salles du Mardi");
    EXPECT_EQ(plan["date"].toString(), "2025-04-22");
    EXPECT_EQ(boxTexts(plan, "A2").keys(), QList<int>({2}));
    EXPECT_EQ(desk.shell().engine().state().period.CurrentDate, QDate(2025, 4, 21));
}

TEST_P(Player, picksTheDateWhileThePickerIsShown)
{
    const QJsonObject plan = planAfter({"--makeup", "--date", "2025-04-22"});
    EXPECT_EQ(plan["title"].toString(), "Occupation des Salles du 22/04/25");
    EXPECT_EQ(plan["date"].toString(), "2025-04-22");
    EXPECT_EQ(desk.form().CbJour.text(), "Mardi");
}

TEST_P(Player, showsTheMakeUpsOfADateThatThePickerShowsAlready)
{
    // The Monday of this week: the picker holds it from the start.
    const QJsonObject plan = planAfter({"--makeup", "--date", "2025-03-17"});
    EXPECT_EQ(boxTexts(plan, "A2").keys(), QList<int>({1, 2}));
}

TEST_P(Player, showsMakeUpsWithoutADayOrADate)
{
    const QJsonObject plan = planAfter({"--makeup"});
    EXPECT_EQ(plan["title"].toString(), "Occupation des Salles du 17/03/25");
    EXPECT_EQ(boxTexts(plan, "A2"),
              (QMap<int, QString>{{1, "G1\r\n Dupont/Durand\r\n [Algèbre]\r\n"},
                                  {2, "G1\r\n Dupont\r\n [Algèbre]\r\n"}}));
}

TEST_P(Player, showsMakeUpsOnTheFirstDayOfAnExamWeek)
{
    const QJsonObject plan = planAfter({"--mode", "exam", "--makeup"});
    EXPECT_EQ(plan["title"].toString(), "Occupation des Salles du 09/06/25");
    EXPECT_EQ(plan["date"].toString(), "2025-06-09");
}

TEST_P(Player, countsWithoutADayOrADate)
{
    // Slot 1: A2 40 and C1 12; slot 2: B2 20; slots 3 and 4: B1 100.
    EXPECT_EQ(totals(planAfter({"--counting"})),
              QStringList({"52", "20", "100", "100", "-", "-", "-", "-", "-", "-", "-"}));
}

TEST_P(Player, countsFromTheFirstPageOnWithoutADayOrADate)
{
    const QStringList pages = {"--page", "2", "--counting", "--rooms-per-page", "2"};
    const QStringList counted = totals(planAfter(pages + QStringList{"--day", "0"}));
    EXPECT_EQ(counted.first(), "60");
    EXPECT_EQ(totals(planAfter(pages)), counted);
}

TEST_P(Player, stopsWhenTheWindowIsClosedInTheMiddleOfARedraw)
{
    desk.start();
    desk.whileYielding = [this] { desk.shell().Form_Unload(); };
    shell::play(desk.shell(), shell::CommandLine::parse({"tempora", "--week", "A", "--zone", "2",
                                                         "--day", "1", "--page", "2"}));
    EXPECT_TRUE(desk.form().OptA().isSelected());
    EXPECT_EQ(desk.form().cb_Locaux.text(), "0");
    EXPECT_EQ(desk.form().CbJour.text(), "Lundi");
}

TEST_P(Player, showsNoDayOnASunday)
{
    for (const QStringList& arguments :
         {QStringList{"--date", "2025-03-23"}, QStringList{"--makeup", "--date", "2025-03-23"}}) {
        const QJsonObject plan = planAfter(arguments);
        EXPECT_EQ(desk.form().CbJour.listIndex(), -1);
        EXPECT_EQ(plan["date"].toString(), "2025-03-23");
        EXPECT_EQ(desk.shell().engine().state().period.CurrentDate, QDate(2025, 3, 17));
        EXPECT_TRUE(boxTexts(plan, "A2").isEmpty());
    }
}

TEST_P(Player, countsTheSeatsOfTheVeryRoomsWhereEachHasARow)
{
    // On Monday A2 (40 places) is held in slot 1, B2 (20) in slot 2, B1 (100) in slot 3 and, for
    // 180 minutes, in slot 4, C1 (12) in slot 1.
    desk.play({"--every-room", "--rooms-per-page", "2", "--counting", "--page", "2"});
    EXPECT_EQ(shownRooms(desk.plan()), QStringList({"B1", "B2"}));
    EXPECT_EQ(totals(desk.plan()).mid(0, 4), QStringList({"40", "20", "100", "100"}));
    desk.form().Command3.press();
    EXPECT_EQ(shownRooms(desk.plan()), QStringList({"C1"}));
    EXPECT_EQ(totals(desk.plan()).mid(0, 4), QStringList({"52", "20", "100", "100"}));
}

TEST_P(Player, namesThePeriodsThereAre)
{
    EXPECT_EQ(refusal({"--tranche", "Hiver"}),
              "--tranche : « Hiver » n’existe pas ; valeurs acceptées : Printemps, Automne");
}

TEST_P(Player, namesTheDepartmentsThereAre)
{
    EXPECT_EQ(refusal({"--department", "GC"}),
              "--department : « GC » n’existe pas ; valeurs acceptées : INFO, MATH");
}

TEST_P(Player, namesTheSubjectsThereAre)
{
    EXPECT_EQ(refusal({"--subject", "Latin"}),
              "--subject : « Latin » n’existe pas ; valeurs acceptées : Algèbre, Analyse, Chimie, "
              "Optique, Physique");
}

TEST_P(Player, answersInOneLineWhateverTheDatabaseHolds)
{
    database().execute("UPDATE `matière` SET Nom = 'Lat\nin' WHERE Nom = 'Optique'");
    EXPECT_EQ(refusal({"--subject", "Grec"}).count('\n'), 0);
}
