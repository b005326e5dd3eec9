#include "timetable/MeetingFields.h"

#include "support/RuntimeMatchers.h"

#include <gtest/gtest.h>
#include <set>

using namespace timetable;

namespace
{

/// The column in which that kind of meeting has the field; empty where it has none.
QString columnIn(MeetingKind kind, std::size_t field)
{
    for (const FieldColumn& each : columnsOf(kind)) {
        if (each.field == field) {
            return each.column;
        }
    }
    return {};
}

} // namespace

TEST(MeetingFields, haveATableForEachKind)
{
    EXPECT_EQ(QString(tableOf(MeetingKind::Course)), QStringLiteral("emplois"));
    EXPECT_EQ(QString(tableOf(MeetingKind::MakeUp)), QStringLiteral("ratrap"));
    EXPECT_EQ(QString(tableOf(MeetingKind::Exam)), QStringLiteral("examen"));
}

TEST(MeetingFields, ofACourseAreTwentySevenAndOfAMakeUpOneMore)
{
    EXPECT_EQ(columnsOf(MeetingKind::Course).size(), 27U);
    EXPECT_EQ(columnsOf(MeetingKind::MakeUp).size(), 28U);
    EXPECT_EQ(columnIn(MeetingKind::Course, field::kDate), QString());
    EXPECT_EQ(columnIn(MeetingKind::MakeUp, field::kDate), QStringLiteral("DateX"));
}

TEST(MeetingFields, thatMostRowsHaveComeFirst)
{
    const std::size_t usual = usualColumns(MeetingKind::Course);
    std::size_t number = 0;
    for (const FieldColumn& each : columnsOf(MeetingKind::Course)) {
        const bool isOfAnotherPart =
            each.field >= field::of(Part::SecondA, 0) && each.field < field::kSlot;
        EXPECT_EQ(number++ >= usual, isOfAnotherPart) << QString(each.column).toStdString();
    }
    EXPECT_EQ(usualColumns(MeetingKind::MakeUp), 28U);
    EXPECT_EQ(usualColumns(MeetingKind::Exam), 10U);
}

TEST(MeetingFields, ofAnExamAreOneRoomItsTeachersAndItsWeek)
{
    EXPECT_EQ(columnsOf(MeetingKind::Exam).size(), 10U);
    EXPECT_EQ(columnIn(MeetingKind::Exam, field::kExamWeek), QStringLiteral("Semaine"));
    EXPECT_EQ(columnIn(MeetingKind::Exam, field::of(Part::A, field::kFirstTeacher + 2)),
              QStringLiteral("Enseignant3"));
    EXPECT_EQ(columnIn(MeetingKind::Exam, field::of(Part::A, field::kOtherRoom)), QString());
}

TEST(MeetingFields, areIndispensableWhereTheySayWhichRoomIsHeldOnWhichDay)
{
    QStringList indispensable;
    for (const FieldColumn& each : columnsOf(MeetingKind::Course)) {
        if (isIndispensable(MeetingKind::Course, each.field)) {
            indispensable << each.column;
        }
    }
    EXPECT_EQ(indispensable, QStringList({"Salle", "YSalle", "Seance", "newnature", "XSalle",
                                          "SalleB", "YSalleB", "XSalleB"}));
    EXPECT_TRUE(isIndispensable(MeetingKind::MakeUp, field::kDate));
    EXPECT_FALSE(isIndispensable(MeetingKind::MakeUp, field::kNature)); // it has no week
    EXPECT_TRUE(isIndispensable(MeetingKind::Exam, field::kExamWeek));
    EXPECT_FALSE(isIndispensable(MeetingKind::Exam, field::kClass));
}

TEST(MeetingFields, haveAColumnEach)
{
    for (const MeetingKind kind : {MeetingKind::Course, MeetingKind::MakeUp, MeetingKind::Exam}) {
        std::set<std::size_t> fields;
        std::set<QString> columns;
        for (const FieldColumn& each : columnsOf(kind)) {
            fields.insert(each.field);
            columns.insert(each.column);
        }
        EXPECT_EQ(fields.size(), columnsOf(kind).size());
        EXPECT_EQ(columns.size(), columnsOf(kind).size());
        EXPECT_LT(*fields.rbegin(), field::kCount);
    }
}

TEST(MeetingFields, ofAPartStandInItsOwnColumns)
{
    const auto columnsOfPart = [](Part part) {
        QStringList names;
        for (std::size_t each = 0; each < field::kPartFields; ++each) {
            names << columnIn(MeetingKind::Course, field::of(part, each));
        }
        return names;
    };
    EXPECT_EQ(columnsOfPart(Part::A), (QStringList{"Salle", "YSalle", "Enseignant1", "Enseignant2",
                                                   "Enseignant3", "matière"}));
    EXPECT_EQ(columnsOfPart(Part::SecondA),
              (QStringList{"XSalle", QString(), "XEnseignant1", "XEnseignant2", "XEnseignant3",
                           "XMatière"}));
    EXPECT_EQ(columnsOfPart(Part::B), (QStringList{"SalleB", "YSalleB", "Enseignant1b",
                                                   "Enseignant2b", "Enseignant3b", "Matièreb"}));
    EXPECT_EQ(columnsOfPart(Part::SecondB),
              (QStringList{"XSalleB", QString(), "XEnseignant1B", "XEnseignant2B", "XEnseignant3B",
                           "XMatièreB"}));
}

TEST(MeetingFields, tellTheirColumn)
{
    EXPECT_EQ(QString(columnOf(field::kClass)), QStringLiteral("Classe"));
    EXPECT_EQ(QString(columnOf(field::kDate)), QStringLiteral("DateX"));
    EXPECT_EQ(QString(columnOf(field::kExamWeek)), QStringLiteral("Semaine"));
}
