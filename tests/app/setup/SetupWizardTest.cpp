#include "app/setup/SetupWizard.h"

#include "app/Hands.h"
#include "db/Connection.h"
#include "db/DataSources.h"
#include "support/MariaDbServer.h"
#include "support/OwnDataSources.h"
#include "support/RuntimeMatchers.h"
#include "support/TinyFaculty.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSemaphore>
#include <QWindow>
#include <atomic>
#include <functional>
#include <memory>

using namespace test;
using setup::SourceKind;

namespace
{

/// The wizard in a user's hands. Whatever it writes is the test's own.
class TheSetup : public testing::Test
{
protected:
    TheSetup()
    {
        createTinyFaculty(m_school);
        m_ties.drivers = [this] { return drivers; };
        m_ties.folders = {m_machine.path("program"), {}};
        m_ties.demoFile = m_machine.path("demo.sqlite");
        m_ties.makeDemo = [this](const QString& file) {
            ++made;
            QFile::remove(file);
            QFile::copy(m_school.file(), file);
        };
        m_ties.openPlan = [this] { return ++opened > 0; };
    }

    /// Shows it, and waits until it has the focus.
    void show()
    {
        wizard = std::make_unique<app::SetupWizard>(settings(), m_ties);
        wizard->show();
        ASSERT_TRUE(until([this] { return wizard->isActiveWindow(); }));
    }
    [[nodiscard]] shell::Settings settings() const
    {
        return shell::Settings::fromFile(m_machine.path("réglages.ini"));
    }
    void choose(SourceKind kind) const
    {
        const auto* button =
            wizard->findChild<QRadioButton*>("Kind" + QString::number(static_cast<int>(kind)));
        ASSERT_NE(button, nullptr);
        hands.click(button);
        ASSERT_TRUE(until([button] { return button->isChecked(); }));
    }
    void go(QWizard::WizardButton button) const { hands.click(wizard->button(button)); }
    [[nodiscard]] bool shows(const QString& label, const QString& beginning) const
    {
        return until([&] {
            const auto* found = wizard->currentPage()->findChild<QLabel*>(label);
            return found != nullptr && found->text().startsWith(beginning);
        });
    }
    void fill(const QString& field, const QString& text) const
    {
        auto* line = wizard->currentPage()->findChild<QLineEdit*>(field);
        ASSERT_NE(line, nullptr);
        hands.click(line);
        ASSERT_TRUE(until([line] { return line->hasFocus(); }));
        hands.replaceText(line, text);
        ASSERT_TRUE(until([&] { return line->text() == text; }));
    }

    [[nodiscard]] const TestDatabase& school() const { return m_school; }
    [[nodiscard]] app::SetupWizard::Ties& ties() { return m_ties; }
    [[nodiscard]] const OwnDataSources& machine() const { return m_machine; }

    /// Until when the last period of the school lasts.
    void endOn(QDate day)
    {
        m_school.execute("update tranche set DateFin = '" + day.toString(Qt::ISODate) +
                         "' where ident = 1");
    }
    [[nodiscard]] QString fieldText(const QString& field) const
    {
        const auto* line = wizard->currentPage()->findChild<QLineEdit*>(field);
        return line == nullptr ? QStringLiteral("(no such field)") : line->text();
    }
    [[nodiscard]] bool isOn(const QString& title) const
    {
        return until([&] { return wizard->currentPage()->title() == title; });
    }

    std::atomic<int> made = 0; ///< demo faculties, on the wizard's thread
    int opened = 0;
    QStringList drivers{"SQLite3"}; ///< that are installed
    std::unique_ptr<app::SetupWizard> wizard;
    Hands hands;

private:
    TestDatabase m_school{DatabaseKind::Sqlite};
    OwnDataSources m_machine;
    app::SetupWizard::Ties m_ties;
};

} // namespace

