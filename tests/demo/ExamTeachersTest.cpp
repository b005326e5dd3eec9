#include "demo/ExamTeachers.h"

#include "answers/ClashSentence.h"
#include "demo/Exams.h"
#include "demo/Output.h"
#include "demo/Samples.h"
#include "support/TestDatabase.h"
#include "timetable/TimetableReader.h"

#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <set>

using namespace demo;
using test::sample;

namespace
{

/// The clashes of a period as the program finds them.
std::vector<answers::Clash> clashesOf(test::TestDatabase& database, int period)
{
    db::Connection connection(database.connectString());
    const timetable::Occupancy occupancy(
        std::make_shared<const timetable::Timetable>(timetable::readTimetable(connection, period)));
    std::vector<answers::Clash> clashes = answers::clashes(occupancy);
    for (const answers::Clash& clash : clashes) {
        if (clash.kind == answers::ClashKind::Teacher) {
            std::set<timetable::RoomId> rooms;
            for (const timetable::HoldingId id : clash.holders) {
                for (const timetable::RoomId room : occupancy.roomsOf(occupancy.holding(id))) {
                    rooms.insert(room);
                }
            }
            EXPECT_EQ(rooms.size(), 2U) << answers::clashSentence(occupancy, clash).toStdString();
        }
    }
    return clashes;
}

} // namespace

TEST(ExamTeachers, clashOnceAWeekOnPurpose)
{
    test::TestDatabase database(test::DatabaseKind::Sqlite);
    writeSqliteFile(sample().faculty.options, database.file());
    for (const int period : {1, 2}) {
        std::map<answers::ClashKind, int> counts;
        std::set<QDate> dates;
        for (const answers::Clash& clash : clashesOf(database, period)) {
            ++counts[clash.kind];
            if (clash.date.isValid()) {
                dates.insert(clash.date.addDays(1 - clash.date.dayOfWeek()));
            }
        }
        EXPECT_EQ(counts[answers::ClashKind::Teacher], 3) << period;
        EXPECT_EQ(dates.size(), 3U) << period; // one in each exam week
        // Some rooms are a little too small, as everywhere; nothing else is wrong.
        EXPECT_LE(counts[answers::ClashKind::Overfull], 50) << period;
        counts.erase(answers::ClashKind::Teacher);
        counts.erase(answers::ClashKind::Overfull);
        EXPECT_TRUE(counts.empty()) << period;
    }
}

TEST(ExamTeachers, changeNothingButTheTeacher)
{
    const std::vector<Exam> made = makeExams(sample().faculty, sample().faculty.periods.front());
    std::vector<Exam> again = made;
    for (Exam& exam : again) {
        exam.teacher = 0; // whoever it was
    }
    shareOutTeachers(sample().faculty, again);
    int teachers = 0;
    ASSERT_EQ(again.size(), made.size());
    for (std::size_t index = 0; index < made.size(); ++index) {
        teachers += again[index].teacher != made[index].teacher ? 1 : 0;
        again[index].teacher = made[index].teacher;
        EXPECT_TRUE(again[index].room == made[index].room &&
                    again[index].invigilators == made[index].invigilators &&
                    again[index].studentClass == made[index].studentClass &&
                    again[index].start == made[index].start);
    }
    EXPECT_GT(teachers, 0);
}

TEST(ExamTeachers, leaveAnExamWithoutATeacherAlone)
{
    Exam exam;
    exam.week = 1;
    exam.teacher = nobody;
    std::vector<Exam> exams{exam};
    shareOutTeachers(sample().faculty, exams);
    EXPECT_EQ(exams.front().teacher, nobody);
}
