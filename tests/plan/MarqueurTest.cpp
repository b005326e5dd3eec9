#include "plan/Marqueur.h"

#include "support/RuntimeMatchers.h"

TEST(Marqueur, namesTheAbsentClassesInItsToolTip)
{
    plan::Marqueur marker;
    marker.Classes = "GC1\tGC2";
    EXPECT_EQ(plan::studentAbsentToolTip(marker), "GC1\tGC2 Absent");
}
