#include "db/DialectDate.h"

#include "support/RuntimeMatchers.h"

using db::dialectDate;

namespace
{

std::optional<QDate> dateIn(const char* text)
{
    return dialectDate(QString::fromUtf8(text), db::kSqliteFirstYear);
}

} // namespace

TEST(DialectDate, readsTheFormatsOfBothDialects)
{
    EXPECT_EQ(dateIn("03/15/07"), QDate(2007, 3, 15));
    EXPECT_EQ(dateIn(" 3/5/2007 "), QDate(2007, 3, 5));
    EXPECT_EQ(dateIn("2007/03/15"), QDate(2007, 3, 15));
    EXPECT_EQ(dateIn("2007-03-15"), QDate(2007, 3, 15));
}

TEST(DialectDate, takesTwoDigitsOfAYearForThisCenturyOnSqlite)
{
    EXPECT_EQ(dateIn("01/01/00"), QDate(2000, 1, 1));
    EXPECT_EQ(dateIn("12/31/99"), QDate(2099, 12, 31));
}

TEST(DialectDate, takesTwoDigitsOfAYearAsAccessDoesInALiteral)
{
    const auto year = [](const char* text) {
        return dialectDate(QString::fromUtf8(text), db::kAccessFirstYear)->year();
    };
    EXPECT_EQ(year("01/01/00"), 2000);
    EXPECT_EQ(year("12/31/29"), 2029);
    EXPECT_EQ(year("01/01/30"), 1930);
    EXPECT_EQ(year("12/31/99"), 1999);
    EXPECT_EQ(year("03/17/2030"), 2030);
}

TEST(DialectDate, isNothingForAnyOtherText)
{
    for (const char* text : {"", "8h30", "15/03/07", "02/30/07", "2007/13/01", "03/15/7",
                             "03/15/07 x", "03-15-07", "2007-03/15", "03/15/07\n", "1/2"}) {
        EXPECT_EQ(dateIn(text), std::nullopt) << text;
    }
}
