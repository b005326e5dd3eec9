#include "app/setup/SetupWizard.h"

#include "app/ErrorReport.h"
#include "app/setup/SetupPages.h"
#include "runtime/RunTimeError.h"

#include <QDate>
#include <QEventLoop>
#include <QFile>
#include <QScopeGuard>
#include <utility>

namespace app
{

SetupWizard::SetupWizard(shell::Settings settings, Ties ties)
    : m_settings(std::move(settings)), m_ties(std::move(ties)),
      m_present(setup::presentOf(m_settings, m_ties.folders)),
      m_source(m_present.source.value_or(setup::Source()))
{
    if (m_source.kind == setup::SourceKind::SqliteFile && m_source.file == m_ties.demoFile) {
        m_source.kind = setup::SourceKind::Demo;
        m_source.file.clear(); // nobody looks for it there
    }
    setObjectName(QStringLiteral("SetupWizard"));
    setWindowTitle(QStringLiteral("Tempora : choisir la base"));
    setWizardStyle(QWizard::ModernStyle);
    setOption(QWizard::NoBackButtonOnStartPage);
    setButtonText(QWizard::BackButton, QStringLiteral("Précédent"));
    setButtonText(QWizard::NextButton, QStringLiteral("Suivant"));
    setButtonText(QWizard::CancelButton, QStringLiteral("Annuler"));
    setButtonText(QWizard::FinishButton, QStringLiteral("Ouvrir le plan"));
    setPage(kKindPage, new SetupKindPage(*this, kDetailsPage, kFoundPage));
    setPage(kDetailsPage, new SetupDetailsPage(*this, kFoundPage));
    setPage(kFoundPage, new SetupFoundPage(*this));
    resize(640, 480);
}

/// Serves the window while the call runs, which nobody can hurry.
void SetupWizard::await(const std::function<void()>& call)
{
    setEnabled(false);
    const auto enableAgain = qScopeGuard([this] { setEnabled(true); });
    QEventLoop ended;
    m_background.start(call);
    const bool isUnderWay = m_background.whenEnded(
        [&ended] { QMetaObject::invokeMethod(&ended, &QEventLoop::quit, Qt::QueuedConnection); });
    if (isUnderWay) {
        ended.exec();
    }
    m_background.finish();
}

setup::Findings SetupWizard::found() const
{
    const db::SqlDialect bySetting(m_source.kind == setup::SourceKind::Server);
    db::Connection connection(setup::connectStringOf(m_source, m_driver), bySetting);
    return setup::lookInto(connection);
}

void SetupWizard::look()
{
    if (m_source.kind == setup::SourceKind::Demo) {
        lookAtDemo();
    } else {
        m_findings = found();
    }
}

/// One that is there is kept with what has been tried in it, until its last period is over or
/// something has broken it.
void SetupWizard::lookAtDemo()
{
    const bool wasThere = QFile::exists(m_source.file);
    const bool isOfUse = wasThere && runtime::skipOnError([this] { m_findings = found(); }) &&
                         m_findings.lastDay >= QDate::currentDate();
    if (!isOfUse) {
        m_ties.makeDemo(m_source.file);
        m_hasMadeDemo = m_hasMadeDemo || !wasThere;
        m_findings = found();
    }
}

QString SetupWizard::tryOut()
{
    if (m_source.kind == setup::SourceKind::Demo) {
        m_source.file = m_ties.demoFile;
    }
    const QStringList drivers = m_ties.drivers();
    m_route = setup::routeOf(m_source, drivers, m_ties.folders);
    m_driver = setup::driverOn(m_route, m_source.kind, drivers);
    const QString missing = setup::missingIn(m_source, m_driver);
    if (!missing.isEmpty()) {
        return missing;
    }
    try {
        await([this] { look(); });
    } catch (const runtime::RunTimeError& error) {
        return QStringLiteral("%1\n\n%2").arg(error.explanation(), error.text());
    }
    m_recommendations = setup::recommendationsFor(
        m_findings, m_ties.folders.application + QStringLiteral("/Styles"), m_settings);
    return {};
}

void SetupWizard::accept()
{
    try {
        setup::registerSource(m_source, m_route, m_driver, m_ties.folders.application, m_settings);
        setup::saveRecommendations(m_recommendations, m_settings);
    } catch (const runtime::RunTimeError& error) {
        reportRunTimeError(this, error);
        return;
    }
    QWizard::accept();
    if (!m_ties.openPlan()) {
        showFault(this, QStringLiteral("Tout est enregistré, mais le plan ne s’est pas ouvert."),
                  QStringLiteral("Ouvrez Tempora vous-même."));
    }
}

void SetupWizard::reject()
{
    if (isEnabled()) {
        QWizard::reject();
    }
}

void SetupWizard::done(int result)
{
    const bool isWanted = result == Accepted && m_source.kind == setup::SourceKind::Demo;
    if (m_hasMadeDemo && !isWanted) {
        QFile::remove(m_ties.demoFile);
    }
    QWizard::done(result);
}

} // namespace app
