#include "shell/CommandLine.h"

#include "support/RuntimeMatchers.h"
#include "support/TestFolder.h"
#include "support/WithoutPrivileges.h"

#include <QFile>

using namespace test;
using shell::CommandLine;

namespace
{

CommandLine parse(const QStringList& arguments)
{
    return CommandLine::parse(QStringList{"tempora"} + arguments);
}

/// The line that a mistake is answered with.
QString refusal(const QStringList& arguments)
{
    try {
        static_cast<void>(parse(arguments));
    } catch (const shell::UsageError& error) {
        return QString::fromUtf8(error.what());
    }
    ADD_FAILURE() << "no mistake is found";
    return {};
}

} // namespace

TEST(CommandLine, asksForAnExportAlsoWhereTheRestIsWrong)
{
    const auto asks = [](const QStringList& arguments) {
        return CommandLine::asksForFile(QStringList{"tempora"} + arguments);
    };
    EXPECT_TRUE(asks({"--day", "9", "--export", "plan.pdf"}));
    EXPECT_TRUE(asks({"--export=plan.pdf"}));
    EXPECT_TRUE(asks({"-export", "plan.pdf"}));
    EXPECT_TRUE(asks({"--free", "libre.json"}));
    EXPECT_TRUE(asks({"--week-of=semaine.json"}));
    EXPECT_TRUE(asks({"--find", "noms.json", "--text"}));
    EXPECT_FALSE(asks({}));
    EXPECT_FALSE(asks({"--exports", "export", "--day", "1"}));
}

TEST(CommandLine, withoutOptionsAsksForNothing)
{
    const CommandLine line = parse({});
    EXPECT_FALSE(line.help || line.version || line.neutral || line.makeup || line.counting);
    EXPECT_FALSE(line.plain || line.everyRoom);
    EXPECT_EQ(line.exportFile, "");
    EXPECT_EQ(line.settingsFile, "");
    EXPECT_FALSE(line.seed || line.tranche || line.mode || line.examWeek || line.week);
    EXPECT_FALSE(line.zone || line.department || line.roomsPerPage || line.show || line.subject);
    EXPECT_FALSE(line.day || line.date);
    EXPECT_EQ(line.page, 1);
}

TEST(CommandLine, readsEveryOption)
{
    const CommandLine line = parse({"--export",    "plan.json",
                                    "--tranche",   "Semestre 2",
                                    "--mode",      "exam",
                                    "--week",      "B",
                                    "--exam-week", "3",
                                    "--zone",      "9",
                                    "--neutral",   "--every-room",
                                    "--makeup",    "--rooms-per-page",
                                    "29",          "--department",
                                    "Génie civil", "--counting",
                                    "--day",       "5",
                                    "--page",      "4",
                                    "--subject",   "Algèbre",
                                    "--seed",      "2147483647"});
    EXPECT_EQ(line.exportFile, "plan.json");
    EXPECT_EQ(line.tranche, "Semestre 2");
    EXPECT_EQ(line.mode, CommandLine::Mode::Exam);
    EXPECT_EQ(line.week, CommandLine::Week::B);
    EXPECT_EQ(line.examWeek, 3);
    EXPECT_EQ(line.zone, 9);
    EXPECT_TRUE(line.neutral && line.makeup && line.counting && line.everyRoom);
    EXPECT_EQ(line.roomsPerPage, 29);
    EXPECT_EQ(line.department, "Génie civil");
    EXPECT_EQ(line.day, 5);
    EXPECT_EQ(line.page, 4);
    EXPECT_EQ(line.subject, "Algèbre");
    EXPECT_EQ(line.seed, 2147483647U);
}

TEST(CommandLine, readsAValueAfterAnEqualsSign)
{
    EXPECT_EQ(parse({"--zone=3"}).zone, 3);
}

TEST(CommandLine, readsADate)
{
    EXPECT_EQ(parse({"--date", "2025-03-17"}).date, QDate(2025, 3, 17));
}

