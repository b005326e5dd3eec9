#include "bench/Faculty.h"

#include "demo/Output.h"
#include "demo/Schema.h"
#include "shell/Settings.h"
#include "support/MariaDbServer.h"

#include <QFile>
#include <QRegularExpression>
#include <algorithm>
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

/// All but the key.
QStringList columnsOfCourses()
{
    const auto& tables = demo::tables();
    const auto emplois = std::find_if(tables.begin(), tables.end(), [](const demo::Table& each) {
        return each.name == u"emplois";
    });
    QStringList columns;
    for (const demo::Column& column : emplois->columns) {
        columns << u'`' + column.name + u'`';
    }
    return columns;
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

void Faculty::putIntoOnePeriod(int rows)
{
    const QString list = columnsOfCourses().join(u',');
    const int present =
        m_database.read(QStringLiteral("select count(*) from emplois")).first().first().toInt();
    m_database.execute(
        {QStringLiteral("update emplois set Tranche=1"),
         QStringLiteral("insert into emplois (%1) select %1 from emplois order by Num limit %2")
             .arg(list)
             .arg(std::max(rows - present, 0))});
}

void Faculty::addCommonCourses(int rows)
{
    const QString first = QStringLiteral(" from emplois where Tranche=1");
    const QStringList columns = columnsOfCourses();
    const auto count = [&] {
        return m_database.read(QStringLiteral("select count(*)") + first).first().first().toInt();
    };
    const int once = count();
    for (int more = 1; count() < rows; ++more) {
        QStringList values = columns;
        values.replaceInStrings(QRegularExpression(QStringLiteral("^`Classe`$")),
                                (m_database.usesMySql() ? QStringLiteral("concat(Classe, '/%1')")
                                                        : QStringLiteral("Classe || '/%1'"))
                                    .arg(more));
        m_database.execute(QStringLiteral("insert into emplois (") + columns.join(u',') +
                           QStringLiteral(") select ") + values.join(u',') + first +
                           QStringLiteral(" order by Num limit ") +
                           QString::number(std::min(once, rows - count())));
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
    const std::shared_ptr<void> elsewhere = port == 0 ? nullptr : reachedAt(port);
    Start start = this->start(plain);
    auto program = std::make_unique<shell::Shell>(std::move(start.settings), start.surroundings);
    program->Form_Load();
    program->fitPicture();
    program->Form_Activate();
    return program;
}

std::shared_ptr<void> Faculty::reachedAt(quint16 port) const
{
    const QString php =
        m_folder.filePath(QStringLiteral("app_data/%1.php").arg(m_database.baseName()));
    const QString usual = read(php);
    QString moved = usual;
    moved.replace(QRegularExpression(QStringLiteral("\\$port=\"[0-9]+\"")),
                  QStringLiteral("$port=\"%1\"").arg(port));
    write(php, moved);
    return {nullptr, [php, usual](void*) { write(php, usual); }};
}

QString Faculty::connectStringAt(quint16 port) const
{
    QString moved = m_database.connectString();
    return moved.replace(QRegularExpression(QStringLiteral(";port=[0-9]+")),
                         QStringLiteral(";port=%1").arg(port));
}

} // namespace bench
