#pragma once

#include "runtime/RunTimeError.h"

#include <QDate>
#include <QString>
#include <functional>
#include <gtest/gtest.h>
#include <ostream>

namespace test
{

/// Runs the action and returns the run-time error that it ends with. Without one the test fails,
/// and the answer has the text "no error".
[[nodiscard]] runtime::RunTimeError errorOf(const std::function<void()>& action);

/// Number of the run-time error that the action ends with.
[[nodiscard]] runtime::ErrorNumber errorNumberOf(const std::function<void()>& action);

} // namespace test

// How GoogleTest shows values of these types when an expectation fails. The names are fixed: one
// by Qt's classes, which live in the global namespace, the other by the enumeration's namespace.
void PrintTo(const QString& text, std::ostream* stream);
void PrintTo(QDate date, std::ostream* stream);

namespace runtime
{
void PrintTo(ErrorNumber number, std::ostream* stream);
}
