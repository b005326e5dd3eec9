#include "files/AnswerIcs.h"

#include "files/AnswerFormat.h"
#include "files/AnswerRefusal.h"
#include "files/CalendarDraft.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

using namespace test;
using namespace timetable;

namespace
{

class ACalendar : public testing::Test
{
protected:
    QString text(const answers::AskedWeek& week = {})
    {
        return QString::fromUtf8(
            files::answerAsIcs(draft.ofTeacher(week), QTimeZone("Europe/Paris")));
    }
    /// The values of a property in the events, unfolded, in their order.
    static QStringList values(QString text, const QString& property)
    {
        text.replace("\r\n ", "");
        text = text.mid(text.indexOf("BEGIN:VEVENT"));
        QStringList found;
        const QRegularExpression line("^" + property + "[:;]([^\r]*)\r$",
                                      QRegularExpression::MultilineOption);
        for (auto match = line.globalMatch(text); match.hasNext();) {
            found << match.next().captured(1);
        }
        return found;
    }
    QString refusal(const files::AnswerDocument& document)
    {
        try {
            std::ignore = files::answerAsIcs(document);
        } catch (const files::AnswerRefusal& refused) {
            return QString::fromUtf8(refused.what());
        }
        ADD_FAILURE() << "it is written";
        return {};
    }

    CalendarDraft draft;
};

} // namespace

TEST_F(ACalendar, isWrittenLineByLine)
{
    draft.course("Mardi1", "R1", "L1");
    draft.draft().slot("Mardi1", "14h00", "15h30").period(QDate(2026, 11, 2), QDate(2026, 11, 3));
    QString written = text();
    written.replace("TZNAME:Romance Standard Time", "TZNAME:CET"); // Windows' own name
    const QStringList names = values(written, "UID");
    ASSERT_EQ(names.size(), 1);
    EXPECT_EQ(written.replace(names[0], "NAME").replace("\r\n", "\n"),
              "BEGIN:VCALENDAR\n"
              "VERSION:2.0\n"
              "PRODID:-//Tempora//Tempora//FR\n"
              "CALSCALE:GREGORIAN\n"
              "X-WR-CALNAME:Enseignant Durand – Semestre 1\n"
              "BEGIN:VTIMEZONE\n"
              "TZID:Europe/Paris\n"
              "BEGIN:STANDARD\n"
              "DTSTART:20261025T030000\n"
              "TZOFFSETFROM:+0200\n"
              "TZOFFSETTO:+0100\n"
              "TZNAME:CET\n"
              "END:STANDARD\n"
              "END:VTIMEZONE\n"
              "BEGIN:VEVENT\n"
              "UID:NAME\n"
              "DTSTAMP:20261102T000000Z\n"
              "DTSTART;TZID=Europe/Paris:20261103T140000\n"
              "DTEND;TZID=Europe/Paris:20261103T153000\n"
              "SUMMARY:Algèbre – L1\n"
              "LOCATION:R1\n"
              "DESCRIPTION:Enseignant : Durand\\nClasse : L1\n"
              "CATEGORIES:Cours\n"
              "END:VEVENT\n"
              "END:VCALENDAR\n");
}

TEST_F(ACalendar, keepsTheClockWhereItIsPutBack)
{
    draft.course("Lundi1", "R1", "L1");
    const QString written = text();
    EXPECT_EQ(values(written, "DTSTART"),
              QStringList({"TZID=Europe/Paris:20261019T080000", "TZID=Europe/Paris:20261026T080000",
                           "TZID=Europe/Paris:20261102T080000"}));
    EXPECT_TRUE(written.contains("DTSTART:20260329T020000\r\n"));
    EXPECT_TRUE(written.contains("DTSTART:20261025T030000\r\n"));
    EXPECT_FALSE(written.contains("DTSTART:20270328T020000\r\n"));
}

TEST_F(ACalendar, tellsWhichWeekACourseIsHeldIn)
{
    draft.course("Lundi1", "R1", "L1", "Algèbre", "R2");
    const QString written = text();
    EXPECT_EQ(values(written, "LOCATION"), QStringList({"R1", "R2", "R1"}));
    const QStringList descriptions = values(written, "DESCRIPTION");
    ASSERT_EQ(descriptions.size(), 3);
    EXPECT_EQ(descriptions[0], "Enseignant : Durand\\nClasse : L1\\nSemaine A");
    EXPECT_EQ(descriptions[1], "Enseignant : Durand\\nClasse : L1\\nSemaine B");
}

TEST_F(ACalendar, tellsMakeUpsAndExamsAsSuch)
{
    draft.draft().examWeeks(QDate(2026, 11, 9), QDate(), QDate());
    draft.makeUp("R2", "2026-10-21", "23h00");
    draft.draft().exam({{column::kSeance, "Lundi1"},
                        {column::kSalle, "R1"},
                        {column::kClasse, "L2"},
                        {column::kEnseignant1, "Durand"},
                        {column::kEnseignant2, "Petit"},
                        {column::kDuree, "120"},
                        {column::kSemaine, "1"}});
    const QString written = text();
    EXPECT_EQ(values(written, "SUMMARY"), QStringList({"Rattrapage : Chimie – L1", "Examen : L2"}));
    EXPECT_EQ(values(written, "CATEGORIES"), QStringList({"Rattrapage", "Examen"}));
    EXPECT_EQ(values(written, "DTSTART"), QStringList({"TZID=Europe/Paris:20261021T230000",
                                                       "TZID=Europe/Paris:20261109T080000"}));
    EXPECT_EQ(values(written, "DTEND"), QStringList({"TZID=Europe/Paris:20261022T003000",
                                                     "TZID=Europe/Paris:20261109T100000"}));
    EXPECT_EQ(values(written, "DESCRIPTION").at(1), "Enseignants : Durand\\, Petit\\nClasse : L2");
}

