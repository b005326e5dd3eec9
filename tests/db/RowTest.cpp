#include "db/Row.h"

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

TEST(ARow, outlivesTheRecordSetThatItWasReadWith)
{
    std::vector<Row> kept;
    {
        const std::shared_ptr<const Columns> columns = std::make_shared<const Columns>(names);
        kept.emplace_back(columns, std::vector<Value>{Value(QStringLiteral("A1")), Value(),
                                                      Value(std::int64_t{45})});
    }
    const Row copy = kept.front();
    kept.clear();
    EXPECT_EQ(copy.field(QStringLiteral("Durée")), Value(std::int64_t{45}));
}
