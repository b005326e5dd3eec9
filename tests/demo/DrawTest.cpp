#include "demo/Draw.h"

#include <algorithm>
#include <gtest/gtest.h>

using demo::Draw;
using demo::Topic;

namespace
{

std::vector<int> firstDraws(Draw draw)
{
    std::vector<int> drawn;
    for (int count = 0; count < 20; ++count) {
        drawn.push_back(draw.below(1000));
    }
    return drawn;
}

} // namespace

TEST(Draw, repeatsItselfForTheSameSeedAndTopic)
{
    EXPECT_EQ(firstDraws(Draw(7, Topic::Exams, 2)), firstDraws(Draw(7, Topic::Exams, 2)));
}

TEST(Draw, differsBySeedTopicAndPart)
{
    const std::vector<int> drawn = firstDraws(Draw(7, Topic::Exams, 2));
    EXPECT_NE(drawn, firstDraws(Draw(8, Topic::Exams, 2)));
    EXPECT_NE(drawn, firstDraws(Draw(7, Topic::MakeUps, 2)));
    EXPECT_NE(drawn, firstDraws(Draw(7, Topic::Exams, 3)));
}

TEST(Draw, staysWithinItsBoundsAndReachesThem)
{
    Draw draw(1, Topic::Classes);
    std::vector<int> drawn;
    for (int count = 0; count < 1000; ++count) {
        drawn.push_back(draw.between(3, 7));
    }
    EXPECT_EQ(*std::min_element(drawn.begin(), drawn.end()), 3);
    EXPECT_EQ(*std::max_element(drawn.begin(), drawn.end()), 7);
}

TEST(Draw, shufflesWithoutLosingAnything)
{
    Draw draw(1, Topic::Classes);
    std::vector<int> items = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    const std::vector<int> sorted = items;
    draw.shuffle(items);
    EXPECT_NE(items, sorted);
    std::sort(items.begin(), items.end());
    EXPECT_EQ(items, sorted);
}
