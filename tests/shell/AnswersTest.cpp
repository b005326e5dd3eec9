#include "shell/Answers.h"

#include "files/WholeFile.h"
#include "shell/ShellDesk.h"

#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>

using namespace test;

namespace
{

/// Questions about the tiny faculty, asked on the command line.
class Answers : public OnBothDatabases
{
protected:
    void SetUp() override { createTinyFaculty(database()); }

    void write(const QStringList& arguments)
    {
        ShellDesk desk(database());
        if (!semaineA.isEmpty()) {
            desk.setup.set("SemaineA", semaineA);
        }
        desk.load();
        shell::writeAnswer(desk.shell(),
                           shell::CommandLine::parse(QStringList{"tempora"} + arguments));
    }
    /// What is written for a question, whose file is the first argument's value.
    QJsonObject answer(const QString& option, const QStringList& arguments)
    {
        write(QStringList{option, file} + arguments);
        return QJsonDocument::fromJson(fileText(file).toUtf8()).object();
    }
    /// The values under a key in the objects of an array.
    static QStringList each(const QJsonValue& array, const char* key)
    {
        QStringList values;
        for (const QJsonValue value : array.toArray()) {
            values << value.toObject()[QLatin1String(key)].toVariant().toString();
        }
        return values;
    }
    /// The line that a mistake is answered with.
    QString refusal(const QStringList& arguments)
    {
        try {
            write(arguments);
        } catch (const shell::UsageError& error) {
            return QString::fromUtf8(error.what());
        }
        ADD_FAILURE() << "no mistake is found";
        return {};
    }

    QTemporaryDir folder{processFolder() + "/answers-XXXXXX"};
    QString file = folder.filePath("answer.json");
    QString semaineA;
    const QStringList firstSlot{"--day", "0", "--from", "8h30", "--to", "10h00"};
};

TEMPORA_ON_BOTH_DATABASES(Answers);

} // namespace

TEST_P(Answers, tellWhichRoomsAreFree)
{
    const QJsonObject told = answer("--free", firstSlot);
    EXPECT_EQ(each(told["rooms"], "room"), QStringList({"B2", "A1", "B1"})); // by places
    EXPECT_EQ(each(told["rooms"], "free_from"), QStringList({"510", "510", "510"}));
    EXPECT_EQ(each(told["rooms"], "free_to"), QStringList({"615", "1035", "840"}));
    EXPECT_EQ(told["rooms"].toArray()[1].toObject(), (QJsonObject{{"room", "A1"},
                                                                  {"places", 30},
                                                                  {"zone", 1},
                                                                  {"department", "INFO"},
                                                                  {"free_from", 510},
                                                                  {"free_to", 1035}}));
    EXPECT_EQ(told["rooms"].toArray()[0].toObject()["department"], QJsonValue());
    EXPECT_EQ(each(told["taken"], "room"), QStringList({"A2", "C1"}));
    const QJsonArray by = told["taken"].toArray()[0].toObject()["by"].toArray();
    ASSERT_EQ(by.size(), 1);
    EXPECT_EQ(by[0].toObject(), (QJsonObject{{"kind", "course"},
                                             {"part", "A"},
                                             {"rooms", QJsonArray{"A2"}},
                                             {"classes", QJsonArray{"G1"}},
                                             {"teachers", QJsonArray{"Dupont", "Durand"}},
                                             {"subject", "Algèbre"},
                                             {"day", 0},
                                             {"slot", 1},
                                             {"start", 510},
                                             {"minutes", 90},
                                             {"weeks", "all"},
                                             {"date", QJsonValue()}}));
    EXPECT_TRUE(told["unknown"].toArray().isEmpty());
}

TEST_P(Answers, takeOnlyTheRoomsThatAreAskedFor)
{
    const auto rooms = [this](const QStringList& further) {
        return each(answer("--free", firstSlot + further)["rooms"], "room");
    };
    EXPECT_EQ(rooms({"--places", "30"}), QStringList({"A1", "B1"}));
    EXPECT_EQ(rooms({"--zone", "2"}), QStringList({"B2", "B1"}));
    EXPECT_EQ(rooms({"--zone", "0"}), QStringList({"B2", "A1", "B1"}));
    EXPECT_EQ(rooms({"--department", "INFO"}), QStringList({"A1", "B1"}));
    EXPECT_EQ(rooms({"--department", "INFO", "--zone", "2"}), QStringList({"B1"}));
}

