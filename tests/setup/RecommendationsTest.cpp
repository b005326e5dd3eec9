#include "setup/Recommendations.h"

#include "setup/Registration.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

using namespace setup;

namespace
{

/// Settings of somebody who has set nothing yet, until a test does.
shell::Settings nothingSet()
{
    return shell::Settings::fromFile(test::processFolder() + "/recommandations.ini");
}

QStringList keysOf(const std::vector<Recommendation>& all)
{
    QStringList keys;
    for (const Recommendation& one : all) {
        keys << one.key;
    }
    return keys;
}

} // namespace

TEST(Recommendations, areFourWhereNamesHaveApostrophesAndThePaletteShips)
{
    const QString styles = test::processFolder() + "/Styles";
    test::writeFile(styles + "/Pastel.mpl", "0\tPastel\n");
    Findings found;
    found.hasApostrophes = true;
    const auto all = recommendationsFor(found, styles, nothingSet());
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
    EXPECT_FALSE(keysOf(recommendationsFor({}, "/nowhere", nothingSet())).contains("Palette"));
}

TEST(Recommendations, sayWhyWhereNamesHaveApostrophes)
{
    Findings found;
    EXPECT_FALSE(keysOf(recommendationsFor(found, {}, nothingSet())).contains("Apostrophes"));
    found.hasApostrophes = true;
    const auto all = recommendationsFor(found, {}, nothingSet());
    ASSERT_EQ(all.size(), 3U);
    EXPECT_TRUE(all[2].sentence.startsWith("Votre base a des noms"));
}

TEST(Recommendations, keepApostrophesThatHaveBeenAccepted)
{
    shell::Settings before = shell::Settings::fromFile(test::processFolder() + "/acceptées.ini");
    before.save("Apostrophes", "1");
    const auto all = recommendationsFor({}, {}, before);
    ASSERT_EQ(all.size(), 3U);
    EXPECT_EQ(all[2].key, "Apostrophes");
    EXPECT_TRUE(all[2].isProposed);
    EXPECT_FALSE(all[2].sentence.startsWith("Votre base"));
}

TEST(Recommendations, readATruthHoweverItIsWritten)
{
    shell::Settings before = shell::Settings::fromFile(test::processFolder() + "/vrai ou 1.ini");
    before.save("Toutes_Salles", "1");
    before.save("Ouvrir_Aujourdhui", "Vrai");
    const auto all = recommendationsFor({}, {}, before);
    EXPECT_TRUE(all[0].isProposed);
    EXPECT_TRUE(all[1].isProposed);
    saveRecommendations(all, before);
    EXPECT_EQ(before.get("Toutes_Salles", {}), "1"); // it says so already
    EXPECT_TRUE(meanTheSame("0", "Faux"));
    EXPECT_FALSE(meanTheSame("0", "Vrai"));
    EXPECT_FALSE(meanTheSame("/a.mpl", "/b.mpl"));
}

TEST(Recommendations, leaveWhatHasBeenSetOtherwise)
{
    const QString styles = test::processFolder() + "/Styles";
    test::writeFile(styles + "/Pastel.mpl", "0\tPastel\n");
    shell::Settings before = shell::Settings::fromFile(test::processFolder() + "/déjà réglé.ini");
    before.save("Palette", "/home/mine/Mienne.mpl");
    before.save("Toutes_Salles", "False");
    before.save("Ouvrir_Aujourdhui", "True");
    Findings found;
    found.hasApostrophes = true;
    const auto all = recommendationsFor(found, styles, before);
    EXPECT_FALSE(all[0].isProposed); // Toutes_Salles
    EXPECT_EQ(all[0].refused, "False");
    EXPECT_TRUE(all[1].isProposed);
    EXPECT_TRUE(all[2].isProposed); // nobody has set it
    EXPECT_FALSE(all[3].isProposed);
    EXPECT_EQ(all[3].refused, "/home/mine/Mienne.mpl");
    EXPECT_EQ(all[3].value, styles + "/Pastel.mpl");
    EXPECT_TRUE(all[3].sentence.endsWith("sans elle la vôtre reste."));
    saveRecommendations(all, before);
    EXPECT_EQ(before.get("Palette", {}), "/home/mine/Mienne.mpl");
    EXPECT_EQ(before.get("Toutes_Salles", {}), "False");
}
