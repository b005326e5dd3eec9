#include "timetable/Names.h"

#include "support/RuntimeMatchers.h"
#include "timetable/Draft.h"

#include <gtest/gtest.h>

using namespace timetable;

namespace
{

/// "Durand", "Roux" and "DURAND", the last of which is the first.
Names<TeacherId> threeSpellings()
{
    NameQuestion question{table::kEmplois, column::kEnseignant1, {}};
    for (const QStringView text : {u"Durand", u"Roux", u"DURAND"}) {
        question.texts.add(text);
    }
    return {question, {0, 1, 0}};
}

} // namespace

TEST(Names, areEqualWhereTheirGroupsAre)
{
    const Names<TeacherId> names = threeSpellings();
    EXPECT_TRUE(names.areEqual(TeacherId(0), TeacherId(2)));
    EXPECT_FALSE(names.areEqual(TeacherId(0), TeacherId(1)));
    EXPECT_EQ(names.group(TeacherId(2)), TeacherId(0));
}

TEST(Names, takeNothingForEqualToNothingAlone)
{
    const Names<TeacherId> names = threeSpellings();
    EXPECT_TRUE(names.areEqual(TeacherId(), TeacherId()));
    EXPECT_FALSE(names.areEqual(TeacherId(), TeacherId(0)));
    EXPECT_TRUE(names.group(TeacherId()).isNone());
}

TEST(Names, areFoundByTheirSpelling)
{
    const Names<TeacherId> names = threeSpellings();
    EXPECT_EQ(names.find(u"DURAND"), TeacherId(2));
    EXPECT_EQ(names.find(u"durand"), TeacherId());
    EXPECT_EQ(names.text(TeacherId(1)), QStringLiteral("Roux"));
    EXPECT_EQ(names.text(TeacherId()), QString());
    EXPECT_EQ(names.count(), 3);
}

TEST(Names, mayBeNone)
{
    const Names<TeacherId> names;
    EXPECT_EQ(names.count(), 0);
    EXPECT_TRUE(names.find(u"Durand").isNone());
    EXPECT_EQ(names.question(), nullptr);
}
