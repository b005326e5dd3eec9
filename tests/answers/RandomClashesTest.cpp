// Clashes of random schools, against all pairs of holders compared word by word.

#include "answers/ClashDraft.h"
#include "answers/Clashes.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <set>

using namespace answers;
using namespace test;
using namespace timetable;

namespace
{

constexpr unsigned kSchools = 60;

/// A few rooms, people and times, so that much clashes.
class RandomSchool
{
public:
    explicit RandomSchool(unsigned seed) : m_random(seed)
    {
        m_school.draft().room("R0").room("R1").room("R2").room("R3");
        for (int row = 0; row < 12; ++row) {
            ClashRow any = anyRow();
            m_school.course(any);
            any = anyRow();
            any.date = any.key == "Lundi1" ? "2026-10-05" : "2027-02-01"; // both are Mondays
            if (row % 3 == 0) {
                m_school.makeUp(any);
            }
            any = anyRow();
            any.week = "3";
            if (row % 3 == 1) {
                m_school.exam(any);
            }
        }
    }
    [[nodiscard]] ClashDraft& school() { return m_school; }

private:
    QString name(const QString& prefix, unsigned count)
    {
        const auto number = m_random() % (count + 1);
        return number == count ? QString() : prefix + QString::number(number);
    }
    ClashRow anyRow()
    {
        return {.key = m_random() % 2 == 0 ? "Lundi1" : "Mardi1",
                .room = name("R", 4),
                .className = name("L", 4),
                .teacher = name("T", 4),
                .subject = name("M", 2),
                .start = name("1", 3) + "h00",
                .length = m_random() % 2 == 0 ? "60" : "150",
                .nature = m_random() % 3 == 0 ? "10/20" : "00",
                .xRoom = m_random() % 4 == 0 ? name("R", 4) : QString(),
                .xTeacher = name("T", 4),
                .yRoom = m_random() % 4 == 0 ? name("R", 4) : QString(),
                .roomB = m_random() % 3 == 0 ? name("R", 4) : QString(),
                .teacherB = name("T", 4),
                .secondTeacher = m_random() % 4 == 0 ? name("T", 4) : QString()};
    }

    std::mt19937 m_random;
    ClashDraft m_school;
};

struct Told {
    int kind;
    QString name;
    int day;
    QDate date;
    std::set<HoldingId> holders;
    friend bool operator==(const Told&, const Told&) = default;
    friend bool operator<(const Told& left, const Told& right)
    {
        return std::tie(left.kind, left.name, left.day, left.date, left.holders) <
               std::tie(right.kind, right.name, right.day, right.date, right.holders);
    }
};

/// All pairs of a school.
class Judge
{
public:
    explicit Judge(const Occupancy& occupancy) : m_occupancy(occupancy)
    {
        for (const Holding& holding : occupancy.holdings()) {
            m_holders.push_back(occupancy.describe(holding));
        }
        for (std::size_t left = 0; left < m_holders.size(); ++left) {
            for (std::size_t right = left + 1; right < m_holders.size(); ++right) {
                compare(left, right);
            }
        }
    }
    [[nodiscard]] std::set<Told> told() const
    {
        std::set<Told> all;
        for (const auto& [about, groups] : m_groups) {
            for (const std::set<HoldingId>& group : groups) {
                const auto& [kind, name, day, date] = about;
                all.insert({kind, name, day, date, group});
            }
        }
        return all;
    }

private:
    using About = std::tuple<int, QString, int, QDate>;

