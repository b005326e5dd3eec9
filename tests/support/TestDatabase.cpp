#include "support/TestDatabase.h"

#include "support/MariaDbServer.h"
#include "support/OdbcConfiguration.h"
#include "support/SqliteClient.h"
#include "support/TestFolder.h"

#include <QCoreApplication>
#include <QFile>
#include <stdexcept>

namespace test
{
namespace
{

const QString user = QStringLiteral("planning");
const QString password = QStringLiteral("mot-de-passe");

QString script(const QStringList& statements)
{
    return statements.join(QStringLiteral(";\n")) + QStringLiteral(";\n");
}

/// Undoes what the MariaDB client does to a field so that it stays on its line.
QString unescaped(const QString& field)
{
    QString text;
    for (qsizetype i = 0; i < field.size(); ++i) {
        if (field[i] != u'\\' || i + 1 == field.size()) {
            text += field[i];
            continue;
        }
        const QChar code = field[++i];
        text += code == u't'   ? QChar(u'\t')
                : code == u'n' ? QChar(u'\n')
                : code == u'0' ? QChar(0)
                               : code;
    }
    return text;
}

QList<QStringList> rowsOf(const QString& output)
{
    QList<QStringList> rows;
    for (const QString& line : output.chopped(output.endsWith(u'\n') ? 1 : 0).split(u'\n')) {
        rows << line.split(u'\t');
    }
    return output.isEmpty() ? QList<QStringList>() : rows;
}

} // namespace

TestDatabase::TestDatabase(DatabaseKind kind) : m_kind(kind)
{
    static int counter = 0; // with the process's number: a server may be shared with others
    m_name = QStringLiteral("base%1_%2").arg(QCoreApplication::applicationPid()).arg(++counter);
    if (kind == DatabaseKind::Sqlite) {
        createSqlite();
    } else {
        createMariaDb();
    }
}

TestDatabase::~TestDatabase()
{
    if (m_kind == DatabaseKind::Sqlite) {
        for (const char* suffix : {"", "-journal", "-wal", "-shm"}) {
            QFile::remove(m_file + QLatin1String(suffix));
        }
    }
    if (m_kind == DatabaseKind::MariaDb) {
        dropFromServer();
    }
}

void TestDatabase::createSqlite()
{
    m_file = processFolder() + u'/' + m_name + QStringLiteral(".sqlite");
    writeFile(m_file, QString());
    OdbcConfiguration::instance().addSqliteSource(m_name, m_file);
    m_connectString = QStringLiteral("DSN=") + m_name;
}

void TestDatabase::dropFromServer() const
{
    constexpr const char* dropping = "SET lock_wait_timeout = 10;\nDROP DATABASE %1;\n";
    try {
        MariaDbServer::shared().runScript(QString::fromLatin1(dropping).arg(m_name));
    } catch (const std::runtime_error&) {
        // Somebody still holds a table of it: it goes with the server.
    }
}

void TestDatabase::createMariaDb()
{
    const MariaDbAccess& server = MariaDbServer::shared();
    server.runScript(QStringLiteral("CREATE OR REPLACE DATABASE %1;\n"
                                    "CREATE USER IF NOT EXISTS %2@'%' IDENTIFIED BY '%3';\n"
                                    "GRANT ALL ON %1.* TO %2@'%';\n")
                         .arg(m_name, user, password));
    m_connectString = server.connectString(m_name, user, password);
}

void TestDatabase::writePhpFile(const QString& applicationFolder, Rights rights) const
{
    if (!usesMySql()) {
        return;
    }
    const QString account =
        rights == Rights::Marking ? QStringLiteral("tempora") : QStringLiteral("lecture");
    QString grants = QStringLiteral("CREATE USER IF NOT EXISTS %2@'%' IDENTIFIED BY '%3';\n"
                                    "GRANT SELECT ON %1.* TO %2@'%';\n");
    if (rights == Rights::Marking) {
        for (const char* table : {"abscence", "etud_abs"}) {
            // Whoever may create a table is given rights to one that is not there yet.
            grants += QStringLiteral("GRANT CREATE, INSERT, DELETE ON %1.") + table +
                      QStringLiteral(" TO %2@'%';\nREVOKE CREATE ON %1.") + table +
                      QStringLiteral(" FROM %2@'%';\n");
        }
    }
    MariaDbServer::shared().runScript(grants.arg(m_name, account, password));
    writeFile(applicationFolder + QStringLiteral("/app_data/") + m_name + QStringLiteral(".php"),
              QStringLiteral("<?php\n$host=\"127.0.0.1\";\n$login=\"%1\";\n"
                             "$mot_de_passe=\"%2\";\n$Base=\"%3\";\n$port=\"%4\";\n?>\n")
                  .arg(account, password, m_name)
                  .arg(MariaDbServer::shared().port()));
}

void TestDatabase::execute(const QStringList& statements)
{
    if (m_kind == DatabaseKind::Sqlite) {
        // Nobody needs the file after a power cut.
        executeOnSqlite(m_file,
                        QStringList{QStringLiteral("PRAGMA synchronous = off")} + statements);
    } else {
        static_cast<void>(MariaDbServer::shared().runScript(script(statements), m_name));
    }
}

QList<QStringList> TestDatabase::read(const QString& query) const
{
    if (m_kind == DatabaseKind::Sqlite) {
        return readFromSqlite(m_file, query);
    }
    const QByteArray output = MariaDbServer::shared().runScript(script({query}), m_name);
    QList<QStringList> rows = rowsOf(QString::fromUtf8(output));
    for (QStringList& row : rows) {
        for (QString& field : row) {
            field = unescaped(field);
        }
    }
    return rows;
}

std::string kindName(const testing::TestParamInfo<DatabaseKind>& info)
{
    return info.param == DatabaseKind::Sqlite ? "sqlite" : "mariaDb";
}

void PrintTo(DatabaseKind kind, std::ostream* stream)
{
    *stream << (kind == DatabaseKind::Sqlite ? "SQLite" : "MariaDB");
}

} // namespace test
