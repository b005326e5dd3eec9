#pragma once

#include <compare>
#include <functional>

namespace timetable
{

/// Stands for a thing in a list: its position there, or nothing. Ids of different lists are of
/// different types, so that a teacher is never looked up among the rooms.
template <typename Tag>
class Id
{
public:
    constexpr Id() = default; ///< nothing
    /// `index` counts from 0.
    constexpr explicit Id(int index) : m_index(index) {}

    [[nodiscard]] constexpr bool isNone() const { return m_index < 0; }
    /// Position in its list. Requires: not nothing.
    [[nodiscard]] constexpr int index() const { return m_index; }

    friend constexpr bool operator==(Id, Id) = default;
    friend constexpr auto operator<=>(Id left, Id right) { return left.m_index <=> right.m_index; }

private:
    int m_index = -1;
};

using RoomId = Id<struct RoomTag>;         ///< a room, of the room table or named by rows only
using RoomNameId = Id<struct RoomNameTag>; ///< a text in one of the room columns
using ClassId = Id<struct ClassTag>;
using TeacherId = Id<struct TeacherTag>;
using SubjectId = Id<struct SubjectTag>;
using DepartmentId = Id<struct DepartmentTag>; ///< a text in the room table's column
using HoldingId = Id<struct HoldingTag>;       ///< a holding of an occupancy
using TextId = Id<struct TextTag>;             ///< any other text, kept as it is stored

} // namespace timetable

template <typename Tag>
struct std::hash<timetable::Id<Tag>> {
    std::size_t operator()(timetable::Id<Tag> id) const noexcept
    {
        return std::hash<int>()(id.isNone() ? -1 : id.index());
    }
};
