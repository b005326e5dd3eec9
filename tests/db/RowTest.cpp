#include "db/Row.h"

#include "OneRow.h"
#include "support/RuntimeMatchers.h"

using namespace db;
using runtime::ErrorNumber;
using test::errorNumberOf;

TEST(ARow, givesItsFieldsByNameAndByPosition)
{
    EXPECT_EQ(oneRow().field(QStringLiteral("salle")), Value(QStringLiteral("A1")));
    EXPECT_TRUE(oneRow().field(QStringLiteral("matière")).isNull());
    EXPECT_EQ(oneRow().field(2), Value(std::int64_t{90}));
}

TEST(ARow, raisesItemNotFoundOutsideItsFields)
{
    EXPECT_EQ(errorNumberOf([] { return oneRow().field(3); }), ErrorNumber::ItemNotFound);
    EXPECT_EQ(errorNumberOf([] { return oneRow().field(-1); }), ErrorNumber::ItemNotFound);
    EXPECT_EQ(errorNumberOf([] { return oneRow().field(QString()); }), ErrorNumber::ItemNotFound);
}

TEST(ARow, outlivesTheRecordSetThatItWasReadWith)
{
    std::vector<Row> kept;
    {
        const std::shared_ptr<const Columns> columns =
            std::make_shared<const Columns>(oneRowsNames);
        kept.emplace_back(columns, std::vector<Value>{Value(QStringLiteral("A1")), Value(),
                                                      Value(std::int64_t{45})});
    }
    const Row copy = kept.front();
    kept.clear();
    EXPECT_EQ(copy.field(QStringLiteral("Durée")), Value(std::int64_t{45}));
}
