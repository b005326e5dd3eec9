// The executable, run as its users run it: what it writes where, and how it ends.

#include "app/TemporaProcess.h"
#include "support/RuntimeMatchers.h"
#include "support/TestFolder.h"
#include "support/TinyFaculty.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>

using namespace test;

namespace
{

QString colorOfRow1(const QString& path)
{
    return QJsonDocument::fromJson(bytesOf(path)).object()["rows"][0]["color"].toString();
}

class Program : public OnBothDatabases
{
protected:
    void SetUp() override { createTinyFaculty(database()); }

    ProgramSetup setup{database()};
    TemporaProcess program{setup};
};

TEMPORA_ON_BOTH_DATABASES(Program);

} // namespace

TEST_P(Program, writesThePlanAndNothingElse)
{
    const QString file = setup.path("plan.json");
    EXPECT_EQ(program.run({"--export", file, "--date", "2025-03-17"}), 0);
    EXPECT_EQ(program.output(), "");
    EXPECT_EQ(program.errors(), "");
    const QJsonObject plan = QJsonDocument::fromJson(bytesOf(file)).object();
    EXPECT_EQ(plan["title"].toString(), "Occupation des Salles du Lundi");
    EXPECT_EQ(plan["date"].toString(), "2025-03-17");
    EXPECT_EQ(plan["rows"][0]["boxes"][0]["text"].toString(),
              "G1\r\n Dupont/Durand\r\n [Algèbre]\r\n");
}

TEST_P(Program, writesTheSameBytesForTheSameInputAndSeed)
{
    const QStringList input = {"--date", "2025-03-17", "--seed", "7", "--counting"};
    ASSERT_EQ(program.run(QStringList{"--export", setup.path("a.json")} + input), 0);
    ASSERT_EQ(program.run(QStringList{"--export", setup.path("b.json")} + input), 0);
    EXPECT_FALSE(bytesOf(setup.path("a.json")).isEmpty());
    EXPECT_EQ(bytesOf(setup.path("a.json")), bytesOf(setup.path("b.json")));
    ASSERT_EQ(program.run({"--export", setup.path("c.json"), "--date", "2025-03-17", "--counting",
                           "--seed", "8"}),
              0);
    // Row 1 bears the colour that row 3 drew at first: the numbers 7 to 9 of the seed, of 255 each.
    EXPECT_EQ(colorOfRow1(setup.path("a.json")), "#b874f9");
    EXPECT_EQ(colorOfRow1(setup.path("c.json")), "#87d03b");
}

TEST_P(Program, writesTheSameWhetherItAsksInFewStatementsOrInMany)
{
    const QStringList input = {"--date", "2025-03-17", "--makeup", "--seed", "7"};
    ASSERT_EQ(program.run(QStringList{"--export", setup.path("a.json")} + input), 0);
    ASSERT_EQ(program.run(QStringList{"--plain", "--export", setup.path("b.json")} + input), 0);
    EXPECT_EQ(bytesOf(setup.path("a.json")), bytesOf(setup.path("b.json")));
}

TEST_P(Program, writesAPicture)
{
    const QString file = setup.path("plan.png");
    EXPECT_EQ(program.run({"--export", file, "--date", "2025-03-17"}), 0);
    EXPECT_EQ(program.errors(), "");
    EXPECT_FALSE(QImage(file).isNull());
}

TEST_P(Program, savesNoSettingsAfterAnExport)
{
    const QString before = setup.settingsText();
    EXPECT_EQ(program.run({"--export", setup.path("plan.json"), "--rooms-per-page", "2", "--show",
                           "class"}),
              0);
    EXPECT_EQ(setup.settingsText(), before);
    EXPECT_TRUE(QDir(program.configurationFolder()).isEmpty());
}

TEST_P(Program, changesNothingInTheDatabase)
{
    const auto everything = [&] {
        QList<QStringList> rows;
        for (const char* table : {"abscence", "etud_abs", "emplois", "salle", "tranche"}) {
            rows += database().read(QString("SELECT * FROM `%1`").arg(table));
        }
        return rows;
    };
    const QList<QStringList> before = everything();
    EXPECT_EQ(program.run({"--export", setup.path("plan.json"), "--makeup", "--day", "0"}), 0);
    EXPECT_EQ(everything(), before);
}

