#include "db/Recordset.h"

#include "OneRow.h"
#include "support/RuntimeMatchers.h"

using namespace db;

TEST(ARecordset, isEmptyWithoutRows)
{
    EXPECT_TRUE(Recordset().isEmpty());
    EXPECT_EQ(Recordset().recordCount(), 0);
}

TEST(ARecordset, knowsItsRows)
{
    const Recordset rows(std::make_shared<const Columns>(oneRowsNames), {oneRow(), oneRow()});
    EXPECT_FALSE(rows.isEmpty());
    EXPECT_EQ(rows.recordCount(), 2);
    EXPECT_EQ(rows.first().field(0), Value(QStringLiteral("A1")));
    EXPECT_EQ(rows.columns()->names(), oneRowsNames);
}
