#pragma once

#include "app/BackgroundCall.h"
#include "setup/Findings.h"
#include "setup/Present.h"
#include "setup/Recommendations.h"
#include "setup/Registration.h"
#include "setup/Source.h"
#include "shell/Settings.h"

#include <QStringList>
#include <QWizard>
#include <functional>
#include <vector>

namespace app
{

/// Asks somebody who knows nothing of data sources where their timetable is, tries it, says what it
/// found, and writes what Tempora needs to open it. No data source and no setting is written before
/// the last button; a demo faculty is made to be tried, and goes again when another way is taken.
class SetupWizard : public QWizard
{
public:
    /// What it finds around it.
    struct Ties {
        /// The names of the drivers that ODBC has now: one may be installed while the window asks.
        std::function<QStringList()> drivers;
        /// The program's own folder, with `Styles`, and the one that the machine's administrator
        /// keeps what is beside the program elsewhere in.
        db::ConfigurationFolders folders;
        QString demoFile; ///< full path of the file that the demo faculty is made in
        /// Makes the demo faculty around today in that file, in the place of what is there. Runs on
        /// another thread. Error: runtime::RunTimeError.
        std::function<void(const QString& file)> makeDemo;
        /// Opens the plan, once all is written. False where it could not be started.
        std::function<bool()> openPlan;
        bool offersAccess = false; ///< on Windows
        /// Starts the program that installs SQLite's driver, and does not wait for it. False where
        /// it could not be started. Empty where there is no such program.
        std::function<bool()> installSqliteDriver;
    };

    SetupWizard(shell::Settings settings, Ties ties);

    /// Writes what was chosen, and opens the plan; tells what cannot be written, and stays.
    void accept() override;
    /// Not while a database is being tried, which is over in seconds.
    void reject() override;
    /// Takes a demo faculty away that it has made and that nobody wants.
    void done(int result) override;

    [[nodiscard]] setup::Source& source() { return m_source; }
    [[nodiscard]] const Ties& ties() const { return m_ties; }
    [[nodiscard]] const setup::Findings& findings() const { return m_findings; }
    [[nodiscard]] std::vector<setup::Recommendation>& recommendations()
    {
        return m_recommendations;
    }
    /// What is set up when the window begins.
    [[nodiscard]] const setup::Present& present() const { return m_present; }

    /// Opens the source and looks into it, while the window waits. What is missing or failed, in
    /// French; empty where all went well.
    [[nodiscard]] QString tryOut();

private:
    enum Page { kKindPage, kDetailsPage, kFoundPage };

    void await(const std::function<void()>& call);
    void look();
    void lookAtDemo();
    [[nodiscard]] setup::Findings found() const;

    shell::Settings m_settings;
    Ties m_ties;
    setup::Present m_present;
    setup::Source m_source;
    setup::Route m_route = setup::Route::DataSource;
    QString m_driver;
    bool m_hasMadeDemo = false; ///< where there was none
    setup::Findings m_findings;
    std::vector<setup::Recommendation> m_recommendations;
    BackgroundCall m_background; ///< last: at its end it waits for what uses the others
};

} // namespace app
