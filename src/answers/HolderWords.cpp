#include "answers/HolderWords.h"

#include "answers/Words.h"

#include <QStringList>
#include <algorithm>
#include <utility>

namespace answers
{
namespace
{

constexpr std::size_t kNamedMeetings = 3; ///< of those without a day

/// Classes that are in a room together.
struct Company {
    timetable::Holder first; ///< without its class
    QStringList classes;
};

/// Whether the holders, apart from their classes, are told by the same words.
bool areTogether(const timetable::Holder& left, const timetable::Holder& right)
{
    return left.kind == right.kind && left.date == right.date && left.weeks == right.weeks &&
           left.teachers == right.teachers && left.subject == right.subject &&
           left.time->end() == right.time->end();
}

/// "L1 A, Amphi B (« Mradi2 » ne nomme aucun jour)".
QString meetingWords(const timetable::Occupancy& occupancy, const timetable::Unplaced& unplaced)
{
    QStringList words;
    for (const timetable::Holding& holding : occupancy.holdingsOf(unplaced)) {
        const timetable::Holder holder = occupancy.describe(holding);
        if (words.isEmpty()) {
            words << (holder.className.isEmpty() ? QStringLiteral("séance sans classe")
                                                 : holder.className);
        }
        words << holder.rooms;
    }
    words.removeDuplicates();
    return words.join(QStringLiteral(", ")) + QStringLiteral(" (") +
           whyUnplaced(occupancy, unplaced) + u')';
}

QString companyWords(const Company& company)
{
    const timetable::Holder& holder = company.first;
    QString kind = kindWords(holder.kind);
    if (holder.date.isValid()) {
        kind += QStringLiteral(" du ") + holder.date.toString(QStringLiteral("dd/MM/yyyy"));
    }
    QStringList words = company.classes;
    words << holder.teachers.join(QStringLiteral(" et "));
    words.removeAll(QString());
    if (words.isEmpty()) {
        words << (holder.subject.isEmpty() ? QStringLiteral("séance sans nom") : holder.subject);
    }
    if (!kind.isEmpty()) {
        words.prepend(kind);
    }
    if (holder.weeks != timetable::Week::Every) {
        words << weekWords(holder.weeks);
    }
    words << QStringLiteral("jusqu’à ") + clockWords(holder.time->end());
    return words.join(QStringLiteral(", "));
}

} // namespace

QString whyUnknown(const timetable::Occupancy& occupancy,
                   const std::vector<timetable::HoldingId>& ids)
{
    QStringList reasons;
    for (const timetable::HoldingId id : ids) {
        const timetable::Holding& holding = occupancy.holding(id);
        const timetable::Meeting& meeting = occupancy.meetingOf(holding);
        const QString className = occupancy.timetable().classes().text(meeting.className);
        const QString why =
            occupancy.whyUnknown(holding) == timetable::NoStart::NoSlot
                ? QStringLiteral("ni heure de début, ni séance de ce nom dans la journée")
                : QStringLiteral("ni heure de début, ni horaire lisible de la séance");
        reasons << (className.isEmpty() ? QStringLiteral("séance sans classe") : className) +
                       QStringLiteral(" (") + occupancy.timetable().text(meeting.slotText) +
                       QStringLiteral(") : ") + why;
    }
    reasons.removeDuplicates();
    return reasons.join(QStringLiteral(" ; "));
}

QString whyUnplaced(const timetable::Occupancy& occupancy, const timetable::Unplaced& unplaced)
{
    const timetable::Timetable& timetable = occupancy.timetable();
    const timetable::Meeting& meeting =
        timetable.meetings().at(static_cast<std::size_t>(unplaced.meeting));
    if (unplaced.reason == timetable::NoDay::Date) {
        return QStringLiteral("rattrapage sans date lisible");
    }
    if (unplaced.reason == timetable::NoDay::ExamDay &&
        !timetable.examWeeks().date(meeting.examWeek, timetable::kMonday)) {
        return QStringLiteral("examen d’une semaine sans date");
    }
    const QString key = timetable.text(meeting.slotText);
    return key.isEmpty() ? QStringLiteral("aucune séance n’est nommée")
                         : QStringLiteral("« %1 » ne nomme aucun jour").arg(key);
}

QString unplacedWords(const timetable::Occupancy& occupancy)
{
    const std::vector<timetable::Unplaced>& all = occupancy.unplaced();
    if (all.empty()) {
        return {};
    }
    const std::size_t named = std::min(all.size(), kNamedMeetings);
    QStringList meetings;
    for (std::size_t index = 0; index < named; ++index) {
        meetings << meetingWords(occupancy, all[index]);
    }
    QString words = all.size() == 1
                        ? QStringLiteral("1 séance n’a pas de jour et n’occupe donc rien : ")
                        : QStringLiteral("%1 séances n’ont pas de jour et n’occupent donc rien : ")
                              .arg(all.size());
    words += meetings.join(QStringLiteral(" ; "));
    const std::size_t more = all.size() - named;
    return more == 0   ? words
           : more == 1 ? words + QStringLiteral(" ; et une autre")
                       : words + QStringLiteral(" ; et %1 autres").arg(more);
}

QString holdersWords(const timetable::Occupancy& occupancy,
                     const std::vector<timetable::HoldingId>& ids)
{
    std::vector<Company> companies;
    for (const timetable::HoldingId id : ids) {
        timetable::Holder holder = occupancy.describe(occupancy.holding(id));
        const QString className = std::exchange(holder.className, QString());
        const auto same =
            std::find_if(companies.begin(), companies.end(), [&holder](const Company& company) {
                return areTogether(company.first, holder);
            });
        if (same == companies.end()) {
            companies.push_back({std::move(holder), {className}});
        } else {
            same->classes << className;
        }
    }
    QStringList words;
    for (Company& company : companies) {
        company.classes.removeAll(QString());
        company.classes.removeDuplicates();
        words << companyWords(company);
    }
    words.removeDuplicates();
    return words.join(QStringLiteral(" ; "));
}

} // namespace answers
