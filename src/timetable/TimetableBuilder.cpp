#include "timetable/TimetableBuilder.h"

#include "timetable/MeetingColumns.h"
#include "timetable/NamelessRooms.h"
#include "timetable/ReadTimes.h"
#include "timetable/SchoolColumns.h"

#include <algorithm>

namespace timetable
{
namespace
{

bool isBlank(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [](QChar each) { return each == u' '; });
}

} // namespace

void TimetableBuilder::addRoom(const Room& room)
{
    m_result.m_rooms.push_back(room);
    m_result.m_listedRooms = m_result.m_rooms.size();
    m_rooms.addRoom(room.name);
    if (room.department) {
        m_departments.texts.add(*room.department);
    }
}

void TimetableBuilder::addSlot(QStringView key, QStringView start, QStringView end)
{
    m_slots.addSlot(key, start, end);
}

/// A name of blanks is nobody's.
template <typename NameId>
NameId TimetableBuilder::name(NameColumns& names, MeetingKind kind, std::size_t field,
                              QStringView text)
{
    if (isBlank(text)) {
        return {};
    }
    names.first = std::min(names.first, std::pair(kind, field));
    return NameId(names.texts.add(text));
}

TextId TimetableBuilder::text(QStringView text)
{
    return text.isNull() ? TextId() : TextId(m_result.m_texts.add(text));
}

const TimetableBuilder::Reading& TimetableBuilder::reading(TextId id)
{
    static constexpr Reading nothing;
    if (id.isNone()) {
        return nothing;
    }
    const auto number = static_cast<std::size_t>(id.index());
    while (m_readings.size() <= number) {
        const QString& text = m_result.m_texts.text(static_cast<int>(m_readings.size()));
        m_readings.push_back({readTime(text), readLength(text), readNumber(text), readDate(text)});
    }
    return m_readings[number];
}

MeetingPart TimetableBuilder::part(MeetingKind kind, Part which, const MeetingTexts& texts)
{
    const std::size_t room = field::of(which, field::kRoom);
    const std::size_t otherRoom = field::of(which, field::kOtherRoom);
    const std::size_t subject = field::of(which, field::kSubject);
    MeetingPart part;
    part.room = m_rooms.name(kind, room, texts[room]);
    part.otherRoom = m_rooms.name(kind, otherRoom, texts[otherRoom]);
    for (std::size_t rank = 0; rank < part.teachers.size(); ++rank) {
        const std::size_t teacher = field::of(which, field::kFirstTeacher + rank);
        part.teachers[rank] = name<TeacherId>(m_teachers, kind, teacher, texts[teacher]);
    }
    part.subject = name<SubjectId>(m_subjects, kind, subject, texts[subject]);
    return part;
}

void TimetableBuilder::expectMeetings(std::size_t count)
{
    m_result.m_meetings.reserve(meetingCount() + count);
}

void TimetableBuilder::addMeeting(MeetingKind kind, const MeetingTexts& texts)
{
    Meeting& meeting = m_result.m_meetings.emplace_back();
    meeting.kind = kind;
    for (const Part which : kAllParts) {
        meeting.parts[static_cast<std::size_t>(which)] = part(kind, which, texts);
    }
    meeting.className = name<ClassId>(m_classes, kind, field::kClass, texts[field::kClass]);
    meeting.slotText = text(texts[field::kSlot]);
    if (!meeting.slotText.isNone()) {
        m_slots.addKey(kind, meeting.slotText, texts[field::kSlot]);
    }
    meeting.startText = text(texts[field::kStart]);
    meeting.start = reading(meeting.startText).time;
    meeting.lengthText = text(texts[field::kLength]);
    meeting.length = reading(meeting.lengthText).length;
    meeting.nature = text(texts[field::kNature]);
    meeting.alternates = texts[field::kNature] == nature::kAlternating;
    meeting.examWeek = reading(text(texts[field::kExamWeek])).number.value_or(0);
    meeting.date = reading(text(texts[field::kDate])).date.value_or(QDate());
}

Timetable TimetableBuilder::build(const AskNames& ask) &&
{
    const NameInquiry inquiry = asked(ask);
    takeRooms(inquiry);
    takeSlots(inquiry);
    m_result.m_sizes = m_sizes.take(inquiry, m_classes.texts);
    m_result.m_teachers = taken<TeacherId>(m_teachers, inquiry);
    m_result.m_classes = taken<ClassId>(m_classes, inquiry);
    m_result.m_subjects = taken<SubjectId>(m_subjects, inquiry);
    m_result.m_departments = taken<DepartmentId>(m_departments, inquiry);
    return std::move(m_result);
}

NameInquiry TimetableBuilder::asked(const AskNames& ask)
{
    NameInquiry inquiry;
    m_rooms.ask(inquiry);
    m_slots.ask(inquiry);
    m_sizes.ask(inquiry, m_classes.texts);
    for (NameColumns* names : {&m_teachers, &m_classes, &m_subjects}) {
        askAbout(*names, inquiry);
    }
    if (!m_departments.texts.isEmpty()) {
        m_departments.question =
            inquiry.add({table::kSalle, column::kDepartement, m_departments.texts});
    }
    inquiry.ask(ask);
    return inquiry;
}

void TimetableBuilder::askAbout(NameColumns& names, NameInquiry& inquiry)
{
    if (!names.texts.isEmpty()) {
        const auto& [kind, field] = names.first;
        names.question = inquiry.add({tableOf(kind), columnOf(field), names.texts});
    }
}

template <typename NameId>
Names<NameId> TimetableBuilder::taken(const NameColumns& names, const NameInquiry& inquiry)
{
    return names.question
               ? Names<NameId>(inquiry.question(*names.question), inquiry.groups(*names.question))
               : Names<NameId>();
}

void TimetableBuilder::takeRooms(const NameInquiry& inquiry)
{
    RoomNaming::Result rooms = m_rooms.take(inquiry);
    for (const QString& name : rooms.unknownRooms) {
        m_result.m_rooms.push_back({name, std::nullopt, std::nullopt, 0});
    }
    m_result.m_roomNames = std::move(rooms.names);
    const auto dropUnlessRoom = [this](RoomNameId& id) {
        if (!id.isNone() && m_result.roomName(id).rooms.empty()) {
            id = RoomNameId();
        }
    };
    NamelessRooms nameless(m_result.rooms(), m_result.m_roomNames);
    for (Meeting& meeting : m_result.m_meetings) {
        if (nameless.isAny()) {
            nameless.settle(meeting);
        }
        for (MeetingPart& part : meeting.parts) {
            dropUnlessRoom(part.room);
            dropUnlessRoom(part.otherRoom);
        }
    }
}

void TimetableBuilder::takeSlots(const NameInquiry& inquiry)
{
    m_result.m_slots = m_slots.takeSlots(inquiry);
    std::array<std::vector<SlotKey>, kMeetingKinds> keys;
    for (std::size_t kind = 0; kind < kMeetingKinds; ++kind) {
        keys.at(kind) = m_slots.takeKeys(inquiry, static_cast<MeetingKind>(kind));
    }
    for (Meeting& meeting : m_result.m_meetings) {
        if (!meeting.slotText.isNone()) {
            meeting.slot = keys.at(static_cast<std::size_t>(meeting.kind))
                               .at(static_cast<std::size_t>(meeting.slotText.index()));
        }
    }
}

} // namespace timetable
