#include "timetable/TimetableBuilder.h"

#include "timetable/Draft.h"

#include <gtest/gtest.h>

using namespace test;
using namespace timetable;

namespace
{

/// The only meeting of a draft.
Meeting only(const Timetable& timetable)
{
    EXPECT_EQ(timetable.meetings().size(), 1U);
    return timetable.meetings().front();
}

} // namespace

TEST(TimetableBuilder, readsTheTextsOfARow)
{
    Draft draft;
    draft.slot("Mardi2", "9h30", "11h00");
    draft.course({{column::kSeance, "Mardi2"},
                  {column::kNewNature, "10/20"},
                  {column::kClasse, "L1"},
                  {column::kDebut, "9h45"},
                  {column::kDuree, "60"}});
    const Timetable timetable = draft.build();
    const Meeting meeting = only(timetable);
    EXPECT_EQ(meeting.kind, MeetingKind::Course);
    EXPECT_EQ(meeting.slot, (SlotKey{1, 2}));
    EXPECT_EQ(timetable.text(meeting.slotText), QStringLiteral("Mardi2"));
    EXPECT_TRUE(meeting.alternates);
    EXPECT_EQ(timetable.text(meeting.nature), QStringLiteral("10/20"));
    EXPECT_EQ(timetable.classes().text(meeting.className), QStringLiteral("L1"));
    EXPECT_EQ(meeting.start, MinuteOfDay{585});
    EXPECT_EQ(timetable.text(meeting.startText), QStringLiteral("9h45"));
    EXPECT_EQ(meeting.length, Minutes{60});
    EXPECT_EQ(timetable.text(meeting.lengthText), QStringLiteral("60"));
    EXPECT_EQ(meeting.examWeek, 0);
    EXPECT_FALSE(meeting.date.isValid());
}

TEST(TimetableBuilder, leavesNullsOut)
{
    Draft draft;
    draft.course({});
    const Timetable timetable = draft.build();
    EXPECT_EQ(only(timetable), Meeting());
    EXPECT_EQ(timetable.text(only(timetable).startText), QString());
}

TEST(TimetableBuilder, keepsGapsBetweenTeachers)
{
    Draft draft;
    draft.course({{column::kEnseignant1, "  "}, {column::kEnseignant2, "Durand"}});
    const Timetable timetable = draft.build();
    const auto teachers = only(timetable).part(Part::A).teachers;
    EXPECT_TRUE(teachers[0].isNone());
    EXPECT_EQ(timetable.teachers().text(teachers[1]), QStringLiteral("Durand"));
    EXPECT_TRUE(teachers[2].isNone());
}

TEST(TimetableBuilder, readsWeekAndDateOfExamsAndMakeUps)
{
    Draft draft;
    draft.exam({{column::kSemaine, "2"}}).makeUp({{column::kDateX, "2026-11-16"}});
    const Timetable timetable = draft.build();
    EXPECT_EQ(timetable.meetings()[0].examWeek, 2);
    EXPECT_EQ(timetable.meetings()[1].date, QDate(2026, 11, 16));
}

TEST(TimetableBuilder, knowsOneTeacherInEveryColumn)
{
    Draft draft;
    draft.course({{column::kEnseignant1, "Durand"}, {column::kXEnseignant1B, "DURAND"}});
    draft.exam({{column::kEnseignant3, "durand"}});
    const Timetable timetable = draft.build(Draft::ignoringCase);
    const Meeting& course = timetable.meetings()[0];
    const Meeting& exam = timetable.meetings()[1];
    EXPECT_EQ(timetable.teachers().count(), 3);
    EXPECT_TRUE(timetable.teachers().areEqual(course.part(Part::A).teachers[0],
                                              course.part(Part::SecondB).teachers[0]));
    EXPECT_TRUE(timetable.teachers().areEqual(course.part(Part::A).teachers[0],
                                              exam.part(Part::A).teachers[2]));
}

TEST(TimetableBuilder, asksAboutANameWhereItComesFirst)
{
    Draft draft;
    draft.exam({{column::kEnseignant1, "Roux"}});
    draft.course({{column::kEnseignant2, "Durand"}, {column::kMatiereb, "Chimie"}});
    std::vector<NameQuestion> asked;
    static_cast<void>(draft.build([&asked](const std::vector<NameQuestion>& questions) {
        asked = questions;
        return Draft::spelling(questions);
    }));
    ASSERT_EQ(asked.size(), 2U);
    EXPECT_TRUE(asked[0].table == table::kEmplois);
    EXPECT_TRUE(asked[0].column == column::kEnseignant2);
    EXPECT_EQ(asked[0].texts.texts(), (std::vector<QString>{"Roux", "Durand"}));
    EXPECT_TRUE(asked[1].column == column::kMatiereb);
}

TEST(TimetableBuilder, forgetsMeetingsThatAreReadAnew)
{
    Draft draft;
    draft.course({{column::kSalle, "R1"}});
    ASSERT_EQ(draft.builder().meetingCount(), 1U);
    draft.builder().keepMeetings(0);
    EXPECT_TRUE(draft.build().meetings().empty());
}

TEST(TimetableBuilder, passesOnWhatCouldNotBeRead)
{
    Draft draft;
    draft.builder().addUnread({"ratrap", "no such table"});
    EXPECT_EQ(draft.build().unread(), (std::vector<UnreadTable>{{"ratrap", "no such table"}}));
}

TEST(TimetableBuilder, knowsTheSizesOfTheClassesInTheMeetings)
{
    Draft draft;
    draft.course({{column::kClasse, "L1"}});
    draft.builder().sizes().addStudents(u"L1", 25);
    draft.builder().sizes().addCapacity(u"L1", 30);
    EXPECT_EQ(draft.build().sizeOf(ClassId(0)), (ClassSize{ClassId(0), 25, 30}));
}
