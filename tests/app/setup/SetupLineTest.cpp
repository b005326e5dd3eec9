#include "app/setup/SetupLine.h"

#include "shell/CommandLine.h"

#include <gtest/gtest.h>

using app::SetupLine;

TEST(ALineOfTheSetup, namesTheSettingsFile)
{
    EXPECT_EQ(SetupLine::parse({"tempora-setup"}).settingsFile, "");
    EXPECT_EQ(SetupLine::parse({"tempora-setup", "--settings", "/a b.ini"}).settingsFile,
              "/a b.ini");
}

TEST(ALineOfTheSetup, asksForHelpAndVersion)
{
    EXPECT_TRUE(SetupLine::parse({"tempora-setup", "--help"}).help);
    EXPECT_TRUE(SetupLine::parse({"tempora-setup", "--version"}).version);
    EXPECT_TRUE(SetupLine::helpText().contains("\n  --settings FICHIER.ini "));
}

TEST(ALineOfTheSetup, takesNothingElse)
{
    EXPECT_THROW(static_cast<void>(SetupLine::parse({"tempora-setup", "a.sqlite"})),
                 shell::UsageError);
    EXPECT_THROW(static_cast<void>(SetupLine::parse({"tempora-setup", "--nope"})),
                 shell::UsageError);
    EXPECT_THROW(static_cast<void>(SetupLine::parse({"tempora-setup", "--settings"})),
                 shell::UsageError);
}
