// How long it takes to answer about a period that was read, for the middle faculty and for one that
// has 60,000 rows in a single period. Writes a Markdown table of medians to standard output:
//   answers_bench [sqlite|mariadb]
// Of reading the processor's time is the program's own, without the server's.

#include "bench/Faculty.h"
#include "files/AnswerJson.h"
#include "shell/Inquiry.h"

#include <QGuiApplication>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <functional>
#include <optional>
#include <vector>

namespace
{

using Clock = std::chrono::steady_clock;

constexpr int kRuns = 15;
constexpr int kWritingRuns = 3; ///< of files, which may be long

/// How long some work takes: by the clock, and of the processor's time, which says more on a
/// machine that does other things, too.
struct Cost {
    double clock = 0;
    double processor = 0;
};

double processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    constexpr double perSecond = 1e3;
    constexpr double perNanosecond = 1e-6;
    return static_cast<double>(time.tv_sec) * perSecond +
           static_cast<double>(time.tv_nsec) * perNanosecond;
}

double median(std::vector<double>& times)
{
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

/// Medians of several runs.
Cost costOf(const std::function<void()>& work, int runs = kRuns)
{
    std::vector<double> clock;
    std::vector<double> processor;
    for (int run = 0; run < runs; ++run) {
        const auto start = Clock::now();
        const double before = processorTime();
        work();
        processor.push_back(processorTime() - before);
        clock.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    }
    return {median(clock), median(processor)};
}

/// A question that is asked again and again.
struct Question {
    const char* name;
    std::function<files::AnswerDocument(const shell::Inquiry&)> ask;
};

/// What is measured.
struct Place {
    const char* faculty;
    const char* database;
};

/// A date of the period that has make-ups and lies within it.
QDate dateOf(const timetable::Timetable& timetable)
{
    for (const timetable::Meeting& meeting : timetable.meetings()) {
        if (meeting.kind == timetable::MeetingKind::MakeUp &&
            timetable.period()->holds(meeting.date)) {
            return meeting.date;
        }
    }
    return timetable.period()->firstDay;
}

std::vector<Question> questionsAbout(const timetable::Timetable& timetable)
{
    using timetable::When;
    const QDate date = dateOf(timetable);
    const timetable::TimeSpan span{{570}, {90}};
    const answers::AskedWeek week;
    return {
        {"free on a weekday",
         [=](const shell::Inquiry& inquiry) {
             return inquiry.freeRooms({{When::weekday(1)}, span, 0, {}});
         }},
        {"free on a date, three weeks running",
         [=](const shell::Inquiry& inquiry) {
             return inquiry.freeRooms(
                 {{When::date(date), When::date(date.addDays(7)), When::date(date.addDays(14))},
                  span,
                  0,
                  {}});
         }},
        {"week of a room",
         [=](const shell::Inquiry& inquiry) { return inquiry.weekOf(timetable::RoomId(0), week); }},
        {"week of a teacher",
         [=](const shell::Inquiry& inquiry) {
             return inquiry.weekOf(timetable::TeacherId(0), week);
         }},
        {"week of all rooms",
         [=](const shell::Inquiry& inquiry) { return inquiry.weekOf(std::nullopt, week); }},
        {"week of all rooms, on a date",
         [=](const shell::Inquiry& inquiry) {
             return inquiry.weekOf(std::nullopt, {timetable::Week::Every, date});
         }},
        {"find three letters",
         [=](const shell::Inquiry& inquiry) { return inquiry.find(QStringLiteral("mar"), week); }},
        {"find one letter",
         [=](const shell::Inquiry& inquiry) { return inquiry.find(QStringLiteral("a"), week); }},
        {"clashes", [](const shell::Inquiry& inquiry) { return inquiry.clashes(); }},
        {"use of rooms",
         [](const shell::Inquiry& inquiry) { return inquiry.roomUse(timetable::Week::Every, {}); }},
    };
}

void tell(const Place& place, const QByteArray& answer, const Cost& cost, const QByteArray& more)
{
    std::printf("| %s | %s | %s | %.1f | %.1f | %s |\n", place.faculty, place.database,
                answer.constData(), cost.clock, cost.processor, more.constData());
    std::fflush(stdout);
}

void report(const Place& place, shell::Shell& program)
{
    const long long before = program.engine().statementCount();
    const shell::Inquiry inquiry(program);
    const long long statements = program.engine().statementCount() - before;
    const Cost reading = costOf([&] { static_cast<void>(shell::Inquiry(program)); });
    tell(place,
         "reading " + QByteArray::number(qlonglong(inquiry.timetable().meetings().size())) +
             " rows, " + QByteArray::number(statements) + " statements",
         reading, " | ");
    for (const Question& question : questionsAbout(inquiry.timetable())) {
        std::optional<files::AnswerDocument> answer;
        const Cost answering = costOf([&] { answer = question.ask(inquiry); });
        const Cost writing =
            costOf([&] { static_cast<void>(files::answerAsJson(*answer)); }, kWritingRuns);
        tell(place, question.name, answering,
             QByteArray::number(reading.clock + answering.clock, 'f', 0) + " | " +
                 QByteArray::number(writing.processor, 'f', 1));
    }
}

void measure(test::DatabaseKind kind, const char* database)
{
    constexpr int many = 60000;
    bench::Faculty faculty(demo::middleFaculty(QDate::currentDate()), kind);
    report({"middle", database}, *faculty.open(false));
    faculty.addCommonCourses(many);
    report({"60,000 in one period", database}, *faculty.open(false));
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList chosen = QCoreApplication::arguments().mid(1);
    std::puts("| faculty | database | answer | ms | processor, ms | with reading, ms | "
              "processor to write JSON, ms |\n|---|---|---|---:|---:|---:|---:|");
    if (chosen.isEmpty() || chosen.contains(QStringLiteral("sqlite"))) {
        measure(test::DatabaseKind::Sqlite, "SQLite");
    }
    if (chosen.isEmpty() || chosen.contains(QStringLiteral("mariadb"))) {
        measure(test::DatabaseKind::MariaDb, "MariaDB, same machine");
    }
    return 0;
}
