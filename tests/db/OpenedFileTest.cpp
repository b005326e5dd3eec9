#include "db/OpenedFile.h"

#include "support/TestFolder.h"

#include <QDateTime>
#include <QFile>
#include <gtest/gtest.h>

using db::OpenedFile;

TEST(OpenedFile, hasNotChangedWhileItStandsWhereItStood)
{
    const QString path = test::processFolder() + "/opened";
    test::writeFile(path, "one");
    const OpenedFile opened(path);
    EXPECT_FALSE(opened.hasChanged());
    ASSERT_TRUE(QFile::rename(path, path + ".away"));
    EXPECT_TRUE(opened.hasChanged());
    ASSERT_TRUE(QFile::rename(path + ".away", path));
    EXPECT_FALSE(opened.hasChanged());
}

TEST(OpenedFile, hasChangedOnceItIsWritten)
{
    const QString path = test::processFolder() + "/written";
    test::writeFile(path, "one");
    const OpenedFile opened(path);
    test::writeFile(path, "longer");
    EXPECT_TRUE(opened.hasChanged());
    // As long as it was, later.
    test::writeFile(path, "two");
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(1),
                                 QFileDevice::FileModificationTime));
    EXPECT_TRUE(opened.hasChanged());
}

TEST(OpenedFile, hasChangedWhereAnotherHasItsName)
{
    const QString path = test::processFolder() + "/replaced";
    const QDateTime when(QDate(2026, 11, 22), QTime(10, 32));
    for (const QString& each : {path, path + ".new"}) { // alike, but for what no file shares
        test::writeFile(each, "one");
        QFile file(each);
        ASSERT_TRUE(file.open(QFile::ReadWrite));
        ASSERT_TRUE(file.setFileTime(when, QFileDevice::FileModificationTime));
    }
    const OpenedFile opened(path);
    ASSERT_TRUE(QFile::rename(path, path + ".old"));
    ASSERT_TRUE(QFile::rename(path + ".new", path));
    EXPECT_TRUE(opened.hasChanged());
}

TEST(OpenedFile, neverChangesWhereThereIsNone)
{
    EXPECT_FALSE(OpenedFile().hasChanged());
    EXPECT_FALSE(OpenedFile(QString()).hasChanged());
    EXPECT_FALSE(OpenedFile(test::processFolder() + "/nowhere").hasChanged());
}
