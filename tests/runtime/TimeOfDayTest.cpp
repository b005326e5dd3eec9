#include "runtime/TimeOfDay.h"

#include "support/RuntimeMatchers.h"

using namespace runtime;

TEST(TimeText, isNormalisedToUpperCaseWithColons)
{
    EXPECT_EQ(normaliseTimeText(QStringLiteral("8h30")), QStringLiteral("8:30"));
    EXPECT_EQ(normaliseTimeText(QStringLiteral("8H30")), QStringLiteral("8:30"));
    EXPECT_EQ(normaliseTimeText(QStringLiteral("8:30 pm")), QStringLiteral("8:30 PM"));
}

TEST(SecondsOfDay, countFromMidnight)
{
    EXPECT_EQ(secondsOfDay(QStringLiteral("8:30")), 30600);
    EXPECT_EQ(secondsOfDay(QStringLiteral("8h30")), 30600);
    EXPECT_EQ(secondsOfDay(QStringLiteral("8H30")), 30600);
    EXPECT_EQ(secondsOfDay(QStringLiteral("08:30:15")), 30615);
    EXPECT_EQ(secondsOfDay(QStringLiteral(" 0:00 ")), 0);
    EXPECT_EQ(secondsOfDay(QStringLiteral("23:59:59")), 86399);
}

TEST(SecondsOfDay, acceptAFullHourWithoutMinutes)
{
    EXPECT_EQ(secondsOfDay(QStringLiteral("8:")), 28800);
}

TEST(SecondsOfDay, mismatchForATextThatIsNoTime)
{
    for (const char* text : {"", "8", "24:00", "8:60", "8:30:60", "8:30x", "x", "8::30", "8hh30",
                             "-8:30", "8:300", "8:30\n"}) {
        EXPECT_EQ(test::errorNumberOf([&] { return secondsOfDay(QLatin1String(text)); }),
                  ErrorNumber::TypeMismatch)
            << text;
    }
}

TEST(MinutesBetween, countsTheMinuteBoundaries)
{
    EXPECT_EQ(minutesBetween(28859, 28860), 1); // 8:00:59 to 8:01:00
    EXPECT_EQ(minutesBetween(28800, 28859), 0); // 8:00:00 to 8:00:59
    EXPECT_EQ(minutesBetween(28800, 34200), 90);
    EXPECT_EQ(minutesBetween(34200, 28800), -90);
}
