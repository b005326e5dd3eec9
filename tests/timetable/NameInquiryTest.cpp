#include "timetable/NameInquiry.h"

#include "timetable/Draft.h"

#include <gtest/gtest.h>

using namespace test;
using namespace timetable;

namespace
{

NameQuestion about(SqlName column, std::initializer_list<QStringView> texts)
{
    NameQuestion question{table::kEmplois, column, {}};
    for (const QStringView text : texts) {
        question.texts.add(text);
    }
    return question;
}

} // namespace

TEST(NameInquiry, asksAllQuestionsAtOnce)
{
    NameInquiry inquiry;
    EXPECT_EQ(inquiry.add(about(column::kSalle, {u"A1"})), 0U);
    EXPECT_EQ(inquiry.add(about(column::kClasse, {u"L1", u"l1"})), 1U);
    int times = 0;
    inquiry.ask([&times](const std::vector<NameQuestion>& questions) {
        ++times;
        return Draft::ignoringCase(questions);
    });
    EXPECT_EQ(times, 1);
    EXPECT_EQ(inquiry.groups(0), NameGroups{0});
    EXPECT_EQ(inquiry.groups(1), (NameGroups{0, 0}));
}

TEST(NameInquiry, knowsTheGroupOfEachTextOfAQuestion)
{
    NameInquiry inquiry;
    inquiry.add(about(column::kSalle, {u"B1", u"A1", u"b1"}));
    inquiry.ask(Draft::ignoringCase);
    EXPECT_EQ(inquiry.groupOf(0, u"b1"), 0);
    EXPECT_EQ(inquiry.groupOf(0, u"A1"), 1);
    EXPECT_EQ(inquiry.groupOf(0, u"C1"), -1);
}
