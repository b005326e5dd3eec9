#include "support/TestFolder.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace
{

struct Outcome {
    int exitCode;
    QByteArray output;
    QByteArray errors;
};

Outcome run(const QStringList& arguments)
{
    QProcess process;
    process.start(TEMPORA_DEMO, arguments);
    EXPECT_TRUE(process.waitForFinished(-1));
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

const QStringList smallSizes = {"--rooms",   "5",          "--classes", "4",          "--students",
                                "20",        "--teachers", "6",         "--subjects", "9",
                                "--periods", "1",          "--date",    "2026-11-25"};

/// One line on the error output and the code of a mistake.
void expectMistake(const QStringList& arguments, const char* text)
{
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_TRUE(outcome.errors.contains(text)) << outcome.errors.toStdString();
    EXPECT_EQ(outcome.errors.count('\n'), 1);
    EXPECT_TRUE(outcome.output.isEmpty());
}

} // namespace

TEST(DemoProgram, writesTheSameFileTwice)
{
    const QTemporaryDir folder(test::processFolder() + "/demo-XXXXXX");
    for (const char* name : {"/one.sqlite", "/two.sqlite"}) {
        const Outcome outcome = run(smallSizes + QStringList{"--sqlite", folder.path() + name});
        EXPECT_EQ(outcome.exitCode, 0) << outcome.errors.toStdString();
    }
    QFile one(folder.path() + "/one.sqlite");
    QFile two(folder.path() + "/two.sqlite");
    ASSERT_TRUE(one.open(QIODevice::ReadOnly) && two.open(QIODevice::ReadOnly));
    const QByteArray bytes = one.readAll();
    EXPECT_TRUE(bytes.startsWith("SQLite format 3"));
    EXPECT_EQ(bytes, two.readAll());
}

TEST(DemoProgram, replacesAnOlderFile)
{
    const QTemporaryDir folder(test::processFolder() + "/demo-XXXXXX");
    const QString path = folder.path() + "/base.sqlite";
    QFile old(path);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("something else");
    old.close();
    EXPECT_EQ(run(smallSizes + QStringList{"--sqlite", path}).exitCode, 0);
    ASSERT_TRUE(old.open(QIODevice::ReadOnly));
    EXPECT_TRUE(old.readAll().startsWith("SQLite format 3"));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{"base.sqlite"});
}

TEST(DemoProgram, writesAScriptToTheStandardOutputOrAFile)
{
    const QTemporaryDir folder(test::processFolder() + "/demo-XXXXXX");
    const Outcome printed = run(smallSizes + QStringList{"--mariadb-script", "-"});
    EXPECT_EQ(printed.exitCode, 0);
    EXPECT_TRUE(printed.output.contains("SET NAMES utf8mb4;\nCREATE TABLE `etablissement`"));
    EXPECT_TRUE(printed.output.contains("COMMIT;\n"));
    const QString path = folder.path() + "/script.sql";
    EXPECT_EQ(run(smallSizes + QStringList{"--mariadb-script", path}).exitCode, 0);
    QFile script(path);
    ASSERT_TRUE(script.open(QIODevice::ReadOnly));
    EXPECT_EQ(script.readAll(), printed.output);
}

TEST(DemoProgram, leavesNoHalfFileWhereItCannotWrite)
{
    const QTemporaryDir folder(test::processFolder() + "/demo-XXXXXX");
    ASSERT_TRUE(QDir(folder.path()).mkdir("taken"));
    const QStringList paths = {folder.path() + "/missing/base", folder.path() + "/taken"};
    for (const char* option : {"--sqlite", "--mariadb-script"}) {
        for (const QString& path : paths) {
            const Outcome outcome = run(smallSizes + QStringList{option, path});
            EXPECT_EQ(outcome.exitCode, 1) << path.toStdString();
            EXPECT_EQ(outcome.errors.count('\n'), 1) << outcome.errors.toStdString();
            EXPECT_TRUE(outcome.errors.contains(path.toUtf8()));
        }
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList{"taken"});
}

TEST(DemoProgram, saysInOneLineWhatAnOptionAccepts)
{
    expectMistake({}, "either --sqlite FILE or --mariadb-script FILE must be given");
    expectMistake({"--sqlite", "a", "--mariadb-script", "b"}, "either --sqlite");
    expectMistake({"--sqlite"}, "sqlite");
    expectMistake({"--sqlite", "a", "--rooms", "257"}, "--rooms accepts 1 to 256");
    expectMistake({"--sqlite", "a", "--rooms", "many"}, "--rooms accepts 1 to 256");
    expectMistake({"--sqlite", "a", "--date", "31/07/2026"}, "--date accepts");
    expectMistake({"--sqlite", "a", "--date", "2026-02-29"}, "--date accepts");
    expectMistake({"--sqlite", "a", "--date", "1800-01-01"}, "1950-01-01");
    expectMistake({"--sqlite", "a", "--size", "huge"}, "--size accepts small, middle or large");
    expectMistake({"--sqlite", "a", "--seed", "-1"}, "--seed accepts");
    expectMistake({"--sqlite", "a", "more"}, "unexpected argument: more");
    expectMistake({"--colour", "red"}, "colour");
}

TEST(DemoProgram, tellsItsOptionsAndItsVersion)
{
    const Outcome help = run({"--help"});
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_TRUE(help.output.contains("--mariadb-script"));
    const Outcome version = run({"--version"});
    EXPECT_EQ(version.exitCode, 0);
    EXPECT_TRUE(version.output.startsWith("tempora-demo 1."));
}