TEST(CommandLine, readsTheOtherModeAndWeeks)
{
    EXPECT_EQ(parse({"--mode", "teaching"}).mode, CommandLine::Mode::Teaching);
    EXPECT_EQ(parse({"--week", "all"}).week, CommandLine::Week::All);
    EXPECT_EQ(parse({"--week", "A"}).week, CommandLine::Week::A);
}

TEST(CommandLine, listsExactlyTheDisplayOptionsThatAreTicked)
{
    const auto some = parse({"--show", "subject,class"}).show.value();
    EXPECT_TRUE(some.cls && some.subject);
    EXPECT_FALSE(some.teacher || some.type || some.invigilator);
    const auto all = parse({"--show", "class,teacher,subject,type,invigilator"}).show.value();
    EXPECT_TRUE(all.cls && all.teacher && all.subject && all.type && all.invigilator);
    const auto none = parse({"--show", ""}).show.value();
    EXPECT_FALSE(none.cls || none.teacher || none.subject || none.type || none.invigilator);
}

TEST(CommandLine, readsTheSwitchesOfTheProgramItself)
{
    EXPECT_TRUE(parse({"--help"}).help);
    EXPECT_TRUE(parse({"--version"}).version);
    EXPECT_TRUE(parse({"--plain"}).plain);
}

TEST(CommandLine, takesThePictureAndItsEndingInAnyCase)
{
    EXPECT_EQ(parse({"--export", "Plan.PNG"}).exportFile, "Plan.PNG");
}

TEST(CommandLine, exportsInEveryFormThatItsHelpNames)
{
    for (const char* ending : {"json", "png", "pdf", "csv", "html"}) {
        EXPECT_EQ(parse({"--export", QString("plan.") + ending}).exportFile,
                  QString("plan.") + ending);
    }
}

TEST(CommandLine, exportsAllPagesWhereAFileCanHoldThem)
{
    EXPECT_FALSE(parse({"--export", "plan.pdf"}).allPages);
    for (const char* file : {"plan.pdf", "plan.csv", "plan.html"}) {
        EXPECT_TRUE(parse({"--export", file, "--all-pages"}).allPages);
    }
}

TEST(CommandLine, namesEveryOptionInItsHelp)
{
    const QString help = CommandLine::helpText();
    for (const char* option :
         {"export",  "all-pages", "settings",   "tranche",   "mode",           "exam-week",
          "week",    "zone",      "department", "neutral",   "rooms-per-page", "show",
          "subject", "makeup",    "counting",   "day",       "date",           "page",
          "seed",    "help",      "version",    "every-room"}) {
        EXPECT_TRUE(help.contains("  --" + QString(option) + ' ')) << option;
    }
}

// Each mistake is answered with one line that names the option and what it accepts.

struct Mistake {
    const char* name;
    QStringList arguments;
    QString answer;
};

void PrintTo(const Mistake& mistake, std::ostream* stream)
{
    *stream << mistake.arguments.join(' ').toStdString();
}

class CommandLineMistake : public testing::TestWithParam<Mistake>
{
};

TEST_P(CommandLineMistake, isAnsweredWithTheOptionAndWhatItAccepts)
{
    const QString answer = refusal(GetParam().arguments);
    EXPECT_EQ(answer, GetParam().answer);
    EXPECT_FALSE(answer.contains('\n'));
}

