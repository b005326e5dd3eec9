// Exports of a plan that the database does not tell as a whole.

#include "app/TemporaProcess.h"
#include "support/CuttingProxy.h"
#include "support/FileHolder.h"
#include "support/MariaDbServer.h"
#include "support/RuntimeMatchers.h"
#include "support/TestFolder.h"
#include "support/TinyFaculty.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <atomic>

using namespace test;

namespace
{

class AnIncompleteExport : public OnBothDatabases
{
protected:
    void SetUp() override { createTinyFaculty(database()); }

    int runExport(const QString& name, const QStringList& arguments = {})
    {
        return program.run(QStringList{"--export", setup.path(name), "--day", "0"} + arguments);
    }

    ProgramSetup setup{database()};
    TemporaProcess program{setup};
};

TEMPORA_ON_BOTH_DATABASES(AnIncompleteExport);

const char* const kFormer = "the former file";

} // namespace

TEST_P(AnIncompleteExport, endsWithOneAndLeavesTheFormerFile)
{
    database().execute("drop table emplois");
    for (const char* name : {"plan.json", "plan.csv", "plan.html", "plan.pdf", "plan.png"}) {
        writeFile(setup.path(name), kFormer);
        EXPECT_EQ(runExport(name), 1) << name;
        EXPECT_EQ(fileText(setup.path(name)), kFormer);
        const QString errors = program.errors();
        EXPECT_TRUE(errors.contains("Plan incomplet : une table manque dans la base de données."))
            << errors.toStdString();
        EXPECT_TRUE(errors.contains("emplois")) << errors.toStdString();
        EXPECT_TRUE(errors.contains("--allow-incomplete")) << errors.toStdString();
    }
}

TEST_P(AnIncompleteExport, isWrittenWhereThatIsAllowed)
{
    database().execute("drop table emplois");
    EXPECT_EQ(runExport("plan.csv", {"--allow-incomplete"}), 0);
    // Four rooms with four slots each.
    EXPECT_EQ(fileText(setup.path("plan.csv")).count(";inconnu;"), 16);
    EXPECT_TRUE(program.errors().startsWith("Plan incomplet : "));
}

TEST_P(AnIncompleteExport, ofAllPagesEndsWithOneToo)
{
    database().execute("drop table emplois");
    writeFile(setup.path("plan.html"), kFormer);
    EXPECT_EQ(runExport("plan.html", {"--all-pages", "--rooms-per-page", "2"}), 1);
    EXPECT_EQ(fileText(setup.path("plan.html")), kFormer);
}

TEST_P(AnIncompleteExport, isOneThatLacksTheClassesOrTheAbsences)
{
    for (const char* table : {"etudiant", "classe", "abscence", "etud_abs"}) {
        TestDatabase another(GetParam());
        createTinyFaculty(another);
        another.execute(QString("drop table %1").arg(table));
        const ProgramSetup other(another);
        TemporaProcess process(other);
        EXPECT_EQ(process.run({"--export", other.path("plan.json"), "--day", "0"}), 1) << table;
        EXPECT_TRUE(process.errors().contains(table));
    }
}

TEST_P(AnIncompleteExport, isNoneWhereOnlyANameCannotBeHeld)
{
    database().execute({"update salle set Nom = 'Salle d''info' where Nom = 'B2'",
                        "update emplois set Classe = 'l''A' where Classe = 'G1'"});
    EXPECT_EQ(runExport("plan.json"), 0);
    const QString errors = program.errors();
    EXPECT_TRUE(errors.startsWith("Noms impossibles à chercher : ")) << errors.toStdString();
    for (const char* part : {"« Salle d'info »", "« l'A »", "Apostrophes=True"}) {
        EXPECT_TRUE(errors.contains(part)) << errors.toStdString();
    }
    const QJsonObject plan =
        QJsonDocument::fromJson(fileText(setup.path("plan.json")).toUtf8()).object();
    EXPECT_FALSE(plan["faults"].toArray().isEmpty());
}

TEST_P(AnIncompleteExport, needsAnExportToBeAllowed)
{
    EXPECT_EQ(program.run({"--allow-incomplete"}), 2);
    EXPECT_EQ(program.errors(), "--allow-incomplete : demande --export\n");
}

TEST(AnExportFromAServerThatGoesAway, endsWithOneOrIsWhole)
{
    TestDatabase database(DatabaseKind::MariaDb);
    createTinyFaculty(database);
    ProgramSetup setup(database);
    TemporaProcess program(setup);
    const QString php = setup.path(QString("app_data/%1.php").arg(database.baseName()));
    const QString usual = fileText(php);
    std::atomic<int> passing = 0;
    const CuttingProxy proxy(MariaDbServer::shared().port(), [&](const QByteArray& /*command*/) {
        return passing-- > 0 ? CuttingProxy::Verdict::Pass : CuttingProxy::Verdict::Cut;
    });
    writeFile(php, QString(usual).replace(QString::number(MariaDbServer::shared().port()),
                                          QString::number(proxy.port())));
    const QString file = setup.path("plan.json");
    constexpr int all = 1000;
    passing = all;
    ASSERT_EQ(program.run({"--export", file, "--day", "0", "--seed", "1"}), 0)
        << program.errors().toStdString();
    const QString whole = fileText(file);
    const int commands = all - passing;
    for (int cut = 0; cut < commands; ++cut) {
        writeFile(file, kFormer);
        passing = cut;
        const int code = program.run({"--export", file, "--day", "0", "--seed", "1"});
        // Where all is read that is written, what is cut is the goodbye.
        EXPECT_TRUE(code == 1 || (code == 0 && cut >= commands - 2)) << cut << ": " << code;
        EXPECT_EQ(fileText(file), code == 0 ? whole : QString(kFormer)) << cut;
        EXPECT_EQ(program.errors().isEmpty(), code == 0) << cut;
    }
}

TEST(AnExportFromALockedFile, endsWithOneSoon)
{
    TestDatabase database(DatabaseKind::Sqlite);
    createTinyFaculty(database);
    const ProgramSetup setup(database);
    TemporaProcess program(setup);
    const FileHolder other(database.file(), "begin exclusive;");
    EXPECT_EQ(program.run({"--export", setup.path("plan.json")}), 1);
    EXPECT_TRUE(program.errors().contains("locked"));
}
