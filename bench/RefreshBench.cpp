// How long a refresh takes and how many statements it sends, one by one and fetched ahead, over the
// databases and distances that the program meets; and how long it takes from the settings to the
// first plan; and how long all rooms take as pages. Writes Markdown tables to standard output:
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

double median(std::vector<double>& times)
{
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

template <typename Action>
double millisecondsOf(Action action)
{
    const auto start = Clock::now();
    action();
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// Clicks through the days of the week, as a user does.
Figures measure(shell::Shell& program, int clicks)
{
    std::vector<double> times;
    long long statements = 0;
    for (int click = 0; click < clicks; ++click) {
        const long long before = program.engine().statementCount();
        times.push_back(millisecondsOf([&] { program.form().CbJour.setListIndex(click % 5); }));
        statements = std::max(statements, program.engine().statementCount() - before);
    }
    return {median(times), statements};
}

/// From reading the settings to the first plan, connecting included.
Figures measureStart(const bench::Faculty& faculty, quint16 port)
{
    constexpr std::size_t starts = 9;
    std::vector<double> times;
    long long statements = 0;
    for (std::size_t start = 0; start < starts; ++start) {
        std::unique_ptr<shell::Shell> program;
        times.push_back(millisecondsOf([&] { program = faculty.open(false, port); }));
        statements = program->engine().statementCount();
    }
    return {median(times), statements};
}

/// The lines of the tables after the first one.
struct Lines {
    std::vector<QByteArray> starts;
    std::vector<QByteArray> pages;
};

/// All rooms as pages of 29, by turns with the first page of 29 that a click shows.
void measurePages(const QByteArray& begin, shell::Shell& program, Lines& lines)
{
    constexpr int rooms = 29;
    constexpr int rounds = 9;
    program.form().Total_L_P.setText(QString::number(rooms));
    std::vector<double> first;
    std::vector<double> all;
    double portions = 0; // of 29 rooms each
    for (int round = 0; round < rounds; ++round) {
        first.push_back(millisecondsOf([&] { program.form().CbJour.setListIndex(round % 5); }));
        all.push_back(millisecondsOf([&] {
            std::size_t rows = 0;
            for (const plan::PlanPage& page : program.engine().pagesOfEveryRoom(rooms)) {
                rows += page.content.rows.size();
            }
            portions = static_cast<double>(rows) / rooms;
        }));
    }
    const double each = median(all) / portions;
    lines.pages.push_back(begin + QByteArray::number(median(first), 'f', 1) + " | " +
                          QByteArray::number(median(all), 'f', 1) + " | " +
                          QByteArray::number(each, 'f', 1) + " | " +
                          QByteArray::number(each / median(first), 'f', 2) + " |");
}

void report(const char* size, const char* where, const bench::Faculty& faculty, quint16 port,
            int plainClicks, Lines& lines)
{
    const QByteArray begin = QByteArray("| ") + size + " | " + where + " | ";
    const Figures start = measureStart(faculty, port);
    lines.starts.push_back(begin + QByteArray::number(start.statements) + " | " +
                           QByteArray::number(start.milliseconds, 'f', 0) + " |");
    const auto plainProgram = faculty.open(true, port);
    const Figures plain = measure(*plainProgram, plainClicks);
    const auto aheadProgram = faculty.open(false, port);
    const Figures ahead = measure(*aheadProgram, 25);
    std::printf("| %s | %s | %lld | %.1f | %lld | %.1f | %.0f |\n", size, where, plain.statements,
                plain.milliseconds, ahead.statements, ahead.milliseconds,
                plain.milliseconds / ahead.milliseconds);
    std::fflush(stdout);
    measurePages(begin, *aheadProgram, lines);
}

void measureSize(const char* size, const demo::FacultyOptions& options, bool onlyNear, Lines& lines)
{
    {
        const bench::Faculty sqlite(options, test::DatabaseKind::Sqlite);
        report(size, "SQLite", sqlite, 0, 15, lines);
    }
    const bench::Faculty mariaDb(options, test::DatabaseKind::MariaDb);
    report(size, "MariaDB, same machine", mariaDb, 0, 15, lines);
    for (const int roundTrip : onlyNear ? std::vector<int>() : std::vector<int>{5, 20}) {
        const bench::DelayProxy proxy(test::MariaDbServer::shared().port(),
                                      std::chrono::milliseconds(roundTrip));
        const QByteArray where = QByteArray("MariaDB, ") + QByteArray::number(roundTrip) + " ms";
        report(size, where.constData(), mariaDb, proxy.port(), 1, lines); // most of a minute each
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
    Lines lines;
    for (const auto& [name, options] : sizes) {
        if (asked.isEmpty() || asked.contains(QLatin1String(name))) {
            measureSize(name, options, onlyNear, lines);
        }
    }
    std::puts(
        "\n| faculty | database | statements up to the first plan | ms |\n|---|---|---:|---:|");
    for (const QByteArray& line : lines.starts) {
        std::puts(line.constData());
    }
    std::puts(
        "\n| faculty | database | first page of 29 rooms, ms | all rooms as pages, ms | for each "
        "29 rooms, ms | times the first page |\n|---|---|---:|---:|---:|---:|");
    for (const QByteArray& line : lines.pages) {
        std::puts(line.constData());
    }
    return 0;
}
