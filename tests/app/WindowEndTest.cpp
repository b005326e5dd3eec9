// How the window begins with the options of the command line, and how it ends.

#include "app/WindowDesk.h"
#include "support/TestFolder.h"
#include "support/WithoutPrivileges.h"

#include <QAbstractButton>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QThread>
#include <QTimer>

using namespace test;

namespace
{

/// The window from its start to its end, with the message boxes that it shows.
class WindowsLife : public TheWindow
{
protected:
    /// Runs the program; the exit code, -1 when it does not end.
    int run(const QStringList& options = {})
    {
        constexpr int longestLifeMilliseconds = 60000;
        QTimer watchdog;
        watchdog.setSingleShot(true);
        QObject::connect(&watchdog, &QTimer::timeout, [this] {
            timedOut = true;
            QCoreApplication::exit(-1);
        });
        watchdog.start(longestLifeMilliseconds);
        return window().run(shell::CommandLine::parse(QStringList{"tempora"} + options));
    }
    /// Once the program has drawn its first plan and waits for its user.
    void whenItServes(const std::function<void()>& action)
    {
        QObject::connect(&m_poll, &QTimer::timeout, &m_poll, [this, action] {
            const bool waits = QGuiApplication::overrideCursor() != nullptr; // for the database
            if (window().isVisible() && QThread::currentThread()->loopLevel() > 0 && !waits) {
                m_poll.stop();
                action();
            }
        });
        m_poll.start(1);
    }
    /// As soon as a redraw lets events in.
    void closeInTheNextRedraw()
    {
        QTimer::singleShot(0, &window(), [this] { window().close(); });
    }

    /// Puts a program in the place of the one that chooses the database.
    void installSetup() const
    {
        const QString program = setup.path("tempora-setup");
        writeFile(program, "#!/bin/sh\nexit 0\n");
        QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner);
    }
    /// Of the boxes that are shown from now on.
    void noteButtons()
    {
        onDialog = [this](QDialog& dialog) {
            for (const QAbstractButton* button : dialog.findChildren<QAbstractButton*>()) {
                buttons << button->text();
            }
            if (const auto* box = qobject_cast<QMessageBox*>(&dialog)) {
                onEnter = box->defaultButton() != nullptr ? box->defaultButton()->text() : "";
                onEscape = box->escapeButton() != nullptr ? box->escapeButton()->text() : "";
            }
            dialog.reject();
        };
    }

    QStringList buttons;   ///< that were noted
    QString onEnter;       ///< the button of the last box that a press of Enter takes
    QString onEscape;      ///< and one of Esc
    bool timedOut = false; ///< the program did not end
    QStringList messages;  ///< of the boxes that were shown
    std::function<void(QDialog&)> onDialog = [this](QDialog& dialog) {
        const auto* box = qobject_cast<QMessageBox*>(&dialog);
        messages.append(box != nullptr ? box->objectName() + ": " + box->text() + "\n\n" +
                                             box->informativeText()
                                       : "no box");
        dialog.reject();
    };
    DialogAnswer answer{[this](QDialog& dialog) { onDialog(dialog); }};

private:
    QTimer m_poll;
};

} // namespace

TEST_F(WindowsLife, beginsWithTheOptionsOfTheCommandLine)
{
    create();
    QJsonObject shown;
    whenItServes([&] {
        shown = plan();
        window().close();
    });
    EXPECT_EQ(run({"--date", "2025-03-18", "--makeup", "--zone", "1"}), 0);
    EXPECT_EQ(shown["title"].toString(), "Occupation des Salles du 18/03/25");
    EXPECT_EQ(boxTexts(shown, "A2").keys(), QList<int>({2}));
    EXPECT_EQ(shownRooms(shown), QStringList({"A2"}));
    EXPECT_EQ(messages, QStringList());
}

TEST_F(WindowsLife, isLeftOnceTheChoicesOfTheCommandLineArePlayed)
{
    create();
    QTimer::singleShot(0, &window(), [this] { window().leave(); }); // in the first redraw
    EXPECT_EQ(run({"--show", "class", "--rooms-per-page", "3"}), 0);
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(setup.saved("ChkEnseignant"), "0");
    EXPECT_EQ(setup.saved("Total_L_P"), "3");
}

TEST_F(WindowsLife, isLeftAtOnceWhenAChoiceOfTheCommandLineHasFailed)
{
    create();
    window().shell().form().CbJour.click = [] { throw std::logic_error("boum"); };
    onDialog = [this](QDialog&) { window().leave(); };
    EXPECT_EQ(run({"--day", "1"}), 1);
    EXPECT_FALSE(timedOut);
    EXPECT_EQ(answer.count(), 1);
    EXPECT_FALSE(window().isVisible());
}