TEST_F(TheSetup, opensADemoFacultyInTwoSteps)
{
    show();
    go(QWizard::NextButton);
    ASSERT_TRUE(shows("Found", "5 salles, 2 périodes, 6 séances"));
    go(QWizard::FinishButton);
    ASSERT_TRUE(until([this] { return opened == 1; }));
    EXPECT_EQ(db::wordOf("MonKalo", "Database"), machine().path("demo.sqlite"));
    EXPECT_EQ(settings().get("Base", {}), "MonKalo");
    EXPECT_EQ(settings().get("Toutes_Salles", {}), "True");
    EXPECT_EQ(settings().get("Ouvrir_Aujourdhui", {}), "True");
}

TEST_F(TheSetup, writesNothingBeforeTheLastButton)
{
    show();
    go(QWizard::NextButton);
    ASSERT_TRUE(shows("Found", "5 salles"));
    go(QWizard::CancelButton);
    ASSERT_TRUE(until([this] { return !wizard->isVisible(); }));
    EXPECT_EQ(machine().text("odbc.ini"), OwnDataSources::usersText());
    EXPECT_FALSE(QFile::exists(machine().path("réglages.ini")));
    EXPECT_EQ(opened, 0);
}

TEST_F(TheSetup, takesADemoFacultyAwayThatNobodyWanted)
{
    show();
    go(QWizard::NextButton);
    ASSERT_TRUE(shows("Found", "5 salles"));
    EXPECT_TRUE(QFile::exists(machine().path("demo.sqlite")));
    go(QWizard::CancelButton);
    ASSERT_TRUE(until([this] { return !wizard->isVisible(); }));
    EXPECT_FALSE(QFile::exists(machine().path("demo.sqlite")));
}

TEST_F(TheSetup, staysWhileItTriesADatabase)
{
    QSemaphore mayGoOn;
    bool hasClosed = true;
    ties().makeDemo = [&](const QString& file) {
        QMetaObject::invokeMethod(
            wizard.get(),
            [&] {
                hasClosed = wizard->close();
                mayGoOn.release();
            },
            Qt::QueuedConnection);
        mayGoOn.acquire();
        QFile::copy(school().file(), file);
    };
    show();
    go(QWizard::NextButton);
    ASSERT_TRUE(shows("Found", "5 salles"));
    EXPECT_FALSE(hasClosed);
    EXPECT_TRUE(wizard->isVisible());
}

TEST_F(TheSetup, takesTheDemoFacultyAwayWhenAnotherBaseIsChosen)
{
    show();
    go(QWizard::NextButton);
    ASSERT_TRUE(shows("Found", "5 salles"));
    go(QWizard::BackButton);
    ASSERT_TRUE(isOn("Où est votre emploi du temps ?"));
    choose(SourceKind::SqliteFile);
    go(QWizard::NextButton);
    ASSERT_TRUE(isOn("Votre fichier"));
    fill("File", school().file());
    go(QWizard::NextButton);
    ASSERT_TRUE(shows("Found", "5 salles"));
    go(QWizard::FinishButton);
    ASSERT_TRUE(until([this] { return opened == 1; }));
    EXPECT_FALSE(QFile::exists(machine().path("demo.sqlite")));
}

TEST_F(TheSetup, keepsADemoFacultyWhoseTermGoesOn)
{
    endOn(QDate::currentDate().addDays(1));
    ASSERT_TRUE(QFile::copy(school().file(), machine().path("demo.sqlite")));
    show();
    go(QWizard::NextButton);
    ASSERT_TRUE(shows("Found", "5 salles"));
    EXPECT_EQ(made, 0);
    go(QWizard::CancelButton);
    ASSERT_TRUE(until([this] { return !wizard->isVisible(); }));
    EXPECT_TRUE(QFile::exists(machine().path("demo.sqlite"))); // it was there before
}

TEST_F(TheSetup, makesADemoFacultyAnewWhoseTermIsOverOrWhichIsBroken)
{
    endOn(QDate::currentDate().addDays(-1));
    ASSERT_TRUE(QFile::copy(school().file(), machine().path("demo.sqlite")));
    endOn(QDate::currentDate().addDays(1));
    show();
    go(QWizard::NextButton);
    ASSERT_TRUE(shows("Found", "5 salles"));
    EXPECT_EQ(made, 1);
    machine().write("demo.sqlite", "cut off");
    show();
    go(QWizard::NextButton);
    ASSERT_TRUE(shows("Found", "5 salles"));
    EXPECT_EQ(made, 2);
}