INSTANTIATE_TEST_SUITE_P(
    Of, CommandLineMistake,
    testing::Values(
        Mistake{"unknownOption",
                {"--colour"},
                "Option inconnue : --colour ; options acceptées : voir --help"},
        Mistake{"unknownLetter", {"-x"}, "Option inconnue : --x ; options acceptées : voir --help"},
        Mistake{"argument", {"plan.json"}, "Argument inattendu : « plan.json » ; voir --help"},
        Mistake{"missingLastValue",
                {"--zone"},
                "--zone : il manque une valeur ; valeurs acceptées : 0..9"},
        Mistake{"missingValueAfterASingleDash",
                {"-zone"},
                "--zone : il manque une valeur ; valeurs acceptées : 0..9"},
        Mistake{"missingValueBeforeAnotherOption",
                {"--zone", "--day", "2"},
                "--zone : il manque une valeur ; valeurs acceptées : 0..9"},
        Mistake{"switchWithValue", {"--neutral=1"}, "--neutral : n’accepte pas de valeur"},
        Mistake{"everyRoomOfAnAnswer",
                {"--clashes", "c.json", "--every-room"},
                "--every-room : ne va pas avec --clashes"},
        Mistake{"everyRoomWithValue", {"--every-room=1"}, "--every-room : n’accepte pas de valeur"},
        Mistake{"exportEnding",
                {"--export", "plan.doc"},
                "--export : valeur « plan.doc » refusée ; valeurs acceptées : "
                "FICHIER.json|.png|.pdf|.csv|.html"},
        Mistake{"allPagesOfAPicture",
                {"--export", "plan.png", "--all-pages"},
                "--all-pages : demande --export en .pdf, .csv ou .html"},
        Mistake{"allPagesOfTheWindow",
                {"--all-pages"},
                "--all-pages : demande --export en .pdf, .csv ou .html"},
        Mistake{"settingsFile",
                {"--settings", "/nowhere/a.ini"},
                "--settings : le fichier « /nowhere/a.ini » n’existe pas ; valeurs acceptées : "
                "FICHIER.ini"},
        Mistake{"mode",
                {"--mode", "examen"},
                "--mode : valeur « examen » refusée ; valeurs acceptées : teaching|exam"},
        Mistake{"examWeek",
                {"--mode", "exam", "--exam-week", "4"},
                "--exam-week : valeur « 4 » refusée ; valeurs acceptées : 1|2|3"},
        Mistake{"examWeekWhileTeaching",
                {"--exam-week", "1"},
                "--exam-week : demande --mode exam ; valeurs acceptées : 1|2|3"},
        Mistake{
            "week", {"--week", "C"}, "--week : valeur « C » refusée ; valeurs acceptées : all|A|B"},
        Mistake{"zoneTooLarge",
                {"--zone", "10"},
                "--zone : valeur « 10 » refusée ; valeurs acceptées : 0..9"},
        Mistake{"zoneNegative",
                {"--zone", "-1"},
                "--zone : valeur « -1 » refusée ; valeurs acceptées : 0..9"},
        Mistake{"zoneWord",
                {"--zone", "nord"},
                "--zone : valeur « nord » refusée ; valeurs acceptées : 0..9"},
        Mistake{"neutralAlone", {"--neutral"}, "--neutral : demande --department"},
        Mistake{"roomsPerPage",
                {"--rooms-per-page", "30"},
                "--rooms-per-page : valeur « 30 » refusée ; valeurs acceptées : 1..29"},
        Mistake{"noRoomPerPage",
                {"--rooms-per-page", "0"},
                "--rooms-per-page : valeur « 0 » refusée ; valeurs acceptées : 1..29"},
        Mistake{"show",
                {"--show", "class,room"},
                "--show : valeur « class,room » refusée ; valeurs acceptées : "
                "class,teacher,subject,type,invigilator"},
        Mistake{"day", {"--day", "6"}, "--day : valeur « 6 » refusée ; valeurs acceptées : 0..5"},
        Mistake{"emptyDate",
                {"--date", ""},
                "--date : valeur « » refusée ; valeurs acceptées : AAAA-MM-JJ"},
        Mistake{"dateThatIsNone",
                {"--date", "2025-02-30"},
                "--date : valeur « 2025-02-30 » refusée ; valeurs acceptées : AAAA-MM-JJ"},
        Mistake{"dateWithSlashes",
                {"--date", "2025/03/17"},
                "--date : valeur « 2025/03/17 » refusée ; valeurs acceptées : AAAA-MM-JJ"},
        Mistake{"dateWithMoreBehindIt",
                {"--date", "2025-03-17 8h30"},
                "--date : valeur « 2025-03-17 8h30 » refusée ; valeurs acceptées : AAAA-MM-JJ"},
        Mistake{"dayAndDate",
                {"--day", "0", "--date", "2025-03-17"},
                "--date : ne va pas avec --day ; valeurs acceptées : AAAA-MM-JJ"},
        Mistake{
            "page", {"--page", "0"}, "--page : valeur « 0 » refusée ; valeurs acceptées : 1..9999"},
        Mistake{"seed",
                {"--seed", "-1"},
                "--seed : valeur « -1 » refusée ; valeurs acceptées : 0..2147483647"},
        Mistake{"seedTooLarge",
                {"--seed", "2147483648"},
                "--seed : valeur « 2147483648 » refusée ; valeurs acceptées : 0..2147483647"}),
    [](const auto& mistake) { return std::string(mistake.param.name); });

