#include "demo/Exams.h"

#include "demo/Samples.h"

#include <gtest/gtest.h>
#include <map>
#include <set>
#include <tuple>

using namespace demo;
using test::sample;

namespace
{

const std::vector<Exam>& exams()
{
    static const std::vector<Exam> made =
        makeExams(sample().faculty, sample().faculty.periods.front());
    return made;
}

using Quarter = std::tuple<int, int, int, int>; // week, day, quarter since midnight, who
using ExamKey = std::tuple<int, int>;           // room, subject

/// Fails when one of `who` is at two exams at once.
void takeOnce(std::map<Quarter, ExamKey>& taken, const Exam& exam, int who)
{
    for (int minute = exam.start; minute < exam.start + exam.minutes; minute += 15) {
        const auto place =
            taken.try_emplace({exam.week, exam.day, minute / 15, who}, exam.room, exam.subject);
        EXPECT_EQ(place.first->second, ExamKey(exam.room, exam.subject));
    }
}

} // namespace

TEST(Exams, fillThreeWeeksForEveryClass)
{
    std::map<int, std::set<int>> classes;
    for (const Exam& exam : exams()) {
        classes[exam.week].insert(exam.studentClass);
    }
    ASSERT_EQ(classes.size(), 3U);
    for (const auto& [week, present] : classes) {
        EXPECT_GE(present.size(), 115U);
    }
}

TEST(Exams, putNoRoomClassOrInvigilatorIntoTwo)
{
    std::map<Quarter, ExamKey> rooms;
    std::map<Quarter, ExamKey> classes;
    std::map<Quarter, ExamKey> teachers;
    for (const Exam& exam : exams()) {
        takeOnce(rooms, exam, exam.room);
        takeOnce(classes, exam, exam.studentClass);
        for (const int teacher : exam.invigilators) {
            takeOnce(teachers, exam, teacher);
        }
    }
}

TEST(Exams, areWatchedByOneToThree)
{
    std::set<std::size_t> counts;
    for (const Exam& exam : exams()) {
        counts.insert(exam.invigilators.size());
    }
    EXPECT_EQ(counts, (std::set<std::size_t>{1, 2, 3}));
}

TEST(Exams, seatClassesTogetherOnlyInAmphitheatres)
{
    int common = 0;
    for (const Exam& exam : exams()) {
        const RoomKind kind = sample().faculty.room(exam.room).kind;
        common += exam.common ? 1 : 0;
        EXPECT_EQ(exam.common, kind == RoomKind::Amphi);
    }
    EXPECT_GT(common, 50);
}
