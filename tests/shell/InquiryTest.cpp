#include "shell/Inquiry.h"

#include "shell/ShellDesk.h"

#include <gtest/gtest.h>

using namespace test;
using shell::Inquiry;
using timetable::Week;
using timetable::When;

namespace
{

/// The tiny faculty's period "Printemps", asked by a program without a window.
class TheInquiry : public OnBothDatabases
{
protected:
    void SetUp() override { createTinyFaculty(database()); }

    [[nodiscard]] Inquiry inquiry(const QString& weekA = {})
    {
        desk.emplace(database());
        if (!weekA.isEmpty()) {
            desk->setup.set("SemaineA", weekA);
        }
        return Inquiry(desk->load());
    }
    /// The weeks of some dates: "A", "B" or "*".
    static QString weeks(const std::vector<When>& days)
    {
        QString letters;
        for (const When& day : days) {
            letters += day.week() == Week::A ? u'A' : day.week() == Week::B ? u'B' : u'*';
        }
        return letters;
    }

    std::optional<ShellDesk> desk;
};

TEMPORA_ON_BOTH_DATABASES(TheInquiry);

} // namespace

TEST_P(TheInquiry, isAboutThePeriodThatWasChosenWhenItWasMade)
{
    const Inquiry first = inquiry();
    EXPECT_EQ(first.period(), "Printemps");
    EXPECT_TRUE(first.hasCourses());
    const std::size_t meetings = first.timetable().meetings().size();
    database().execute(QStringList("delete from emplois"));
    EXPECT_EQ(first.timetable().meetings().size(), meetings); // a value
    const Inquiry second(desk->shell());
    EXPECT_FALSE(second.hasCourses());
}

TEST_P(TheInquiry, saysWhichTableAnAnswerLacks)
{
    database().execute({"drop table ratrap", "drop table etudiant"});
    const Inquiry asked = inquiry();
    EXPECT_EQ(asked.whyOpen(false), "");
    EXPECT_TRUE(asked.whyOpen(true).startsWith("La table « ratrap » ne se laisse pas lire ("))
        << asked.whyOpen(true).toStdString();
    EXPECT_TRUE(asked.whyOpen(false, true).startsWith("La table « "));
}

TEST_P(TheInquiry, saysThatADateLiesOutsideThePeriod)
{
    const Inquiry asked = inquiry();
    EXPECT_EQ(asked.whyOutside(QDate(2025, 3, 17)), "");
    EXPECT_EQ(asked.whyOutside(QDate(2025, 8, 1)),
              "Le 01/08/2025 est hors de la période « Printemps » : aucun cours ne compte ce "
              "jour-là.");
}

TEST_P(TheInquiry, saysWhichOfTheWeeksRunningIsTheFirstOutsideThePeriod)
{
    const Inquiry asked = inquiry();
    EXPECT_EQ(asked.whyOutside(QDate(2025, 5, 26), 2), ""); // the period ends on 6 June
    EXPECT_EQ(asked.whyOutside(QDate(2025, 5, 26), 5),
              "Le 09/06/2025 est hors de la période « Printemps » : aucun cours ne compte ce "
              "jour-là.");
}

TEST_P(TheInquiry, saysWhyNoRoomIsLeft)
{
    const Inquiry asked = inquiry();
    EXPECT_EQ(asked.whyNoRoom({}), "");
    EXPECT_EQ(asked.whyNoRoom({2, "INFO"}), "");
    EXPECT_EQ(asked.whyNoRoom({9, {}}), "aucune salle n’est de la zone 9");
    EXPECT_EQ(asked.whyNoRoom({{}, "X"}), "aucune salle n’est du département « X »");
    EXPECT_EQ(asked.whyNoRoom({9, "INFO"}),
              "aucune salle n’est du département « INFO » dans cette zone");
    database().execute(QStringList("delete from salle"));
    EXPECT_EQ(Inquiry(desk->shell()).whyNoRoom({}), "La base ne connaît aucune salle");
}

TEST_P(TheInquiry, knowsTheWeeksOfDatesThatFollowEachOther)
{
    const QDate monday(2025, 3, 17);
    EXPECT_EQ(weeks(inquiry().sameDays(monday, 3)), "***");
    EXPECT_EQ(weeks(inquiry().sameDays(monday, 3, Week::B)), "BAB");
    const Inquiry asked = inquiry("2025-03-10");
    EXPECT_EQ(weeks(asked.sameDays(monday, 3)), "BAB");
    EXPECT_EQ(asked.sameDays(monday, 3).back().date(), QDate(2025, 3, 31));
}

TEST_P(TheInquiry, takesAnyDayOfAWeekAForItsWeek)
{
    // Wednesday of the week before.
    EXPECT_EQ(weeks(inquiry("2025-03-12").sameDays(QDate(2025, 3, 17), 2)), "BA");
    EXPECT_EQ(weeks(inquiry("2025-03-23").sameDays(QDate(2025, 3, 17), 2)), "AB"); // its Sunday
}

TEST_P(TheInquiry, saysWhatItsAnswersAreAbout)
{
    const Inquiry asked = inquiry();
    const files::AnswerDocument free =
        asked.freeRooms({{When::weekday(0)}, timetable::TimeSpan{{510}, {90}}, 20, {1, {}}});
    EXPECT_EQ(free.title, "Salles libres");
    ASSERT_GE(free.about.size(), 3);
    EXPECT_TRUE(free.about[0].startsWith("lundi, toute semaine, ")) << free.about[0].toStdString();
    EXPECT_TRUE(free.about[1].startsWith("au moins 20 places, zone 1"))
        << free.about[1].toStdString();
    EXPECT_EQ(free.about[2], "Période Printemps");
    EXPECT_EQ(asked.weekOf({}, {}).title, "Toutes les salles");
    EXPECT_EQ(asked.find("roux", {}).title, "Recherche de « roux »");
    EXPECT_EQ(asked.clashes().title, "Conflits");
    EXPECT_EQ(asked.roomUse(Week::Every, {}).about.first(), "moyenne des semaines A et B");
}

TEST_P(TheInquiry, keepsOnlyTheRoomsThatAnOverviewIsNarrowedTo)
{
    answers::Narrowing narrowing;
    narrowing.rooms.zone = 2;
    const files::AnswerDocument all = inquiry().weekOf({}, {}, narrowing);
    const auto& week = std::get<files::WeekAnswer>(all.answer);
    EXPECT_EQ(week.rooms.zone, 2);
    ASSERT_FALSE(week.items.empty());
    for (const timetable::HoldingId id : week.items) {
        const auto rooms = all.occupancy->roomsOf(all.occupancy->holding(id));
        EXPECT_TRUE(std::any_of(rooms.begin(), rooms.end(), [&](timetable::RoomId room) {
            return all.timetable().room(room).zone == 2;
        }));
    }
}