TEST_F(TheSetup, leavesOutWhatIsNotTicked)
{
    show();
    go(QWizard::NextButton);
    ASSERT_TRUE(shows("Found", "5 salles"));
    const auto* box = wizard->findChild<QCheckBox*>("Toutes_Salles");
    ASSERT_NE(box, nullptr);
    hands.click(box);
    ASSERT_TRUE(until([box] { return !box->isChecked(); }));
    go(QWizard::FinishButton);
    ASSERT_TRUE(until([this] { return opened == 1; }));
    EXPECT_EQ(settings().get("Toutes_Salles", "none"), "none");
    EXPECT_EQ(settings().get("Ouvrir_Aujourdhui", {}), "True");
}

TEST_F(TheSetup, takesAFileAndSaysWhatIsWrongWithAnother)
{
    show();
    choose(SourceKind::SqliteFile);
    go(QWizard::NextButton);
    ASSERT_TRUE(until([this] { return wizard->currentPage()->title() == "Votre fichier"; }));
    const auto* file = wizard->currentPage()->findChild<QLineEdit*>("File");
    EXPECT_TRUE(until([file] { return file->hasFocus(); })); // one types at once
    go(QWizard::NextButton);
    ASSERT_TRUE(shows("Told", "Choisissez le fichier"));
    fill("File", machine().path("absent.sqlite"));
    go(QWizard::NextButton);
    ASSERT_TRUE(shows("Told", "Le fichier « "));
    fill("File", school().file());
    go(QWizard::NextButton);
    ASSERT_TRUE(shows("Found", "5 salles"));
    go(QWizard::FinishButton);
    ASSERT_TRUE(until([this] { return opened == 1; }));
    EXPECT_EQ(db::wordOf("MonKalo", "Database"), school().file());
}

TEST_F(TheSetup, refusesAFileThatHoldsNoTimetable)
{
    TestDatabase other(DatabaseKind::Sqlite);
    other.execute("create table recettes (nom varchar(20))");
    show();
    choose(SourceKind::SqliteFile);
    go(QWizard::NextButton);
    ASSERT_TRUE(until([this] { return wizard->currentPage()->title() == "Votre fichier"; }));
    fill("File", other.file());
    go(QWizard::NextButton);
    ASSERT_TRUE(until([this] {
        const auto* told = wizard->currentPage()->findChild<QLabel*>("Told");
        return told != nullptr && told->text().contains("salle");
    }));
    EXPECT_EQ(wizard->currentPage()->title(), "Votre fichier");
}

TEST_F(TheSetup, saysWhatAServerLacks)
{
    drivers = QStringList{"MariaDB Unicode"};
    show();
    choose(SourceKind::Server);
    go(QWizard::NextButton);
    ASSERT_TRUE(until([this] { return wizard->currentPage()->title() == "Votre serveur"; }));
    go(QWizard::NextButton);
    ASSERT_TRUE(shows("Told", "Indiquez le nom ou l’adresse"));
}

TEST_F(TheSetup, saysWhichDriverIsMissing)
{
    drivers = QStringList{};
    show();
    const auto* demo = wizard->currentPage()->findChild<QRadioButton*>("Kind0");
    ASSERT_NE(demo, nullptr);
    EXPECT_TRUE(demo->accessibleDescription().contains("Il y faut le pilote ODBC de SQLite"));
    go(QWizard::NextButton);
    ASSERT_TRUE(shows("Told", "Le pilote ODBC de SQLite n’est pas installé"));
    drivers = QStringList{"SQLite3"}; // installed meanwhile
    go(QWizard::NextButton);
    ASSERT_TRUE(shows("Found", "5 salles"));
}

