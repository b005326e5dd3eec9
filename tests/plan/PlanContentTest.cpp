#include "plan/PlanContent.h"

#include "support/RuntimeMatchers.h"

using namespace plan;

namespace
{

/// Two rows; the second one has the boxes of the markers 1 and 2.
PlanContent content()
{
    PlanContent content;
    content.rows.resize(2);
    content.rows[1].boxes.resize(2);
    content.rows[1].boxes[0].marker = 1;
    content.rows[1].boxes[1].marker = 2;
    return content;
}

} // namespace

TEST(PlanContent, findsTheBoxOfAMarker)
{
    PlanContent drawn = content();
    const PlanContent& shown = drawn;
    EXPECT_EQ(shown.box(1), &drawn.rows[1].boxes[0]);
    EXPECT_EQ(shown.box(2), &drawn.rows[1].boxes[1]);
    drawn.box(2)->classAbsent = true;
    EXPECT_TRUE(drawn.rows[1].boxes[1].classAbsent);
}

TEST(PlanContent, hasNoBoxForAnotherMarker)
{
    const PlanContent drawn = content();
    EXPECT_EQ(drawn.box(0), nullptr);
    EXPECT_EQ(drawn.box(3), nullptr);
    EXPECT_EQ(PlanContent().box(1), nullptr);
}
