#include "files/AnswerIcs.h"

#include "answers/Agenda.h"
#include "answers/HolderWords.h"
#include "answers/Words.h"
#include "files/AnswerRefusal.h"
#include "files/IcsLines.h"
#include "files/IcsNames.h"
#include "files/IcsZone.h"

#include <array>

namespace files
{
namespace
{

using timetable::Occupancy;

QString dateText(QDate date)
{
    return date.toString(QStringLiteral("yyyyMMdd"));
}

QString timeText(const QDateTime& time)
{
    return time.toString(QStringLiteral("yyyyMMdd'T'HHmmss"));
}

QString kindWord(timetable::MeetingKind kind)
{
    static const std::array words{QStringLiteral("Cours"), QStringLiteral("Rattrapage"),
                                  QStringLiteral("Examen")};
    return words.at(static_cast<std::size_t>(kind));
}

/// What the rows of an entry say together.
struct EntryWords {
    EntryWords(const Occupancy& occupancy, const answers::AgendaEntry& entry);

    [[nodiscard]] QString summary() const;
    [[nodiscard]] QString description() const;

    timetable::Holder first; ///< the first row
    QStringList classes;
    QStringList teachers;
    QString whyUnknown; ///< of the time; empty where it is known
};

EntryWords::EntryWords(const Occupancy& occupancy, const answers::AgendaEntry& entry)
    : first(occupancy.describe(occupancy.holding(entry.holdings.front())))
{
    for (const timetable::HoldingId id : entry.holdings) {
        const timetable::Holder holder = occupancy.describe(occupancy.holding(id));
        classes << holder.className;
        teachers << holder.teachers;
    }
    classes.removeAll(QString());
    classes.removeDuplicates();
    teachers.removeDuplicates();
    if (!entry.time) {
        whyUnknown = answers::whyUnknown(occupancy, entry.holdings);
    }
}

/// "Algèbre – L1, L2", "Rattrapage : Algèbre – L1"; with nothing to name "Cours".
QString EntryWords::summary() const
{
    QStringList words{first.subject, classes.join(QStringLiteral(", "))};
    words.removeAll(QString());
    const QString what = words.join(QStringLiteral(" – "));
    QString kind = kindWord(first.kind);
    if (what.isEmpty()) {
        return kind;
    }
    return first.kind == timetable::MeetingKind::Course ? what
                                                        : kind + QStringLiteral(" : ") + what;
}

QString EntryWords::description() const
{
    QStringList lines;
    const auto add = [&lines](const QString& one, const QStringList& names) {
        if (!names.isEmpty()) {
            lines << one + (names.size() > 1 ? QStringLiteral("s : ") : QStringLiteral(" : ")) +
                         names.join(QStringLiteral(", "));
        }
    };
    add(QStringLiteral("Enseignant"), teachers);
    add(QStringLiteral("Classe"), classes);
    if (first.weeks != timetable::Week::Every) {
        lines << (first.weeks == timetable::Week::A ? QStringLiteral("Semaine A")
                                                    : QStringLiteral("Semaine B"));
    }
    if (!whyUnknown.isEmpty()) {
        lines << QStringLiteral("Heure inconnue : ") + whyUnknown;
    }
    return lines.join(u'\n');
}

/// Writes the calendar of one answer.
class Calendar
{
public:
    Calendar(const AnswerDocument& document, const answers::Agenda& agenda, const QTimeZone& zone)
        : m_document(document), m_occupancy(*document.occupancy), m_agenda(agenda),
          m_zone(zone, firstDate(), lastDate()), m_names(m_occupancy)
    {
    }

    [[nodiscard]] QByteArray write(const answers::AskedWeek& week);

private:
    void addEntry(const answers::AgendaEntry& entry);
    void addTime(const answers::AgendaEntry& entry);
    [[nodiscard]] QString name(const answers::AskedWeek& week) const;
    /// The period's first day, or else the given one.
    [[nodiscard]] QDate periodStart(QDate otherwise) const;
    [[nodiscard]] QDate firstDate() const
    {
        return m_agenda.entries.empty() ? periodStart(QDate(2000, 1, 1))
                                        : m_agenda.entries.front().date;
    }
    [[nodiscard]] QDate lastDate() const
    {
        return m_agenda.entries.empty() ? firstDate() : m_agenda.entries.back().date;
    }