TEST_P(Answers, takeADepartmentForTheOneThatTheDatabaseTakesItFor)
{
    // The plan compares it so, too: neither product minds case, a server no blanks behind it.
    database().execute(QStringList("update salle set `Département` = 'Info' where Nom = 'B1'"));
    const auto rooms = [this](const QString& department) {
        return each(answer("--free", firstSlot + QStringList{"--department", department})["rooms"],
                    "room");
    };
    EXPECT_EQ(rooms("INFO"), QStringList({"A1", "B1"}));
    EXPECT_EQ(rooms("Info"), QStringList({"A1", "B1"}));
    EXPECT_EQ(rooms("info"), QStringList({"A1", "B1"})); // spelt as in no row
    EXPECT_EQ(
        each(answer("--week-of", {"--teacher", "Roux", "--department", "inFO"})["items"], "room"),
        each(answer("--week-of", {"--teacher", "Roux", "--department", "INFO"})["items"], "room"));
    if (database().usesMySql()) {
        EXPECT_EQ(rooms("info "), QStringList({"A1", "B1"}));
    } else {
        EXPECT_TRUE(refusal(QStringList{"--free", file, "--department", "info "} + firstSlot)
                        .startsWith("--department : "));
    }
}

TEST_P(Answers, countMakeUpsOnTheirDate)
{
    const QStringList second{"--from", "10h15", "--to", "11h45"};
    const auto taken = [&](const QStringList& when) {
        return each(answer("--free", second + when)["taken"], "room");
    };
    EXPECT_EQ(taken({"--day", "0"}), QStringList({"B2"}));
    EXPECT_EQ(taken({"--date", "2025-03-17"}), QStringList({"A2", "B2"}));
    EXPECT_EQ(taken({"--date", "2025-03-10"}), QStringList({"B2"}));
    EXPECT_EQ(taken({"--date", "2025-03-10", "--weeks-running", "2"}), QStringList({"A2", "B2"}));
    EXPECT_EQ(taken({"--date", "2025-07-14"}), QStringList()); // behind the period
}

TEST_P(Answers, knowTheWeekOfADateWhereTheSettingsTellIt)
{
    const auto teachers = [this](const QStringList& when) {
        const QJsonArray taken =
            answer("--free", QStringList{"--from", "8h30", "--to", "10h00"} + when)["taken"]
                .toArray();
        return each(taken.last().toObject()["by"], "teachers"); // of C1
    };
    const auto parts = [this](const QStringList& when) {
        const QJsonArray taken =
            answer("--free", QStringList{"--from", "8h30", "--to", "10h00"} + when)["taken"]
                .toArray();
        return each(taken.last().toObject()["by"], "part");
    };
    EXPECT_EQ(parts({"--date", "2025-03-17"}), QStringList({"A", "B"}));
    EXPECT_EQ(parts({"--date", "2025-03-17", "--week", "B"}), QStringList({"B"}));
    semaineA = "2025-03-03";
    EXPECT_EQ(parts({"--date", "2025-03-17"}), QStringList({"A"}));
    EXPECT_EQ(parts({"--date", "2025-03-24"}), QStringList({"B"}));
    EXPECT_EQ(parts({"--date", "2025-02-24"}), QStringList({"B"})); // before it
    EXPECT_EQ(parts({"--date", "2025-03-17", "--week", "all"}), QStringList({"A", "B"}));
    EXPECT_EQ(parts({"--date", "2025-03-17", "--weeks-running", "2"}), QStringList({"A", "B"}));
    semaineA = "lundi";
    EXPECT_EQ(errorNumberOf([&] {
                  std::ignore = teachers({"--date", "2025-03-17"});
              }),
              runtime::ErrorNumber::TypeMismatch);
}

