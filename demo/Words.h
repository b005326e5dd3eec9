#pragma once

#include <QString>
#include <QStringList>
#include <array>

/// The words that the faculty's names are made of. None holds a straight apostrophe except
/// subjects: the program puts the names of rooms, classes and periods into SQL as they stand.
namespace demo
{

/// Eight departments that own rooms and classes; a ninth only teaches languages.
constexpr int departmentCount = 8;
constexpr int languages = 8; ///< Index of the teaching-only department

/// Short names of the eight departments, in alphabetical order.
[[nodiscard]] const std::array<QString, departmentCount>& departmentNames();

/// Subjects of a department (0 .. 8). A star and a letter mark practical work: i for computers,
/// p physics, c chemistry, b biology, a automation, m machines, g building materials, f mechanics
/// and heat, w workshop.
[[nodiscard]] const QStringList& subjectWords(int department);

[[nodiscard]] const QStringList& familyNames();
[[nodiscard]] const QStringList& firstNames();
/// Names of amphitheatres; the first ones are letters.
[[nodiscard]] const QStringList& amphiNames();
/// Short names of the séance types; the position is their `Ref`.
[[nodiscard]] const std::array<QString, 16>& typeNames();

/// Positions in `typeNames`.
namespace type
{
constexpr int lecture = 0;
constexpr int tutorial = 1;
constexpr int practical = 2;
constexpr int integrated = 3;
constexpr int seminar = 4;
constexpr int conference = 5;
constexpr int project = 6;
constexpr int coaching = 7;
constexpr int language = 8;
constexpr int workshop = 9;
constexpr int finalExam = 12;
constexpr int test = 13;
constexpr int resit = 14;
} // namespace type

} // namespace demo
