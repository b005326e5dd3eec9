#include "db/Recordset.h"

#include "support/RuntimeMatchers.h"

using namespace db;

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