TEST_F(TheSetup, installsSqlitesDriverWhereItLiesBesideTheProgram)
{
    drivers = QStringList{};
    int installations = 0;
    ties().installSqliteDriver = [&installations] { return ++installations > 1; };
    show();
    auto* button = wizard->currentPage()->findChild<QPushButton*>("InstallDriver");
    ASSERT_NE(button, nullptr);
    EXPECT_TRUE(button->isVisible());
    hands.click(button);
    ASSERT_TRUE(shows("Told", "L’installation n’a pas commencé."));
    hands.click(button);
    ASSERT_TRUE(shows("Told", "Une fois le pilote installé, continuez par « Suivant »."));
    EXPECT_EQ(installations, 2);

    drivers = QStringList{"SQLite3 ODBC Driver"};
    EXPECT_TRUE(until([button] { return !button->isVisible(); }));
    EXPECT_TRUE(wizard->currentPage()->findChild<QLabel*>("Told")->text().isEmpty());
    const auto* demo = wizard->currentPage()->findChild<QRadioButton*>("Kind0");
    EXPECT_EQ(demo->accessibleDescription(),
              "Une faculté inventée, pour voir. Rien d’autre n’est nécessaire.");
}

TEST_F(TheSetup, doesNotOfferToInstallWhatIsThereOrWhatItDoesNotBring)
{
    drivers = QStringList{};
    show();
    EXPECT_FALSE(wizard->currentPage()->findChild<QPushButton*>("InstallDriver")->isVisible());
    drivers = QStringList{"SQLite3"};
    ties().installSqliteDriver = [] { return true; };
    show();
    EXPECT_FALSE(wizard->currentPage()->findChild<QPushButton*>("InstallDriver")->isVisible());
}

TEST_F(TheSetup, proposesTheFirstKindWhoseDriverIsThere)
{
    drivers = QStringList{"MariaDB Unicode"};
    show();
    const auto* server = wizard->currentPage()->findChild<QRadioButton*>("Kind2");
    ASSERT_NE(server, nullptr);
    EXPECT_TRUE(server->isChecked());
    EXPECT_FALSE(server->accessibleDescription().contains("manque"));
    const auto* file = wizard->currentPage()->findChild<QRadioButton*>("Kind1");
    EXPECT_TRUE(file->accessibleDescription().endsWith("qui manque sur ce poste."));
}

TEST_F(TheSetup, saysWhyTheDemoCouldNotBeMade)
{
    ties().makeDemo = [](const QString&) {
        throw runtime::RunTimeError(runtime::ErrorNumber::PathFileAccess);
    };
    show();
    go(QWizard::NextButton);
    ASSERT_TRUE(shows("Told", runtime::explanationOf(runtime::ErrorNumber::PathFileAccess)));
    EXPECT_TRUE(wizard->isEnabled());
}

TEST_F(TheSetup, showsWhatIsSet)
{
    db::writeDataSource({"MonKalo", "SQLite3", {{"Database", "/srv/école.sqlite"}}});
    show();
    EXPECT_TRUE(shows("Present", "Actuellement : Fichier SQLite /srv/école.sqlite"));
    go(QWizard::NextButton); // the kind is chosen already
    ASSERT_TRUE(isOn("Votre fichier"));
    EXPECT_EQ(fieldText("File"), "/srv/école.sqlite");
}

TEST_F(TheSetup, showsTheServerThatIsSet)
{
    drivers = QStringList{"SQLite3", "MariaDB Unicode"};
    shell::Settings before = settings();
    setup::registerSource({SourceKind::Server, {}, {"db1", "3310", "kalo", "secret", "sa"}},
                          setup::Route::DataSource, "MariaDB Unicode", {}, before);
    show();
    go(QWizard::NextButton);
    ASSERT_TRUE(isOn("Votre serveur"));
    EXPECT_EQ(fieldText("Host"), "db1");
    EXPECT_EQ(fieldText("Port"), "3310");
    EXPECT_EQ(fieldText("Base"), "sa");
    EXPECT_EQ(fieldText("Login"), "kalo");
    EXPECT_EQ(fieldText("Password"), "secret");
}

TEST_F(TheSetup, showsTheDemoFacultyThatIsSet)
{
    drivers = QStringList{"MariaDB Unicode", "SQLite3"};
    db::writeDataSource({"MonKalo", "SQLite3", {{"Database", machine().path("demo.sqlite")}}});
    show();
    EXPECT_TRUE(wizard->currentPage()->findChild<QRadioButton*>("Kind0")->isChecked());
}

