// The calendar as another program reads it: python3-icalendar.

#include "files/AnswerIcs.h"
#include "files/CalendarDraft.h"
#include "support/ChildProgram.h"

#include <gtest/gtest.h>

using namespace test;
using namespace timetable;

namespace
{

/// Imports the calendars that stand one after the other on standard input, as a calendar program
/// does: a later event takes the place of one with its name. A line for each event, by time: start
/// and end in UTC, or dates; summary; place; description. Their zones are known by what the files
/// say of them alone.
constexpr const char* kReader = R"(
import sys
from datetime import datetime, timezone
import icalendar

def told(time):
    if isinstance(time, datetime):
        return time.astimezone(timezone.utc).strftime('%m-%d %H:%M')
    return time.isoformat()

events = {}
text = sys.stdin.buffer.read().replace(b'Europe/Paris', b'Nowhere/Known')
for calendar in icalendar.Calendar.from_ical(text, multiple=True):
    sys.stdout.write('%s|%d\n' % (calendar['X-WR-CALNAME'], len(calendar.errors)))
    for event in calendar.walk('VEVENT'):
        assert not event.errors, event.errors
        assert event['DTSTAMP'].dt.tzinfo is not None
        events[event['UID']] = event
for event in sorted(events.values(), key=lambda each: (told(each['DTSTART'].dt), each['UID'])):
    values = [told(event['DTSTART'].dt), told(event['DTEND'].dt)]
    values += [str(event.get(name, '')) for name in ('SUMMARY', 'LOCATION', 'DESCRIPTION')]
    sys.stdout.write('|'.join(values).replace('\n', '/') + '\n')
)";

QStringList read(const QByteArray& calendars)
{
    // The system's, which knows its packages, whatever else is found first.
    const QByteArray lines =
        runProgram("/usr/bin/python3", {"-I", "-B", "-X", "utf8", "-c", kReader}, calendars);
    return QString::fromUtf8(lines).split('\n', Qt::SkipEmptyParts);
}

QByteArray written(CalendarDraft& draft, const answers::AskedWeek& week = {})
{
    return files::answerAsIcs(draft.ofTeacher(week), QTimeZone("Europe/Paris"));
}

} // namespace

TEST(IcsInReader, hasItsTimesTextsAndPlaces)
{
    CalendarDraft draft;
    draft.course("Lundi1", "R1", "L1;2",
                 "C\\C++, une introduction à la programmation — première "
                 "année, ééééééééééééé");
    draft.course("Mardi1", "R1", "L1", "Algèbre", "R2");
    draft.course("Vendredi9", "R2", "L3", "Optique");
    draft.makeUp("R2", "2026-10-24", "23h30"); // until 1h00 on the day on which the clocks go back
    draft.makeUp("R2", "2027-03-28", "2h30");  // which the clocks skip
    const QString name = "C\\C++, une introduction à la programmation — première année, "
                         "ééééééééééééé – L1;2|R1|Enseignant : Durand/Classe : L1;2";
    const QString course = "|Algèbre – L1|R%1|Enseignant : Durand/Classe : L1/Semaine %2";
    const QString makeUp = "|Rattrapage : Chimie – L1|R2|Enseignant : Durand/Classe : L1";
    const QString unknown =
        "|Optique – L3|R2|Enseignant : Durand/Classe : L3/Heure inconnue : L3 (Vendredi9) : ni "
        "heure de début, ni séance de ce nom dans la journée";
    EXPECT_EQ(
        read(written(draft)).join('\n').toStdString(),
        QStringList(
            {"Enseignant Durand – Semestre 1|0",
             "03-28 01:30|03-28 03:00" + makeUp, // 3h30 in summer
             "10-19 06:00|10-19 07:30|" + name,  // 8h00 in summer
             "10-20 06:00|10-20 07:30" + course.arg("1", "A"), "10-24 21:30|10-24 23:00" + makeUp,
             "10-26 07:00|10-26 08:30|" + name, // 8h00 in winter
             "10-27 07:00|10-27 08:30" + course.arg("2", "B"), "11-02 07:00|11-02 08:30|" + name,
             "11-03 07:00|11-03 08:30" + course.arg("1", "A"), "2026-10-23|2026-10-24" + unknown,
             "2026-10-30|2026-10-31" + unknown, "2026-11-06|2026-11-07" + unknown})
            .join('\n')
            .toStdString());
}

TEST(IcsInReader, doublesNothingWhenItIsImportedTwice)
{
    CalendarDraft before;
    before.course("Lundi1", "R1", "L1");
    before.course("Mardi1", "R1", "L1");
    before.makeUp("R2", "2026-10-24", "10h00");
    CalendarDraft after; // the Monday's course has another room, its class another course
    after.course("Mercredi1", "R1", "L1");
    after.course("Mardi1", "R1", "L1");
    after.course("Lundi1", "R2", "L1");
    after.makeUp("R2", "2026-10-24", "11h00");
    const QByteArray first = written(before);
    EXPECT_EQ(read(first + first).size(), 2 + 3 + 3 + 1);
    const QStringList both = read(first + written(after));
    EXPECT_EQ(both.size(), 2 + 3 + 3 + 1 + 3);
    EXPECT_EQ(both.at(2).section('|', 0, 3), "10-19 06:00|10-19 07:30|Algèbre – L1|R2");
    EXPECT_EQ(both.filter("Rattrapage").at(0).section('|', 0, 0), "10-24 09:00");
}

TEST(IcsInReader, knowsASummerWeekByItself)
{
    CalendarDraft draft;
    draft.course("Lundi1", "R1", "L1");
    const QStringList told = read(written(draft, {Week::A, QDate(2026, 10, 19)}));
    ASSERT_EQ(told.size(), 2);
    EXPECT_EQ(told[1].section('|', 0, 2), "10-19 06:00|10-19 07:30|Algèbre – L1");
}
