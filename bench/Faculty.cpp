#include "bench/Faculty.h"

#include "demo/Output.h"
#include "shell/Settings.h"
#include "support/MariaDbServer.h"

#include <QFile>
#include <QRegularExpression>
#include <stdexcept>
#include <utility>

namespace bench
{
namespace
{

/// The tests' server is made small so that it starts quickly, too small for the large faculty; a
/// server that nobody has changed keeps 128 MB of its tables in memory.
constexpr QLatin1String kUsualBuffer("set global innodb_buffer_pool_size = 134217728;");

void write(const QString& path, const QString& text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0) {
        throw std::runtime_error("cannot write " + path.toStdString());
    }
}

QString read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("cannot read " + path.toStdString());
    }
    return QString::fromUtf8(file.readAll());
}

} // namespace

Faculty::Faculty(const demo::FacultyOptions& options, test::DatabaseKind kind) : m_database(kind)
{
    if (kind == test::DatabaseKind::Sqlite) {
        demo::writeSqliteFile(options, m_database.file());
    } else {
        const QString script = m_folder.filePath(QStringLiteral("faculty.sql"));
        demo::writeMariaDbScript(options, script);
        test::MariaDbServer::shared().runScript(read(script), m_database.baseName());
        test::MariaDbServer::shared().runScript(QString(kUsualBuffer), m_database.baseName());
        QFile::remove(script);
        m_database.writePhpFile(m_folder.path());
    }
}

Faculty::Start Faculty::start(bool plain) const
{
    const QString settings = m_folder.filePath(QStringLiteral("Tempora.ini"));
    write(settings,
          QStringLiteral("[Settings]\nMysql=%1\nBase=%2\nBase_Sql=%2\n")
              .arg(m_database.usesMySql() ? QStringLiteral("True") : QStringLiteral("False"),
                   m_database.baseName()));
    engine::Surroundings surroundings;
    surroundings.applicationFolder = m_folder.path();
    surroundings.seed = 1;
    surroundings.plain = plain;
    return {shell::Settings::fromFile(settings), surroundings};
}

std::unique_ptr<shell::Shell> Faculty::open(bool plain, quint16 port) const
{
    const bool mySql = m_database.usesMySql();
    const QString php =
        m_folder.filePath(QStringLiteral("app_data/%1.php").arg(m_database.baseName()));
    const QString usual = mySql ? read(php) : QString();
    if (mySql && port != 0) {
        QString moved = usual;
        moved.replace(QRegularExpression(QStringLiteral("\\$port=\"[0-9]+\"")),
                      QStringLiteral("$port=\"%1\"").arg(port));
        write(php, moved);
    }
    Start start = this->start(plain);
    auto program = std::make_unique<shell::Shell>(std::move(start.settings), start.surroundings);
    program->Form_Load();
    program->fitPicture();
    program->Form_Activate();
    if (mySql && port != 0) {
        write(php, usual);
    }
    return program;
}

} // namespace bench
