#include "app/SetupOffer.h"

#include <QFileInfo>
#include <QProcess>
#include <utility>

namespace app
{
namespace
{

/// No connection, no file that describes the server, or a database that holds no timetable.
bool isOfTheDatabase(runtime::ErrorNumber number)
{
    return number == runtime::ErrorNumber::DatabaseFailure ||
           number == runtime::ErrorNumber::FileNotFound ||
           number == runtime::ErrorNumber::TableMissing;
}

} // namespace

SetupOffer::SetupOffer(QString applicationFolder, QString settingsFile)
    : m_program(std::move(applicationFolder)), m_settingsFile(std::move(settingsFile))
{
    m_program += QStringLiteral("/tempora-setup");
#ifdef Q_OS_WIN
    m_program += QStringLiteral(".exe");
#endif
}

std::optional<WayOut> SetupOffer::wayOutOf(const runtime::RunTimeError& fault) const
{
    if (!isOfTheDatabase(fault.number()) || !QFileInfo(m_program).isExecutable()) {
        return std::nullopt;
    }
    QStringList options;
    if (!m_settingsFile.isEmpty()) {
        options << QStringLiteral("--settings") << m_settingsFile;
    }
    return WayOut{QStringLiteral("Choisir la base…"),
                  [program = m_program, options] { QProcess::startDetached(program, options); }};
}

} // namespace app
