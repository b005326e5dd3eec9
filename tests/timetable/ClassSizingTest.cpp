#include "timetable/ClassSizing.h"

#include "timetable/Draft.h"

#include <gtest/gtest.h>

using namespace test;
using namespace timetable;

namespace
{

/// Classes 0 "L1", 1 "L2" and 2 "l1" in the meetings; equality ignores case.
class SizingClasses : public testing::Test
{
protected:
    SizingClasses()
    {
        for (const QStringView name : {u"L1", u"L2", u"l1"}) {
            m_classes.add(name);
        }
    }

    [[nodiscard]] std::vector<ClassSize> sizes()
    {
        NameInquiry inquiry;
        m_sizing.ask(inquiry, m_classes);
        inquiry.ask(Draft::ignoringCase);
        return m_sizing.take(inquiry, m_classes);
    }

    TextPool m_classes;
    ClassSizing m_sizing;
};

} // namespace

TEST_F(SizingClasses, addsTheStudentsOfEqualNames)
{
    m_sizing.addStudents(u"L1", 20);
    m_sizing.addStudents(u"l1", 3);
    m_sizing.addStudents(u"L9", 100);
    const std::vector<ClassSize> sizes = this->sizes();
    ASSERT_EQ(sizes.size(), 3U);
    EXPECT_EQ(sizes[0], (ClassSize{ClassId(0), 23, 0}));
    EXPECT_EQ(sizes[1], (ClassSize{ClassId(1), 0, 0}));
    EXPECT_EQ(sizes[2], (ClassSize{ClassId(2), 23, 0}));
}

TEST_F(SizingClasses, takesTheFirstCapacityOfEqualNames)
{
    m_sizing.addCapacity(u"l2", 40);
    m_sizing.addCapacity(u"L2", 90);
    EXPECT_EQ(sizes()[1], (ClassSize{ClassId(1), 0, 40}));
}

TEST_F(SizingClasses, knowsNothingOfATableThatIsNotRead)
{
    m_sizing.leaveStudentsUnknown();
    m_sizing.addCapacity(u"L1", 25);
    EXPECT_EQ(sizes()[0], (ClassSize{ClassId(0), std::nullopt, 25}));
    m_sizing.leaveCapacitiesUnknown();
    EXPECT_EQ(sizes()[0], (ClassSize{ClassId(0), std::nullopt, std::nullopt}));
}

TEST_F(SizingClasses, asksNothingWithoutClasses)
{
    m_classes = TextPool();
    m_sizing.addStudents(u"L1", 20);
    EXPECT_TRUE(sizes().empty());
}
