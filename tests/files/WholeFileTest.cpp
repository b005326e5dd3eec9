#include "files/WholeFile.h"

#include "support/RuntimeMatchers.h"
#include "support/TestFolder.h"
#include "support/WithoutPrivileges.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <filesystem>
#include <sys/stat.h>

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

QByteArray bytesOrNone(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

QStringList entriesOf(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                  QDir::NoDotAndDotDot);
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
    EXPECT_TRUE(bytesOrNone(folder + "/plan.bin") == bytes);
    EXPECT_EQ(entriesOf(folder), QStringList("plan.bin"));
    writeWholeFile(folder + "/plan.bin", "");
    EXPECT_EQ(bytesOrNone(folder + "/plan.bin"), "");
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
    EXPECT_EQ(bytesOrNone(folder + "/plan.json"), "alt");
    EXPECT_EQ(entriesOf(folder), QStringList("plan.json"));
}

TEST(WholeFile, isNotWrittenThroughALink)
{
    const QString folder = folderFor("links");
    writeWholeFile(folder + "/secret", "alt");
    for (const QString& target : {folder + "/secret", folder + "/not-yet-there"}) {
        ASSERT_TRUE(QFile::link(target, folder + "/plan.json"));
        EXPECT_EQ(failureOf(folder + "/plan.json"),
                  "Impossible d’écrire « " + folder +
                      "/plan.json » : c’est un lien vers un autre fichier");
        EXPECT_EQ(QFileInfo(folder + "/plan.json").symLinkTarget(), target);
        EXPECT_EQ(entriesOf(folder), QStringList({"plan.json", "secret"}));
        QFile::remove(folder + "/plan.json");
    }
    EXPECT_EQ(bytesOrNone(folder + "/secret"), "alt");
}

TEST(WholeFile, isWrittenInAFolderThatALinkLeadsTo)
{
    const QString folder = folderFor("linked-folder");
    QDir(folder).mkdir("here");
    ASSERT_TRUE(QFile::link(folder + "/here", folder + "/there"));
    writeWholeFile(folder + "/there/plan.json", "neu");
    EXPECT_EQ(bytesOrNone(folder + "/here/plan.json"), "neu");
}

TEST(WholeFile, takesNoOtherNameOfTheOldOneAlong)
{
    const QString folder = folderFor("names");
    writeWholeFile(folder + "/other", "alt");
    std::filesystem::create_hard_link((folder + "/other").toStdString(),
                                      (folder + "/plan.json").toStdString());
    writeWholeFile(folder + "/plan.json", "neu");
    EXPECT_EQ(bytesOrNone(folder + "/plan.json"), "neu");
    EXPECT_EQ(bytesOrNone(folder + "/other"), "alt");
}

TEST(WholeFile, takesThePlaceOfPlainFilesOnly)
{
    // A device must stay one, whoever runs the program; a pipe stands for all that is no file.
    const QString folder = folderFor("pipes");
    const QString pipe = folder + "/plan.json";
    ASSERT_EQ(::mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    EXPECT_EQ(failureOf(pipe),
              "Impossible d’écrire « " + pipe + " » : ce n’est pas un fichier ordinaire");
    EXPECT_TRUE(std::filesystem::is_fifo(pipe.toStdString()));
    EXPECT_EQ(entriesOf(folder).size(), 1);
}

TEST(WholeFile, keepsTheRightsOfTheOldOne)
{
    const QString folder = folderFor("rights");
    const auto rights = [&](const QString& name) {
        return std::filesystem::status((folder + name).toStdString()).permissions();
    };
    const auto mask = static_cast<unsigned>(::umask(027));
    writeWholeFile(folder + "/new.json", "neu");
    writeWholeFile(folder + "/old.json", "alt");
    std::filesystem::permissions((folder + "/old.json").toStdString(),
                                 static_cast<std::filesystem::perms>(0606));
    writeWholeFile(folder + "/old.json", "neu");
    static_cast<void>(::umask(mask));
    EXPECT_EQ(rights("/new.json"), static_cast<std::filesystem::perms>(0640));
    EXPECT_EQ(rights("/old.json"), static_cast<std::filesystem::perms>(0606));
    EXPECT_EQ(bytesOrNone(folder + "/old.json"), "neu");
}

TEST(WholeFile, mayHaveTheLongestNameThatThereIs)
{
    const QString folder = folderFor("long");
    const QString path = folder + u'/' + QString(250, u'p') + ".json";
    writeWholeFile(path, "neu");
    EXPECT_EQ(bytesOrNone(path), "neu");
}

TEST(WholeFile, isRefusedWhereThereIsNoFolderOrOneOfItsName)
{
    const QString folder = folderFor("folders");
    EXPECT_TRUE(failureOf(folder + "/absent/plan.json").contains("absent/plan.json"));
    EXPECT_TRUE(failureOf(folder).startsWith("Impossible d’écrire"));
    EXPECT_EQ(entriesOf(folder), QStringList());
}