    const AnswerDocument& m_document;
    const Occupancy& m_occupancy;
    const answers::Agenda& m_agenda;
    IcsZone m_zone;
    IcsNames m_names;
    IcsLines m_lines;
};

QDate Calendar::periodStart(QDate otherwise) const
{
    const auto& period = m_document.timetable().period();
    return period && period->firstDay.isValid() ? period->firstDay : otherwise;
}

/// "Enseignant Durand – Semestre 1", "Salle A1 – semaine du 16/11/2026 (semaine A), Semestre 1".
QString Calendar::name(const answers::AskedWeek& week) const
{
    QStringList when;
    if (week.date.isValid() || week.week != timetable::Week::Every) {
        when << answers::weekWords(week);
    }
    if (const auto& period = m_document.timetable().period()) {
        when << period->name;
    }
    when.removeAll(QString());
    return when.isEmpty()
               ? m_document.title
               : m_document.title + QStringLiteral(" – ") + when.join(QStringLiteral(", "));
}

void Calendar::addTime(const answers::AgendaEntry& entry)
{
    if (!entry.time) {
        m_lines.add(QStringLiteral("DTSTART;VALUE=DATE"), dateText(entry.date));
        m_lines.add(QStringLiteral("DTEND;VALUE=DATE"), dateText(entry.date.addDays(1)));
        return;
    }
    const IcsZone::Stretch stretch = m_zone.stretch(entry.date, *entry.time);
    m_lines.add(QStringLiteral("DTSTART") + m_zone.parameter(), timeText(stretch.start));
    m_lines.add(QStringLiteral("DTEND") + m_zone.parameter(), timeText(stretch.end));
}

void Calendar::addEntry(const answers::AgendaEntry& entry)
{
    const EntryWords words(m_occupancy, entry);
    m_lines.add(QStringLiteral("BEGIN"), QStringLiteral("VEVENT"));
    m_lines.add(QStringLiteral("UID"), m_names.of(entry));
    // Not when the file is written, so that the same input gives the same bytes.
    m_lines.add(QStringLiteral("DTSTAMP"),
                dateText(periodStart(entry.date)) + QStringLiteral("T000000Z"));
    addTime(entry);
    m_lines.addText(QStringLiteral("SUMMARY"), words.summary());
    m_lines.addText(QStringLiteral("LOCATION"), words.first.rooms.join(QStringLiteral(", ")));
    const QString description = words.description();
    if (!description.isEmpty()) {
        m_lines.addText(QStringLiteral("DESCRIPTION"), description);
    }
    m_lines.addText(QStringLiteral("CATEGORIES"), kindWord(words.first.kind));
    m_lines.add(QStringLiteral("END"), QStringLiteral("VEVENT"));
}

QByteArray Calendar::write(const answers::AskedWeek& week)
{
    m_lines.add(QStringLiteral("BEGIN"), QStringLiteral("VCALENDAR"));
    m_lines.add(QStringLiteral("VERSION"), QStringLiteral("2.0"));
    m_lines.add(QStringLiteral("PRODID"), QStringLiteral("-//Tempora//Tempora//FR"));
    m_lines.add(QStringLiteral("CALSCALE"), QStringLiteral("GREGORIAN"));
    m_lines.addText(QStringLiteral("X-WR-CALNAME"), name(week));
    m_zone.write(m_lines);
    for (const answers::AgendaEntry& entry : m_agenda.entries) {
        addEntry(entry);
    }
    m_lines.add(QStringLiteral("END"), QStringLiteral("VCALENDAR"));
    return m_lines.bytes();
}

} // namespace

QByteArray answerAsIcs(const AnswerDocument& document)
{
    return answerAsIcs(document, QTimeZone::systemTimeZone());
}

QByteArray answerAsIcs(const AnswerDocument& document, const QTimeZone& zone)
{
    const WeekAnswer& week = std::get<WeekAnswer>(document.answer);
    if (!week.subject) {
        throw AnswerRefusal(
            QStringLiteral("Un calendrier est celui d’une salle, d’un enseignant, d’une classe ou "
                           "d’une matière : il n’y en a pas de toutes les salles ensemble"));
    }
    const answers::Agenda agenda =
        answers::agendaOf(*document.occupancy, *week.subject, week.week, document.rhythm);
    if (agenda.reason) {
        throw AnswerRefusal(answers::agendaSentence(document.timetable(), *agenda.reason));
    }
    return Calendar(document, agenda, zone).write(week.week);
}

} // namespace files
