#include "setup/DriverAdvice.h"

#include <gtest/gtest.h>

using namespace setup;

TEST(DriverAdvice, namesWhatWindowsInstalls)
{
    EXPECT_EQ(howToGetDriver(SourceKind::SqliteFile),
              "Installez « SQLite3 ODBC Driver », 64 bits : pilote-sqlite.exe, dans le dossier de "
              "Tempora.");
    EXPECT_EQ(howToGetDriver(SourceKind::Server),
              "Installez le pilote ODBC de MariaDB ou de MySQL, 64 bits.");
    EXPECT_TRUE(howToGetDriver(SourceKind::Access).contains("Access de Microsoft, 64 bits"));
    EXPECT_EQ(howToGetDriver(SourceKind::Demo), howToGetDriver(SourceKind::SqliteFile));
}
