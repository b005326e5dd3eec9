#include "files/IcsZone.h"

#include <QRegularExpression>
#include <gtest/gtest.h>
#include <string>

using namespace files;
using timetable::MinuteOfDay;
using timetable::Minutes;

namespace
{

QString writtenWithNames(const QByteArray& zone, QDate first, QDate last)
{
    IcsLines lines;
    IcsZone(QTimeZone(zone), first, last).write(lines);
    return QString::fromUtf8(lines.bytes()).replace("\r\n", " ").trimmed();
}

/// Without the names of the clocks: Windows has other ones ("Romance Standard Time").
std::string written(const QByteArray& zone, QDate first, QDate last)
{
    static const QRegularExpression name("TZNAME:.*? (?=END:)");
    return writtenWithNames(zone, first, last).remove(name).toStdString();
}

/// "29 03:30 – 29 05:00", with the days of the month.
QString clock(QDate date, int start, int length, const QByteArray& zone = "Europe/Paris")
{
    const IcsZone::Stretch stretch =
        IcsZone(QTimeZone(zone), date, date).stretch(date, {MinuteOfDay{start}, Minutes{length}});
    return stretch.start.toString("dd hh:mm") + " – " + stretch.end.toString("dd hh:mm");
}

} // namespace

TEST(IcsZone, tellsTheClocksThatHoldOnTheFirstDate)
{
    EXPECT_EQ(written("Europe/Paris", QDate(2026, 11, 9), QDate(2026, 12, 18)),
              "BEGIN:VTIMEZONE TZID:Europe/Paris "
              "BEGIN:STANDARD DTSTART:20261025T030000 TZOFFSETFROM:+0200 TZOFFSETTO:+0100 "
              "END:STANDARD "
              "END:VTIMEZONE");
}

TEST(IcsZone, tellsEachChangeUpToTheLastDate)
{
    EXPECT_EQ(written("Europe/Paris", QDate(2026, 9, 7), QDate(2027, 6, 4)),
              "BEGIN:VTIMEZONE TZID:Europe/Paris "
              "BEGIN:STANDARD DTSTART:20251026T030000 TZOFFSETFROM:+0200 TZOFFSETTO:+0100 "
              "END:STANDARD " // what summer time differs from
              "BEGIN:DAYLIGHT DTSTART:20260329T020000 TZOFFSETFROM:+0100 TZOFFSETTO:+0200 "
              "END:DAYLIGHT "
              "BEGIN:STANDARD DTSTART:20261025T030000 TZOFFSETFROM:+0200 TZOFFSETTO:+0100 "
              "END:STANDARD "
              "BEGIN:DAYLIGHT DTSTART:20270328T020000 TZOFFSETFROM:+0100 TZOFFSETTO:+0200 "
              "END:DAYLIGHT "
              "END:VTIMEZONE");
}

TEST(IcsZone, withoutAnyChangeHasItsOneOffset)
{
    EXPECT_EQ(written("UTC", QDate(2026, 11, 9), QDate(2026, 12, 18)),
              "BEGIN:VTIMEZONE TZID:UTC "
              "BEGIN:STANDARD DTSTART:19700101T000000 TZOFFSETFROM:+0000 TZOFFSETTO:+0000 "
              "END:STANDARD "
              "END:VTIMEZONE");
    EXPECT_NE(
        written("Asia/Colombo", QDate(2026, 11, 9), QDate(2026, 12, 18)).find("TZOFFSETTO:+0530"),
        std::string::npos);
    // America/Caracas has kept its clocks since 1 May 2016.
    EXPECT_NE(written("America/Caracas", QDate(2026, 11, 9), QDate(2026, 12, 18))
                  .find("DTSTART:20160501T023000 TZOFFSETFROM:-0430 TZOFFSETTO:-0400"),
              std::string::npos);
}

TEST(IcsZone, thatNobodyKnowsIsUtc)
{
    const IcsZone zone(QTimeZone(), QDate(2026, 11, 9), QDate(2026, 11, 9));
    EXPECT_EQ(zone.parameter(), ";TZID=UTC");
    EXPECT_EQ(
        IcsZone(QTimeZone("Europe/Paris"), QDate(2026, 11, 9), QDate(2026, 11, 9)).parameter(),
        ";TZID=Europe/Paris");
}

#ifdef Q_OS_UNIX // Windows knows neither these names nor zones that are rules
TEST(IcsZone, namesItsClocks)
{
    const QString zone = writtenWithNames("Europe/Paris", QDate(2026, 9, 7), QDate(2026, 12, 18));
    EXPECT_EQ(zone.count("TZOFFSETTO:+0200 TZNAME:CEST END:DAYLIGHT"), 1);
    EXPECT_EQ(zone.count("TZOFFSETTO:+0100 TZNAME:CET END:STANDARD"), 2);
}

TEST(IcsZone, thatIsARuleStandsInQuotes)
{
    const QDate winter(2026, 11, 9);
    const QByteArray rule = "CET-1CEST,M3.5.0,M10.5.0/3";
    EXPECT_EQ(IcsZone(QTimeZone(rule), winter, winter).parameter(),
              ";TZID=\"CET-1CEST,M3.5.0,M10.5.0/3\"");
    EXPECT_EQ(written(rule, winter, winter),
              "BEGIN:VTIMEZONE TZID:CET-1CEST\\,M3.5.0\\,M10.5.0/3 "
              "BEGIN:STANDARD DTSTART:20261025T030000 TZOFFSETFROM:+0200 TZOFFSETTO:+0100 "
              "END:STANDARD "
              "END:VTIMEZONE");
}
#endif

TEST(IcsZone, leavesTimesAsTheClockShowsThem)
{
    EXPECT_EQ(clock(QDate(2026, 11, 9), 510, 90), "09 08:30 – 09 10:00");
    EXPECT_EQ(clock(QDate(2026, 11, 9), 23 * 60, 90), "09 23:00 – 10 00:30");
    EXPECT_EQ(clock(QDate(2026, 11, 9), 25 * 60, 30), "10 01:00 – 10 01:30");
    // On this day the clocks show 2h00 to 3h00 twice.
    EXPECT_EQ(clock(QDate(2026, 10, 25), 90, 120), "25 01:30 – 25 03:30");
    EXPECT_EQ(clock(QDate(2026, 10, 25), 150, 15), "25 02:30 – 25 02:45");
}

TEST(IcsZone, movesTimesThatTheClocksSkip)
{
    const QDate spring(2027, 3, 28); // from 2h00 to 3h00
    EXPECT_EQ(clock(spring, 150, 90), "28 03:30 – 28 05:00");
    EXPECT_EQ(clock(spring, 150, 15), "28 03:30 – 28 03:45");
    EXPECT_EQ(clock(spring, 120, 60), "28 03:00 – 28 04:00");
    EXPECT_EQ(clock(spring, 60, 90), "28 01:00 – 28 03:30");
    EXPECT_EQ(clock(spring, 60, 60), "28 01:00 – 28 03:00"); // the very moment
    EXPECT_EQ(clock(spring, 60, 120), "28 01:00 – 28 03:00");
    EXPECT_EQ(clock(spring, 180, 60), "28 03:00 – 28 04:00");
    // From the evening before.
    EXPECT_EQ(clock(QDate(2027, 3, 27), 23 * 60, 210), "27 23:00 – 28 03:30");
    // Beirut skips the first hour of Sunday, 29 March 2026.
    EXPECT_EQ(clock(QDate(2026, 3, 29), 30, 60, "Asia/Beirut"), "29 01:30 – 29 02:30");
}