TEST(CommandLine, refusesASettingsFileThatCannotBeRead)
{
    const QString path = processFolder() + "/locked.ini";
    writeFile(path, "[Settings]\n");
    QFile::setPermissions(path, QFile::WriteOwner);
    const WithoutPrivileges ordinaryUser;
    EXPECT_EQ(refusal({"--settings", path}),
              "--settings : le fichier « " + path +
                  " » ne peut pas être lu (Permission denied) ; valeurs acceptées : FICHIER.ini");
}

TEST(CommandLine, takesTheLastOfARepeatedOption)
{
    EXPECT_EQ(parse({"--zone", "1", "--zone", "2"}).zone, 2);
}

TEST(CommandLine, readsTheScreenInTheHall)
{
    EXPECT_FALSE(parse({}).display);
    const auto usual = parse({"--display", "--zone", "2"}).display;
    ASSERT_TRUE(usual);
    EXPECT_EQ(usual->secondsAPage, 20);
    EXPECT_EQ(usual->secondsARefresh, 60);
    const auto quick = parse({"--display-refresh", "86400", "--display", "--display-seconds", "5"});
    EXPECT_EQ(quick.display->secondsAPage, 5);
    EXPECT_EQ(quick.display->secondsARefresh, 86400);
    EXPECT_FALSE(quick.writesFile());
}

TEST(CommandLine, readsAfterHowManySecondsAPageLoadsItselfAgain)
{
    EXPECT_FALSE(parse({"--export", "hall.html"}).refresh);
    EXPECT_EQ(parse({"--refresh", "60", "--export", "Hall.HTML"}).refresh, 60);
}

TEST(CommandLine, refusesWhatDoesNotGoWithAScreenInTheHall)
{
    EXPECT_EQ(refusal({"--display-seconds", "20"}),
              "--display-seconds : demande --display ; valeurs acceptées : 5..86400");
    EXPECT_EQ(refusal({"--display-refresh", "60"}),
              "--display-refresh : demande --display ; valeurs acceptées : 5..86400");
    EXPECT_EQ(refusal({"--display", "--display-seconds", "4"}),
              "--display-seconds : valeur « 4 » refusée ; valeurs acceptées : 5..86400");
    EXPECT_EQ(refusal({"--display", "--display-refresh", "86401"}),
              "--display-refresh : valeur « 86401 » refusée ; valeurs acceptées : 5..86400");
    EXPECT_EQ(refusal({"--display", "--export", "p.pdf"}), "--display : ne va pas avec --export");
    EXPECT_EQ(refusal({"--date", "2025-03-17", "--display"}), "--display : ne va pas avec --date");
    for (const QStringList& others :
         {QStringList{"--day", "0"}, QStringList{"--page", "2"}, QStringList{"--counting"},
          QStringList{"--clashes", "c.json"}, QStringList{"--use", "u.json"}}) {
        EXPECT_TRUE(refusal(QStringList{"--display"} + others)
                        .startsWith("--display : ne va pas avec " + others.first()));
    }
}

