#include "timetable/TextPool.h"

#include "support/RuntimeMatchers.h"

#include <gtest/gtest.h>

using timetable::TextPool;

TEST(TextPool, keepsEachTextOnce)
{
    TextPool pool;
    EXPECT_EQ(pool.add(u"Durand"), 0);
    EXPECT_EQ(pool.add(u"Roux"), 1);
    EXPECT_EQ(pool.add(u"Durand"), 0);
    EXPECT_EQ(pool.count(), 2);
    EXPECT_EQ(pool.text(1), QStringLiteral("Roux"));
}

TEST(TextPool, tellsTextsApartByEveryCharacter)
{
    TextPool pool;
    pool.add(u"a1");
    EXPECT_EQ(pool.find(u"A1"), -1);
    EXPECT_EQ(pool.find(u"a1 "), -1);
    EXPECT_EQ(pool.find(u"a1"), 0);
}

TEST(TextPool, keepsTheEmptyTextLikeAnyOther)
{
    TextPool pool;
    EXPECT_EQ(pool.find(u""), -1);
    EXPECT_EQ(pool.add(u""), 0);
    EXPECT_EQ(pool.find(u""), 0);
}

TEST(TextPool, findsItsTextsAfterItHasGrown)
{
    TextPool pool;
    for (int number = 0; number < 1000; ++number) {
        pool.add(QString::number(number));
    }
    EXPECT_EQ(pool.find(u"0"), 0);
    EXPECT_EQ(pool.find(u"999"), 999);
}

TEST(TextPool, isCopiedWhole)
{
    TextPool copy;
    {
        TextPool pool;
        pool.add(u"Durand");
        copy = pool;
        pool.add(u"Roux");
    }
    EXPECT_EQ(copy.find(u"Durand"), 0);
    EXPECT_EQ(copy.find(u"Roux"), -1);
}