    /// The date of the pair, nothing in the teaching weeks; no value where they never meet.
    [[nodiscard]] std::optional<QDate> dateOf(const Holder& left, const Holder& right) const
    {
        const bool isLeftCourse = left.kind == MeetingKind::Course;
        if (isLeftCourse && right.kind == MeetingKind::Course) {
            const bool share = left.weeks == right.weeks || left.weeks == Week::Every ||
                               right.weeks == Week::Every;
            return left.day == right.day && share ? std::optional(QDate()) : std::nullopt;
        }
        if (!isLeftCourse && right.kind != MeetingKind::Course) {
            return left.date == right.date ? std::optional(left.date) : std::nullopt;
        }
        const Holder& course = isLeftCourse ? left : right;
        const Holder& other = isLeftCourse ? right : left;
        const bool isMet = other.kind == MeetingKind::MakeUp &&
                           other.date.dayOfWeek() == course.day + 1 &&
                           other.date >= QDate(2026, 9, 7) && other.date <= QDate(2026, 12, 18);
        return isMet ? std::optional(other.date) : std::nullopt;
    }
    [[nodiscard]] QString firstTeacher(std::size_t index) const
    {
        const Holding& holding = m_occupancy.holdings()[index];
        const auto& part = m_occupancy.meetingOf(holding).part(holding.part);
        return m_occupancy.timetable().teachers().text(part.teachers[0]);
    }
    [[nodiscard]] bool isIn(Week week, std::size_t index) const
    {
        return m_holders[index].weeks == week || m_holders[index].weeks == Week::Every;
    }
    /// All rooms that the holder's part of its row has in that week.
    [[nodiscard]] QStringList roomsOfPart(std::size_t index, Week week) const
    {
        QStringList rooms;
        for (std::size_t other = 0; other < m_holders.size(); ++other) {
            const bool isSamePart =
                m_occupancy.holdings()[other].meeting == m_occupancy.holdings()[index].meeting &&
                m_holders[other].part == m_holders[index].part;
            rooms += isSamePart && isIn(week, other) ? m_holders[other].rooms : QStringList();
        }
        return rooms;
    }
    /// Whether both are there in that week, in rooms of their own.
    [[nodiscard]] bool areApartIn(Week week, std::size_t left, std::size_t right) const
    {
        const QStringList others = roomsOfPart(right, week);
        const QStringList ones = roomsOfPart(left, week);
        return isIn(week, left) && isIn(week, right) &&
               std::none_of(ones.begin(), ones.end(),
                            [&others](const QString& room) { return others.contains(room); });
    }
    void compare(std::size_t leftIndex, std::size_t rightIndex)
    {
        const Holder& left = m_holders[leftIndex];
        const Holder& right = m_holders[rightIndex];
        const std::optional<QDate> date = dateOf(left, right);
        const int leftStart = left.time->start.value;
        const int rightStart = right.time->start.value;
        if (!date || leftStart >= rightStart + right.time->length.value ||
            rightStart >= leftStart + left.time->length.value) {
            return;
        }
        const bool isOneRow =
            m_occupancy.holdings()[leftIndex].meeting == m_occupancy.holdings()[rightIndex].meeting;
        const bool isCommon = leftStart == rightStart && left.subject == right.subject &&
                              firstTeacher(leftIndex) == firstTeacher(rightIndex);
        const bool shareRoom = !areApartIn(Week::A, leftIndex, rightIndex) &&
                               !areApartIn(Week::B, leftIndex, rightIndex);
        const bool withMakeUp =
            left.kind == MeetingKind::MakeUp || right.kind == MeetingKind::MakeUp;
        const auto add = [&](int kind, const QString& name) {
            join({kind + (withMakeUp ? 4 : 0), name,
                  date->isValid() ? date->dayOfWeek() - 1 : left.day, *date},
                 HoldingId(static_cast<int>(leftIndex)), HoldingId(static_cast<int>(rightIndex)));
        };
        for (const QString& room : left.rooms) {
            if (right.rooms.contains(room) && !isOneRow && !isCommon) {
                add(0, room);
            }
        }
        for (const QString& teacher : left.teachers) {
            if (right.teachers.contains(teacher) && !shareRoom &&
                !(isOneRow && left.part == right.part)) {
                add(1, teacher);
            }
        }
        if (!left.className.isEmpty() && left.className == right.className && !isOneRow &&
            !(isCommon && shareRoom)) {
            add(2, left.className);
        }
    }
    void join(const About& about, HoldingId left, HoldingId right)
    {
        std::set<HoldingId> joint{left, right};
        std::vector<std::set<HoldingId>>& groups = m_groups[about];
        std::erase_if(groups, [&](const std::set<HoldingId>& group) {
            const bool isTouched = group.contains(left) || group.contains(right);
            if (isTouched) {
                joint.insert(group.begin(), group.end());
            }
            return isTouched;
        });
        groups.push_back(joint);
    }

    const Occupancy& m_occupancy;
    std::vector<Holder> m_holders;
    std::map<About, std::vector<std::set<HoldingId>>> m_groups;
};

} // namespace

TEST(RandomClashes, areThoseOfAllPairs)
{
    std::set<int> kinds;
    for (unsigned seed = 0; seed < kSchools; ++seed) {
        RandomSchool random(seed);
        const Occupancy& occupancy = random.school().occupancy();
        std::set<Told> found;
        for (const Clash& clash : clashes(occupancy)) {
            found.insert({static_cast<int>(clash.kind),
                          clash.name,
                          clash.day,
                          clash.date,
                          {clash.holders.begin(), clash.holders.end()}});
            kinds.insert(static_cast<int>(clash.kind));
        }
        EXPECT_TRUE(found == Judge(occupancy).told()) << "school " << seed;
    }
    EXPECT_EQ(kinds, (std::set<int>{0, 1, 2, 4, 5, 6}));
}
