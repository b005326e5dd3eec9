#include "app/SetupOffer.h"

#include "app/ProgramFile.h"

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
    : m_program(programFile(applicationFolder, QStringLiteral("tempora-setup"))),
      m_settingsFile(std::move(settingsFile))
{
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
    return WayOut{QStringLiteral("Choisir la base…"), [program = m_program, options] {
                      if (!QProcess::startDetached(program, options)) {
                          showFault(nullptr, QStringLiteral("« Choisir la base » ne s’ouvre pas."),
                                    program);
                      }
                  }};
}

} // namespace app