TEST_P(Answers, tellTheWeekOfSomebody)
{
    const auto week = [this](const QStringList& who) {
        const QJsonValue items = answer("--week-of", who)["items"];
        return each(items, "day").join(' ') + '/' + each(items, "start").join(' ');
    };
    EXPECT_EQ(week({"--room", "A2"}), "0 1/510 615");
    EXPECT_EQ(week({"--teacher", "roux"}), "0 1/510 615");
    EXPECT_EQ(week({"--class", "G2"}), "0 0/615 840");
    EXPECT_EQ(week({"--matter", "Analyse"}), "0 0/840 840");
    EXPECT_EQ(week({"--room", "A2", "--date", "2025-03-19"}), "0 0 1/510 615 615");
    EXPECT_EQ(week({"--teacher", "Blanc", "--week", "A"}), "/");
    EXPECT_EQ(refusal({"--week-of", file, "--room", "Z9"}), "--room : « Z9 » n’existe pas");
    EXPECT_EQ(refusal({"--week-of", file, "--teacher", "Personne"}),
              "--teacher : « Personne » n’existe pas");
}

TEST_P(Answers, tellTheWeekOfAllRooms)
{
    const auto rooms = [this](const QStringList& further) {
        QStringList all;
        const QJsonArray items =
            answer("--week-of", QStringList{"--every-room"} + further)["items"].toArray();
        for (const QJsonValue item : items) {
            all << item["rooms"].toVariant().toStringList().join('+');
        }
        all.removeDuplicates();
        return all;
    };
    QStringList all = rooms({});
    all.sort();
    EXPECT_EQ(all, QStringList({"A2", "B1", "B2", "C1"}));
    EXPECT_EQ(rooms({"--zone", "2", "--day", "0"}), QStringList({"B2", "B1"}));
    EXPECT_TRUE(rooms({"--date", "2025-03-17"}).contains("A2"));
    const auto write = [this](const char* ending, const QStringList& further) {
        const QString path = folder.filePath(QLatin1String("all.") + QLatin1String(ending));
        this->write(QStringList{"--week-of", path, "--every-room"} + further);
        return path;
    };
    const QString page = fileText(write("html", {}));
    EXPECT_TRUE(page.contains("<h1>Toutes les salles</h1>"));
    for (const char* room : {"A1", "A2", "B1", "B2", "C1"}) {
        EXPECT_TRUE(page.contains(QStringLiteral(">%1<").arg(room))) << room;
    }
    EXPECT_FALSE(fileText(write("html", {"--zone", "2"})).contains(">A1<"));
    EXPECT_TRUE(fileText(write("csv", {})).startsWith("Jour;"));
    QFile pdf(write("pdf", {}));
    EXPECT_TRUE(pdf.open(QIODevice::ReadOnly));
    EXPECT_TRUE(pdf.readAll().startsWith("%PDF-"));
}

TEST_P(Answers, areNoCalendarOfAllRooms)
{
    EXPECT_EQ(refusal({"--week-of", folder.filePath("all.ics"), "--every-room"}),
              "--every-room : ne va pas avec un calendrier (.ics) : il est d’une salle, d’un "
              "enseignant ou d’une classe");
    EXPECT_TRUE(refusal({"--week-of", file, "--every-room", "--room", "A1"})
                    .startsWith("--week-of : demande "));
    EXPECT_EQ(refusal({"--clashes", file, "--every-room"}),
              "--every-room : ne va pas avec --clashes");
}

TEST_P(Answers, areWrittenAsACalendarOfThePeriodOrOfAWeek)
{
    const QString calendar = folder.filePath("plan.ics");
    const auto starts = [&](const QStringList& arguments) {
        write(QStringList{"--week-of", calendar} + arguments);
        QStringList found;
        for (const QString& line : fileText(calendar).split("\r\n")) {
            if (line.startsWith("DTSTART;TZID=")) {
                found << line.section(':', 1);
            }
        }
        return found;
    };
    // 18 Mondays from 3 February to 2 June, the make-up of 17 March and the exam of 9 June.
    const QStringList ofDupont = starts({"--teacher", "Dupont"});
    EXPECT_EQ(ofDupont.size(), 18 + 2);
    EXPECT_EQ(ofDupont.first(), "20250203T083000");
    EXPECT_TRUE(ofDupont.contains("20250317T101500"));
    EXPECT_EQ(ofDupont.mid(18), QStringList({"20250602T083000", "20250609T083000"}));
    EXPECT_EQ(starts({"--room", "A2", "--date", "2025-03-19"}),
              QStringList({"20250317T083000", "20250317T101500", "20250318T101500"}));
    semaineA = "2025-02-03"; // then the Mondays of the weeks B are 10 and 24 February and so on
    const QStringList ofBlanc = starts({"--teacher", "Blanc"});
    EXPECT_EQ(ofBlanc.size(), 9);
    EXPECT_EQ(ofBlanc.mid(0, 2), QStringList({"20250210T083000", "20250224T083000"}));
}