TEST_F(WindowsLife, endsWhenItIsClosedInItsFirstRedraw)
{
    create();
    closeInTheNextRedraw();
    EXPECT_EQ(run({"--day", "1", "--page", "2"}), 0);
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(form().CbJour.text(), "Lundi"); // nothing is played any more
    EXPECT_EQ(messages, QStringList());
}

TEST_F(WindowsLife, endsWithoutAFaultWhenItIsClosedBeforeTheDatabaseIsAskedAgain)
{
    open();
    window().forward([&] {
        form().Check2.setChecked(true);
        form().OpExam().select();
    });
    closeInTheNextRedraw();
    // The picker's new date redraws; the dates of the period are read after that.
    window().forward([&] { form().OpEns().select(); });
    EXPECT_FALSE(window().isVisible());
    EXPECT_FALSE(window().failed());
    EXPECT_EQ(messages, QStringList());
}

TEST_F(WindowsLife, offersToChooseAnotherDatabaseWhereItsOwnCannotBeOpened)
{
    setup.set("Base", "NulleBase");
    create();
    installSetup();
    noteButtons();
    EXPECT_EQ(run(), 1);
    EXPECT_TRUE(buttons.contains("Choisir la base…")) << buttons.join(u'|').toStdString();
    EXPECT_EQ(onEnter, "Choisir la base…");
    EXPECT_EQ(onEscape, "OK");
}

TEST_F(WindowsLife, offersNoOtherDatabaseOnceItRuns)
{
    create();
    installSetup();
    noteButtons();
    whenItServes([&] {
        database.execute("ALTER TABLE tranche RENAME TO periodes");
        window().forward([&] { form().CbTranche.setListIndex(1); });
    });
    EXPECT_EQ(run(), 1);
    ASSERT_FALSE(buttons.isEmpty());
    EXPECT_FALSE(buttons.contains("Choisir la base…"));
}

TEST_F(WindowsLife, endsWithABoxAndOneAfterAFault)
{
    create();
    const QString settings = setup.settingsText();
    whenItServes([&] {
        window().forward([&] { form().Total_L_P.setText("3"); });
        database.execute("ALTER TABLE tranche RENAME TO periodes");
        window().forward([&] { form().CbTranche.setListIndex(1); });
        window().close();
    });
    EXPECT_EQ(run(), 1);
    ASSERT_EQ(messages.size(), 1);
    EXPECT_TRUE(messages[0].startsWith("RunTimeError: Une table manque dans la base de données.\n\n"
                                       "Lecture de la période « Automne »\n\n"
                                       "Run-time error '-2147217865':\n\n"))
        << messages[0].toStdString();
    EXPECT_EQ(setup.settingsText(), settings);
}

TEST_F(WindowsLife, endsWithABoxAndOneWhenTheSettingsCannotBeSaved)
{
    create();
    QFile::setPermissions(setup.settingsFile(), QFile::ReadOwner);
    const WithoutPrivileges ordinaryUser;
    whenItServes([&] {
        window().forward([&] { form().Total_L_P.setText("3"); });
        window().saveOptions(); // the session is about to end: nobody could acknowledge a box
        EXPECT_EQ(messages, QStringList());
        window().close();
    });
    EXPECT_EQ(run(), 1);
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(messages, QStringList({"RunTimeError: Un fichier ne se laisse pas lire ou écrire."
                                     "\n\nEnregistrement des paramètres (« " +
                                     setup.settingsFile() + " »)\n\n" +
                                     "Run-time error '75':\n\nPath/File access error"}));
}

TEST_F(WindowsLife, endsOverAnOpenDialog)
{
    create();
    onDialog = [this](QDialog&) { window().leave(); };
    whenItServes([this] {
        window().forward([this] { form().Total_L_P.setText("3"); });
        control<QPushButton>("Command4")->click(); // asks for a palette file, and draws again
    });
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(answer.count(), 1);
    EXPECT_FALSE(window().isVisible());
    EXPECT_FALSE(window().failed());
    EXPECT_EQ(setup.saved("Total_L_P"), "3");
}

TEST_F(WindowsLife, endsWithABoxAndOneAfterAFaultThatNobodyExpects)
{
    open();
    whenItServes([this] {
        window().shell().form().Check3.click = [] { throw std::logic_error("boum"); };
        control<QCheckBox>("Check3")->click();
    });
    EXPECT_EQ(run(), 1);
    EXPECT_EQ(messages,
              QStringList({"RunTimeError: Le programme a rencontré une faute imprévue.\n\n"
                           "Faute inattendue du programme : boum\n\n"
                           "Run-time error '51':\n\nInternal error"}));
}
