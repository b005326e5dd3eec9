#pragma once

#include "timetable/Meeting.h"
#include "timetable/MeetingColumns.h"

#include <QStringView>
#include <array>
#include <cstddef>
#include <span>

namespace timetable
{

/// What is read of a row of meetings, by position: first the parts one after the other, then what
/// they share.
namespace field
{

// Within a part.
inline constexpr std::size_t kRoom = 0;
inline constexpr std::size_t kOtherRoom = 1;
inline constexpr std::size_t kFirstTeacher = 2;
inline constexpr std::size_t kSubject = 5;
inline constexpr std::size_t kPartFields = 6;

/// Position of a part's field.
[[nodiscard]] constexpr std::size_t of(Part part, std::size_t partField)
{
    return static_cast<std::size_t>(part) * kPartFields + partField;
}

inline constexpr std::size_t kSlot = kParts * kPartFields;
inline constexpr std::size_t kNature = kSlot + 1;
inline constexpr std::size_t kClass = kSlot + 2;
inline constexpr std::size_t kStart = kSlot + 3;
inline constexpr std::size_t kLength = kSlot + 4;
inline constexpr std::size_t kExamWeek = kSlot + 5;
inline constexpr std::size_t kDate = kSlot + 6;
inline constexpr std::size_t kCount = kSlot + 7;

} // namespace field

/// The texts of one row. A null view is a null of the database, or a column that it does not have.
using MeetingTexts = std::array<QStringView, field::kCount>;

/// Where a field stands in the database.
struct FieldColumn {
    std::size_t field = 0;
    SqlName column;
};

/// The table of such meetings.
[[nodiscard]] SqlName tableOf(MeetingKind kind);
/// The fields that it has, each with its column.
[[nodiscard]] std::span<const FieldColumn> columnsOf(MeetingKind kind);
/// How many of them at the front most rows have; the others are those of the second part of week A
/// and of both parts of week B, in nearly all rows nulls.
[[nodiscard]] std::size_t usualColumns(MeetingKind kind);
/// Whether nobody can tell without the field which rooms a meeting holds and on which days: a table
/// without its column must not be taken for one that leaves rooms free. Without the people, the
/// class, the subject and a make-up's week rule meetings are the poorer; without start and length
/// they have those of their slot and of a usual course.
[[nodiscard]] bool isIndispensable(MeetingKind kind, std::size_t field);
/// The column of a field. Requires: a field that some table has.
[[nodiscard]] SqlName columnOf(std::size_t field);

} // namespace timetable