TEST_F(ACalendar, namesAllClassesOfACommonCourse)
{
    draft.course("Lundi1", "R1", "L2");
    draft.course("Lundi1", "R1", "L1");
    const QString written = text();
    EXPECT_EQ(values(written, "SUMMARY").size(), 3);
    EXPECT_EQ(values(written, "SUMMARY").at(0), "Algèbre – L1\\, L2");
    EXPECT_EQ(values(written, "DESCRIPTION").at(0), "Enseignant : Durand\\nClasses : L1\\, L2");
}

TEST_F(ACalendar, holdsTheDayWhereNobodyKnowsTheHour)
{
    draft.course("Lundi9", "R1", "L1");
    const QString written = text();
    EXPECT_EQ(values(written, "DTSTART").at(1), "VALUE=DATE:20261026");
    EXPECT_EQ(values(written, "DTEND").at(1), "VALUE=DATE:20261027");
    EXPECT_EQ(values(written, "DESCRIPTION").at(1),
              "Enseignant : Durand\\nClasse : L1\\nHeure inconnue : L1 (Lundi9) : ni heure de "
              "début\\, ni séance de ce nom dans la journée");
}

TEST_F(ACalendar, saysSomethingWhereTheRowSaysNothing)
{
    draft.course("Lundi1", "R1", {}, {});
    EXPECT_EQ(values(text(), "SUMMARY").at(0), "Cours");
}

TEST_F(ACalendar, escapesTheTextsOfTheSchool)
{
    draft.course("Lundi1", "R1", "L1;2", "C\\C++,\nune introduction");
    EXPECT_EQ(values(text(), "SUMMARY").at(0), "C\\\\C++\\,\\nune introduction – L1\\;2");
}

TEST_F(ACalendar, isTheSameForTheSameSchool)
{
    const auto school = [this] {
        draft.course("Lundi1", "R1", "L1");
        draft.makeUp("R2", "2026-10-21", "14h00");
        draft.draft().period(QDate(2026, 10, 19), QDate(2026, 11, 6)).room("R1").room("R2");
        return text();
    };
    draft = {};
    const QString first = school();
    draft = {};
    EXPECT_EQ(school(), first);
}

TEST_F(ACalendar, ofADateIsThatOfItsWeek)
{
    draft.course("Lundi1", "R1", "L1");
    const QString written = text({Week::B, QDate(2026, 10, 28)});
    EXPECT_EQ(values(written, "DTSTART"), QStringList({"TZID=Europe/Paris:20261026T080000"}));
    EXPECT_TRUE(written.contains("X-WR-CALNAME:Enseignant Durand – semaine du 26/10/2026 (semaine "
                                 "B)\\, Seme\r\n stre 1\r\n"))
        << written.toStdString();
}

TEST_F(ACalendar, ofSomebodyWithoutAnythingIsEmpty)
{
    draft.makeUp("R1", "2026-11-14", "14h00");
    const QString written = text({Week::Every, QDate(2026, 10, 28)});
    EXPECT_TRUE(values(written, "UID").isEmpty());
    EXPECT_TRUE(written.contains("BEGIN:STANDARD\r\n")); // a calendar may not hold nothing
}

TEST_F(ACalendar, isRefusedOfAllRooms)
{
    draft.course("Lundi1", "R1", "L1");
    EXPECT_TRUE(refusal(draft.ofAllRooms()).contains("toutes les salles"));
}

TEST_F(ACalendar, isRefusedWhereTheDatesAreNotKnown)
{
    draft.rhythm = {};
    draft.course("Lundi1", "R1", "L1", "Algèbre", "R2");
    EXPECT_TRUE(refusal(draft.ofTeacher()).contains("SemaineA"));
    draft = {};
    draft.course("Lundi1", "R1", "L1");
    draft.draft().period(QDate(), QDate(2026, 11, 6));
    EXPECT_TRUE(refusal(draft.ofTeacher()).contains("« Semestre 1 »"));
}

TEST_F(ACalendar, isAFormOfTheWeekAlone)
{
    const files::AnswerFormat* format =
        files::answerFormatOf(files::AnswerKind::Week, "/tmp/plan.ICS");
    ASSERT_NE(format, nullptr);
    EXPECT_TRUE(format->isDated);
    EXPECT_FALSE(files::answerFormatOf(files::AnswerKind::Week, "plan.json")->isDated);
    EXPECT_EQ(files::answerFormatOf(files::AnswerKind::Clashes, "plan.ics"), nullptr);
    draft.course("Lundi1", "R1", "L1");
    const files::AnswerDocument document = draft.ofTeacher();
    EXPECT_EQ(format->write(document), files::answerAsIcs(document, QTimeZone::systemTimeZone()));
}