TEST_P(Answers, areNoCalendarWhereNobodyKnowsWhichWeekIsWhich)
{
    const QString calendar = folder.filePath("plan.ics");
    EXPECT_EQ(refusal({"--week-of", calendar, "--room", "C1"}),
              "Les dates des semaines A et B ne sont pas connues : indiquez dans le paramètre "
              "SemaineA le lundi d’une semaine A (AAAA-MM-JJ)");
    EXPECT_FALSE(QFile::exists(calendar));
    // Told on the line for one week.
    write({"--week-of", calendar, "--room", "C1", "--date", "2025-03-17", "--week", "B"});
    EXPECT_TRUE(fileText(calendar).contains("SUMMARY:Optique – G3\r\n"));
}

TEST_P(Answers, areNoCalendarWhereMakeUpsOrExamsCannotBeRead)
{
    const QString calendar = folder.filePath("plan.ics");
    database().execute("drop table examen");
    EXPECT_THROW(write({"--week-of", calendar, "--room", "A2"}), files::ExportError);
    EXPECT_FALSE(QFile::exists(calendar));
    // The week of the teaching weeks has none.
    EXPECT_EQ(each(answer("--week-of", {"--room", "A2"})["items"], "day").size(), 2);
}

TEST_P(Answers, findNames)
{
    const QJsonValue hits = answer("--find", {"--text", "DU"})["hits"];
    EXPECT_EQ(each(hits, "what"), QStringList({"teacher", "teacher"}));
    EXPECT_EQ(each(hits, "name"), QStringList({"Dupont", "Durand"}));
    EXPECT_TRUE(answer("--find", {"--text", "zzz"})["hits"].toArray().isEmpty());
}

TEST_P(Answers, areRefusedWhereThereIsNothingToTellOf)
{
    EXPECT_EQ(refusal(QStringList{"--free", file, "--tranche", "Automne"} + firstSlot),
              "La période « Automne » n’a aucun cours");
    EXPECT_EQ(refusal(QStringList{"--free", file, "--zone", "9"} + firstSlot),
              "--zone : aucune salle n’est de la zone 9");
    EXPECT_TRUE(refusal(QStringList{"--free", file, "--department", "X"} + firstSlot)
                    .startsWith("--department : aucune salle n’est du département « X »"));
    EXPECT_TRUE(refusal(QStringList{"--free", file, "--tranche", "Hiver"} + firstSlot)
                    .startsWith("--tranche : « Hiver » n’existe pas"));
    EXPECT_FALSE(QFile::exists(file));
}

TEST_P(Answers, takeNothingForFreeThatCouldNotBeRead)
{
    writeFile(file, "old");
    database().execute("drop table ratrap");
    EXPECT_THROW(
        write({"--free", file, "--date", "2025-03-17", "--from", "10h15", "--to", "11h45"}),
        files::ExportError);
    EXPECT_EQ(fileText(file), "old");
    // On a day of the week no make-up plays a part.
    EXPECT_EQ(each(answer("--free", firstSlot)["taken"], "room"), QStringList({"A2", "C1"}));
    database().execute("drop table emplois");
    EXPECT_THROW(write(QStringList{"--free", file} + firstSlot), runtime::RunTimeError);
}

TEST_P(Answers, tellWhatClashes)
{
    EXPECT_TRUE(answer("--clashes", {})["clashes"].toArray().isEmpty());
    database().execute(
        "insert into emplois (Tranche, Seance, Salle, Classe, Enseignant1, newnature, "
        "Debut) values (1, 'Lundi1', 'A2', 'G2', 'Petit', '00', '8h30')");
    const QJsonArray clashes = answer("--clashes", {})["clashes"].toArray();
    ASSERT_EQ(clashes.size(), 1);
    const QJsonObject clash = clashes[0].toObject();
    EXPECT_EQ(clash["kind"].toString(), "room");
    EXPECT_EQ(clash["name"].toString(), "A2");
    EXPECT_EQ(clash["day"].toInt(-1), 0);
    EXPECT_TRUE(clash["date"].isNull());
    EXPECT_EQ(clash["weeks"].toString(), "all");
    EXPECT_EQ(each(clash["holders"], "start"), QStringList({"510", "510"}));
    EXPECT_TRUE(clash["sentence"].toString().contains("A2"))
        << clash["sentence"].toString().toStdString();
}

