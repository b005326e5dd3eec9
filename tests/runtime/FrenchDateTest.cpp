#include "runtime/FrenchDate.h"

#include "support/RuntimeMatchers.h"

using namespace runtime;

TEST(FrenchLongDate, writesTheMonthInUpperCaseWithItsAccents)
{
    EXPECT_EQ(frenchLongDate(QDate(2026, 9, 1)), QStringLiteral("01/SEPTEMBRE/2026"));
    EXPECT_EQ(frenchLongDate(QDate(2027, 2, 28)), QStringLiteral("28/FÉVRIER/2027"));
    EXPECT_EQ(frenchLongDate(QDate(2026, 8, 15)), QStringLiteral("15/AOÛT/2026"));
    EXPECT_EQ(frenchLongDate(QDate(2026, 12, 31)), QStringLiteral("31/DÉCEMBRE/2026"));
}

TEST(FrenchLongDate, isEmptyForNoDate)
{
    EXPECT_EQ(frenchLongDate(QDate()), QString());
}

TEST(FrenchLongDate, namesAllTwelveMonths)
{
    const QStringList months = {"JANVIER",   "FÉVRIER", "MARS",     "AVRIL",
                                "MAI",       "JUIN",    "JUILLET",  "AOÛT",
                                "SEPTEMBRE", "OCTOBRE", "NOVEMBRE", "DÉCEMBRE"};
    for (int month = 1; month <= 12; ++month) {
        EXPECT_EQ(frenchLongDate(QDate(2028, month, 29)), "29/" + months[month - 1] + "/2028");
    }
}

TEST(FrenchDayAndDate, beginsWithTheDaysName)
{
    EXPECT_EQ(frenchDayAndDate(QDate(2026, 11, 24)), QStringLiteral("mardi 24/11/2026"));
    EXPECT_EQ(frenchDayAndDate(QDate(2027, 2, 7)), QStringLiteral("dimanche 07/02/2027"));
    EXPECT_EQ(frenchDayAndDate(QDate()), QString());
}

namespace
{
const QDate shown(2025, 4, 3);
}

TEST(TypedDate, isReadInEachForm)
{
    for (const char* text :
         {"27/11/2026", "27/11/26", "27.11.2026", "27-11-26", "27 11 2026", "27112026", "271126"}) {
        EXPECT_EQ(fromTypedDate(QLatin1String(text), shown), QDate(2026, 11, 27)) << text;
    }
    EXPECT_EQ(fromTypedDate(QStringLiteral("1/2/2027"), shown), QDate(2027, 2, 1));
}

TEST(TypedDate, takesWhatIsMissingFromTheShownDate)
{
    EXPECT_EQ(fromTypedDate(QStringLiteral("7"), shown), QDate(2025, 4, 7));
    EXPECT_EQ(fromTypedDate(QStringLiteral("27"), shown), QDate(2025, 4, 27));
    EXPECT_EQ(fromTypedDate(QStringLiteral("27/11"), shown), QDate(2025, 11, 27));
    EXPECT_EQ(fromTypedDate(QStringLiteral("2711"), shown), QDate(2025, 11, 27));
    EXPECT_FALSE(fromTypedDate(QStringLiteral("31"), shown).isValid()); // April
}

TEST(TypedDate, isNoneForAnyOtherText)
{
    for (const char* text : {"", "27/", "27/11/", "27/11/202", "2711202", "31/11/2026",
                             "29/02/2027", "27/13/2026", "2026-11-27", "271120266", "x"}) {
        EXPECT_FALSE(fromTypedDate(QLatin1String(text), shown).isValid()) << text;
    }
}

TEST(FrenchDayNames, beginWithMondayAndEndWithSaturday)
{
    EXPECT_EQ(frenchDayNames().front(), QStringLiteral("Lundi"));
    EXPECT_EQ(frenchDayNames().back(), QStringLiteral("Samedi"));
}
