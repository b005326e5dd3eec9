#include "db/Recordset.h"

#include "support/RuntimeMatchers.h"

using namespace db;
using runtime::ErrorNumber;
using test::errorNumberOf;

namespace
{

const QStringList names = {QStringLiteral("Salle"), QStringLiteral("Matière"),
                           QStringLiteral("Durée")};

Row row()
{
    return {std::make_shared<const Columns>(names),
            {Value(QStringLiteral("A1")), Value(), Value(std::int64_t{90})}};
}

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

TEST(Columns, givesTheFirstOfTwoWithTheSameName)
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

TEST(ARow, givesItsFieldsByNameAndByPosition)
{
    EXPECT_EQ(row().field(QStringLiteral("salle")), Value(QStringLiteral("A1")));
    EXPECT_TRUE(row().field(QStringLiteral("matière")).isNull());
    EXPECT_EQ(row().field(2), Value(std::int64_t{90}));
}

TEST(ARow, raisesItemNotFoundOutsideItsFields)
{
    EXPECT_EQ(errorNumberOf([] { return row().field(3); }), ErrorNumber::ItemNotFound);
    EXPECT_EQ(errorNumberOf([] { return row().field(-1); }), ErrorNumber::ItemNotFound);
    EXPECT_EQ(errorNumberOf([] { return row().field(QString()); }), ErrorNumber::ItemNotFound);
}

TEST(ARecordset, isEmptyWithoutRows)
{
    EXPECT_TRUE(Recordset().isEmpty());
    EXPECT_EQ(Recordset().recordCount(), 0);
}

TEST(ARecordset, knowsItsRows)
{
    const Recordset rows(std::make_shared<const Columns>(names), {row(), row()});
    EXPECT_FALSE(rows.isEmpty());
    EXPECT_EQ(rows.recordCount(), 2);
    EXPECT_EQ(rows.first().field(0), Value(QStringLiteral("A1")));
    EXPECT_EQ(rows.columns()->names(), names);
}
