#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>

namespace test
{

/// Makes the process die with this one, however this one ends. To be called before its start.
void dieWithParent(QProcess& process);

/// Runs the program to its end with that input and returns its output.
/// Throws std::runtime_error with its error output when it fails.
QByteArray runProgram(const QString& program, const QStringList& arguments,
                      const QByteArray& input = {});

/// The program's full path; also finds those that only an administrator's PATH holds.
[[nodiscard]] QString findProgram(const QString& name);

} // namespace test
