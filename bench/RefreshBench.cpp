// How long a refresh takes and how many statements it sends, one by one and fetched ahead, over the
// databases and distances that the program meets; and how long it takes from the settings to the
// first plan. Writes two Markdown tables to standard output:
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

/// From reading the settings to the first plan, connecting included.
Figures measureStart(const bench::Faculty& faculty, quint16 port)
{
    constexpr std::size_t starts = 9;
    std::vector<double> times;
    long long statements = 0;
    for (std::size_t start = 0; start < starts; ++start) {
        const auto begin = Clock::now();
        const auto program = faculty.open(false, port);
        times.push_back(std::chrono::duration<double, std::milli>(Clock::now() - begin).count());
        statements = program->engine().statementCount();
    }
    std::nth_element(times.begin(), times.begin() + starts / 2, times.end());
    return {times[starts / 2], statements};
}

/// The lines of the second table.
using Starts = std::vector<QByteArray>;

void report(const char* size, const char* where, const bench::Faculty& faculty, quint16 port,
            int plainClicks, Starts& starts)
{
    const Figures start = measureStart(faculty, port);
    starts.push_back(QByteArray("| ") + size + " | " + where + " | " +
                     QByteArray::number(start.statements) + " | " +
                     QByteArray::number(start.milliseconds, 'f', 0) + " |");
    const auto plainProgram = faculty.open(true, port);
    const Figures plain = measure(*plainProgram, plainClicks);
    const auto aheadProgram = faculty.open(false, port);
    const Figures ahead = measure(*aheadProgram, 25);
    std::printf("| %s | %s | %lld | %.1f | %lld | %.1f | %.0f |\n", size, where, plain.statements,
                plain.milliseconds, ahead.statements, ahead.milliseconds,
                plain.milliseconds / ahead.milliseconds);
    std::fflush(stdout);
}

void measureSize(const char* size, const demo::FacultyOptions& options, bool onlyNear,
                 Starts& starts)
{
    {
        const bench::Faculty sqlite(options, test::DatabaseKind::Sqlite);
        report(size, "SQLite", sqlite, 0, 15, starts);
    }
    const bench::Faculty mariaDb(options, test::DatabaseKind::MariaDb);
    report(size, "MariaDB, same machine", mariaDb, 0, 15, starts);
    for (const int roundTrip : onlyNear ? std::vector<int>() : std::vector<int>{5, 20}) {
        const bench::DelayProxy proxy(test::MariaDbServer::shared().port(),
                                      std::chrono::milliseconds(roundTrip));
        const QByteArray where = QByteArray("MariaDB, ") + QByteArray::number(roundTrip) + " ms";
        report(size, where.constData(), mariaDb, proxy.port(), 1, starts); // most of a minute each
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
    Starts starts;
    for (const auto& [name, options] : sizes) {
        if (asked.isEmpty() || asked.contains(QLatin1String(name))) {
            measureSize(name, options, onlyNear, starts);
        }
    }
    std::puts(
        "\n| faculty | database | statements up to the first plan | ms |\n|---|---|---:|---:|");
    for (const QByteArray& line : starts) {
        std::puts(line.constData());
    }
    return 0;
}
