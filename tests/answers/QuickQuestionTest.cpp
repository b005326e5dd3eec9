#include "answers/QuickQuestion.h"

#include <gtest/gtest.h>

using namespace answers;
using timetable::MinuteOfDay;
using timetable::Week;

namespace
{

const QDate kToday(2026, 11, 22);

QuickQuestion read(const QString& line)
{
    return quickQuestion(line, kToday);
}

} // namespace

TEST(QuickQuestion, isReadFromOneLine)
{
    const QuickQuestion question = read("mardi 9h30-11h 40 places semaine A zone 3");
    EXPECT_EQ(question.day, 1);
    EXPECT_EQ(question.from, MinuteOfDay{570});
    EXPECT_EQ(question.to, MinuteOfDay{660});
    EXPECT_EQ(question.places, 40);
    EXPECT_EQ(question.week, Week::A);
    EXPECT_EQ(question.zone, 3);
    EXPECT_EQ(question.unread, "");
    EXPECT_FALSE(question.date.isValid());
}

TEST(QuickQuestion, mayBeASentence)
{
    const QuickQuestion question = read("Une salle pour 40 personnes, le Mardi de 9:30 à 11h00");
    EXPECT_EQ(question, read("40 mar 9h30 11h"));
    EXPECT_EQ(question.unread, "");
    EXPECT_FALSE(question.week); // "à" is no week
}

TEST(QuickQuestion, knowsDates)
{
    EXPECT_EQ(read("24/11").date, QDate(2026, 11, 24));
    EXPECT_EQ(read("24/11/2027 8h").date, QDate(2027, 11, 24));
    EXPECT_EQ(read("24.11.26").date, QDate(2026, 11, 24));
    EXPECT_EQ(read("demain").date, QDate(2026, 11, 23));
    EXPECT_EQ(read("Aujourd'hui 14h").date, kToday);
    EXPECT_EQ(read("24/11 8h").places, std::nullopt);
}

TEST(QuickQuestion, saysWhatItDoesNotUnderstand)
{
    const QuickQuestion question = read("mardi 25h70 projecteur 31/02");
    EXPECT_EQ(question.day, 1);
    EXPECT_FALSE(question.from);
    EXPECT_FALSE(question.date.isValid());
    EXPECT_EQ(question.unread, "25h70 projecteur 31/02");
}

TEST(QuickQuestion, doesNotGuessADayFromTwoLetters)
{
    EXPECT_FALSE(read("ma").day); // mardi or matin
    EXPECT_EQ(read("mer").day, 2);
    EXPECT_EQ(read("SAMEDI").day, 5);
}

TEST(QuickQuestion, ofNothingIsNothing)
{
    EXPECT_EQ(read(""), QuickQuestion());
    EXPECT_EQ(read("  , "), QuickQuestion());
}
