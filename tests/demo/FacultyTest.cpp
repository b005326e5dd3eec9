#include "demo/Classes.h"
#include "demo/Samples.h"
#include "support/RuntimeMatchers.h"

#include <QSet>
#include <algorithm>
#include <gtest/gtest.h>
#include <stdexcept>

using namespace demo;
using test::sample;

namespace
{

QStringList roomNames(int count)
{
    FacultyOptions options = test::tinyOptions();
    options.rooms = count;
    QStringList names;
    for (const Room& room : Faculty(options).rooms) {
        names.append(room.name);
    }
    return names;
}

/// Without accents, in small letters: as a database sees it that minds neither.
QString folded(const QString& text)
{
    QString plain;
    for (const QChar letter : text.normalized(QString::NormalizationForm_D)) {
        if (letter.category() != QChar::Mark_NonSpacing) {
            plain += letter.toLower();
        }
    }
    return plain;
}

int studentsOf(const Faculty& faculty)
{
    int students = 0;
    for (const StudentClass& one : faculty.classes) {
        students += one.students;
    }
    return students;
}

} // namespace

TEST(Faculty, hasTheSizesAskedFor)
{
    const Faculty& faculty = sample().faculty;
    EXPECT_EQ(faculty.rooms.size(), 64U);
    EXPECT_EQ(faculty.classes.size(), 120U);
    EXPECT_EQ(faculty.teachers.size(), 180U);
    EXPECT_EQ(faculty.curriculum.subjects().size(), 90U);
    EXPECT_EQ(faculty.periods.size(), 2U);
    EXPECT_EQ(studentsOf(faculty), 3000);
}

TEST(Faculty, hasTheSizesAskedForAtAnyScale)
{
    const Faculty large(largeFaculty(test::referenceDay()));
    EXPECT_EQ(large.rooms.size(), 250U);
    EXPECT_EQ(large.periods.size(), 20U);
    EXPECT_EQ(studentsOf(large), 120'000);
    const Faculty tiny(test::tinyOptions());
    EXPECT_EQ(tiny.rooms.size(), 3U);
    EXPECT_EQ(tiny.classes.size(), 3U);
    EXPECT_EQ(studentsOf(tiny), 30);
}

TEST(Faculty, refusesWhatThePlanCannotHold)
{
    FacultyOptions options = test::tinyOptions();
    options.rooms = 257;
    EXPECT_THROW(Faculty{options}, std::invalid_argument);
    options.rooms = 256;
    EXPECT_EQ(Faculty(options).rooms.size(), 256U);
    options.reference = QDate();
    EXPECT_THROW(Faculty{options}, std::invalid_argument);
}

TEST(Rooms, areSpreadOverZonesDepartmentsAndSizes)
{
    QSet<int> zones;
    QSet<int> departments;
    int smallest = 1000;
    int largest = 0;
    for (const Room& room : sample().faculty.rooms) {
        zones.insert(room.zone);
        departments.insert(room.department);
        smallest = std::min(smallest, room.places);
        largest = std::max(largest, room.places);
    }
    EXPECT_EQ(zones, (QSet<int>{1, 2, 3, 4}));
    EXPECT_EQ(departments.size(), departmentCount + 1); // all of them, and none
    EXPECT_TRUE(departments.contains(nobody));
    EXPECT_EQ(smallest, 12);
    EXPECT_EQ(largest, 400);
}

TEST(Rooms, haveNamesThatDifferInMoreThanCaseAndAccents)
{
    QSet<QString> names;
    for (const QString& name : roomNames(256)) {
        names.insert(folded(name));
        EXPECT_FALSE(name.contains('\'')) << name.toStdString();
    }
    EXPECT_EQ(names.size(), 256);
}

TEST(Rooms, standInTheSameOrderOnEveryDatabase)
{
    for (const int count : {60, 64, 250, 256}) {
        QStringList byBytes = roomNames(count);
        QStringList byLetters = byBytes;
        std::sort(byBytes.begin(), byBytes.end(), [](const QString& left, const QString& right) {
            return left.toLower().toUtf8() < right.toLower().toUtf8();
        });
        std::sort(
            byLetters.begin(), byLetters.end(),
            [](const QString& left, const QString& right) { return folded(left) < folded(right); });
        EXPECT_EQ(byBytes, byLetters);
    }
}

TEST(Classes, haveUniqueNamesWithoutQuotes)
{
    for (const int count : {120, 4000}) {
        FacultyOptions options = test::tinyOptions();
        options.classes = count;
        QSet<QString> names;
        for (const StudentClass& one : Faculty(options).classes) {
            names.insert(folded(one.name));
            EXPECT_FALSE(one.name.contains('\''));
        }
        EXPECT_EQ(names.size(), count);
    }
}

TEST(Classes, areNamedByLevelDepartmentAndGroup)
{
    const std::vector<StudentClass>& classes = sample().faculty.classes;
    EXPECT_EQ(classes.front().name, "L1 ECO A");
    EXPECT_EQ(classes.at(5).name, "L2 ECO A"); // after five groups in the first year
    EXPECT_EQ(classes.back().name, "M2 SNV");  // one group only
}

TEST(Classes, haveAFewWithoutStudentsButWithACapacity)
{
    int empty = 0;
    for (const StudentClass& one : sample().faculty.classes) {
        empty += one.students == 0 ? 1 : 0;
        EXPECT_GT(one.capacity, 0);
        EXPECT_LE(one.students, 60);
    }
    EXPECT_GE(empty, 2);
    EXPECT_LE(empty, 12);
}

TEST(Teachers, haveUniqueNames)
{
    for (const FacultyOptions& options :
         {test::optionsOf(test::referenceDay()), middleFaculty(test::referenceDay())}) {
        const Faculty faculty(options);
        QSet<QString> names;
        for (const Teacher& teacher : faculty.teachers) {
            names.insert(teacher.name);
            EXPECT_FALSE(teacher.name.contains('/')); // it separates teachers in a box
        }
        EXPECT_EQ(names.size(), options.teachers);
    }
}

TEST(Curriculum, hasUniqueSubjectsThatABoxCanShow)
{
    for (const int count : {90, 1000}) {
        QSet<QString> names;
        const Curriculum curriculum(count);
        for (const Subject& subject : curriculum.subjects()) {
            names.insert(subject.name);
            EXPECT_FALSE(subject.name.contains('[') || subject.name.contains(']'));
            EXPECT_FALSE(subject.name.contains('*'));
        }
        EXPECT_EQ(names.size(), count);
    }
}

TEST(Curriculum, givesEveryCohortSomethingToLearn)
{
    const Curriculum curriculum(1);
    for (int department = 0; department < departmentCount; ++department) {
        for (int level = 0; level < levelCount; ++level) {
            EXPECT_EQ(curriculum.modules(department, level, 1), std::vector<int>{0});
        }
    }
}
