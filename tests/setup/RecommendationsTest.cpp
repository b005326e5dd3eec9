#include "setup/Recommendations.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

using namespace setup;

namespace
{

QStringList keysOf(const std::vector<Recommendation>& all)
{
    QStringList keys;
    for (const Recommendation& one : all) {
        keys << one.key;
    }
    return keys;
}

} // namespace

TEST(Recommendations, areFourWhereThePaletteShips)
{
    const QString styles = test::processFolder() + "/Styles";
    test::writeFile(styles + "/Pastel.mpl", "0\tPastel\n");
    const auto all = recommendationsFor({}, styles);
    EXPECT_EQ(keysOf(all),
              QStringList({"Toutes_Salles", "Ouvrir_Aujourdhui", "Apostrophes", "Palette"}));
    EXPECT_EQ(all.back().value, styles + "/Pastel.mpl");
    for (const Recommendation& one : all) {
        EXPECT_TRUE(one.isProposed) << one.key.toStdString();
        EXPECT_FALSE(one.sentence.isEmpty()) << one.key.toStdString();
    }
}

TEST(Recommendations, nameNoPaletteThatIsNotThere)
{
    EXPECT_FALSE(keysOf(recommendationsFor({}, "/nowhere")).contains("Palette"));
}

TEST(Recommendations, sayWhyWhereNamesHaveApostrophes)
{
    Findings found;
    const auto sentence = [&found] { return recommendationsFor(found, {})[2].sentence; };
    EXPECT_FALSE(sentence().startsWith("Votre base"));
    found.hasApostrophes = true;
    EXPECT_TRUE(sentence().startsWith("Votre base a des noms"));
}