TEST_P(Program, readsTheUsersOwnSettings)
{
    writeFile(program.configurationFolder() + "/Tempora.ini",
              setup.settingsText() + "Total_L_P=2\n");
    program.start({"--export", setup.path("plan.json")});
    ASSERT_TRUE(program.waitForEnd());
    EXPECT_EQ(program.exitCode(), 0);
    const QJsonObject plan = QJsonDocument::fromJson(bytesOf(setup.path("plan.json"))).object();
    EXPECT_EQ(plan["page"]["rows_shown"].toInt(), 2);
}

TEST_P(Program, withoutADisplaySaysSo)
{
    EXPECT_EQ(program.run({}), 1);
    EXPECT_EQ(program.output(), "");
    EXPECT_EQ(program.errors(),
              "Pas d’écran : la fenêtre ne peut pas s’ouvrir. Le plan s’écrit dans un fichier avec "
              "--export (voir --help).\n");
}

TEST_P(Program, answersAChoiceThatTheDatabaseDoesNotHaveInOneLine)
{
    EXPECT_EQ(program.run({"--export", setup.path("plan.json"), "--tranche", "Hiver"}), 2);
    EXPECT_EQ(program.output(), "");
    EXPECT_EQ(program.errors(),
              "--tranche : « Hiver » n’existe pas ; valeurs acceptées : Printemps, Automne\n");
    EXPECT_FALSE(QFile::exists(setup.path("plan.json")));
}

TEST_P(Program, answersAnExportThatCannotBeWrittenInOneLine)
{
    const QString file = setup.path("missing/plan.json");
    EXPECT_EQ(program.run({"--export", file}), 1);
    EXPECT_EQ(program.output(), "");
    const QString errors = program.errors();
    EXPECT_TRUE(errors.startsWith("Impossible d’écrire « " + file + " » : "))
        << errors.toStdString();
    EXPECT_EQ(errors.count('\n'), 1);
    EXPECT_FALSE(QDir(setup.path("missing")).exists());
}

TEST_P(Program, leavesAnOldExportAsItWasWhenTheDiskIsFull)
{
    const QString folder = setup.path("exports");
    const QString file = folder + "/plan.json";
    writeFile(file, "an older plan");
    program.largestFile = 1000; // the plan takes more
    EXPECT_EQ(program.run({"--export", file}), 1);
    EXPECT_EQ(program.errors(), "Impossible d’écrire « " + file + " » : File too large\n");
    EXPECT_EQ(fileText(file), "an older plan");
    EXPECT_EQ(QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList({"plan.json"}));
}

// The program before it needs a database.

class ProgramAlone : public testing::Test
{
protected:
    TestDatabase database{DatabaseKind::Sqlite};
    ProgramSetup setup{database};
    TemporaProcess program{setup};
};

TEST_F(ProgramAlone, helps)
{
    EXPECT_EQ(program.run({"--help"}), 0);
    EXPECT_EQ(program.errors(), "");
    const QString help = program.output();
    EXPECT_TRUE(help.startsWith("Usage : tempora [options]\n"));
    EXPECT_TRUE(help.contains("--export FICHIER.json|.png|.pdf|.csv|.html"));
}

TEST_F(ProgramAlone, tellsItsVersion)
{
    EXPECT_EQ(program.run({"--version"}), 0);
    EXPECT_EQ(program.errors(), "");
    EXPECT_EQ(program.output(), "Tempora " TEMPORA_VERSION "\n");
}

TEST_F(ProgramAlone, answersAMistakeInOneLineAndWithTwo)
{
    EXPECT_EQ(program.run({"--zone", "12", "--export", setup.path("plan.json")}), 2);
    EXPECT_EQ(program.output(), "");
    EXPECT_EQ(program.errors(), "--zone : valeur « 12 » refusée ; valeurs acceptées : 0..9\n");
    EXPECT_FALSE(QFile::exists(setup.path("plan.json")));
}

TEST_F(ProgramAlone, keepsAccentsInItsAnswersInEveryLocale)
{
    for (const char* locale : {"C", "POSIX", "C.UTF-8", "fr_FR.ISO-8859-1"}) {
        program.environment.insert("LC_ALL", locale);
        EXPECT_EQ(program.run({"--tranche"}), 2) << locale;
        EXPECT_EQ(program.errors(), "--tranche : il manque une valeur ; valeurs acceptées : NOM\n")
            << locale;
    }
}
