#include "timetable/MeetingFields.h"

#include <algorithm>

namespace timetable
{
namespace
{

using field::kFirstTeacher;
using field::kOtherRoom;
using field::kRoom;
using field::kSubject;
using field::of;

// Those that most rows have come first, the one that `ratrap` has besides `emplois` stands last.
constexpr std::array kMakeUpColumns{
    FieldColumn{of(Part::A, kRoom), column::kSalle},
    FieldColumn{of(Part::A, kOtherRoom), column::kYSalle},
    FieldColumn{of(Part::A, kFirstTeacher), column::kEnseignant1},
    FieldColumn{of(Part::A, kFirstTeacher + 1), column::kEnseignant2},
    FieldColumn{of(Part::A, kFirstTeacher + 2), column::kEnseignant3},
    FieldColumn{of(Part::A, kSubject), column::kMatiere},
    FieldColumn{field::kSlot, column::kSeance},
    FieldColumn{field::kNature, column::kNewNature},
    FieldColumn{field::kClass, column::kClasse},
    FieldColumn{field::kStart, column::kDebut},
    FieldColumn{field::kLength, column::kDuree},
    FieldColumn{of(Part::SecondA, kRoom), column::kXSalle},
    FieldColumn{of(Part::SecondA, kFirstTeacher), column::kXEnseignant1},
    FieldColumn{of(Part::SecondA, kFirstTeacher + 1), column::kXEnseignant2},
    FieldColumn{of(Part::SecondA, kFirstTeacher + 2), column::kXEnseignant3},
    FieldColumn{of(Part::SecondA, kSubject), column::kXMatiere},
    FieldColumn{of(Part::B, kRoom), column::kSalleB},
    FieldColumn{of(Part::B, kOtherRoom), column::kYSalleB},
    FieldColumn{of(Part::B, kFirstTeacher), column::kEnseignant1b},
    FieldColumn{of(Part::B, kFirstTeacher + 1), column::kEnseignant2b},
    FieldColumn{of(Part::B, kFirstTeacher + 2), column::kEnseignant3b},
    FieldColumn{of(Part::B, kSubject), column::kMatiereb},
    FieldColumn{of(Part::SecondB, kRoom), column::kXSalleB},
    FieldColumn{of(Part::SecondB, kFirstTeacher), column::kXEnseignant1B},
    FieldColumn{of(Part::SecondB, kFirstTeacher + 1), column::kXEnseignant2B},
    FieldColumn{of(Part::SecondB, kFirstTeacher + 2), column::kXEnseignant3B},
    FieldColumn{of(Part::SecondB, kSubject), column::kXMatiereB},
    FieldColumn{field::kDate, column::kDateX},
};

constexpr std::size_t kUsualOfCourse = 11;

constexpr std::array kExamColumns{
    FieldColumn{of(Part::A, kRoom), column::kSalle},
    FieldColumn{of(Part::A, kFirstTeacher), column::kEnseignant1},
    FieldColumn{of(Part::A, kFirstTeacher + 1), column::kEnseignant2},
    FieldColumn{of(Part::A, kFirstTeacher + 2), column::kEnseignant3},
    FieldColumn{of(Part::A, kSubject), column::kMatiere},
    FieldColumn{field::kSlot, column::kSeance},
    FieldColumn{field::kClass, column::kClasse},
    FieldColumn{field::kStart, column::kDebut},
    FieldColumn{field::kLength, column::kDuree},
    FieldColumn{field::kExamWeek, column::kSemaine},
};

} // namespace

SqlName tableOf(MeetingKind kind)
{
    switch (kind) {
    case MeetingKind::MakeUp:
        return table::kRatrap;
    case MeetingKind::Exam:
        return table::kExamen;
    case MeetingKind::Course:
        break;
    }
    return table::kEmplois;
}

std::span<const FieldColumn> columnsOf(MeetingKind kind)
{
    switch (kind) {
    case MeetingKind::MakeUp:
        return kMakeUpColumns;
    case MeetingKind::Exam:
        return kExamColumns;
    case MeetingKind::Course:
        break;
    }
    return std::span(kMakeUpColumns).first(kMakeUpColumns.size() - 1);
}

std::size_t usualColumns(MeetingKind kind)
{
    // A make-up's date is never null.
    return kind == MeetingKind::Course ? kUsualOfCourse : columnsOf(kind).size();
}

bool isIndispensable(MeetingKind kind, std::size_t field)
{
    if (field < field::kSlot) {
        const std::size_t ofPart = field % field::kPartFields;
        return ofPart == kRoom || ofPart == kOtherRoom;
    }
    const bool isWeekRule = field == field::kNature && kind == MeetingKind::Course;
    return isWeekRule || field == field::kSlot || field == field::kExamWeek ||
           field == field::kDate;
}

SqlName columnOf(std::size_t field)
{
    const auto isOfField = [field](const FieldColumn& each) { return each.field == field; };
    const auto found = std::find_if(kMakeUpColumns.begin(), kMakeUpColumns.end(), isOfField);
    return found != kMakeUpColumns.end() ? found->column : column::kSemaine;
}

} // namespace timetable
