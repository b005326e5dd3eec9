#pragma once

#include "app/BackgroundCall.h"
#include "setup/Findings.h"
#include "setup/Recommendations.h"
#include "setup/Source.h"
#include "shell/Settings.h"

#include <QStringList>
#include <QWizard>
#include <functional>
#include <vector>

class QLabel;

namespace app
{

/// Asks somebody who knows nothing of data sources where their timetable is, tries it, says what it
/// found, and writes what Tempora needs to open it. Nothing is written before the last button.
class SetupWizard : public QWizard
{
public:
    /// What it finds around it.
    struct Ties {
        /// The names of the drivers that ODBC has now: one may be installed while the window asks.
        std::function<QStringList()> drivers;
        QString applicationFolder; ///< holds the program and `Styles`
        QString demoFile;          ///< full path of the file that the demo faculty is made in
        /// Makes the demo faculty in a file that is not there. Runs on another thread.
        /// Error: runtime::RunTimeError.
        std::function<void(const QString& file)> makeDemo;
        /// Opens the plan, once all is written.
        std::function<void()> openPlan;
        bool offersAccess = false; ///< on Windows
        /// Starts the program that installs SQLite's driver, and does not wait for it. False where
        /// it could not be started. Empty where there is no such program.
        std::function<bool()> installSqliteDriver;
    };

    SetupWizard(shell::Settings settings, Ties ties);

    /// Writes what was chosen, and opens the plan; tells what cannot be written, and stays.
    void accept() override;

    [[nodiscard]] setup::Source& source() { return m_source; }
    [[nodiscard]] const Ties& ties() const { return m_ties; }
    [[nodiscard]] const setup::Findings& findings() const { return m_findings; }
    [[nodiscard]] std::vector<setup::Recommendation>& recommendations()
    {
        return m_recommendations;
    }
    /// What is set up now, as a line in French; empty: nothing is.
    [[nodiscard]] QString presentSource() const;

    /// Opens the source and looks into it, while the window waits. Tells in the label what is
    /// missing or what failed; then it is false.
    [[nodiscard]] bool tryOut(QLabel* told);

private:
    enum Page { kKindPage, kDetailsPage, kFoundPage };

    void await(const std::function<void()>& call);
    void look();

    shell::Settings m_settings;
    Ties m_ties;
    setup::Source m_source;
    QString m_driver;
    setup::Findings m_findings;
    std::vector<setup::Recommendation> m_recommendations;
    BackgroundCall m_background; ///< last: at its end it waits for what uses the others
};

} // namespace app
