// How long a refresh takes and how many statements it sends, one by one and fetched ahead, over the
// databases and distances that the program meets. Writes a Markdown table to standard output:
//   refresh_bench [small|middle|large]... [--near]
// With --near the server behind a delay is left out, which takes most of the time.

#include "bench/DelayProxy.h"
#include "bench/Faculty.h"
#include "support/MariaDbServer.h"

#include <QCoreApplication>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace
{

using Clock = std::chrono::steady_clock;

struct Figures {
    double milliseconds = 0; ///< median
    long long statements = 0;
};

/// Clicks through the days of the week, as a user does.
Figures measure(shell::Shell& program, int clicks)
{
    std::vector<double> times;
    long long statements = 0;
    for (int click = 0; click < clicks; ++click) {
        const long long before = program.engine().statementCount();
        const auto start = Clock::now();
        program.form().CbJour.setListIndex(click % 5);
        times.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
        statements = std::max(statements, program.engine().statementCount() - before);
    }
    std::nth_element(times.begin(), times.begin() + clicks / 2, times.end());
    return {times[static_cast<std::size_t>(clicks / 2)], statements};
}

void report(const char* size, const char* where, const bench::Faculty& faculty, quint16 port,
            int plainClicks)
{
    const auto plainProgram = faculty.open(true, port);
    const Figures plain = measure(*plainProgram, plainClicks);
    const auto aheadProgram = faculty.open(false, port);
    const Figures ahead = measure(*aheadProgram, 25);
    std::printf("| %s | %s | %lld | %.1f | %lld | %.1f | %.0f |\n", size, where, plain.statements,
                plain.milliseconds, ahead.statements, ahead.milliseconds,
                plain.milliseconds / ahead.milliseconds);
    std::fflush(stdout);
}

void measureSize(const char* size, const demo::FacultyOptions& options, bool onlyNear)
{
    {
        const bench::Faculty sqlite(options, test::DatabaseKind::Sqlite);
        report(size, "SQLite", sqlite, 0, 15);
    }
    const bench::Faculty mariaDb(options, test::DatabaseKind::MariaDb);
    report(size, "MariaDB, same machine", mariaDb, 0, 15);
    for (const int roundTrip : onlyNear ? std::vector<int>() : std::vector<int>{5, 20}) {
        const bench::DelayProxy proxy(test::MariaDbServer::shared().port(),
                                      std::chrono::milliseconds(roundTrip));
        const QByteArray where = QByteArray("MariaDB, ") + QByteArray::number(roundTrip) + " ms";
        report(size, where.constData(), mariaDb, proxy.port(), 1); // most of a minute each
    }
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QStringList asked = QCoreApplication::arguments().mid(1);
    const bool onlyNear = asked.removeAll(QStringLiteral("--near")) > 0;
    const QDate today = QDate::currentDate();
    std::puts("| faculty | database | statements, one by one | ms | statements, ahead | ms | times "
              "faster |\n|---|---|---:|---:|---:|---:|---:|");
    const std::vector<std::pair<const char*, demo::FacultyOptions>> sizes = {
        {"small", demo::smallFaculty(today)},
        {"middle", demo::middleFaculty(today)},
        {"large", demo::largeFaculty(today)}};
    for (const auto& [name, options] : sizes) {
        if (asked.isEmpty() || asked.contains(QLatin1String(name))) {
            measureSize(name, options, onlyNear);
        }
    }
    return 0;
}
