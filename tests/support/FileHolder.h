#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>

namespace test
{

/// Another program that has begun to do something with an SQLite file and does not come to an end.
class FileHolder
{
public:
    /// Returns when the statements have run. Throws std::runtime_error when they do not.
    FileHolder(const QString& file, const QByteArray& statements);
    ~FileHolder();
    FileHolder(const FileHolder&) = delete;
    FileHolder& operator=(const FileHolder&) = delete;

    /// Ends the other program, which takes back what it has begun.
    void letGo();

private:
    QProcess m_process;
};

} // namespace test
