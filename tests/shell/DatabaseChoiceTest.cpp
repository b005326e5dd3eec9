#include "shell/DatabaseChoice.h"

#include "support/RuntimeMatchers.h"
#include "support/TestFolder.h"

using namespace test;
using shell::chooseDatabase;
using shell::DatabaseChoice;

namespace
{

/// A settings file of its own with these lines under [Settings].
shell::Settings settingsOf(const QString& lines)
{
    static int counter = 0;
    const QString path = processFolder() + QString("/choice%1.ini").arg(++counter);
    writeFile(path, "[Settings]\n" + lines);
    return shell::Settings::fromFile(path);
}

} // namespace

TEST(DatabaseChoice, withoutSettingsIsTheDataSourceMonKalo)
{
    const DatabaseChoice choice = chooseDatabase(settingsOf(""), false, {"C:\\Tempora", {}});
    EXPECT_EQ(choice.BaseName, "MonKalo");
    EXPECT_EQ(choice.strings.ConnectString, "DSN=MonKalo");
    EXPECT_EQ(choice.strings.DsnString, "DSN=MonKalo");
    EXPECT_EQ(choice.DbPath, "C:\\Tempora\\Kalo.mdb");
}

TEST(DatabaseChoice, takesDataSourceAndPathFromTheSettings)
{
    const DatabaseChoice choice = chooseDatabase(
        settingsOf("Base=Emplois\nPath=D:/Bases/Emplois.mdb\n"), false, {"/opt", {}});
    EXPECT_EQ(choice.strings.ConnectString, "DSN=Emplois");
    EXPECT_EQ(choice.DbPath, "D:/Bases/Emplois.mdb");
}

TEST(DatabaseChoice, ofMySqlHasTheBaseNameForAPath)
{
    const QString folder = processFolder() + "/choice";
    writeFile(folder + "/app_data/SaKalo.php", "$host=\"db1\";\n");
    // The path of an Access database does not matter here.
    const DatabaseChoice choice =
        chooseDatabase(settingsOf("Path=D:/Kalo.mdb\n"), true, {folder, {}});
    EXPECT_EQ(choice.BaseName, "SaKalo");
    EXPECT_EQ(choice.DbPath, "SaKalo");
    EXPECT_EQ(choice.strings.DsnString, "DSN=SaKalo");
    EXPECT_EQ(choice.strings.ConnectString,
              "DRIVER={MySQL ODBC 3.51 Driver};SERVER=db1;DATABASE=;USER=;PASSWORD=;"
              "port=3306OPTION=35");
}

TEST(DatabaseChoice, isNamedWithoutWhatStandsBehindItForTheDriver)
{
    const DatabaseChoice choice =
        chooseDatabase(settingsOf("Base=\"Emplois ;PWD=s3cr&t\"\n"), false, {"/opt", {}});
    EXPECT_EQ(choice.strings.ConnectString, "DSN=Emplois ;PWD=s3cr&t");
    EXPECT_EQ(choice.nameInMessages(), "Emplois");
}

TEST(DatabaseChoice, saysForWhichDatabaseTheFileIsMissing)
{
    const runtime::RunTimeError error = errorOf([] {
        static_cast<void>(
            chooseDatabase(settingsOf("Base_Sql=Absente\n"), true, {processFolder(), {}}));
    });
    EXPECT_EQ(error.number(), runtime::ErrorNumber::FileNotFound);
    EXPECT_TRUE(error.activity().contains("Absente")) << error.activity().toStdString();
}