TEST_P(Answers, tellHowMuchTheRoomsAreUsed)
{
    const QJsonObject told = answer("--use", {"--week", "A"});
    EXPECT_EQ(each(told["rooms"], "room"), QStringList({"A1", "A2", "B1", "B2", "C1"}));
    // Four slots on each of six days; B1's course of three hours reaches into the fourth.
    EXPECT_EQ(each(told["rooms"], "slots"), QStringList({"24", "24", "24", "24", "24"}));
    EXPECT_EQ(each(told["rooms"], "held"), QStringList({"0", "2", "2", "1", "1"}));
    EXPECT_DOUBLE_EQ(told["share"].toDouble(), 6.0 / 120);
    const QJsonObject first = told["slots"].toArray()[0].toObject();
    EXPECT_EQ(first,
              (QJsonObject{{"day", 0}, {"slot", 1}, {"rooms", 5}, {"held", 2}, {"share", 0.4}}));
    // A2: G1 with 3 students and G3 with 2; B1: 2 in each of two slots; B2: nobody; C1: 2.
    EXPECT_DOUBLE_EQ(told["seats_share"].toDouble(), 11.0 / (24 * (30 + 40 + 100 + 20 + 12)));
    EXPECT_EQ(each(answer("--use", {"--zone", "1"})["rooms"], "room"), QStringList({"A1", "A2"}));
    database().execute("drop table etudiant");
    EXPECT_TRUE(answer("--use", {})["seats_share"].isNull());
    EXPECT_THROW(write({"--clashes", file}), files::ExportError);
}

TEST_P(Answers, areNarrowedToZoneDayAndDate)
{
    const auto names = [this](const QStringList& arguments) {
        QStringList rooms;
        for (const QJsonValue item : answer("--week-of", arguments)["items"].toArray()) {
            rooms << item.toObject()["rooms"].toArray()[0].toString();
        }
        return rooms;
    };
    // G3 is in C1 on Monday (two courses), in B1 on Monday, in A2 on Tuesday.
    EXPECT_EQ(names({"--class", "G3"}), QStringList({"C1", "C1", "B1", "A2"}));
    EXPECT_EQ(names({"--class", "G3", "--zone", "2"}), QStringList({"B1"}));
    EXPECT_EQ(names({"--class", "G3", "--day", "1"}), QStringList({"A2"}));
    database().execute(
        "insert into emplois (Tranche, Seance, Salle, Classe, Enseignant1, newnature, "
        "Debut) values (1, 'Lundi1', 'A2', 'G2', 'Petit', '00', '8h30')");
    const auto clashes = [this](const QStringList& arguments) {
        return answer("--clashes", arguments)["clashes"].toArray().size();
    };
    EXPECT_EQ(clashes({}), 1);
    EXPECT_EQ(clashes({"--zone", "1", "--day", "0"}), 1);
    EXPECT_EQ(clashes({"--zone", "2"}), 0);
    EXPECT_EQ(clashes({"--day", "1"}), 0);
    EXPECT_EQ(clashes({"--date", "2025-03-17"}), 1); // a Monday of the period
    EXPECT_EQ(clashes({"--date", "2025-03-18"}), 0);
    EXPECT_TRUE(refusal({"--clashes", file, "--zone", "7"}).startsWith("--zone : "));
    EXPECT_TRUE(refusal({"--week-of", folder.filePath("a.ics"), "--class", "G3", "--zone", "1"})
                    .startsWith("--zone : ne va pas avec un calendrier"));
}

