// How long it takes to read a whole period and to tell who holds which room in its week, for the
// middle faculty and for one that has 60,000 rows in a single period. Writes a Markdown table to
// standard output:
//   timetable_bench [--near]
// With --near the server behind a delay is left out.

#include "bench/DelayProxy.h"
#include "bench/Faculty.h"
#include "support/MariaDbServer.h"
#include "timetable/Occupancy.h"
#include "timetable/TimetableReader.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <vector>

namespace
{

using Clock = std::chrono::steady_clock;

constexpr int kRuns = 15;
constexpr int kPeriod = 1;

double millisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double median(std::vector<double>& times)
{
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

/// How many holdings the rooms have on the six days of a week.
std::size_t askEveryRoom(const timetable::Occupancy& occupancy)
{
    constexpr int days = 6;
    std::size_t held = 0;
    for (int room = 0; room < occupancy.timetable().roomCount(); ++room) {
        for (int day = 0; day < days; ++day) {
            held +=
                occupancy.holders(timetable::RoomId(room), timetable::When::weekday(day)).size();
        }
    }
    return held;
}

void report(const char* faculty, const char* where, const QString& connectString)
{
    db::Connection connection(connectString);
    std::vector<double> reading;
    std::vector<double> whole;
    std::size_t rows = 0;
    std::size_t held = 0;
    long long statements = 0;
    for (int run = 0; run < kRuns; ++run) {
        const long long before = connection.statementCount();
        const auto start = Clock::now();
        const auto timetable = std::make_shared<const timetable::Timetable>(
            timetable::readTimetable(connection, kPeriod));
        reading.push_back(millisecondsSince(start));
        held = askEveryRoom(timetable::Occupancy(timetable));
        whole.push_back(millisecondsSince(start));
        rows = timetable->meetings().size();
        statements = connection.statementCount() - before;
    }
    std::printf("| %s | %s | %zu | %zu | %lld | %.0f | %.0f | %.0f |\n", faculty, where, rows, held,
                statements, median(reading), median(whole),
                *std::min_element(whole.begin(), whole.end()));
    std::fflush(stdout);
}

void measure(const char* name, test::DatabaseKind kind, int rowsInOnePeriod, bool onlyNear)
{
    bench::Faculty faculty(demo::middleFaculty(QDate::currentDate()), kind);
    if (rowsInOnePeriod > 0) {
        faculty.putIntoOnePeriod(rowsInOnePeriod);
    }
    const QString near = faculty.database().connectString();
    if (kind == test::DatabaseKind::Sqlite) {
        report(name, "SQLite", near);
        return;
    }
    report(name, "MariaDB, same machine", near);
    for (const int roundTrip : onlyNear ? std::vector<int>() : std::vector<int>{5, 20}) {
        const bench::DelayProxy proxy(test::MariaDbServer::shared().port(),
                                      std::chrono::milliseconds(roundTrip));
        QString far = near;
        far.replace(QRegularExpression(QStringLiteral("port=[0-9]+")),
                    QStringLiteral("port=%1").arg(proxy.port()));
        const QByteArray where = QByteArray("MariaDB, ") + QByteArray::number(roundTrip) + " ms";
        report(name, where.constData(), far);
    }
}

} // namespace

int main(int argc, char* argv[])
{
    constexpr int many = 60000;
    const QCoreApplication application(argc, argv);
    const bool onlyNear = QCoreApplication::arguments().contains(QStringLiteral("--near"));
    std::puts("| faculty | database | rows read | held in the week | statements | reading, ms | "
              "with all rooms asked, ms | at best, ms |\n|---|---|---:|---:|---:|---:|---:|---:|");
    for (const test::DatabaseKind kind :
         {test::DatabaseKind::Sqlite, test::DatabaseKind::MariaDb}) {
        measure("middle", kind, 0, onlyNear);
        measure("60,000 in one period", kind, many, onlyNear);
    }
    return 0;
}
