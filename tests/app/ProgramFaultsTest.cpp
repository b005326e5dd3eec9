// Bad input to the executable: the run-time error in full on standard error, exit code 1, settings
// and database untouched.

#include "app/TemporaProcess.h"
#include "support/CuttingProxy.h"
#include "support/MariaDbServer.h"
#include "support/MutePort.h"
#include "support/RuntimeMatchers.h"
#include "support/TestFolder.h"
#include "support/TinyFaculty.h"

#include <QFile>

using namespace test;

namespace
{

class ProgramFault : public OnBothDatabases
{
protected:
    void SetUp() override { createTinyFaculty(database()); }

    /// What an export writes to standard error before it ends with 1. Nothing else is written.
    QString errorOfExport(const QStringList& arguments = {})
    {
        const QString settings = setup.settingsText();
        const QString file = setup.path("plan.json");
        EXPECT_EQ(program.run(QStringList{"--export", file} + arguments), 1);
        EXPECT_EQ(program.output(), "");
        EXPECT_FALSE(QFile::exists(file));
        EXPECT_EQ(setup.settingsText(), settings);
        return program.errors();
    }

    ProgramSetup setup{database()};
    TemporaProcess program{setup};
};

TEMPORA_ON_BOTH_DATABASES(ProgramFault);

/// "Run-time error '…':", an empty line, the platform's text, an empty line, what was being done.
QString message(int number, const QString& text, const QString& activity)
{
    return QString("Run-time error '%1':\n\n%2\n\n%3\n")
        .arg(QString::number(number), text, activity);
}

} // namespace

TEST_P(ProgramFault, namesTheSettingThatDoesNotConvert)
{
    setup.set("Total_L_P", "vingt");
    EXPECT_EQ(errorOfExport(), message(13, "Type mismatch",
                                       "Lecture du paramètre « Total_L_P » (valeur « vingt »)"));
    setup.set("Total_L_P", "99999");
    EXPECT_EQ(errorOfExport(),
              message(6, "Overflow", "Lecture du paramètre « Total_L_P » (valeur « 99999 »)"));
}

TEST_P(ProgramFault, namesTheSettingsFileThatIsNone)
{
    writeFile(setup.settingsFile(), "[Settings]\nMadame, Monsieur\n");
    EXPECT_EQ(errorOfExport(),
              message(321, "Invalid file format",
                      "Lecture des paramètres (« " + setup.settingsFile() + " »)"));
}

TEST_P(ProgramFault, namesTheUsersOwnSettingsFileThatIsNone)
{
    const QString own = program.configurationFolder() + "/Tempora.ini";
    writeFile(own, setup.settingsText() + "Madame, Monsieur\n");
    program.start({"--export", setup.path("plan.json")});
    ASSERT_TRUE(program.waitForEnd());
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_EQ(program.errors(),
              message(321, "Invalid file format", "Lecture des paramètres (« " + own + " »)"));
}

TEST_P(ProgramFault, namesTheSeanceTypeThatHasNoPlace)
{
    database().execute("INSERT INTO typeseance (Ref, NomCourt) VALUES (16, 'Visite')");
    EXPECT_EQ(errorOfExport(),
              message(9, "Subscript out of range", "Lecture du type de séance de référence 16"));
}

TEST_P(ProgramFault, isARoomTooMany)
{
    QStringList rooms;
    for (int room = 0; room < 252; ++room) { // five there are already
        rooms.append(QString("('R%1', 1, 20)").arg(room));
    }
    database().execute("INSERT INTO salle (Nom, Zone, places) VALUES " + rooms.join(", "));
    EXPECT_EQ(errorOfExport(), message(9, "Subscript out of range",
                                       "Lecture des places de 257 salles (256 au plus)"));
}

TEST_P(ProgramFault, namesTheTimeThatIsNone)
{
    database().execute("UPDATE seances SET Horaire2 = '25h99' WHERE Seance = 'Lundi1'");
    const QString errors = errorOfExport();
    EXPECT_TRUE(errors.startsWith("Run-time error '13':\n\nType mismatch\n\n"))
        << errors.toStdString();
    EXPECT_TRUE(errors.contains("25h99")) << errors.toStdString();
}

TEST_P(ProgramFault, namesTheStartOfACourseThatIsNoTime)
{
    database().execute("UPDATE emplois SET Debut = 'matin' WHERE Salle = 'A2'");
    EXPECT_EQ(errorOfExport({"--day", "0"}),
              message(13, "Type mismatch",
                      "Lecture de l’heure « matin »\n"
                      "Dessin de la salle « A2 », séance « Lundi1 »"));
}

