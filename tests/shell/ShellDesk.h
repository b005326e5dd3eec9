#pragma once

#include "files/JsonExport.h"
#include "shell/PlanReading.h"
#include "shell/Player.h"
#include "shell/Shell.h"
#include "support/ProgramSetup.h"
#include "support/RuntimeMatchers.h"
#include "support/TestFolder.h"
#include "support/TinyFaculty.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <optional>

namespace test
{

/// The program without its window. Today is Wednesday, 19 March 2025, unless told; the random
/// colours are those of seed 1.
class ShellDesk
{
public:
    explicit ShellDesk(const TestDatabase& database, Rights rights = Rights::Marking)
        : setup(database, rights)
    {
    }

    /// Starts up with the settings as they are by then.
    shell::Shell& load()
    {
        engine::Surroundings surroundings;
        surroundings.applicationFolder = setup.applicationFolder();
        surroundings.today = [this] { return today; };
        surroundings.seed = 1;
        surroundings.plain = plain;
        surroundings.processEvents = [this] {
            if (whileYielding) {
                whileYielding();
            }
        };
        surroundings.openFile = [this](const QString&, const QString&) { return chosenFile; };
        surroundings.showMessage = [this](const QString& title, const QString& text) {
            messages.append(title + ": " + text);
        };
        m_shell.emplace(shell::Settings::fromFile(setup.settingsFile()), std::move(surroundings));
        m_shell->Form_Load();
        return *m_shell;
    }
    /// Starts up and shows the window.
    shell::Shell& start()
    {
        load();
        m_shell->fitPicture();
        m_shell->Form_Activate();
        return *m_shell;
    }
    /// Starts up and plays these arguments.
    shell::Shell& play(const QStringList& arguments)
    {
        start();
        shell::play(*m_shell, shell::CommandLine::parse(QStringList{"tempora"} + arguments));
        return *m_shell;
    }

    [[nodiscard]] shell::Shell& shell() { return *m_shell; }
    [[nodiscard]] form::PlanForm& form() { return m_shell->form(); }
    /// A palette file of 256 colours: entry k has k as its red, 10 as its green, 20 as its blue.
    [[nodiscard]] QString writePalette(const QString& name) const
    {
        QString lines;
        for (int entry = 0; entry < 256; ++entry) {
            lines += QString("%1\tcouleur\t%1\t10\t20\r\n").arg(entry);
        }
        QString path = setup.path(name);
        writeFile(path, lines);
        return path;
    }
    /// What an export is made of: the page as it is drawn, looked up anew, or all of them.
    [[nodiscard]] files::PlanDocument drawn() const
    {
        return {{m_shell->engine().drawnPage()}, m_shell->fileDate()};
    }
    [[nodiscard]] files::PlanDocument document(bool allPages = false) const
    {
        return allPages ? files::PlanDocument{m_shell->engine().allPages(), m_shell->fileDate()}
                        : files::PlanDocument{{m_shell->engine().shownPage()}, m_shell->fileDate()};
    }
    [[nodiscard]] QJsonObject plan() const
    {
        return QJsonDocument::fromJson(files::planAsJson(drawn())).object();
    }

    ProgramSetup setup;
    QDate today{2025, 3, 19};
    /// Whether every question is a statement of its own.
    bool plain = false;
    /// Runs once per row of a refresh, as waiting events would.
    std::function<void()> whileYielding;
    /// What the user answers when asked for a file.
    QString chosenFile;
    /// The message boxes shown, "title: text".
    QStringList messages;

private:
    std::optional<shell::Shell> m_shell;
};

} // namespace test
