// Free rooms of random databases, judged three ways: nothing that the plan's own lookup shows in a
// room is called free; an independent account of every minute says the same, room by room, with the
// same stretches and the same holders; and so does the file that the command line writes.

#include "answers/FreeRooms.h"
#include "judge/JudgedCells.h"
#include "judge/MinuteBook.h"
#include "judge/RandomWeek.h"
#include "judge/ShownHours.h"
#include "runtime/FrenchDate.h"
#include "shell/Answers.h"
#include "shell/ShellDesk.h"
#include "timetable/TimetableReader.h"

#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>
#include <algorithm>
#include <memory>

using namespace test;
using timetable::Week;
using timetable::When;

namespace
{

constexpr int kQuestionsOfPeriod = 250; ///< at most
constexpr int kShownRooms = 2;          ///< of a question, of which the plan is asked
constexpr int kQuestionsOfFile = 20;    ///< one of so many is asked on the command line, too

Week weekOf(char week)
{
    return week == 'A' ? Week::A : week == 'B' ? Week::B : Week::Every;
}

char letterOf(Week week)
{
    return week == Week::A ? 'A' : week == Week::B ? 'B' : '*';
}

char otherWeek(char week)
{
    return week == 'A' ? 'B' : week == 'B' ? 'A' : '*';
}

/// A question at random.
AskedRooms anyQuestion(RandomWeek& week)
{
    RandomTimetable& random = week.random();
    AskedRooms asked;
    AskedDay day;
    day.week = std::array{'*', 'A', 'B'}.at(static_cast<std::size_t>(random.pick(3)));
    day.day = random.chance(50) ? random.pick(2) : random.pick(7);
    if (random.chance(50)) {
        day.date = week.anyDate();
        day.day = day.date.dayOfWeek() - 1;
    }
    const int running = day.date.isValid() && random.chance(25) ? 2 + random.pick(2) : 1;
    for (int number = 0; number < running; ++number) {
        asked.days.push_back(day);
        day.date = day.date.addDays(7);
        day.week = otherWeek(day.week);
    }
    asked.from = random.chance(20) ? random.pick(1400) : 450 + 15 * random.pick(40);
    asked.to = std::min(asked.from + 1 + random.pick(random.chance(20) ? 600 : 120), 1439);
    asked.places = std::array{0, 0, 12, 30, 31, 41}.at(static_cast<std::size_t>(random.pick(6)));
    if (random.chance(15)) {
        asked.zone = 1 + random.pick(3);
    }
    if (random.chance(15)) {
        const auto& departments = RandomWeek::departments();
        asked.department = departments.at(
            static_cast<std::size_t>(random.pick(static_cast<int>(departments.size()))));
    }
    return asked;
}

std::string joined(const QStringList& lines)
{
    return lines.join(u'\n').toStdString();
}

/// How a question reads in a failed comparison.
std::string words(const AskedRooms& asked)
{
    std::string text = "from " + std::to_string(asked.from) + " to " + std::to_string(asked.to) +
                       ", places " + std::to_string(asked.places);
    for (const AskedDay& day : asked.days) {
        text += ", day " + std::to_string(day.day) + " " +
                day.date.toString(Qt::ISODate).toStdString() + " week " + day.week;
    }
    return text + ", zone " + std::to_string(asked.zone.value_or(0)) + ", department " +
           asked.department.value_or(QString()).toStdString();
}

/// What the program answers, in the words of a MinuteBook and in the order of its lists.
struct Told {
    QStringList free; ///< names in their order
    QStringList taken;
    QStringList unknown;
    QStringList lines;