TEST(CommandLine, refusesToRefreshWhatIsNoWebPage)
{
    const QString answer = "--refresh : demande --export en .html ; valeurs acceptées : 5..86400";
    EXPECT_EQ(refusal({"--refresh", "60"}), answer);
    EXPECT_EQ(refusal({"--refresh", "60", "--export", "plan.pdf"}), answer);
    EXPECT_EQ(refusal({"--refresh", "60", "--use", "u.html"}), answer);
    EXPECT_EQ(refusal({"--refresh", "4", "--export", "plan.html"}),
              "--refresh : valeur « 4 » refusée ; valeurs acceptées : 5..86400");
}

TEST(CommandLine, readsQuestionsAboutTheTimetable)
{
    using Who = shell::AnswerRequest::Who;
    const CommandLine free =
        parse({"--free", "l.json", "--from", "9h30", "--to", "11:00", "--places", "40", "--date",
               "2026-11-16", "--weeks-running", "3"});
    ASSERT_TRUE(free.answer);
    EXPECT_TRUE(free.writesFile());
    EXPECT_EQ(free.answer->kind, files::AnswerKind::FreeRooms);
    EXPECT_EQ(free.answer->file, "l.json");
    EXPECT_EQ(free.answer->span, (timetable::TimeSpan{{570}, {90}}));
    EXPECT_EQ(free.answer->places, 40);
    EXPECT_EQ(free.answer->weeksRunning, 3);
    const CommandLine week = parse({"--week-of", "s.JSON", "--teacher", "Durand"});
    EXPECT_EQ(week.answer->kind, files::AnswerKind::Week);
    EXPECT_EQ(week.answer->who, Who::Teacher);
    EXPECT_EQ(week.answer->name, "Durand");
    const CommandLine find = parse({"--find", "t.json", "--text", "dur"});
    EXPECT_EQ(find.answer->kind, files::AnswerKind::Hits);
    EXPECT_EQ(find.answer->text, "dur");
    EXPECT_EQ(parse({"--clashes", "c.json"}).answer->kind, files::AnswerKind::Clashes);
    EXPECT_EQ(parse({"--use", "u.json"}).answer->kind, files::AnswerKind::RoomUse);
    EXPECT_FALSE(parse({}).writesFile());
}

TEST(CommandLine, refusesQuestionsThatCannotBeAnswered)
{
    const QStringList nine{"--from", "9h30", "--to", "11h00"};
    EXPECT_THROW(parse({"--find", "f.json", "--text", "  "}), shell::UsageError);
    EXPECT_THROW(parse({"--use", "u.json", "--day", "1"}), shell::UsageError);
    EXPECT_THROW(parse({"--clashes", "c.json", "--mode", "exam"}), shell::UsageError);
    EXPECT_THROW(parse({"--clashes", "c.json", "--page", "2"}), shell::UsageError);
    for (const QStringList& arguments : {
             QStringList{"--free", "l.json", "--day", "1"},
             QStringList{"--free", "l.json"} + nine,
             QStringList{"--free", "l.txt", "--day", "1"} + nine,
             QStringList{"--free", "l.json", "--day", "1", "--from", "neuf", "--to", "11h00"},
             QStringList{"--free", "l.json", "--day", "1", "--from", "11h00", "--to", "11h00"},
             QStringList{"--free", "l.json", "--day", "1", "--weeks-running", "2"} + nine,
             QStringList{"--free", "l.json", "--day", "1", "--places", "-1"} + nine,
             QStringList{"--day", "1"} + nine,
             QStringList{"--week-of", "s.json"},
             QStringList{"--week-of", "s.json", "--room", "A", "--class", "B"},
             QStringList{"--room", "A"},
             QStringList{"--find", "t.json"},
             QStringList{"--find", "t.json", "--text", ""},
             QStringList{"--text", "a"},
             QStringList{"--find", "t.json", "--text", "a", "--export", "p.json"},
             QStringList{"--find", "t.json", "--text", "a", "--week-of", "s.json", "--room", "A"},
         }) {
        EXPECT_FALSE(refusal(arguments).isEmpty()) << arguments.join(' ').toStdString();
    }
}
