#pragma once

#include "timetable/Holding.h"
#include "timetable/Timetable.h"

#include <QString>
#include <QStringList>
#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace timetable
{

/// Why the start of a meeting is not known: it has none that can be read, and ...
enum class NoStart {
    NoSlot,     ///< its key names no slot that the day has
    SlotNoTime, ///< the start of its slot cannot be read either
};

/// Why a meeting that names a room holds it on no day at all.
enum class NoDay {
    CourseKey, ///< the course's key names no day
    Date,      ///< the make-up's date cannot be read
    ExamDay,   ///< the exam's week has no date, or its key names none of the six days of a week
};

/// A meeting that names a room and holds it on no day.
struct Unplaced {
    int meeting = 0; ///< its position in `Timetable::meetings`
    NoDay reason = NoDay::CourseKey;

    friend bool operator==(const Unplaced&, const Unplaced&) = default;
};

/// A holding in words.
struct Holder {
    MeetingKind kind = MeetingKind::Course;
    Part part = Part::A;
    QStringList rooms; ///< as the row spells them, each once
    QString className;
    QStringList teachers;
    QString subject;
    int day = kNoDay;
    int slot = 0; ///< counts from 1; 0 where the key names none
    std::optional<TimeSpan> time;
    Week weeks = Week::Every;
    QDate date;

    friend bool operator==(const Holder&, const Holder&) = default;
};

/// Knows when a meeting holds a room; nobody else decides that.
///
/// A part of a row holds the rooms that it names. `Salle` is held every week, or in week A where
/// the row alternates; `XSalle` and `YSalle` every week; `SalleB`, `XSalleB` and `YSalleB` in week
/// B. A make-up holds all of its rooms on its date, an exam its room on the day of its exam week.
/// They are held from the row's start, or else its slot's, for the row's length, or else 90
/// minutes; of a course with a slot beyond those of the plan this holds as well. Courses are held
/// on their day of the week, from the first to the last day of the period. What plays no part: the
/// mode of the window, the weekday in the key of a make-up, and which row comes first.
///
/// A plain value made once from a timetable, which it shares: copies are large but harmless.
class Occupancy
{
public:
    explicit Occupancy(std::shared_ptr<const Timetable> timetable);

    [[nodiscard]] const Timetable& timetable() const { return *m_timetable; }
    /// All holdings, in the order of the meetings; their ids count from 0.
    [[nodiscard]] const std::vector<Holding>& holdings() const { return m_holdings; }
    [[nodiscard]] const Holding& holding(HoldingId id) const
    {
        return m_holdings.at(static_cast<std::size_t>(id.index()));
    }
    [[nodiscard]] const Meeting& meetingOf(const Holding& holding) const
    {
        return m_timetable->meetings().at(static_cast<std::size_t>(holding.meeting));
    }

    /// Whether the holding is one of that day and week.
    [[nodiscard]] bool isOn(const Holding& holding, const When& when) const;

    /// The rooms of a holding, each once.
    [[nodiscard]] std::vector<RoomId> roomsOf(const Holding& holding) const;
    /// Calls `visit` with each of them.
    template <typename Visit>
    void forEachRoom(const Holding& holding, Visit visit) const;

    // The room asked about must be one of the timetable's.

    /// What holds the room on that day, by start. What has no known time is left to `unknown`.
    [[nodiscard]] std::vector<HoldingId> holders(RoomId room, const When& when) const;
    /// The same, as far as it meets the stretch.
    [[nodiscard]] std::vector<HoldingId> holders(RoomId room, const When& when,
                                                 const TimeSpan& span) const;
    /// What holds the room on that day at nobody knows what time: where there is something, the
    /// room is neither taken for certain nor free.
    [[nodiscard]] std::vector<HoldingId> unknown(RoomId room, const When& when) const;
    /// Everything that ever holds the room, whatever the day.
    [[nodiscard]] std::vector<HoldingId> everyHolder(RoomId room) const;

    /// Why the holding's time is not known. Requires: it is not.
    [[nodiscard]] NoStart whyUnknown(const Holding& holding) const;
    /// The meetings that name rooms and hold them on no day.
    [[nodiscard]] const std::vector<Unplaced>& unplaced() const { return m_unplaced; }
    /// What such a meeting would hold if its day were known: a holding for each of its parts,
    /// without day and date. Their time is its own or that of the slot that its key names, if
    /// either can be read.
    [[nodiscard]] std::vector<Holding> holdingsOf(const Unplaced& unplaced) const;

    [[nodiscard]] Holder describe(const Holding& holding) const;

private:
    void place(int position);
    void addParts(const Meeting& meeting, Holding common, std::vector<Holding>& to) const;
    void add(Holding common, RoomNameId room, RoomNameId otherRoom, Week weeks,
             std::vector<Holding>& to) const;
    void shelve();
    [[nodiscard]] std::optional<TimeSpan> timeOf(const Meeting& meeting, int day) const;
    [[nodiscard]] std::span<const HoldingId> shelf(RoomId room, int day) const;
    [[nodiscard]] std::size_t shelfNumber(RoomId room, int day) const;
    template <typename Wanted>
    [[nodiscard]] std::vector<HoldingId> select(RoomId room, const When& when,
                                                Wanted isWanted) const;

    // Each room has a shelf for the courses of each day, and one for what has a date.
    static constexpr int kDated = kDaysOfWeek;
    static constexpr std::size_t kShelves = kDaysOfWeek + 1;

    std::shared_ptr<const Timetable> m_timetable;
    std::vector<Holding> m_holdings;
    std::vector<Unplaced> m_unplaced;
    std::vector<HoldingId> m_shelved;       ///< shelf by shelf, by start
    std::vector<std::size_t> m_shelfStarts; ///< where each shelf begins there; and the end
};

template <typename Visit>
void Occupancy::forEachRoom(const Holding& holding, Visit visit) const
{
    const auto& [first, second] = holding.rooms;
    const std::vector<RoomId>& rooms = m_timetable->roomName(first).rooms;
    std::for_each(rooms.begin(), rooms.end(), visit);
    if (!second.isNone()) {
        for (const RoomId room : m_timetable->roomName(second).rooms) {
            if (std::find(rooms.begin(), rooms.end(), room) == rooms.end()) {
                visit(room);
            }
        }
    }
}

} // namespace timetable