    void addFree(const QString& room, int from, int to)
    {
        free << room;
        lines << MinuteBook::freeLine(room, from, to);
    }
    void addTaken(const QString& room, const QStringList& holders)
    {
        taken << room;
        lines << MinuteBook::takenLine(room, holders);
    }
    void addUnknown(const QString& room)
    {
        unknown << room;
        lines << MinuteBook::unknownLine(room);
    }
    [[nodiscard]] QStringList sorted() const
    {
        QStringList all = lines;
        all.sort();
        return all;
    }
};

QString holderWords(const timetable::Holder& holder)
{
    constexpr std::array kinds{"course", "makeup", "exam"};
    constexpr std::array parts{"A", "A2", "B", "B2"};
    return MinuteBook::holderWords(QLatin1String(kinds.at(static_cast<std::size_t>(holder.kind))),
                                   QLatin1String(parts.at(static_cast<std::size_t>(holder.part))),
                                   holder.time->start.value, holder.time->length.value,
                                   letterOf(holder.weeks));
}

Told answerOf(const timetable::Occupancy& occupancy, const AskedRooms& asked)
{
    answers::FreeRoomsQuestion question;
    for (const AskedDay& day : asked.days) {
        question.days.push_back(day.date.isValid() ? When::date(day.date, weekOf(day.week))
                                                   : When::weekday(day.day, weekOf(day.week)));
    }
    question.span = timetable::between({asked.from}, {asked.to});
    question.places = asked.places;
    question.rooms = {asked.zone, asked.department};
    const answers::FreeRooms answer = answers::freeRooms(occupancy, question);
    const auto name = [&](timetable::RoomId room) { return occupancy.timetable().room(room).name; };
    Told told;
    for (const answers::FreeRoom& room : answer.rooms) {
        told.addFree(name(room.room), room.stretch.start.value, room.stretch.end().value);
    }
    for (const answers::HeldRoom& room : answer.taken) {
        QStringList holders;
        for (const timetable::HoldingId id : room.by) {
            holders << holderWords(occupancy.describe(occupancy.holding(id)));
        }
        told.addTaken(name(room.room), holders);
    }
    for (const answers::HeldRoom& room : answer.unknown) {
        told.addUnknown(name(room.room));
    }
    return told;
}

/// What a file says.
Told answerOf(const QJsonObject& file)
{
    Told told;
    for (const QJsonValue room : file["rooms"].toArray()) {
        told.addFree(room["room"].toString(), room["free_from"].toInt(), room["free_to"].toInt());
    }
    for (const QJsonValue room : file["taken"].toArray()) {
        QStringList holders;
        for (const QJsonValue holder : room["by"].toArray()) {
            const QString weeks = holder["weeks"].toString();
            holders << MinuteBook::holderWords(holder["kind"].toString(), holder["part"].toString(),
                                               holder["start"].toInt(), holder["minutes"].toInt(),
                                               weeks == "all" ? '*' : weeks[0].toLatin1());
        }
        told.addTaken(room["room"].toString(), holders);
    }
    for (const QJsonValue room : file["unknown"].toArray()) {
        EXPECT_FALSE(room["why"].toString().isEmpty());
        told.addUnknown(room["room"].toString());
    }
    return told;
}

/// The line that asks the question.
QStringList arguments(const AskedRooms& asked, const QString& file, int period)
{
    const auto time = [](int minute) {
        return QStringLiteral("%1h%2").arg(minute / 60).arg(minute % 60, 2, 10, QLatin1Char('0'));
    };
    const AskedDay& first = asked.days.front();
    QStringList line{"tempora",
                     "--free",
                     file,
                     "--tranche",
                     QStringLiteral("S%1").arg(period),
                     "--from",
                     time(asked.from),
                     "--to",
                     time(asked.to),
                     "--places",
                     QString::number(asked.places),
                     "--week",
                     first.week == '*' ? QStringLiteral("all") : QString(QLatin1Char(first.week))};
    if (first.date.isValid()) {
        line << "--date" << first.date.toString(Qt::ISODate) << "--weeks-running"
             << QString::number(asked.days.size());
    } else {
        line << "--day" << QString::number(first.day);
    }
    if (asked.zone) {
        line << "--zone" << QString::number(*asked.zone);
    }
    if (asked.department) {
        line << "--department" << *asked.department;
    }
    return line;
}

class JudgedFreeRooms : public OnBothDatabases
{
protected:
    /// All questions about one period of a database.
    void judge(TestDatabase& tables, RandomWeek& week, int period, ShellDesk& desk, int wanted)
    {
        const MinuteBook book(tables, period);
        db::Connection connection(tables.connectString());
        const timetable::Occupancy occupancy(std::make_shared<const timetable::Timetable>(
            timetable::readTimetable(connection, period)));
        ShownHours shown(tables, period, book);
        for (int question = 0; question < wanted && !HasFailure(); ++question) {
            const AskedRooms asked = anyQuestion(week);
            SCOPED_TRACE(words(asked));
            const QStringList expected = book.answer(asked);
            const Told told = answerOf(occupancy, asked);
            EXPECT_EQ(joined(told.sorted()), joined(expected));
            expectOrder(book, told);
            expectFree(shown, week.random(), told, asked);
            const AskedDay& first = asked.days.front();
            if (week.isReadAtStart() && question % kQuestionsOfFile == 0 &&
                (first.date.isValid() || first.day < timetable::kSunday)) {
                judgeFile(book, occupancy, desk, asked, period, expected);
            }
            free += static_cast<int>(told.free.size());
            taken += static_cast<int>(told.taken.size());
            unknown += static_cast<int>(told.unknown.size());
            ++questions;
        }
        shownHours += shown.count();
    }
    static void expectOrder(const MinuteBook& book, const Told& told)
    {
        const auto byRank = [&](const QString& left, const QString& right) {
            return book.rank(left) < book.rank(right);
        };
        EXPECT_TRUE(std::is_sorted(told.taken.begin(), told.taken.end(), byRank));
        EXPECT_TRUE(std::is_sorted(told.unknown.begin(), told.unknown.end(), byRank));
        EXPECT_TRUE(std::is_sorted(told.free.begin(), told.free.end(),
                                   [&](const QString& left, const QString& right) {
                                       return std::pair(book.places(left), book.rank(left)) <
                                              std::pair(book.places(right), book.rank(right));
                                   }));
    }
    /// Nothing that the plan shows in a room is called free: some free rooms, since the plan is
    /// asked slot by slot.
    static void expectFree(ShownHours& shown, RandomTimetable& random, const Told& told,
                           const AskedRooms& asked)
    {
        const auto count = static_cast<int>(told.free.size());
        for (int number = 0; number < std::min(count, kShownRooms); ++number) {
            const QString& room = told.free[random.pick(count)];
            for (const AskedDay& day : asked.days) {
                EXPECT_EQ(shown.textAt(room, day, asked.from, asked.to).toStdString(), "")
                    << room.toStdString();
            }
        }
    }
    /// What the command line writes.
    void judgeFile(const MinuteBook& book, const timetable::Occupancy& occupancy, ShellDesk& desk,
                   const AskedRooms& asked, int period, const QStringList& expected)
    {
        QFile::remove(file);
        const auto write = [&] {
            shell::writeAnswer(desk.shell(),
                               shell::CommandLine::parse(arguments(asked, file, period)));
        };
        const bool isDated = asked.days[0].date.isValid();
        if (isDated && !occupancy.timetable().unread().empty()) {
            ++refused; // a table that dates need is missing: see AnswersTest
        } else if (!book.hasCourses() || !book.hasRooms(asked)) {
            EXPECT_THROW(write(), shell::UsageError);
            ++refused;
        } else {
            write();
            const QJsonObject object = QJsonDocument::fromJson(fileText(file).toUtf8()).object();
            const Told told = answerOf(object);
            EXPECT_EQ(joined(told.sorted()), joined(expected));
            expectOrder(book, told);
            ++files;
        }
    }

