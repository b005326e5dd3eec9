#include "timetable/ReadTimes.h"

#include "timetable/Draft.h"

#include <gtest/gtest.h>

using namespace timetable;

TEST(ReadTimes, takesTheSpellingsThatThePlanTakes)
{
    for (const QStringView text : {u"8h30", u"8H30", u"8:30", u" 08h30 ", u"8:30:59"}) {
        EXPECT_EQ(readTime(text), MinuteOfDay{510}) << text.toString().toStdString();
    }
    EXPECT_EQ(readTime(u"8h"), MinuteOfDay{480});
    EXPECT_EQ(readTime(u"0h00"), MinuteOfDay{0});
}

TEST(ReadTimes, takesNoOtherTextForATime)
{
    for (const QStringView text : {u"", u"matin", u"24h00", u"8h60", u"8.30", u"510"}) {
        EXPECT_EQ(readTime(text), std::nullopt) << text.toString().toStdString();
    }
    EXPECT_EQ(readTime(QStringView()), std::nullopt);
}

TEST(ReadTimes, takesTheNumberThatALengthBeginsWith)
{
    EXPECT_EQ(readLength(u"90"), Minutes{90});
    EXPECT_EQ(readLength(u" 45 min"), Minutes{45});
    EXPECT_EQ(readLength(u"89.6"), Minutes{90});
    EXPECT_EQ(readLength(u"1h30"), Minutes{1});
    EXPECT_EQ(readLength(u"32767"), Minutes{32767});
}

TEST(ReadTimes, knowsNoLengthBelowAMinuteNorBeyondSixteenBits)
{
    for (const QStringView text : {u"", u"0", u"0.4", u"-90", u"long", u"32768", u"1e9"}) {
        EXPECT_EQ(readLength(text), std::nullopt) << text.toString().toStdString();
    }
    EXPECT_EQ(readLength(QStringView()), std::nullopt);
}

TEST(ReadTimes, takesDatesWithDashesOrSlashesAndWithATimeBehind)
{
    EXPECT_EQ(readDate(u"2026-11-16"), QDate(2026, 11, 16));
    EXPECT_EQ(readDate(u"2026/11/16"), QDate(2026, 11, 16));
    EXPECT_EQ(readDate(u"2026-11-16 08:30:00"), QDate(2026, 11, 16));
}

TEST(ReadTimes, takesNoOtherTextForADate)
{
    for (const QStringView text : {u"", u"16/11/2026", u"2026-02-30", u"demain"}) {
        EXPECT_EQ(readDate(text), std::nullopt) << text.toString().toStdString();
    }
    EXPECT_EQ(readDate(QStringView()), std::nullopt);
}

TEST(ReadTimes, takesWholeTextsForNumbers)
{
    EXPECT_EQ(readNumber(u"2"), 2);
    EXPECT_EQ(readNumber(u" 2.0 "), 2);
    EXPECT_EQ(readNumber(u"2e"), std::nullopt);
    EXPECT_EQ(readNumber(u""), std::nullopt);
    EXPECT_EQ(readNumber(u"9999999999"), std::nullopt);
    EXPECT_EQ(readNumber(QStringView()), std::nullopt);
}
