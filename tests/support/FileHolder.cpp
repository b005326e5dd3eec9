#include "support/FileHolder.h"

#include "support/ChildProgram.h"

#include <stdexcept>

namespace test
{

FileHolder::FileHolder(const QString& file, const QByteArray& statements)
{
    dieWithParent(m_process);
    m_process.start(findProgram(QStringLiteral("sqlite3")), {file});
    m_process.write(statements + "select 'held';\n");
    QByteArray output;
    while (!output.contains("held") && m_process.waitForReadyRead()) {
        output += m_process.readAll();
    }
    if (!output.contains("held")) {
        throw std::runtime_error("the file is not held: " +
                                 m_process.readAllStandardError().toStdString());
    }
}

FileHolder::~FileHolder()
{
    letGo();
}

void FileHolder::letGo()
{
    m_process.closeWriteChannel();
    m_process.waitForFinished();
}

} // namespace test