TEST_F(TheSetup, showsTheSettingsThatAreSet)
{
    shell::Settings before = settings();
    before.save("Toutes_Salles", "1");
    before.save("Ouvrir_Aujourdhui", "Faux");
    show();
    go(QWizard::NextButton);
    ASSERT_TRUE(shows("Found", "5 salles"));
    EXPECT_TRUE(wizard->findChild<QCheckBox*>("Toutes_Salles")->isChecked());
    EXPECT_FALSE(wizard->findChild<QCheckBox*>("Ouvrir_Aujourdhui")->isChecked());
    EXPECT_EQ(wizard->findChild<QCheckBox*>("Apostrophes"), nullptr); // no name has one
    go(QWizard::FinishButton);
    ASSERT_TRUE(until([this] { return opened == 1; }));
    EXPECT_EQ(settings().get("Toutes_Salles", {}), "1");
    EXPECT_EQ(settings().get("Ouvrir_Aujourdhui", {}), "Faux");
}

TEST_F(TheSetup, opensAServerByItsAccountAndTellsAWrongPassword)
{
    TestDatabase faculty(DatabaseKind::MariaDb);
    createTinyFaculty(faculty);
    const MariaDbAccess& server = MariaDbServer::shared();
    const QString login = "choix_" + QString::number(QCoreApplication::applicationPid());
    const QString password = "se;cr}et";
    server.createAccount(login, password, "SELECT ON `" + faculty.baseName() + "`.*");
    drivers = QStringList{"MariaDB Unicode"};
    show();
    go(QWizard::NextButton);
    ASSERT_TRUE(isOn("Votre serveur"));
    fill("Host", "127.0.0.1");
    fill("Port", QString::number(server.port()));
    fill("Base", faculty.baseName());
    fill("Login", login);
    fill("Password", "autre");
    go(QWizard::NextButton);
    ASSERT_TRUE(until([this] {
        const auto* told = wizard->currentPage()->findChild<QLabel*>("Told");
        return told != nullptr && told->text().contains("Access denied");
    }));
    EXPECT_EQ(wizard->currentPage()->title(), "Votre serveur");
    EXPECT_EQ(machine().text("odbc.ini"), OwnDataSources::usersText());
    fill("Password", password);
    go(QWizard::NextButton);
    ASSERT_TRUE(shows("Found", "5 salles, 2 périodes, 6 séances ; droits : lecture seule"));
    go(QWizard::FinishButton);
    ASSERT_TRUE(until([this] { return opened == 1; }));
    db::Connection asTheProgram("DSN=MonKalo", db::SqlDialect(false));
    EXPECT_EQ(asTheProgram.open("select Nom from salle").rows().size(), 5U);
}

TEST_F(TheSetup, saysWhereThePlanDoesNotOpen)
{
    ties().openPlan = [] { return false; };
    show();
    go(QWizard::NextButton);
    ASSERT_TRUE(shows("Found", "5 salles"));
    QString text;
    const DialogAnswer answer([&text](QDialog& dialog) {
        text = static_cast<QMessageBox&>(dialog).text();
        dialog.reject();
    });
    go(QWizard::FinishButton);
    ASSERT_TRUE(until([&] { return answer.count() == 1; }));
    EXPECT_EQ(text, "Tout est enregistré, mais le plan ne s’est pas ouvert.");
    EXPECT_EQ(settings().get("Toutes_Salles", {}), "True");
}

TEST_F(TheSetup, staysWhereNothingCanBeWritten)
{
    show();
    go(QWizard::NextButton);
    ASSERT_TRUE(shows("Found", "5 salles"));
    qputenv("ODBCINI", "/proc/nowhere/odbc.ini");
    const DialogAnswer answer([](QDialog& dialog) { dialog.reject(); });
    go(QWizard::FinishButton);
    ASSERT_TRUE(until([&] { return answer.count() == 1; }));
    EXPECT_TRUE(wizard->isVisible());
    EXPECT_EQ(opened, 0);
}
