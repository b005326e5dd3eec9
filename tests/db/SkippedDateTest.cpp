// Compiled with optimizations in every build, as the program that users have is: see
// tempora_options about what a compiler made of such steps.
#include "db/Value.h"

#include "support/RuntimeMatchers.h"

#include <array>

namespace
{

QDate dateOf(const db::Value& value)
{
    QDate date;
    runtime::skipOnError([&] { date = value.toDate(); });
    return date;
}

/// Each of the values as a date; none where it is no date.
void readDates(const std::vector<db::Value>& values, std::array<QDate, 3>& dates)
{
    std::size_t place = 0;
    for (QDate& date : dates) {
        date = dateOf(values[place++]);
    }
}

} // namespace

TEST(DatesThatCannotBeRead, areNone)
{
    const QDate monday(2026, 11, 23);
    std::array<QDate, 3> dates;
    readDates({db::Value(), db::Value(monday), db::Value()}, dates);
    EXPECT_EQ(dates, (std::array{QDate(), monday, QDate()}));
}
