#include "answers/Words.h"

#include "runtime/FrenchDate.h"
#include "timetable/DateRules.h"

#include <QStringList>
#include <array>

namespace answers
{

QString clockWords(timetable::MinuteOfDay time)
{
    constexpr int hour = 60;
    return QStringLiteral("%1h%2")
        .arg(time.value / hour)
        .arg(time.value % hour, 2, 10, QChar(u'0'));
}

QString spanWords(const timetable::TimeSpan& span)
{
    return clockWords(span.start) + QStringLiteral("–") + clockWords(span.end());
}

QString dayWords(int day, QDate date)
{
    if (date.isValid()) {
        return runtime::frenchDayAndDate(date);
    }
    return day == timetable::kSunday
               ? QStringLiteral("dimanche")
               : runtime::frenchDayNames().at(static_cast<std::size_t>(day)).toLower();
}

QString weekWords(timetable::Week week)
{
    return week == timetable::Week::A   ? QStringLiteral("semaine A")
           : week == timetable::Week::B ? QStringLiteral("semaine B")
                                        : QStringLiteral("toute semaine");
}

QString weekWords(const AskedWeek& week)
{
    if (!week.date.isValid()) {
        return weekWords(week.week);
    }
    const QString date =
        QStringLiteral("semaine du ") +
        timetable::MondayOnOrBefore(week.date).toString(QStringLiteral("dd/MM/yyyy"));
    return week.week == timetable::Week::Every
               ? date
               : date + QStringLiteral(" (") + weekWords(week.week) + u')';
}

QString filterWords(const RoomFilter& filter)
{
    QStringList words;
    if (filter.zone) {
        words << QStringLiteral("zone %1").arg(*filter.zone);
    }
    if (filter.department) {
        words << QStringLiteral("département ") + *filter.department;
    }
    return words.join(QStringLiteral(", "));
}

QString nameOf(const timetable::Timetable& timetable, const Subject& subject)
{
    struct Name {
        const timetable::Timetable& timetable;

        QString operator()(timetable::RoomId id) const { return timetable.room(id).name; }
        QString operator()(timetable::TeacherId id) const { return timetable.teachers().text(id); }
        QString operator()(timetable::ClassId id) const { return timetable.classes().text(id); }
        QString operator()(timetable::SubjectId id) const { return timetable.subjects().text(id); }
    };
    return std::visit(Name{timetable}, subject);
}

QString kindWords(const Subject& subject)
{
    static const std::array words{QStringLiteral("Salle"), QStringLiteral("Enseignant"),
                                  QStringLiteral("Classe"), QStringLiteral("Matière")};
    return words.at(subject.index());
}

QString titled(const QString& kind, const QString& name)
{
    const bool saysItself = name.startsWith(kind, Qt::CaseInsensitive) &&
                            (name.size() == kind.size() || !name.at(kind.size()).isLetter());
    return saysItself ? name : kind + u' ' + name;
}

QString kindWords(timetable::MeetingKind kind)
{
    return kind == timetable::MeetingKind::MakeUp ? QStringLiteral("rattrapage")
           : kind == timetable::MeetingKind::Exam ? QStringLiteral("examen")
                                                  : QString();
}

QString percentWords(double share)
{
    constexpr double hundred = 100;
    constexpr QChar narrowBlank(0x202f);
    const int percent = qRound(share * hundred);
    const QString less = percent == 0 && share > 0 ? QStringLiteral("<") + narrowBlank : QString();
    return less + QString::number(less.isEmpty() ? percent : 1) + narrowBlank + u'%';
}

QString numberWords(double number)
{
    QString words = QString::number(number, 'f', 1);
    if (words.endsWith(u".0")) {
        words.chop(2);
    }
    return words.replace(u'.', u',');
}

} // namespace answers
