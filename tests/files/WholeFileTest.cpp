#include "files/WholeFile.h"

#include "support/RuntimeMatchers.h"
#include "support/TestFolder.h"
#include "support/WithoutPrivileges.h"

#include <QDir>
#include <QFile>

using namespace test;
using files::writeWholeFile;

namespace
{

/// An empty folder of its own.
QString folderFor(const QString& name)
{
    const QString path = processFolder() + "/whole-" + name;
    QDir().mkpath(path);
    return path;
}

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

QStringList entriesOf(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

QString failureOf(const QString& path)
{
    try {
        writeWholeFile(path, "{}");
    } catch (const files::ExportError& error) {
        return QString::fromUtf8(error.what());
    }
    return "(written)";
}

} // namespace

TEST(WholeFile, holdsExactlyTheBytes)
{
    const QString folder = folderFor("bytes");
    const QByteArray bytes = QByteArray("a\0b\r\nc", 6) + QByteArray(3'000'000, 'x');
    writeWholeFile(folder + "/plan.bin", bytes);
    EXPECT_TRUE(bytesOf(folder + "/plan.bin") == bytes);
    EXPECT_EQ(entriesOf(folder), QStringList("plan.bin"));
    writeWholeFile(folder + "/plan.bin", "");
    EXPECT_EQ(bytesOf(folder + "/plan.bin"), "");
}

TEST(WholeFile, thatCannotBeWrittenLeavesTheOldOneAndItsReason)
{
    const QString folder = folderFor("kept");
    writeWholeFile(folder + "/plan.json", "alt");
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner);
    {
        const WithoutPrivileges ordinaryUser;
        const QString failure = failureOf(folder + "/plan.json");
        EXPECT_TRUE(failure.startsWith("Impossible d’écrire « " + folder + "/plan.json » : "))
            << failure.toStdString();
        EXPECT_FALSE(failure.contains('\n'));
    }
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(bytesOf(folder + "/plan.json"), "alt");
    EXPECT_EQ(entriesOf(folder), QStringList("plan.json"));
}

TEST(WholeFile, isRefusedWhereThereIsNoFolderOrOneOfItsName)
{
    const QString folder = folderFor("folders");
    EXPECT_TRUE(failureOf(folder + "/absent/plan.json").contains("absent/plan.json"));
    EXPECT_TRUE(failureOf(folder).startsWith("Impossible d’écrire"));
    EXPECT_EQ(entriesOf(folder), QStringList());
}