TEST_P(Answers, tellWhereADateIsOutsideThePeriod)
{
    ShellDesk desk(database());
    desk.load();
    const auto told = [&](const QString& date) {
        return shell::writeAnswer(
            desk.shell(), shell::CommandLine::parse({"tempora", "--free", file, "--from", "8h30",
                                                     "--to", "10h", "--date", date}));
    };
    EXPECT_EQ(told("2025-06-06"), ""); // its last day
    EXPECT_EQ(told("2025-06-07"),
              "Le 07/06/2025 est hors de la période « Printemps » : aucun cours "
              "ne compte ce jour-là.");
    const shell::CommandLine line =
        shell::CommandLine::parse({"tempora", "--free", file, "--from", "8h30", "--to", "10h",
                                   "--date", "2025-05-30", "--weeks-running", "3"});
    EXPECT_TRUE(shell::writeAnswer(desk.shell(), line).startsWith("Le 13/06/2025 est hors de la"));
}

TEST_P(Answers, areNotGivenWithoutARoom)
{
    database().execute("delete from salle");
    for (const QStringList& question :
         {QStringList("--free") + QStringList(file) + firstSlot, QStringList{"--clashes", file},
          QStringList{"--find", file, "--text", "dup"}, QStringList{"--use", file},
          QStringList{"--week-of", file, "--teacher", "Martin"}}) {
        EXPECT_EQ(refusal(question), "La base ne connaît aucune salle")
            << question.front().toStdString();
    }
}

TEST_P(Answers, sayWhatTheyDoNotCountAsItHasNoDay)
{
    database().execute("update emplois set Seance='Mradi1' where Salle='C1'");
    ShellDesk desk(database());
    desk.load();
    const QString told = shell::writeAnswer(
        desk.shell(),
        shell::CommandLine::parse(QStringList{"tempora", "--free", file} + firstSlot));
    EXPECT_TRUE(told.startsWith("1 séance n’a pas de jour et n’occupe donc rien : G3, C1"))
        << told.toStdString();
    EXPECT_TRUE(told.contains("« Mradi1 » ne nomme aucun jour")) << told.toStdString();
}

TEST_P(Answers, areWrittenInTheFormThatTheFileAsksFor)
{
    const std::vector<QStringList> questions{
        QStringList("--free") + firstSlot, {"--find", "--text", "a"}, {"--clashes"}, {"--use"}};
    for (const QStringList& question : questions) {
        const auto bytes = [&](const QString& ending) {
            const QString path = folder.filePath("answer." + ending);
            write(QStringList{question.first(), path} + question.mid(1));
            QFile written(path);
            EXPECT_TRUE(written.open(QIODevice::ReadOnly));
            return written.readAll();
        };
        SCOPED_TRACE(question.first().toStdString());
        EXPECT_TRUE(bytes("json").startsWith("{"));
        EXPECT_TRUE(bytes("csv").startsWith("\xef\xbb\xbf"));
        EXPECT_TRUE(bytes("html").startsWith("<!DOCTYPE html>"));
        EXPECT_TRUE(bytes("PDF").startsWith("%PDF-"));
        EXPECT_EQ(bytes("pdf"), bytes("PDF"));
    }
}

TEST_P(Answers, areListsForSpreadsheets)
{
    const auto lines = [this](const QStringList& arguments) {
        const QString path = folder.filePath("answer.csv");
        write(QStringList{arguments.first(), path} + arguments.mid(1));
        return fileText(path).split("\r\n");
    };
    EXPECT_EQ(lines({"--week-of", "--class", "G2"}).mid(1),
              QStringList({"Lundi;10h15;11h45;B2;G2;Petit;Physique;toutes;cours",
                           "Lundi;14h00;17h00;B1;G2;Martin;Analyse;toutes;cours", ""}));
    // The make-up of Monday, 17 March, holds A2.
    EXPECT_EQ(
        lines({"--free", "--date", "2025-03-17", "--from", "10h15", "--to", "11h45", "--zone", "1"})
            .mid(1),
        QStringList({"libre;A1;30;1;INFO;8h30;17h15;;",
                     "occupée;A2;40;;;;;rattrapage du 17/03/2025, G1, Dupont, jusqu’à "
                     "11h45;",
                     ""}));
    // Of 24 slots on six days A2 is held in two, G1's 3 students and G3's 2 in its 40 places.
    const QStringList use = lines({"--use", "--week", "A", "--zone", "1"});
    EXPECT_TRUE(use.contains("salle;A2;1;40;2;24;8,3%;0,5%;;;;;")) << use.join('\n').toStdString();
    EXPECT_TRUE(use.contains("créneau;;;;;;50%;;2;Lundi;1;8h30–10h00;1"));
}