TEST_P(ProgramFault, namesTheTableThatIsMissing)
{
    database().execute("DROP TABLE typeseance");
    const QString errors = errorOfExport();
    EXPECT_TRUE(errors.startsWith("Run-time error '-2147217865':\n\n")) << errors.toStdString();
    EXPECT_TRUE(errors.contains("typeseance")) << errors.toStdString();
    EXPECT_TRUE(errors.endsWith("\n\nLecture des types de séance (table « typeseance »)\n"))
        << errors.toStdString();
}

TEST_P(ProgramFault, isAColumnThatIsMissing)
{
    database().execute("ALTER TABLE salle RENAME COLUMN places TO Capacite");
    EXPECT_EQ(errorOfExport(),
              message(3265,
                      "Item cannot be found in the collection corresponding to the requested name "
                      "or ordinal.",
                      "Lecture des places des salles (table « salle », zone 0)"));
}

TEST_P(ProgramFault, isAColumnThatAQueryMisses)
{
    database().execute("ALTER TABLE salle RENAME COLUMN Zone TO Batiment");
    const QString errors = errorOfExport({"--zone", "2"});
    EXPECT_TRUE(errors.startsWith("Run-time error '-2147217900':\n\n")) << errors.toStdString();
    EXPECT_TRUE(errors.contains("Zone")) << errors.toStdString();
    EXPECT_TRUE(errors.endsWith("\n\nLecture des salles (zone 2)\n")) << errors.toStdString();
}

TEST_P(ProgramFault, leavesTheDatabaseAsItWas)
{
    database().execute("DROP TABLE typeseance");
    const QList<QStringList> before = database().read("SELECT * FROM abscence");
    static_cast<void>(errorOfExport());
    EXPECT_EQ(database().read("SELECT * FROM abscence"), before);
}

// The database itself out of reach.

class ProgramWithoutServer : public testing::Test
{
protected:
    /// Makes the program use a server with these lines of the companion application's file.
    void serve(const QString& host, const QString& login, const QString& password,
               const QString& base, int port)
    {
        setup.set("Mysql", "True");
        writeFile(setup.path("app_data/SaKalo.php"),
                  QString("<?php\n$host=\"%1\";\n$login=\"%2\";\n$mot_de_passe=\"%3\";\n"
                          "$Base=\"%4\";\n$port=\"%5\";\n?>\n")
                      .arg(host, login, password, base)
                      .arg(port));
    }
    QString errorOfExport()
    {
        EXPECT_EQ(program.run({"--export", setup.path("plan.json")}), 1);
        EXPECT_EQ(program.output(), "");
        const QString errors = program.errors();
        for (const char* part : {"s3cr&t", "Été"}) {
            EXPECT_FALSE(errors.contains(part, Qt::CaseInsensitive)) << errors.toStdString();
        }
        return errors;
    }
    static bool isConnectionFailure(const QString& errors, const QString& base)
    {
        return errors.startsWith("Run-time error '-2147467259':\n\n") &&
               errors.endsWith("\n\nOuverture de la base de données « " + base + " »\n");
    }

    TestDatabase database{DatabaseKind::Sqlite};
    ProgramSetup setup{database};
    TemporaProcess program{setup};
};

TEST_F(ProgramWithoutServer, namesTheFileThatIsMissing)
{
    setup.set("Mysql", "True");
    EXPECT_EQ(errorOfExport(), message(53, "File not found",
                                       "Lecture du fichier de configuration « " +
                                           setup.path("app_data/SaKalo.php") + " »"));
}

TEST_F(ProgramWithoutServer, namesNoPasswordWhenItIsWrong)
{
    const TestDatabase served(DatabaseKind::MariaDb);
    serve("127.0.0.1", "planning", "s3cr&tÉté", served.baseName(), MariaDbServer::shared().port());
    const QString errors = errorOfExport();
    EXPECT_TRUE(isConnectionFailure(errors, "SaKalo")) << errors.toStdString();
    EXPECT_TRUE(errors.contains("planning")) << errors.toStdString(); // whose access is denied
}

TEST_F(ProgramWithoutServer, saysThatNobodyAnswers)
{
    const MutePort port(MutePort::Calls::Refused);
    serve("127.0.0.1", "planning", "s3cr&t;Été", "base", port.number());
    const QString errors = errorOfExport();
    EXPECT_TRUE(isConnectionFailure(errors, "SaKalo")) << errors.toStdString();
}

TEST_F(ProgramWithoutServer, saysThatTheDataSourceIsUnknown)
{
    setup.set("Base", "Nulle Part");
    EXPECT_TRUE(isConnectionFailure(errorOfExport(), "Nulle Part"));
}