    QTemporaryDir folder{processFolder() + "/free-XXXXXX"};
    QString file = folder.filePath("free.json");
    int questions = 0;
    int files = 0;
    int refused = 0;
    int free = 0;
    int taken = 0;
    int unknown = 0;
    long long shownHours = 0;
};

TEMPORA_ON_BOTH_DATABASES(JudgedFreeRooms);

} // namespace

TEST_P(JudgedFreeRooms, areThoseOfEveryMinute)
{
    constexpr int cellsOfQuestion = 25; // about as many as there are rooms
    const int wanted = judgedCells() / cellsOfQuestion;
    const int ofPeriod = std::min(wanted / 4, kQuestionsOfPeriod); // at least two databases
    for (unsigned seed = 1; questions < wanted && !HasFailure(); ++seed) {
        SCOPED_TRACE(testing::Message() << "seed " << seed);
        TestDatabase tables(GetParam());
        RandomWeek week(tables, seed);
        ShellDesk desk(tables);
        if (week.isReadAtStart()) {
            desk.load();
        }
        for (int period = 1; period <= 2 && !HasFailure(); ++period) {
            SCOPED_TRACE(testing::Message() << "period " << period);
            judge(tables, week, period, desk, ofPeriod);
        }
    }
    // The comparison is worth something only if there is something to compare.
    EXPECT_GT(free, questions);
    EXPECT_GT(taken, questions / 2);
    EXPECT_GT(unknown, questions / 10);
    EXPECT_GT(files, questions / kQuestionsOfFile / 4);
    EXPECT_GT(shownHours, questions / 50);
}
