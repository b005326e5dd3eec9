#include "plan/ClassList.h"

#include "support/RuntimeMatchers.h"

using namespace plan;

TEST(ClassList, isSplitAtItsTabs)
{
    EXPECT_EQ(classNames("GC1\tGC2\tGC3"), (QStringList{"GC1", "GC2", "GC3"}));
    EXPECT_EQ(classNames("GC1"), QStringList{"GC1"});
}

TEST(ClassList, trimsTheLastNameAlone)
{
    EXPECT_EQ(classNames(" GC1 \t GC2 "), (QStringList{" GC1 ", "GC2"}));
    EXPECT_EQ(classNames(" GC1 "), QStringList{"GC1"});
}

TEST(ClassList, keepsAnEmptyName)
{
    EXPECT_EQ(classNames("GC1\t"), (QStringList{"GC1", ""}));
    EXPECT_EQ(classNames(""), QStringList{""});
}

TEST(ClassList, beginsWithTheClassThatDecidesTheMarkers)
{
    EXPECT_EQ(firstClass("GC1\tGC2"), "GC1");
    EXPECT_EQ(firstClass(" GC1 "), "GC1");
    EXPECT_EQ(firstClass(" GC1 \tGC2"), "GC1");
    EXPECT_EQ(firstClass("\tGC2"), "");
    EXPECT_EQ(firstClass(""), "");
}

TEST(ClassList, isReadWithoutBlanksAndEmptyNames)
{
    EXPECT_EQ(classWords(" GC1 \t\tGC2"), (QStringList{"GC1", "GC2"}));
    EXPECT_EQ(classWords(""), QStringList());
}
