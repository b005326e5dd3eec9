#include "answers/ClashSentence.h"

#include "answers/HolderWords.h"
#include "answers/Words.h"

#include <QHash>
#include <QStringList>
#include <algorithm>
#include <array>
#include <set>
#include <vector>

namespace answers
{
namespace
{

using timetable::Holder;
using timetable::HoldingId;
using timetable::Occupancy;
using timetable::Week;

constexpr qsizetype kNamedHolders = 5;

QString fromToWords(const timetable::TimeSpan& time)
{
    return QStringLiteral(" de ") + clockWords(time.start) + QStringLiteral(" à ") +
           clockWords(time.end());
}

/// Nothing for every week.
QString inWeekWords(Week week)
{
    return week == Week::Every ? QString() : QStringLiteral(", ") + weekWords(week);
}

/// Whose clash it is.
QString nameWords(const Clash& clash)
{
    switch (clash.kind) {
    case ClashKind::Teacher:
    case ClashKind::MakeupTeacher:
        return titled(QStringLiteral("Enseignant"), clash.name);
    case ClashKind::Class:
    case ClashKind::MakeupClass:
        return titled(QStringLiteral("Classe"), clash.name);
    default:
        return titled(QStringLiteral("Salle"),
                      clash.name.isEmpty() ? QStringLiteral("sans nom") : clash.name);
    }
}

/// What it is, if no course, and a blank.
QString leadingKind(const Holder& holder)
{
    const QString kind = kindWords(holder.kind);
    return kind.isEmpty() ? kind : kind + u' ';
}

/// "L1 A avec Durand", as far as it is known. The subject stands in for what is not.
QString together(const Holder& holder, const QString& what, const QStringList& companions)
{
    QStringList words;
    if (!what.isEmpty() || !holder.subject.isEmpty()) {
        words << (what.isEmpty() ? holder.subject : what);
    }
    if (!companions.isEmpty()) {
        words << QStringLiteral("avec ") + companions.join(QStringLiteral(" et "));
    }
    if (words.isEmpty()) {
        words << QStringLiteral("séance sans nom");
    }
    return leadingKind(holder) + words.join(u' ');
}

/// " pour Algèbre"; nothing for nothing.
QString forSubject(const Holder& holder)
{
    return holder.subject.isEmpty() ? QString() : QStringLiteral(" pour ") + holder.subject;
}

/// A holder, but for what the clash is about.
QString holderWords(const Holder& holder, ClashKind kind)
{
    const QString rooms = holder.rooms.join(QStringLiteral(" et "));
    switch (kind) {
    case ClashKind::Teacher:
    case ClashKind::MakeupTeacher:
        return holder.className.isEmpty() && !rooms.isEmpty()
                   ? leadingKind(holder) + rooms + forSubject(holder)
                   : together(holder, rooms,
                              holder.className.isEmpty() ? QStringList()
                                                         : QStringList(holder.className));
    case ClashKind::Class:
    case ClashKind::MakeupClass:
        return together(holder, rooms, holder.teachers);
    case ClashKind::Overfull:
        return together(holder, holder.className, {});
    case ClashKind::UnknownRoom:
        return together(holder, holder.className, holder.teachers) + u' ' +
               dayWords(holder.day, holder.date) +
               (holder.time ? fromToWords(*holder.time) : QStringLiteral(" à une heure inconnue"));
    default:
        return together(holder, holder.className, holder.teachers);
    }
}

/// Holders that have the same words so far.
struct Alike {
    int count = 0;
    QString more; ///< what could be added to the words of the first one
    bool differ = false;
};

/// Adds what `wordsOf` a holder are where several have the same words: if these differ, or always.
template <typename WordsOf>
void tellApartBy(QStringList& words, const std::vector<Holder>& holders, bool always,
                 WordsOf wordsOf)
{
    QHash<QString, Alike> groups;
    QStringList more;
    for (std::size_t index = 0; index < holders.size(); ++index) {
        more << wordsOf(holders[index]);
        Alike& group = groups[words[static_cast<qsizetype>(index)]];
        group.more = group.count++ == 0 ? more.last() : group.more;
        group.differ = group.differ || group.more != more.last();
    }
    for (qsizetype index = 0; index < words.size(); ++index) {
        const Alike group = groups.value(words[index]);
        const bool isWanted = group.count > 1 && (always || group.differ);
        if (isWanted && !words[index].endsWith(more[index])) {
            words[index] += more[index];
        }
    }
}

/// Adds the subject where several holders have the same words, and what of their hours and weeks
/// still tells them apart.
void tellApart(QStringList& words, const std::vector<Holder>& holders)
{
    tellApartBy(words, holders, true, forSubject);
    tellApartBy(words, holders, false, [](const Holder& holder) {
        return holder.time ? fromToWords(*holder.time) : QString();
    });
    tellApartBy(words, holders, false,
                [](const Holder& holder) { return u' ' + weekWords(holder.weeks); });
}

/// All holders in brackets.
QString holdersWords(const Occupancy& occupancy, const Clash& clash)
{
    QStringList all;
    std::vector<Holder> holders;
    for (const timetable::Holding& holding : holdersOf(occupancy, clash)) {
        holders.push_back(occupancy.describe(holding));
        all << holderWords(holders.back(), clash.kind);
    }
    if (clash.kind == ClashKind::Overfull) {
        all.removeDuplicates(); // each class once
    } else {
        tellApart(all, holders);
    }
    if (all.isEmpty()) {
        return {};
    }
    const qsizetype more = all.size() - kNamedHolders;
    QString words = all.mid(0, kNamedHolders).join(QStringLiteral(", "));
    if (more > 0) {
        words +=
            more == 1 ? QStringLiteral(" et une autre") : QStringLiteral(" et %1 autres").arg(more);
    }
    return QStringLiteral(" (") + words + u')';
}

/// Which séances name a room that is not known.
QString namedByWords(const Occupancy& occupancy, const Clash& clash)
{
    std::set<int> meetings;
    for (const HoldingId id : clash.holders) {
        meetings.insert(occupancy.holding(id).meeting);
    }
    const bool isWithoutDay = meetings.empty();
    for (const timetable::Unplaced& row : occupancy.unplaced()) {
        for (const timetable::Holding& holding : occupancy.holdingsOf(row)) {
            occupancy.forEachRoom(holding, [&](timetable::RoomId room) {
                if (occupancy.timetable().room(room).name == clash.name) {
                    meetings.insert(row.meeting);
                }
            });
        }
    }
    QString words = QStringLiteral("absente de la liste des salles, mais nommée par ");
    words += meetings.size() == 1 ? QStringLiteral("une séance")
                                  : QStringLiteral("%1 séances").arg(meetings.size());
    return isWithoutDay ? words + QStringLiteral(" dont le jour est inconnu") : words;
}

/// What is wrong.
QString faultWords(const Occupancy& occupancy, const Clash& clash)
{
    const bool areTwo = clash.holders.size() == 2;
    switch (clash.kind) {
    case ClashKind::Teacher:
    case ClashKind::MakeupTeacher:
        return areTwo ? QStringLiteral("dans deux salles à la fois")
                      : QStringLiteral("dans plusieurs salles à la fois");
    case ClashKind::Overfull:
        return QStringLiteral("%1 étudiants pour %2 %3")
            .arg(clash.students)
            .arg(clash.places)
            .arg(clash.places == 1 ? QStringLiteral("place") : QStringLiteral("places"));
    case ClashKind::UnknownRoom:
        return namedByWords(occupancy, clash);
    case ClashKind::NoTime:
        return clash.unplaced ? QStringLiteral("heure inconnue elle aussi, ") +
                                    whyUnplaced(occupancy, *clash.unplaced)
                              : QStringLiteral("heure inconnue, le début ne se lit ni dans la "
                                               "séance ni dans son créneau");
    default:
        return areTwo ? QStringLiteral("deux séances à la fois")
                      : QStringLiteral("plusieurs séances à la fois");
    }
}

} // namespace

QString clashSentence(const Occupancy& occupancy, const Clash& clash)
{
    QString where = nameWords(clash);
    if (clash.kind != ClashKind::UnknownRoom) {
        where +=
            QStringLiteral(", ") +
            (clash.unplaced ? QStringLiteral("jour inconnu") : dayWords(clash.day, clash.date)) +
            (clash.time ? fromToWords(*clash.time) : QString()) + inWeekWords(clash.weeks);
    }
    return where + QStringLiteral(" : ") + clashFault(occupancy, clash) + u'.';
}

QString clashFault(const Occupancy& occupancy, const Clash& clash)
{
    return faultWords(occupancy, clash) + holdersWords(occupancy, clash);
}

QString kindWords(ClashKind kind)
{
    static const std::array words{QStringLiteral("Salle en double"),
                                  QStringLiteral("Enseignant en double"),
                                  QStringLiteral("Classe en double"),
                                  QStringLiteral("Salle trop petite"),
                                  QStringLiteral("Rattrapage : salle en double"),
                                  QStringLiteral("Rattrapage : enseignant en double"),
                                  QStringLiteral("Rattrapage : classe en double"),
                                  QStringLiteral("Salle inconnue"),
                                  QStringLiteral("Heure inconnue")};
    return words.at(static_cast<std::size_t>(kind));
}

} // namespace answers
