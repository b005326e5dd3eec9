// Runs the program without a window for as long as many days of use, and looks whether it keeps
// anything: memory, descriptors, and on a server connections and prepared statements. Writes a
// Markdown table to standard output and ends with 1 where something grew:
//   soak [refreshes [reconnections [exports]]]        (10000 1000 500 unless told)
// On SQLite a "reconnection" is a program that starts up and shuts down again.

#include "bench/Faculty.h"
#include "shell/Export.h"
#include "support/MariaDbServer.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <cstdio>
#include <functional>
#include <malloc.h>

namespace
{

using test::DatabaseKind;

/// What a long life could use up.
struct Kept {
    long memory = 0; ///< kB that are in memory
    long descriptors = 0;
    long connections = 0; ///< to this database, on its server
    long statements = 0;  ///< prepared on the server, whoever did it
};

/// The process may take that many kB more in the second half: its heap is not always cut alike.
constexpr long kMemorySlack = 1024;

long residentMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith("VmRSS:")) {
                return line.mid(6).trimmed().split(' ').first().toLong();
            }
        }
    }
    return -1;
}

class Soak
{
public:
    explicit Soak(DatabaseKind kind)
        : m_isServer(kind == DatabaseKind::MariaDb),
          m_faculty(demo::smallFaculty(QDate(2026, 10, 5)), kind), m_shell(m_faculty.open(false))
    {
    }

    /// Another plan each time.
    void refresh(int number)
    {
        m_shell->form().CbJour.setListIndex(number % 6);
        expectWhole();
    }
    void reconnect(int number)
    {
        if (m_isServer) {
            kill();
            refresh(number);
        } else {
            m_faculty.open(false)->Form_Unload();
        }
    }
    void exportPlan(int number)
    {
        const QStringList endings{QStringLiteral("pdf"), QStringLiteral("png"),
                                  QStringLiteral("json"), QStringLiteral("csv"),
                                  QStringLiteral("html")};
        shell::exportPlan(*m_shell,
                          m_folder.filePath(QStringLiteral("plan.") +
                                            endings.at(number % static_cast<int>(endings.size()))));
    }

    [[nodiscard]] Kept kept()
    {
        malloc_trim(0); // what the heap holds free is not kept
        Kept now;
        now.memory = residentMemory();
        now.descriptors =
            static_cast<long>(QDir(QStringLiteral("/proc/self/fd"))
                                  .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
                                  .size());
        if (m_isServer) {
            now.connections = static_cast<long>(connections().size());
            now.statements =
                m_faculty.database()
                    .read(QStringLiteral("show global status like 'Prepared_stmt_count'"))
                    .first()
                    .last()
                    .toLong();
        }
        return now;
    }

private:
    [[nodiscard]] QList<QStringList> connections()
    {
        return m_faculty.database().read(
            QStringLiteral("select id from information_schema.processlist where db = '%1' and id "
                           "<> connection_id() and command <> 'Killed'")
                .arg(m_faculty.database().baseName()));
    }
    void kill()
    {
        QString script;
        for (const QStringList& row : connections()) {
            script += QStringLiteral("kill %1;").arg(row.first());
        }
        test::MariaDbServer::shared().runScript(script);
    }
    void expectWhole() const
    {
        const plan::PlanContent& content = m_shell->engine().content();
        if (content.rows.empty() || !content.faults.empty()) {
            throw std::runtime_error("a plan is incomplete");
        }
    }

    bool m_isServer;
    bench::Faculty m_faculty;
    std::unique_ptr<shell::Shell> m_shell;
    QTemporaryDir m_folder;
};

/// Repeats the step and tells what is kept after the first half, in which libraries fill what they
/// keep for good, and at the end. False when something grew.
bool repeat(Soak& soak, const char* what, int times, const std::function<void(int)>& step)
{
    Kept before;
    for (int number = 0; number < times; ++number) {
        step(number);
        if (number == times / 2) {
            before = soak.kept();
        }
    }
    const Kept after = soak.kept();
    std::printf("| %s | %d | %ld → %ld kB | %ld → %ld | %ld → %ld | %ld → %ld |\n", what, times,
                before.memory, after.memory, before.descriptors, after.descriptors,
                before.connections, after.connections, before.statements, after.statements);
    std::fflush(stdout);
    return after.memory <= before.memory + kMemorySlack &&
           after.descriptors == before.descriptors && after.connections == before.connections &&
           after.statements == before.statements;
}

int timesOf(const QStringList& arguments, int index, int usual)
{
    return arguments.size() > index ? std::max(arguments.at(index).toInt(), 10) : usual;
}

bool soakOn(DatabaseKind kind, const QStringList& arguments)
{
    const QByteArray name = kind == DatabaseKind::Sqlite ? "SQLite" : "MariaDB";
    Soak soak(kind);
    bool isFlat = repeat(soak, name + ", refreshes", timesOf(arguments, 1, 10'000),
                         [&](int number) { soak.refresh(number); });
    isFlat &= repeat(soak, name + ", reconnections", timesOf(arguments, 2, 1'000),
                     [&](int number) { soak.reconnect(number); });
    isFlat &= repeat(soak, name + ", exports", timesOf(arguments, 3, 500),
                     [&](int number) { soak.exportPlan(number); });
    return isFlat;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    std::printf("| what | times | memory | descriptors | connections | statements |\n"
                "|---|---:|---:|---:|---:|---:|\n");
    const bool onFile = soakOn(DatabaseKind::Sqlite, arguments);
    const bool onServer = soakOn(DatabaseKind::MariaDb, arguments);
    return onFile && onServer ? 0 : 1;
}
