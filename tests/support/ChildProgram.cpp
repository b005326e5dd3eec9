#include "support/ChildProgram.h"

#include <QStandardPaths>
#include <csignal>
#include <stdexcept>
#include <sys/prctl.h>

namespace test
{

void dieWithParent(QProcess& process)
{
    process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

QByteArray runProgram(const QString& program, const QStringList& arguments, const QByteArray& input)
{
    constexpr int longestRunMilliseconds = 120000;
    QProcess process;
    dieWithParent(process);
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    const bool ended = process.waitForFinished(longestRunMilliseconds);
    if (!ended || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        throw std::runtime_error(program.toStdString() + ": " +
                                 process.errorString().toStdString() + "\n" +
                                 process.readAllStandardError().toStdString());
    }
    return process.readAllStandardOutput();
}

QString findProgram(const QString& name)
{
    const QString found = QStandardPaths::findExecutable(name);
    return found.isEmpty() ? QStandardPaths::findExecutable(
                                 name, {QStringLiteral("/usr/sbin"), QStringLiteral("/usr/bin")})
                           : found;
}

} // namespace test
