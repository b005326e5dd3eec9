#include "shell/Settings.h"

#include "support/FullDisk.h"
#include "support/ProgramSetup.h"
#include "support/RuntimeMatchers.h"
#include "support/TestFolder.h"
#include "support/WithoutPrivileges.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <filesystem>
#include <sys/stat.h>

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

/// Who may do what with a file, as its nine bits.
unsigned rightsOf(const QString& path)
{
    return static_cast<unsigned>(std::filesystem::status(path.toStdString()).permissions());
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

TEST(Settings, keepTheFileWhereTheDiskIsFull)
{
    const QString text = "[Settings]\nTotal_L_P=12\nPalette=\n";
    const QString path = settingsFile(text);
    Settings settings = Settings::fromFile(path);
    runtime::RunTimeError error(ErrorNumber::InternalError);
    {
        const test::FullDisk fullDisk(10);
        error = errorOf([&] { settings.save("Total_L_P", "13"); });
    }
    EXPECT_EQ(error.number(), ErrorNumber::PathFileAccess);
    EXPECT_EQ(error.activity(), "Enregistrement des paramètres (« " + path + " »)");
    EXPECT_EQ(fileText(path), text);
    Settings::fromFile(path).save("Total_L_P", "14"); // there is room again
    EXPECT_EQ(Settings::fromFile(path).get("Total_L_P", ""), "14");
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

TEST(Settings, areTheirOwnersAloneInANewFile)
{
    const mode_t mask = ::umask(0);
    const QString path = processFolder() + "/new/folder/Tempora.ini";
    Settings settings = Settings::fromFile(path);
    EXPECT_FALSE(QFile::exists(path));
    settings.save("Palette", "Pastel");
    EXPECT_EQ(rightsOf(path), 0600U);
    settings.save("Total_L_P", "20");
    static_cast<void>(::umask(mask));
    EXPECT_EQ(rightsOf(path), 0600U);
    EXPECT_EQ(QDir(processFolder() + "/new/folder").entryList(QDir::Files | QDir::Hidden),
              QStringList("Tempora.ini"));
    EXPECT_EQ(Settings::fromFile(path).get("Palette", ""), "Pastel");
}

TEST(Settings, areTheirOwnersAloneInANewFileOfTheUser)
{
    const mode_t mask = ::umask(0);
    const QString home = processFolder() + "/home";
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home);
    Settings::perUser().save("Palette", "Pastel");
    static_cast<void>(::umask(mask));
    EXPECT_EQ(rightsOf(home + "/Tempora.ini"), 0600U);
}

TEST(Settings, keepTheRightsOfTheirFile)
{
    const QString path = settingsFile("[Settings]\nBase=\"MonKalo;PWD=secret\"\n");
    const mode_t mask = ::umask(0);
    for (const unsigned rights : {0600U, 0640U, 0644U}) {
        std::filesystem::permissions(path.toStdString(),
                                     static_cast<std::filesystem::perms>(rights));
        Settings::fromFile(path).save("Palette", QString::number(rights));
        EXPECT_EQ(rightsOf(path), rights);
    }
    static_cast<void>(::umask(mask));
    EXPECT_TRUE(fileText(path).contains("PWD=secret"));
}

TEST(Settings, areSavedWhereALinkLeadsTo)
{
    const QString path = settingsFile("[Settings]\nTotal_L_P=12\n");
    const QString link = processFolder() + "/link.ini";
    ASSERT_TRUE(QFile::link(path, link));
    Settings::fromFile(link).save("Total_L_P", "13");
    EXPECT_EQ(QFileInfo(link).symLinkTarget(), path);
    EXPECT_TRUE(fileText(path).contains("Total_L_P=13"));
}
