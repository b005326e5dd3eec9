#pragma once

#include "timetable/ClassSize.h"
#include "timetable/DaySlot.h"
#include "timetable/Id.h"
#include "timetable/Meeting.h"
#include "timetable/Names.h"
#include "timetable/Period.h"
#include "timetable/Room.h"
#include "timetable/TextPool.h"

#include <QString>
#include <array>
#include <optional>
#include <span>
#include <vector>

namespace timetable
{

/// A table that the answers can do without, but that could not be read: whatever needs it is not
/// known, which is not the same as "there is none".
struct UnreadTable {
    QString table;
    QString reason; ///< the driver's own text

    friend bool operator==(const UnreadTable&, const UnreadTable&) = default;
};

/// A text in a room column, with the rooms that it names: which they are the database has told,
/// by that column's own equality.
struct RoomName {
    QString text;              ///< as stored
    std::vector<RoomId> rooms; ///< several where the room table has several equal ones

    friend bool operator==(const RoomName&, const RoomName&) = default;
};

/// Everything that a school's database says about one period, as values: rooms, slots, meetings,
/// sizes of classes. Read at one go (see TimetableReader.h) and never changed; large, so it is
/// shared rather than copied.
class Timetable
{
public:
    /// Empty where the database has no period of that number.
    [[nodiscard]] const std::optional<Period>& period() const { return m_period; }
    [[nodiscard]] const ExamWeeks& examWeeks() const { return m_examWeeks; }

    /// The rooms of the room table by the database's order of their names. Their ids count from 0.
    [[nodiscard]] std::span<const Room> rooms() const
    {
        return std::span(m_rooms).first(m_listedRooms);
    }
    /// Rooms that rows name and the room table does not know. Their ids follow the others'.
    [[nodiscard]] std::span<const Room> unknownRooms() const
    {
        return std::span(m_rooms).subspan(m_listedRooms);
    }
    /// Of the room table and others.
    [[nodiscard]] int roomCount() const { return static_cast<int>(m_rooms.size()); }
    [[nodiscard]] const Room& room(RoomId id) const { return m_rooms.at(position(id)); }
    /// Whether the room table knows it.
    [[nodiscard]] bool isListed(RoomId id) const { return position(id) < m_listedRooms; }

    /// The slots of a day, 0 to 6, by number: its own or, where it has none, Monday's.
    [[nodiscard]] std::span<const DaySlot> slotsOf(int day) const;
    /// The slot of a day that bears the number; null where the day has none.
    [[nodiscard]] const DaySlot* slot(int day, int number) const;

    /// Courses, make-ups and exams of the period, in the order in which they were read.
    [[nodiscard]] const std::vector<Meeting>& meetings() const { return m_meetings; }

    [[nodiscard]] const Names<TeacherId>& teachers() const { return m_teachers; }
    [[nodiscard]] const Names<ClassId>& classes() const { return m_classes; }
    [[nodiscard]] const Names<SubjectId>& subjects() const { return m_subjects; }
    /// The departments of the room table.
    [[nodiscard]] const Names<DepartmentId>& departments() const { return m_departments; }
    [[nodiscard]] const RoomName& roomName(RoomNameId id) const
    {
        return m_roomNames.at(position(id));
    }
    /// A text of a meeting as it is stored; empty for nothing.
    [[nodiscard]] QString text(TextId id) const
    {
        return id.isNone() ? QString() : m_texts.text(id.index());
    }
    /// Of a class that some meeting names.
    [[nodiscard]] const ClassSize& sizeOf(ClassId id) const { return m_sizes.at(position(id)); }

    /// The tables that could not be read.
    [[nodiscard]] const std::vector<UnreadTable>& unread() const { return m_unread; }

private:
    friend class TimetableBuilder;

    template <typename Tag>
    [[nodiscard]] static std::size_t position(Id<Tag> id)
    {
        return static_cast<std::size_t>(id.index());
    }

    std::optional<Period> m_period;
    ExamWeeks m_examWeeks;
    std::vector<Room> m_rooms;
    std::size_t m_listedRooms = 0;
    std::array<std::vector<DaySlot>, kDaysOfWeek> m_slots;
    std::vector<Meeting> m_meetings;
    std::vector<RoomName> m_roomNames;
    Names<TeacherId> m_teachers;
    Names<ClassId> m_classes;
    Names<SubjectId> m_subjects;
    Names<DepartmentId> m_departments;
    TextPool m_texts;
    std::vector<ClassSize> m_sizes; ///< by class
    std::vector<UnreadTable> m_unread;
};

} // namespace timetable
