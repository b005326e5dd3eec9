#include "answers/Words.h"

#include "timetable/Draft.h"

#include <gtest/gtest.h>

using namespace answers;
using timetable::MinuteOfDay;
using timetable::Minutes;
using timetable::Week;

TEST(Words, nameTimesAsTheDatabaseDoes)
{
    EXPECT_EQ(clockWords(MinuteOfDay{570}), "9h30");
    EXPECT_EQ(clockWords(MinuteOfDay{5}), "0h05");
    EXPECT_EQ(clockWords(MinuteOfDay{1500}), "25h00"); // an hour into the next day
    EXPECT_EQ(spanWords({MinuteOfDay{570}, Minutes{90}}), "9h30–11h00");
}

TEST(Words, nameDays)
{
    EXPECT_EQ(dayWords(1), "mardi");
    EXPECT_EQ(dayWords(6), "dimanche");
    EXPECT_EQ(dayWords(1, QDate(2026, 11, 24)), "mardi 24/11/2026");
}

TEST(Words, nameWeeks)
{
    EXPECT_EQ(weekWords(Week::Every), "toute semaine");
    EXPECT_EQ(weekWords(Week::B), "semaine B");
    EXPECT_EQ(weekWords(AskedWeek{Week::A, {}}), "semaine A");
    EXPECT_EQ(weekWords(AskedWeek{Week::A, QDate(2026, 11, 26)}),
              "semaine du 23/11/2026 (semaine A)");
    EXPECT_EQ(weekWords(AskedWeek{Week::Every, QDate(2026, 11, 23)}), "semaine du 23/11/2026");
}

TEST(Words, nameTheChoiceOfRooms)
{
    EXPECT_EQ(filterWords({}), "");
    EXPECT_EQ(filterWords({3, "INFO"}), "zone 3, département INFO");
    EXPECT_EQ(filterWords({std::nullopt, "INFO"}), "département INFO");
}

TEST(Words, nameWhoHasAWeek)
{
    test::Draft draft;
    draft.room("Amphi A");
    draft.course({{timetable::column::kSeance, "Lundi1"},
                  {timetable::column::kSalle, "Amphi A"},
                  {timetable::column::kEnseignant1, "Durand"},
                  {timetable::column::kClasse, "L1"},
                  {timetable::column::kMatiere, "Algèbre"}});
    const timetable::Timetable known = draft.build();
    const Subject room = timetable::RoomId(0);
    const Subject teacher = known.teachers().find(u"Durand");
    const Subject className = known.classes().find(u"L1");
    const Subject subject = known.subjects().find(u"Algèbre");
    EXPECT_EQ(titled(kindWords(room), nameOf(known, room)), "Salle Amphi A");
    EXPECT_EQ(kindWords(teacher) + ' ' + nameOf(known, teacher), "Enseignant Durand");
    EXPECT_EQ(kindWords(className) + ' ' + nameOf(known, className), "Classe L1");
    EXPECT_EQ(kindWords(subject) + ' ' + nameOf(known, subject), "Matière Algèbre");
}

TEST(Words, sayOnceWhatANameSaysItself)
{
    EXPECT_EQ(titled("Salle", "205"), "Salle 205");
    EXPECT_EQ(titled("Salle", "Salle 205"), "Salle 205");
    EXPECT_EQ(titled("Salle", "salle d’or"), "salle d’or");
    EXPECT_EQ(titled("Salle", "Salle"), "Salle");
    EXPECT_EQ(titled("Salle", "Salles des fêtes"), "Salle Salles des fêtes"); // another word
    EXPECT_EQ(titled("Salle", "SALLE12"), "SALLE12");
    EXPECT_EQ(titled("Salle", ""), "Salle ");
}

TEST(Words, nameWhatIsNoCourse)
{
    EXPECT_EQ(kindWords(timetable::MeetingKind::Course), "");
    EXPECT_EQ(kindWords(timetable::MeetingKind::MakeUp), "rattrapage");
    EXPECT_EQ(kindWords(timetable::MeetingKind::Exam), "examen");
}

TEST(Words, nameSharesInWholePercent)
{
    EXPECT_EQ(percentWords(0), u"0\u202f%");
    EXPECT_EQ(percentWords(0.004), u"<\u202f1\u202f%");
    EXPECT_EQ(percentWords(0.006), u"1\u202f%");
    EXPECT_EQ(percentWords(0.624), u"62\u202f%");
    EXPECT_EQ(percentWords(1), u"100\u202f%");
}

TEST(Words, nameNumbersWithADecimalCommaWhereTheyNeedIt)
{
    EXPECT_EQ(numberWords(0), "0");
    EXPECT_EQ(numberWords(12), "12");
    EXPECT_EQ(numberWords(1.5), "1,5");
    EXPECT_EQ(numberWords(66.666), "66,7");
}
