#include "app/setup/SetupWizard.h"

#include "app/ErrorReport.h"
#include "app/setup/SetupPages.h"
#include "runtime/RunTimeError.h"
#include "setup/Registration.h"

#include <QEventLoop>
#include <QFileInfo>
#include <QLabel>
#include <QScopeGuard>
#include <utility>

namespace app
{

SetupWizard::SetupWizard(shell::Settings settings, Ties ties)
    : m_settings(std::move(settings)), m_ties(std::move(ties))
{
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

QString SetupWizard::presentSource() const
{
    return setup::presentSource(m_settings);
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

void SetupWizard::look()
{
    if (m_source.kind == setup::SourceKind::Demo && !QFileInfo::exists(m_source.file)) {
        m_ties.makeDemo(m_source.file);
    }
    const db::SqlDialect bySetting(m_source.kind == setup::SourceKind::Server);
    db::Connection connection(setup::connectStringOf(m_source, m_driver), bySetting);
    m_findings = setup::lookInto(connection);
}

bool SetupWizard::tryOut(QLabel* told)
{
    if (m_source.kind == setup::SourceKind::Demo) {
        m_source.file = m_ties.demoFile;
    }
    m_driver = setup::driverFor(m_source.kind, m_ties.drivers());
    const QString missing = setup::missingIn(m_source, m_driver);
    if (!missing.isEmpty()) {
        told->setText(missing);
        return false;
    }
    told->setText(QStringLiteral("Connexion à la base…"));
    try {
        await([this] { look(); });
    } catch (const runtime::RunTimeError& error) {
        told->setText(QStringLiteral("%1\n\n%2").arg(error.explanation(), error.text()));
        return false;
    }
    m_recommendations = setup::recommendationsFor(
        m_findings, m_ties.applicationFolder + QStringLiteral("/Styles"), m_settings);
    told->clear();
    return true;
}

void SetupWizard::accept()
{
    try {
        const setup::Route route =
            setup::routeOf(m_source, m_ties.drivers(), m_ties.applicationFolder);
        setup::registerSource(m_source, route, m_driver, m_ties.applicationFolder, m_settings);
        setup::saveRecommendations(m_recommendations, m_settings);
    } catch (const runtime::RunTimeError& error) {
        reportRunTimeError(this, error);
        return;
    }
    QWizard::accept();
    m_ties.openPlan();
}

} // namespace app
