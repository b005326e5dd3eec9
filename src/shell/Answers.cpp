#include "shell/Answers.h"

#include "answers/Whereabouts.h"
#include "files/AnswerFormat.h"
#include "files/AnswerRefusal.h"
#include "files/WholeFile.h"
#include "shell/Inquiry.h"
#include "shell/Player.h"

namespace shell
{
namespace
{

using timetable::Occupancy;
using timetable::Week;
using timetable::When;

Week askedWeek(const CommandLine& line)
{
    return line.week == CommandLine::Week::A   ? Week::A
           : line.week == CommandLine::Week::B ? Week::B
                                               : Week::Every;
}

/// Which week a date lies in, as far as the line or the settings say.
Week weekOfDate(const Inquiry& inquiry, const CommandLine& line, QDate date)
{
    return line.week ? askedWeek(line) : inquiry.rhythm().weekOf(date);
}

std::vector<When> askedDays(const Inquiry& inquiry, const CommandLine& line)
{
    if (line.day) {
        return {When::weekday(*line.day, askedWeek(line))};
    }
    if (!line.date) {
        throw UsageError(QStringLiteral("--free : demande --day ou --date"));
    }
    return inquiry.sameDays(*line.date, line.answer->weeksRunning,
                            line.week ? std::optional(askedWeek(line)) : std::nullopt);
}

/// The department as the room table spells it, where it does. The database decides: it may take
/// other letters for the same.
QString departmentNamed(Shell& shell, const Inquiry& inquiry, const QString& name)
{
    const timetable::Timetable& timetable = inquiry.timetable();
    if (!timetable.departments().find(name).isNone()) {
        return name;
    }
    const std::vector<timetable::RoomId> rooms = shell.engine().roomsOf(timetable, name);
    return rooms.empty() ? name : timetable.room(rooms.front()).department.value_or(name);
}

answers::RoomFilter filterOf(Shell& shell, const Inquiry& inquiry, const CommandLine& line)
{
    answers::RoomFilter filter;
    if (line.zone.value_or(0) != 0) {
        filter.zone = line.zone;
    }
    if (line.department) {
        filter.department = departmentNamed(shell, inquiry, *line.department);
        filter.spellings = answers::departmentSpellings(inquiry.timetable(), *filter.department);
    }
    const QString why = inquiry.whyNoRoom(filter);
    if (!why.isEmpty()) {
        const QString option = filter.department ? QStringLiteral("--department : ")
                               : filter.zone     ? QStringLiteral("--zone : ")
                                                 : QString();
        throw UsageError(option + why);
    }
    return filter;
}

answers::AskedWeek weekAskedFor(const Inquiry& inquiry, const CommandLine& line)
{
    return line.date ? answers::AskedWeek{weekOfDate(inquiry, line, *line.date), *line.date}
                     : answers::AskedWeek{askedWeek(line), {}};
}

/// Nothing for all rooms.
std::optional<answers::Subject> subjectOf(const Occupancy& occupancy, const AnswerRequest& request)
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
    case AnswerRequest::Who::EveryRoom:
        return std::nullopt;
    }
    if (!subject) {
        throw UsageError(QStringLiteral("--%1 : « %2 » n’existe pas").arg(option, request.name));
    }
    return subject;
}

/// What the line wants to see of an answer; of clashes those of its week and date.
answers::Narrowing narrowingOf(Shell& shell, const Inquiry& inquiry, const CommandLine& line,
                               bool isOfClashes)
{
    answers::Narrowing narrowing;
    if (line.zone.value_or(0) != 0 || line.department) {
        narrowing.rooms = filterOf(shell, inquiry, line);
    }
    narrowing.day = line.day;
    if (isOfClashes) {
        narrowing.weeks = line.date ? weekOfDate(inquiry, line, *line.date) : askedWeek(line);
        narrowing.date = line.date.value_or(QDate());
    }
    return narrowing;
}

files::AnswerDocument answerTo(Shell& shell, const Inquiry& inquiry, const CommandLine& line)
{
    const AnswerRequest& request = *line.answer;
    switch (request.kind) {
    case files::AnswerKind::FreeRooms:
        return inquiry.freeRooms({askedDays(inquiry, line), request.span, request.places,
                                  filterOf(shell, inquiry, line)});
    case files::AnswerKind::Week:
        return inquiry.weekOf(subjectOf(inquiry.occupancy(), request), weekAskedFor(inquiry, line),
                              narrowingOf(shell, inquiry, line, false));
    case files::AnswerKind::Clashes:
        return inquiry.clashes(narrowingOf(shell, inquiry, line, true));
    case files::AnswerKind::RoomUse:
        return inquiry.roomUse(weekAskedFor(inquiry, line).week, filterOf(shell, inquiry, line));
    case files::AnswerKind::Hits:
        break;
    }
    return inquiry.find(request.text, weekAskedFor(inquiry, line),
                        narrowingOf(shell, inquiry, line, false));
}

/// A calendar is of all that somebody has.
void requireWhole(const CommandLine& line)
{
    const QString option = line.day          ? QStringLiteral("day")
                           : line.department ? QStringLiteral("department")
                           : line.zone       ? QStringLiteral("zone")
                                             : QString();
    if (!option.isEmpty()) {
        throw UsageError(QStringLiteral("--%1 : ne va pas avec un calendrier (.ics)").arg(option));
    }
}

/// Whoever started the program can mend what the form cannot hold, by asking otherwise.
QByteArray written(const files::AnswerFormat& format, const files::AnswerDocument& answer)
{
    try {
        return format.write(answer);
    } catch (const files::AnswerRefusal& refusal) {
        throw UsageError(QString::fromUtf8(refusal.what()));
    }
}

} // namespace

QString writeAnswer(Shell& shell, const CommandLine& line)
{
    const AnswerRequest& request = *line.answer;
    const files::AnswerFormat& format = *files::answerFormatOf(request.kind, request.file);
    if (format.isDated) {
        requireWhole(line);
    }
    choosePeriod(shell, line);
    const Inquiry inquiry(shell);
    const QString why = inquiry.whyOpen(line.date.has_value() || format.isDated,
                                        request.kind == files::AnswerKind::Clashes);
    if (!why.isEmpty()) {
        throw files::ExportError(why + QStringLiteral(" : le fichier n’est pas écrit."));
    }
    if (!inquiry.hasCourses()) {
        throw UsageError(QStringLiteral("La période « %1 » n’a aucun cours").arg(inquiry.period()));
    }
    if (const QString noRoom = inquiry.whyNoRoom({}); !noRoom.isEmpty()) {
        throw UsageError(noRoom);
    }
    files::writeWholeFile(request.file, written(format, answerTo(shell, inquiry, line)));
    QStringList told{line.date ? inquiry.whyOutside(*line.date, request.weeksRunning) : QString(),
                     inquiry.whatHasNoDay()};
    told.removeAll(QString());
    return told.join(u'\n');
}

} // namespace shell
