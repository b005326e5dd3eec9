#include "shell/Inquiry.h"

#include "answers/HolderWords.h"
#include "answers/Words.h"

#include <algorithm>
#include <utility>

namespace shell
{
namespace
{

std::vector<QString> roomNames(const timetable::Timetable& timetable)
{
    std::vector<QString> names;
    for (const timetable::Room& room : timetable.rooms()) {
        names.push_back(room.name);
    }
    return names;
}

timetable::Week other(timetable::Week week)
{
    using timetable::Week;
    return week == Week::A ? Week::B : week == Week::B ? Week::A : Week::Every;
}

/// "mardi, toute semaine", "mardi 24/11/2026 et les 2 semaines suivantes".
QString daysWords(const std::vector<timetable::When>& days)
{
    const timetable::When& first = days.front();
    QString day = answers::dayWords(first.day(), first.date());
    if (!first.isDate()) {
        return day + QStringLiteral(", ") + answers::weekWords(first.week());
    }
    if (days.size() == 1) {
        return day;
    }
    return days.size() == 2
               ? day + QStringLiteral(" et la semaine suivante")
               : day + QStringLiteral(" et les %1 semaines suivantes").arg(days.size() - 1);
}

/// "mardi, semaine A, zone 3"; empty where all is wanted.
QString narrowingWords(const answers::Narrowing& narrowing)
{
    QStringList words;
    if (narrowing.date.isValid()) {
        words << answers::dayWords(timetable::kNoDay, narrowing.date);
    } else if (narrowing.day) {
        words << answers::dayWords(*narrowing.day);
    }
    if (narrowing.weeks != timetable::Week::Every) {
        words << answers::weekWords(narrowing.weeks);
    }
    words << answers::filterWords(narrowing.rooms);
    words.removeAll(QString());
    return words.join(QStringLiteral(", "));
}

} // namespace

Inquiry::Inquiry(Shell& shell)
    : m_occupancy(std::make_shared<const timetable::Occupancy>(
          std::make_shared<const timetable::Timetable>(shell.engine().readTimetable()))),
      m_establishment(shell.engine().state().establishment.EstablishmentName),
      m_period(shell.form().CbTranche.text()), m_readAt(QDateTime::currentDateTime()),
      m_rhythm(shell.weekA()),
      m_roomColors(shell.engine().roomColors(roomNames(m_occupancy->timetable())))
{
}

bool Inquiry::hasCourses() const
{
    const auto& meetings = timetable().meetings();
    return std::any_of(meetings.begin(), meetings.end(), [](const timetable::Meeting& meeting) {
        return meeting.kind == timetable::MeetingKind::Course;
    });
}

QString Inquiry::whyOpen(bool isDated, bool isClashes) const
{
    for (const timetable::UnreadTable& unread : timetable().unread()) {
        const bool hasDates =
            unread.table == u"ratrap" || unread.table == u"examen" || unread.table == u"dat_exam";
        const bool isNeeded =
            hasDates ? isDated || isClashes : isClashes && unread.table == u"etudiant";
        if (isNeeded) {
            return QStringLiteral("La table « %1 » ne se laisse pas lire (%2)")
                .arg(unread.table, unread.reason);
        }
    }
    return {};
}

QString Inquiry::whyOutside(QDate date, int weeks) const
{
    const auto& period = timetable().period();
    for (int number = 0; period && number < weeks; ++number) {
        const QDate day = date.addDays(qint64{number} * timetable::kDaysOfWeek);
        if (!period->holds(day)) {
            return QStringLiteral(
                       "Le %1 est hors de la période « %2 » : aucun cours ne compte ce jour-là.")
                .arg(day.toString(QStringLiteral("dd/MM/yyyy")), m_period);
        }
    }
    return {};
}

QString Inquiry::whatHasNoDay() const
{
    const QString words = answers::unplacedWords(occupancy());
    return words.isEmpty() ? words : words + u'.';
}

QString Inquiry::whyNoRoom(const answers::RoomFilter& filter) const
{
    const auto rooms = timetable().rooms();
    if (rooms.empty()) {
        return QStringLiteral("La base ne connaît aucune salle");
    }
    const bool isMet =
        std::any_of(rooms.begin(), rooms.end(),
                    [&filter](const timetable::Room& room) { return filter.holds(room); });
    if (isMet) {
        return {};
    }
    return filter.department
               ? QStringLiteral("aucune salle n’est du département « %1 »%2")
                     .arg(*filter.department,
                          filter.zone ? QStringLiteral(" dans cette zone") : QString())
               : QStringLiteral("aucune salle n’est de la zone %1").arg(*filter.zone);
}

std::vector<timetable::When> Inquiry::sameDays(QDate date, int weeks,
                                               std::optional<timetable::Week> first) const
{
    std::vector<timetable::When> days;
    timetable::Week week = first.value_or(m_rhythm.weekOf(date));
    for (int number = 0; number < weeks; ++number) {
        days.push_back(
            timetable::When::date(date.addDays(qint64{number} * timetable::kDaysOfWeek), week));
        week = other(week);
    }
    return days;
}

files::AnswerDocument Inquiry::document(QString title, QStringList about, files::Answer answer,
                                        QDate date) const
{
    about << QStringLiteral("Période ") + m_period << m_establishment;
    about.removeAll(QString());
    return {
        m_occupancy, std::move(title), std::move(about), std::move(answer), m_roomColors, m_rhythm,
        date};
}

files::AnswerDocument Inquiry::freeRooms(const answers::FreeRoomsQuestion& question) const
{
    QStringList rooms;
    if (question.places > 0) {
        rooms << QStringLiteral("au moins %1 places").arg(question.places);
    }
    rooms << answers::filterWords(question.rooms);
    rooms.removeAll(QString());
    return document(
        QStringLiteral("Salles libres"),
        {daysWords(question.days) + QStringLiteral(", ") + answers::spanWords(question.span),
         rooms.join(QStringLiteral(", "))},
        answers::freeRooms(*m_occupancy, question), question.days.front().date());
}

files::AnswerDocument Inquiry::weekOf(const std::optional<answers::Subject>& subject,
                                      const answers::AskedWeek& week,
                                      const answers::Narrowing& narrowing) const
{
    files::WeekAnswer answer{subject, week,
                             subject ? answers::weekOf(*m_occupancy, *subject, week)
                                     : answers::weekOfAll(*m_occupancy, week),
                             narrowing.rooms};
    narrowing.apply(*m_occupancy, answer.items);
    const QString title = subject ? answers::titled(answers::kindWords(*subject),
                                                    answers::nameOf(timetable(), *subject))
                                  : QStringLiteral("Toutes les salles");
    return document(title, {answers::weekWords(week), narrowingWords(narrowing)}, std::move(answer),
                    week.date);
}

files::AnswerDocument Inquiry::find(const QString& text, const answers::AskedWeek& week,
                                    const answers::Narrowing& narrowing) const
{
    files::HitList hits = answers::whereabouts(*m_occupancy, text, week);
    for (answers::Hit& hit : hits) {
        narrowing.apply(*m_occupancy, hit.items);
    }
    return document(QStringLiteral("Recherche de « %1 »").arg(text),
                    {answers::weekWords(week), narrowingWords(narrowing)}, std::move(hits),
                    week.date);
}

files::AnswerDocument Inquiry::clashes(const answers::Narrowing& narrowing) const
{
    files::ClashList clashes = answers::clashes(*m_occupancy);
    narrowing.apply(*m_occupancy, clashes);
    return document(QStringLiteral("Conflits"), {narrowingWords(narrowing)}, std::move(clashes));
}

files::AnswerDocument Inquiry::roomUse(timetable::Week week,
                                       const answers::RoomFilter& filter) const
{
    return document(QStringLiteral("Occupation des salles"),
                    {week == timetable::Week::Every ? QStringLiteral("moyenne des semaines A et B")
                                                    : answers::weekWords(week),
                     answers::filterWords(filter)},
                    answers::roomUse(*m_occupancy, week, filter));
}

} // namespace shell
