#include "lookup/ClassSizes.h"

#include "lookup/Meetings.h"
#include "support/RuntimeMatchers.h"

using namespace lookup;
using runtime::ErrorNumber;

TEST(SlotIndex, isTheSlotsNumberLessOne)
{
    EXPECT_EQ(SlotIndex("Lundi3"), 2);
    EXPECT_EQ(SlotIndex("Mardi10"), 9);
    EXPECT_EQ(SlotIndex("1"), 0);
}

TEST(SlotIndex, joinsDigitsAnywhereInTheKey)
{
    EXPECT_EQ(SlotIndex("S1A2"), 11);
}

TEST(SlotIndex, isMinusOneWithoutDigits)
{
    EXPECT_EQ(SlotIndex("Lundi"), -1);
    EXPECT_EQ(SlotIndex(""), -1);
}

TEST(SlotIndex, knowsOnlyTheTenDigits)
{
    EXPECT_EQ(SlotIndex("-2,5"), 24);
    EXPECT_EQ(SlotIndex("²"), -1);
}

TEST(SlotIndex, fitsSixteenBits)
{
    EXPECT_EQ(SlotIndex("32768"), 32767);
    EXPECT_EQ(test::errorNumberOf([] { static_cast<void>(SlotIndex("32769")); }),
              ErrorNumber::Overflow);
}

TEST(StudentCount, isTheNumberOfRegisteredStudents)
{
    test::FakeRows rows;
    rows.students["GC1"] = 35;
    EXPECT_EQ(StudentCount(rows, "GC1"), 35);
    EXPECT_EQ(StudentCount(rows, "GC2"), 0);
}

TEST(StudentCount, fitsSixteenBits)
{
    test::FakeRows rows;
    rows.students["GC1"] = 32768;
    EXPECT_EQ(test::errorNumberOf([&] { static_cast<void>(StudentCount(rows, "GC1")); }),
              ErrorNumber::Overflow);
}

TEST(StudentCount, passesDatabaseErrorsOn)
{
    test::FakeRows rows;
    rows.classesFail = true;
    EXPECT_EQ(test::errorNumberOf([&] { static_cast<void>(StudentCount(rows, "GC1")); }),
              ErrorNumber::DatabaseFailure);
}

TEST(ClassCapacity, isTheDeclaredSize)
{
    test::FakeRows rows;
    rows.capacities["GC1"] = db::Value(std::int64_t{40});
    EXPECT_EQ(ClassCapacity(rows, "GC1"), 40);
}

TEST(ClassCapacity, isZeroWhenNothingCanBeRead)
{
    test::FakeRows rows;
    rows.capacities["null"] = db::Value();
    rows.capacities["text"] = db::Value(QString("beaucoup"));
    rows.capacities["big"] = db::Value(std::int64_t{40000});
    for (const char* name : {"", "unknown", "null", "text", "big"}) {
        EXPECT_EQ(ClassCapacity(rows, name), 0) << name;
    }
    rows.classesFail = true;
    EXPECT_EQ(ClassCapacity(rows, "GC1"), 0);
}
