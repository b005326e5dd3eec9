#include "shell/Settings.h"

#include "support/ProgramSetup.h"
#include "support/RuntimeMatchers.h"
#include "support/TestFolder.h"
#include "support/WithoutPrivileges.h"

#include <QFile>

using namespace test;
using runtime::ErrorNumber;
using shell::Settings;

namespace
{

/// A settings file with this text.
QString settingsFile(const QString& text)
{
    const QString path = processFolder() + "/settings-test.ini";
    writeFile(path, text);
    return path;
}

} // namespace

TEST(Settings, readTheSectionSettings)
{
    const Settings settings =
        Settings::fromFile(settingsFile("Total_L_P=3\n[Other]\nTotal_L_P=4\n"
                                        "[Settings]\nTotal_L_P=12\nPalette=Été doux\n"));
    EXPECT_EQ(settings.get("Total_L_P", "19"), "12");
    EXPECT_EQ(settings.get("Palette", ""), "Été doux");
}

TEST(Settings, giveTheDefaultOfAKeyThatIsNotThere)
{
    const Settings settings = Settings::fromFile(settingsFile("[Settings]\nBase=\n"));
    EXPECT_EQ(settings.get("Total_L_P", "19"), "19");
    EXPECT_EQ(settings.get("Base", "MonKalo"), ""); // there, and empty
}

TEST(Settings, giveTheDefaultOfEveryKeyOfAnEmptyFile)
{
    const Settings settings = Settings::fromFile(settingsFile(""));
    EXPECT_EQ(settings.get("Mysql", "False"), "False");
}

TEST(Settings, keepAValueWithAComma)
{
    const Settings settings =
        Settings::fromFile(settingsFile("[Settings]\nPalette=Bleu, vert\nBase=\"a,b;c\"\n"));
    EXPECT_EQ(settings.get("Palette", ""), "Bleu, vert");
    EXPECT_EQ(settings.get("Base", ""), "a,b;c");
}

TEST(Settings, writeWhatTheyReadBack)
{
    const QString path = settingsFile("[Settings]\nBase=MonKalo\n");
    Settings settings = Settings::fromFile(path);
    settings.save("Palette", "Été, doux");
    settings.save("Total_L_P", "20");
    const Settings again = Settings::fromFile(path);
    EXPECT_EQ(again.get("Palette", ""), "Été, doux");
    EXPECT_EQ(again.get("Total_L_P", ""), "20");
    EXPECT_EQ(again.get("Base", ""), "MonKalo");
    EXPECT_TRUE(fileText(path).contains("Total_L_P=20"));
}

TEST(Settings, areMissingWithTheirFileAndThatIsNoFault)
{
    const Settings settings = Settings::fromFile(processFolder() + "/absent.ini");
    EXPECT_EQ(settings.get("Total_L_P", "19"), "19");
}

TEST(Settings, nameTheFileThatCannotBeRead)
{
    const QString path = processFolder() + "/unreadable.ini";
    writeFile(path, "[Settings]\nTotal_L_P=12\n");
    QFile::setPermissions(path, QFile::WriteOwner);
    const WithoutPrivileges ordinaryUser;
    const runtime::RunTimeError error =
        errorOf([&] { static_cast<void>(Settings::fromFile(path)); });
    EXPECT_EQ(error.number(), ErrorNumber::PathFileAccess);
    EXPECT_EQ(error.activity(), "Lecture des paramètres (« " + path + " »)");
}

TEST(Settings, nameTheFileThatIsNoneOfSettings)
{
    const QString path = processFolder() + "/letter.ini";
    writeFile(path, "[Settings]\nTotal_L_P=12\nMadame, Monsieur\n");
    const runtime::RunTimeError error =
        errorOf([&] { static_cast<void>(Settings::fromFile(path)); });
    EXPECT_EQ(error.number(), ErrorNumber::InvalidFileFormat);
    EXPECT_EQ(error.activity(), "Lecture des paramètres (« " + path + " »)");
}

TEST(Settings, nameTheFileThatCannotBeWritten)
{
    const QString path = processFolder() + "/readonly.ini";
    writeFile(path, "[Settings]\nTotal_L_P=12\n");
    QFile::setPermissions(path, QFile::ReadOwner);
    const WithoutPrivileges ordinaryUser;
    Settings settings = Settings::fromFile(path);
    EXPECT_EQ(settings.get("Total_L_P", "19"), "12");
    const runtime::RunTimeError error = errorOf([&] { settings.save("Total_L_P", "13"); });
    EXPECT_EQ(error.number(), ErrorNumber::PathFileAccess);
    EXPECT_EQ(error.activity(), "Enregistrement des paramètres (« " + path + " »)");
    EXPECT_EQ(fileText(path), "[Settings]\nTotal_L_P=12\n");
}

TEST(Settings, leaveTheFileAloneUntilSomethingIsSaved)
{
    const QString text = "; mes réglages\n[Settings]\nTotal_L_P = 12\n";
    const QString path = settingsFile(text);
    {
        const Settings settings = Settings::fromFile(path);
        EXPECT_EQ(settings.get("Total_L_P", ""), "12");
    }
    EXPECT_EQ(fileText(path), text);
}
