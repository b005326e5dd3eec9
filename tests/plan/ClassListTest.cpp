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

TEST(FewNames, areADozenAndTheNumberOfTheOthers)
{
    QStringList names;
    for (int number = 1; number <= 12; ++number) {
        names << QString::number(number);
    }
    EXPECT_EQ(plan::fewNames(names), "1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12");
    names << "13";
    EXPECT_EQ(plan::fewNames(names), "1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12 et 1 autre");
    names << "14";
    EXPECT_EQ(plan::fewNames(names), "1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12 et 2 autres");
    EXPECT_EQ(plan::fewNames({}), "");
}
