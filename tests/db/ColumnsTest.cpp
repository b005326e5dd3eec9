#include "db/Columns.h"

#include "support/RuntimeMatchers.h"

using namespace db;
using runtime::ErrorNumber;
using test::errorNumberOf;

namespace
{

const QStringList names = {QStringLiteral("Salle"), QStringLiteral("Matière"),
                           QStringLiteral("Durée")};

} // namespace

TEST(Columns, areFoundWhateverTheirCaseAccentsIncluded)
{
    const Columns columns(names);
    EXPECT_EQ(columns.position(QStringLiteral("salle")), 0);
    EXPECT_EQ(columns.position(QStringLiteral("matière")), 1);
    EXPECT_EQ(columns.position(QStringLiteral("MATIÈRE")), 1);
    EXPECT_EQ(columns.position(QStringLiteral("Durée")), 2);
}

TEST(Columns, areFoundHoweverTheirAccentsAreEncoded)
{
    EXPECT_EQ(Columns(names).position(QStringLiteral("Dure\u0301e")), 2);
    EXPECT_EQ(Columns({QStringLiteral("Dure\u0301e")}).position(QStringLiteral("DURÉE")), 0);
}

TEST(Columns, giveTheFirstOfTwoWithTheSameName)
{
    const Columns columns({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("b")});
    EXPECT_EQ(columns.position(QStringLiteral("b")), 1);
}

TEST(Columns, preferTheNameAsItIsWritten)
{
    const Columns columns({QStringLiteral("Nom"), QStringLiteral("nom")});
    EXPECT_EQ(columns.position(QStringLiteral("nom")), 1);
}

TEST(Columns, raiseItemNotFoundForAnUnknownNameAndForOneWithoutItsAccent)
{
    const Columns columns(names);
    EXPECT_EQ(errorNumberOf([&] { return columns.position(QStringLiteral("Zone")); }),
              ErrorNumber::ItemNotFound);
    EXPECT_EQ(errorNumberOf([&] { return columns.position(QStringLiteral("Duree")); }),
              ErrorNumber::ItemNotFound);
}
