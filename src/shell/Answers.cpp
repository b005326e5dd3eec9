#include "shell/Answers.h"

#include "answers/FreeRooms.h"
#include "answers/Whereabouts.h"
#include "files/AnswerJson.h"
#include "files/WholeFile.h"
#include "shell/Player.h"
#include "timetable/DateRules.h"

#include <algorithm>
#include <memory>

namespace shell
{
namespace
{

using timetable::Occupancy;
using timetable::Week;
using timetable::When;

constexpr int kDaysOfWeek = 7;

Week other(Week week)
{
    return week == Week::A ? Week::B : week == Week::B ? Week::A : Week::Every;
}

Week askedWeek(const CommandLine& line)
{
    return line.week == CommandLine::Week::A   ? Week::A
           : line.week == CommandLine::Week::B ? Week::B
                                               : Week::Every;
}

/// Which week a date lies in, as far as the line or the settings say.
Week weekOfDate(const Shell& shell, const CommandLine& line, QDate date)
{
    if (line.week) {
        return askedWeek(line);
    }
    const QDate weekA = shell.weekA();
    if (!weekA.isValid()) {
        return Week::Every;
    }
    const qint64 days =
        timetable::MondayOnOrBefore(weekA).daysTo(timetable::MondayOnOrBefore(date));
    const bool isEven = days / kDaysOfWeek % 2 == 0;
    return isEven ? Week::A : Week::B;
}

std::vector<When> askedDays(const Shell& shell, const CommandLine& line)
{
    if (line.day) {
        return {When::weekday(*line.day, askedWeek(line))};
    }
    if (!line.date) {
        throw UsageError(QStringLiteral("--free : demande --day ou --date"));
    }
    std::vector<When> days;
    Week week = weekOfDate(shell, line, *line.date);
    for (int number = 0; number < line.answer->weeksRunning; ++number) {
        days.push_back(When::date(line.date->addDays(number * kDaysOfWeek), week));
        week = other(week);
    }
    return days;
}

answers::RoomFilter filterOf(const Occupancy& occupancy, const CommandLine& line)
{
    answers::RoomFilter filter;
    if (line.zone.value_or(0) != 0) {
        filter.zone = line.zone;
    }
    filter.department = line.department;
    const auto rooms = occupancy.timetable().rooms();
    if (std::none_of(rooms.begin(), rooms.end(),
                     [&filter](const timetable::Room& room) { return filter.holds(room); })) {
        throw UsageError(
            filter.department
                ? QStringLiteral("--department : aucune salle n’est du département "
                                 "« %1 »%2")
                      .arg(*filter.department,
                           filter.zone ? QStringLiteral(" dans cette zone") : QString())
            : filter.zone
                ? QStringLiteral("--zone : aucune salle n’est de la zone %1").arg(*filter.zone)
                : QStringLiteral("La base ne connaît aucune salle"));
    }
    return filter;
}

answers::AskedWeek weekAskedFor(const Shell& shell, const CommandLine& line)
{
    return line.date ? answers::AskedWeek{weekOfDate(shell, line, *line.date), *line.date}
                     : answers::AskedWeek{askedWeek(line), {}};
}

answers::Subject subjectOf(const Occupancy& occupancy, const AnswerRequest& request)
{
    std::optional<answers::Subject> subject;
    QString option;
    switch (request.who) {
    case AnswerRequest::Who::Room:
        subject = answers::roomNamed(occupancy, request.name);
        option = QStringLiteral("room");
        break;
    case AnswerRequest::Who::Teacher:
        subject = answers::teacherNamed(occupancy, request.name);
        option = QStringLiteral("teacher");
        break;
    case AnswerRequest::Who::Class:
        subject = answers::classNamed(occupancy, request.name);
        option = QStringLiteral("class");
        break;
    case AnswerRequest::Who::Subject:
        subject = answers::subjectNamed(occupancy, request.name);
        option = QStringLiteral("matter");
        break;
    }
    if (!subject) {
        throw UsageError(QStringLiteral("--%1 : « %2 » n’existe pas").arg(option, request.name));
    }
    return *subject;
}

/// Whether the answer needs a table that a timetable can do without. Make-ups and exams play a part
/// on dates, and in clashes; students in clashes. Where the use of seats lacks them, it says so
/// itself.
bool needs(const CommandLine& line, const QString& unread)
{
    const bool isClashes = line.answer->kind == AnswerRequest::Kind::Clashes;
    const bool isDated = unread == u"ratrap" || unread == u"examen" || unread == u"dat_exam";
    return isDated ? isClashes || line.date.has_value() : isClashes && unread == u"etudiant";
}

/// What was not read is not known to be free.
void requireAllRead(const timetable::Timetable& timetable, const CommandLine& line)
{
    for (const timetable::UnreadTable& unread : timetable.unread()) {
        if (needs(line, unread.table)) {
            throw files::ExportError(
                QStringLiteral("La table « %1 » ne se laisse pas lire (%2) : le fichier n’est pas "
                               "écrit.")
                    .arg(unread.table, unread.reason));
        }
    }
}

QByteArray answerOf(const Shell& shell, const CommandLine& line, const Occupancy& occupancy)
{
    const AnswerRequest& request = *line.answer;
    switch (request.kind) {
    case AnswerRequest::Kind::FreeRooms:
        return files::freeRoomsAsJson(
            occupancy, answers::freeRooms(occupancy, {askedDays(shell, line), request.span,
                                                      request.places, filterOf(occupancy, line)}));
    case AnswerRequest::Kind::WeekOf:
        return files::weekAsJson(
            occupancy,
            answers::weekOf(occupancy, subjectOf(occupancy, request), weekAskedFor(shell, line)));
    case AnswerRequest::Kind::Clashes:
        return files::clashesAsJson(occupancy, answers::clashes(occupancy));
    case AnswerRequest::Kind::RoomUse:
        return files::roomUseAsJson(
            occupancy, answers::roomUse(occupancy, askedWeek(line), filterOf(occupancy, line)));
    case AnswerRequest::Kind::Find:
        break;
    }
    return files::hitsAsJson(
        occupancy, answers::whereabouts(occupancy, request.text, weekAskedFor(shell, line)));
}

} // namespace

void writeAnswer(Shell& shell, const CommandLine& line)
{
    choosePeriod(shell, line);
    const auto timetable =
        std::make_shared<const timetable::Timetable>(shell.engine().readTimetable());
    requireAllRead(*timetable, line);
    const auto& meetings = timetable->meetings();
    if (std::none_of(meetings.begin(), meetings.end(), [](const timetable::Meeting& meeting) {
            return meeting.kind == timetable::MeetingKind::Course;
        })) {
        throw UsageError(
            QStringLiteral("La période « %1 » n’a aucun cours").arg(shell.form().CbTranche.text()));
    }
    files::writeWholeFile(line.answer->file, answerOf(shell, line, Occupancy(timetable)));
}

} // namespace shell
