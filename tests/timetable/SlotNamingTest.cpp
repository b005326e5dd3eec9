#include "timetable/SlotNaming.h"

#include "timetable/Draft.h"

#include <gtest/gtest.h>

using namespace test;
using namespace timetable;

namespace
{

class NamingSlots : public testing::Test
{
protected:
    /// Asks, with equality that ignores case.
    const NameInquiry& asked()
    {
        m_inquiry = NameInquiry();
        m_naming.ask(m_inquiry);
        m_inquiry.ask(Draft::ignoringCase);
        return m_inquiry;
    }

    SlotNaming m_naming;
    NameInquiry m_inquiry;
};

} // namespace

TEST_F(NamingSlots, putsTheRowsWhereTheirKeysSay)
{
    m_naming.addSlot(u"Lundi2", u"9h30", u"11h00");
    m_naming.addSlot(u"Lundi1", u"8h00", u"9h30");
    m_naming.addSlot(u"Mardi11", u"18h00", u"19h00");
    const WeekSlots week = m_naming.takeSlots(asked());
    ASSERT_EQ(week[0].size(), 2U);
    EXPECT_EQ(week[0][0], (DaySlot{1, 0, "8h00", "9h30", MinuteOfDay{480}, MinuteOfDay{570}}));
    EXPECT_EQ(week[0][1].number, 2);
    ASSERT_EQ(week[1].size(), 1U);
    EXPECT_EQ(week[1][0].number, 11);
    EXPECT_EQ(week[1][0].day, 1);
    EXPECT_TRUE(week[2].empty());
}

TEST_F(NamingSlots, takesTheFirstOfEqualKeys)
{
    m_naming.addSlot(u"lundi1", u"8h00", u"9h30");
    m_naming.addSlot(u"Lundi1", u"10h00", u"11h30");
    const WeekSlots week = m_naming.takeSlots(asked());
    ASSERT_EQ(week[0].size(), 1U);
    EXPECT_EQ(week[0][0].startText, QStringLiteral("8h00"));
}

TEST_F(NamingSlots, leavesTimesOutThatAreNone)
{
    m_naming.addSlot(u"Lundi1", u"tôt", QStringView());
    const WeekSlots week = m_naming.takeSlots(asked());
    ASSERT_EQ(week[0].size(), 1U);
    EXPECT_EQ(week[0][0].start, std::nullopt);
    EXPECT_EQ(week[0][0].startText, QStringLiteral("tôt"));
    EXPECT_EQ(week[0][0].endText, QString());
}

TEST_F(NamingSlots, leavesRowsOutWhoseKeyNamesNoSlotOfADay)
{
    for (const QStringView key : {u"Lundi", u"Lundi0", u"Fêtes1", u""}) {
        m_naming.addSlot(key, u"8h00", u"9h30");
    }
    m_naming.addSlot(QStringView(), u"8h00", u"9h30");
    for (const std::vector<DaySlot>& day : m_naming.takeSlots(asked())) {
        EXPECT_TRUE(day.empty());
    }
}

TEST_F(NamingSlots, tellsWhatTheKeysOfMeetingsMean)
{
    m_naming.addKey(MeetingKind::Course, TextId(0), u"mardi3");
    m_naming.addKey(MeetingKind::Course, TextId(2), u"Ailleurs");
    m_naming.addKey(MeetingKind::Course, TextId(3), u"Dimanche1");
    const std::vector<SlotKey> keys = m_naming.takeKeys(asked(), MeetingKind::Course);
    ASSERT_EQ(keys.size(), 4U);
    EXPECT_EQ(keys[0], (SlotKey{1, 3}));
    EXPECT_EQ(keys[2], SlotKey());
    EXPECT_EQ(keys[3], (SlotKey{6, 1}));
    EXPECT_TRUE(m_naming.takeKeys(m_inquiry, MeetingKind::Exam).empty());
}
