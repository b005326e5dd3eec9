#include "setup/DriverAdvice.h"

#include <gtest/gtest.h>

using namespace setup;

TEST(DriverAdvice, namesWhatDebianInstalls)
{
    EXPECT_EQ(howToGetDriver(SourceKind::SqliteFile),
              "Installez le paquet Debian « libsqliteodbc ».");
    EXPECT_EQ(howToGetDriver(SourceKind::Server), "Installez le paquet Debian « odbc-mariadb ».");
    EXPECT_EQ(howToGetDriver(SourceKind::Access), "Une base Access se lit sous Windows.");
    EXPECT_EQ(howToGetDriver(SourceKind::Demo), howToGetDriver(SourceKind::SqliteFile));
}
