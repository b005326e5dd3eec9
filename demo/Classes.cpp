#include "demo/Classes.h"

#include "demo/Draw.h"
#include "demo/Words.h"

#include <array>
#include <numeric>

namespace demo
{
namespace
{

const std::array<QString, levelCount> levelNames = {"L1", "L2", "L3", "M1", "M2"};
constexpr std::array<int, levelCount> groupsPerLevel = {5, 4, 3, 2, 1};
constexpr std::array<int, levelCount> sizePerLevel = {30, 27, 24, 18, 15};
constexpr int groupsPerDepartment = 15;

/// A, B, C ... while letters suffice, otherwise A1 to A9, B1 ...
QString groupName(int index, int count)
{
    constexpr int letters = 26;
    constexpr int perLetter = 9;
    if (count <= letters) {
        return QString(QChar('A' + index));
    }
    return QString(QChar('A' + index / perLetter)) + QString::number(index % perLetter + 1);
}

QString className(int department, int level, int index, int count)
{
    const QString cohort = levelNames.at(static_cast<std::size_t>(level)) + " " +
                           departmentNames().at(static_cast<std::size_t>(department));
    return count == 1 ? cohort : cohort + " " + groupName(index, count);
}

std::vector<StudentClass> emptyClasses(int count)
{
    std::vector<StudentClass> classes;
    const int total = departmentCount * groupsPerDepartment;
    int groups = 0;
    for (int department = 0; department < departmentCount; ++department) {
        for (int level = 0; level < levelCount; ++level) {
            const int before = count * groups / total;
            groups += groupsPerLevel.at(static_cast<std::size_t>(level));
            const int here = count * groups / total - before;
            for (int index = 0; index < here; ++index) {
                StudentClass added;
                added.name = className(department, level, index, here);
                added.department = department;
                added.level = level;
                classes.push_back(added);
            }
        }
    }
    return classes;
}

/// Capacities are planned in fives; now and then one more student came than was planned for.
int plannedCapacity(int students, Draw& draw)
{
    const int planned = (students + 4) / 5 * 5;
    return draw.percent(8) && planned > 5 ? planned - 5 : planned;
}

} // namespace

std::vector<StudentClass> makeClasses(const FacultyOptions& options)
{
    std::vector<StudentClass> classes = emptyClasses(options.classes);
    Draw draw(options.seed, Topic::Classes);
    // How full each class is, as a weight: around its level's usual size.
    std::vector<long long> weights;
    std::vector<bool> registered;
    long long total = 0;
    for (const StudentClass& one : classes) {
        const long long weight =
            1LL * sizePerLevel.at(static_cast<std::size_t>(one.level)) * draw.between(85, 115);
        weights.push_back(weight);
        registered.push_back(classes.size() == 1 || !draw.percent(4));
        total += registered.back() ? weight : 0;
    }
    if (total == 0) {
        registered.assign(classes.size(), true);
        total = std::accumulate(weights.begin(), weights.end(), 0LL);
    }
    long long passed = 0;
    for (std::size_t index = 0; index < classes.size(); ++index) {
        StudentClass& one = classes.at(index);
        const long long share = weights.at(index);
        if (registered.at(index)) {
            const long long before = options.students * passed / total;
            passed += share;
            one.students = static_cast<int>(options.students * passed / total - before);
        }
        const int planned =
            one.students > 0 ? one.students : static_cast<int>(options.students * share / total);
        one.capacity = plannedCapacity(planned, draw);
    }
    return classes;
}

int cohortOf(const StudentClass& studentClass)
{
    return studentClass.department * levelCount + studentClass.level;
}

} // namespace demo
