#include "lookup/ClassStatements.h"

#include "support/RuntimeMatchers.h"

using lookup::fromClass;
using lookup::fromStudentsOf;

TEST(ClassStatements, askForTheStudentsOfAClassByItsName)
{
    EXPECT_EQ(fromStudentsOf("L1 A", db::SqlDialect(false)), " from etudiant WHERE classe='L1 A'");
    EXPECT_EQ(fromClass("L1 A", db::SqlDialect(false)), " from classe Where Nom='L1 A'");
}

TEST(ClassStatements, doubleTheQuotesOfANameWhereTheDialectDoes)
{
    EXPECT_EQ(fromStudentsOf("L'1", db::SqlDialect(false, db::SqlDialect::Quotes::Doubled)),
              " from etudiant WHERE classe='L''1'");
    EXPECT_EQ(fromClass("L'1", db::SqlDialect(false)), " from classe Where Nom='L'1'");
}
