#pragma once

#include "plan/Marqueur.h"
#include "support/TestDatabase.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace test
{

// The two classes of the tests' séance.
inline const QString classA = QStringLiteral("L1-A");
inline const QString classB = QStringLiteral("L1-B");

/// The statements of `createAbsenceTables`.
[[nodiscard]] QStringList absenceTableStatements(DatabaseKind kind);
/// Creates the two tables of absences as the demo faculty has them, with a counted key, and the
/// period that `lesson` belongs to.
void createAbsenceTables(TestDatabase& database);
/// Creates the two tables of absences without any key, so that rows can be identical. `dateType` is
/// what `Datex` and `Jour` are declared as.
void createKeylessAbsenceTables(TestDatabase& database,
                                const QString& dateType = QStringLiteral("DATE"));

/// The séance that the tests mark: an algebra class on Monday, 17 March 2025, at 10h15.
[[nodiscard]] plan::Marqueur lesson(const QString& classes);

/// Queries for all rows of `abscence` and `etud_abs`, with the eighteen and the nine columns in the
/// order in which the program sets them.
[[nodiscard]] QString classAbsencesQuery();
[[nodiscard]] QString studentAbsencesQuery();

/// All rows of `abscence`, the eighteen columns in the order in which the program sets them.
[[nodiscard]] QList<QStringList> classAbsences(const TestDatabase& database);
/// All rows of `etud_abs`, the nine columns in the order in which the program sets them.
[[nodiscard]] QList<QStringList> studentAbsences(const TestDatabase& database);

/// The row of `abscence` that records `lesson` for the class.
[[nodiscard]] QStringList classAbsence(const QString& className);
/// The row of `etud_abs` that records `lesson` for the class.
[[nodiscard]] QStringList studentAbsence(const QString& className);

/// The columns `Classe` of all rows, in alphabetical order.
[[nodiscard]] QStringList absentClasses(const TestDatabase& database);
[[nodiscard]] QStringList classesOfAbsentStudents(const TestDatabase& database);

} // namespace test
