#include "app/TextPlaces.h"

#include <gtest/gtest.h>

using app::placesOf;
using app::TextPlace;

namespace
{

using Places = std::vector<TextPlace>;

} // namespace

TEST(TextPlaces, areFoundFromTheBeginningOn)
{
    EXPECT_EQ(placesOf("salle, salle", "salle"), (Places{{0, 5}, {7, 5}}));
    EXPECT_EQ(placesOf("aaaa", "aa"), (Places{{0, 2}, {2, 2}}));
}

TEST(TextPlaces, doNotMindAccentsOrCapitals)
{
    EXPECT_EQ(placesOf("La Matière", "matiere"), (Places{{3, 7}}));
    EXPECT_EQ(placesOf("la matiere", "MATIÈRE"), (Places{{3, 7}}));
}

TEST(TextPlaces, doNotMindTheKindOfApostropheOrBlank)
{
    EXPECT_EQ(placesOf("Aujourd’hui", "aujourd'hui"), (Places{{0, 11}}));
    EXPECT_EQ(placesOf("« Date »", "« date »"), (Places{{0, 8}}));
}

TEST(TextPlaces, standWhereALetterIsTwoToTheSearch)
{
    EXPECT_EQ(placesOf("un œuf, un sœur", "oeuf"), (Places{{3, 3}}));
    EXPECT_EQ(placesOf("œuf cru", "cru"), (Places{{4, 3}}));
}

TEST(TextPlaces, areNoneForNothing)
{
    EXPECT_EQ(placesOf("salle", ""), Places());
    EXPECT_EQ(placesOf("une salle", "  "), Places());
    EXPECT_EQ(placesOf("salle", "zone"), Places());
    EXPECT_EQ(placesOf("", "zone"), Places());
}
