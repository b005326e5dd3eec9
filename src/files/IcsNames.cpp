#include "files/IcsNames.h"

#include <QCryptographicHash>
#include <QStringList>
#include <algorithm>

namespace files
{

using timetable::Holding;
using timetable::HoldingId;
using timetable::Meeting;

IcsNames::IcsNames(const timetable::Occupancy& occupancy) : m_occupancy(occupancy)
{
    const std::vector<Meeting>& meetings = occupancy.timetable().meetings();
    for (std::size_t position = 0; position < meetings.size(); ++position) {
        m_rows[keyOf(meetings[position])].push_back(static_cast<int>(position));
    }
    for (auto& [key, rows] : m_rows) {
        if (rows.size() > 1) {
            std::stable_sort(rows.begin(), rows.end(), [&](int left, int right) {
                return contents(meetings[static_cast<std::size_t>(left)]) <
                       contents(meetings[static_cast<std::size_t>(right)]);
            });
        }
    }
}

IcsNames::Key IcsNames::keyOf(const Meeting& meeting)
{
    return {meeting.kind, meeting.slotText, meeting.className, meeting.examWeek, meeting.date};
}

/// What a row says beside its key, as one text.
QString IcsNames::contents(const Meeting& meeting) const
{
    const timetable::Timetable& timetable = m_occupancy.timetable();
    QStringList texts{timetable.text(meeting.startText)};
    for (const timetable::MeetingPart& part : meeting.parts) {
        for (const timetable::RoomNameId room : {part.room, part.otherRoom}) {
            texts << (room.isNone() ? QString() : timetable.roomName(room).text);
        }
        for (const timetable::TeacherId teacher : part.teachers) {
            texts << timetable.teachers().text(teacher);
        }
        texts << timetable.subjects().text(part.subject);
    }
    texts << timetable.text(meeting.lengthText) << timetable.text(meeting.nature);
    return texts.join(u'\n');
}

/// 1 for the first of the rows with this one's key.
int IcsNames::countOf(const Holding& holding) const
{
    const std::vector<int>& rows = m_rows.at(keyOf(m_occupancy.meetingOf(holding)));
    return static_cast<int>(std::find(rows.begin(), rows.end(), holding.meeting) - rows.begin()) +
           1;
}

QString IcsNames::rowName(HoldingId id)
{
    QString& name = m_names[id];
    if (!name.isEmpty()) {
        return name;
    }
    const Holding& holding = m_occupancy.holding(id);
    const Meeting& meeting = m_occupancy.meetingOf(holding);
    const timetable::Timetable& timetable = m_occupancy.timetable();
    // The A part of an alternating course is held twice: in `Salle`, and every week in `YSalle`.
    const bool isOtherRoom = meeting.kind == timetable::MeetingKind::Course && meeting.alternates &&
                             holding.part == timetable::Part::A &&
                             holding.weeks == timetable::Week::Every;
    const QStringList parts{
        QString::number(static_cast<int>(meeting.kind)),
        QString::number(timetable.period() ? timetable.period()->ident : 0),
        timetable.text(meeting.slotText),
        timetable.classes().text(meeting.className),
        QString::number(static_cast<int>(holding.part)),
        isOtherRoom ? QStringLiteral("Y") : QString(),
        QString::number(meeting.examWeek),
        meeting.date.toString(Qt::ISODate),
        QString::number(countOf(holding)),
    };
    constexpr qsizetype length = 32; // digits; 128 bits
    name = QString::fromLatin1(
        QCryptographicHash::hash(parts.join(u'\n').toUtf8(), QCryptographicHash::Sha256)
            .toHex()
            .left(length));
    return name;
}

QString IcsNames::of(const answers::AgendaEntry& entry)
{
    QStringList names;
    for (const HoldingId id : entry.holdings) {
        names << rowName(id);
    }
    return entry.date.toString(QStringLiteral("yyyyMMdd-")) +
           *std::min_element(names.begin(), names.end()) + QStringLiteral("@tempora");
}

} // namespace files
