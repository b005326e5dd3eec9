#include "answers/HolderWords.h"

#include <QStringList>

namespace answers
{

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

} // namespace answers
