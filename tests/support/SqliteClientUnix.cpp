#include "support/ChildProgram.h"
#include "support/SqliteClient.h"

namespace test
{
namespace
{

// Separators that no text of a test holds.
constexpr QChar fieldEnd(0x1f);
constexpr QChar rowEnd(0x1e);

QByteArray runSqlite(const QString& file, const QStringList& options, const QString& statements)
{
    return runProgram(findProgram(QStringLiteral("sqlite3")),
                      QStringList{QStringLiteral("-batch"), QStringLiteral("-bail")} + options +
                          QStringList{file},
                      statements.toUtf8());
}

} // namespace

void executeOnSqlite(const QString& file, const QStringList& statements)
{
    runSqlite(file, {}, statements.join(QStringLiteral(";\n")) + QStringLiteral(";\n"));
}

QList<QStringList> readFromSqlite(const QString& file, const QString& query)
{
    QString output = QString::fromUtf8(runSqlite(
        file,
        {QStringLiteral("-nullvalue"), QStringLiteral("NULL"), QStringLiteral("-separator"),
         QString(fieldEnd), QStringLiteral("-newline"), QString(rowEnd)},
        query + QStringLiteral(";\n")));
    QList<QStringList> rows;
    if (output.endsWith(rowEnd)) {
        output.chop(1);
        for (const QString& line : output.split(rowEnd)) {
            rows << line.split(fieldEnd);
        }
    }
    return rows;
}

} // namespace test
