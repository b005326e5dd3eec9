// Settings files: what is read of any, and that what is saved is read again.
#include "shell/Settings.h"

#include "fuzz/Input.h"
#include "fuzz/MemoryFile.h"
#include "fuzz/Require.h"
#include "fuzz/Texts.h"
#include "runtime/RunTimeError.h"
#include "shell/DatabaseChoice.h"

#include <QFileInfo>
#include <QTemporaryDir>

using fuzz::require;
using runtime::RunTimeError;
using shell::Settings;

namespace
{

/// The database that the settings choose: what is read of the two others is in the harness
/// Connecting.
void checkChoice(const Settings& settings)
{
    const shell::DatabaseChoice choice =
        shell::chooseDatabase(settings, false, {QStringLiteral("/app"), {}});
    require(choice.strings.ConnectString.startsWith(u"DSN="), "a data source is opened",
            choice.strings.ConnectString);
    require(!choice.nameInMessages().contains(u';'), "messages name the data source alone",
            choice.nameInMessages());
    try {
        static_cast<void>(shell::chooseDatabase(settings, true, {QStringLiteral("/nowhere"), {}}));
        require(false, "there is no PHP file");
    } catch (const RunTimeError& error) {
        require(error.number() == runtime::ErrorNumber::FileNotFound, "the PHP file is missing",
                error.message());
    }
}

void checkAnyFile(fuzz::MemoryFile& file, const QByteArray& bytes)
{
    file.write(bytes);
    try {
        const Settings settings = Settings::fromFile(file.path());
        for (const char* key : {"Base", "Path", "Tranche", "Palette", "Salle\\1", "", "é/x"}) {
            const QString text = settings.get(QString::fromUtf8(key), QStringLiteral("?"));
            require(text.size() <= 2 * bytes.size() + 1, "a value is as long as its line", text);
        }
        checkChoice(settings);
    } catch (const RunTimeError& error) {
        require(error.number() == runtime::ErrorNumber::InvalidFileFormat ||
                    error.number() == runtime::ErrorNumber::InvalidProcedureCall,
                "a file is read or no file of settings", error.message());
    }
}

/// A value that somebody has written with commas and no quotes is read as it looks.
void checkList(fuzz::MemoryFile& file, fuzz::Input& input)
{
    QStringList words{QStringLiteral("a")};
    while (!input.isAtEnd()) {
        QString word = input.text();
        word.removeIf([](QChar character) { // an expression would find nothing in half a pair
            return character.unicode() > 0x7f || !character.isLetterOrNumber();
        });
        words << word;
    }
    file.write("[Settings]\nBase=" + words.join(u',').toLatin1() + '\n');
    const QString read =
        Settings::fromFile(file.path()).get(QStringLiteral("Base"), QStringLiteral("?"));
    require(read == words.join(QStringLiteral(", ")), "commas stay", words.join(u','), read);
}

/// Keys are the program's own; values are what a user has chosen or typed.
void checkSaved(const QTemporaryDir& folder, fuzz::Input& input)
{
    const QString path = folder.filePath(QStringLiteral("fuzz.ini"));
    const QStringList keys{QStringLiteral("Base"), QStringLiteral("Palette"),
                           QStringLiteral("Nom complet")};
    QStringList values;
    {
        Settings settings = Settings::fromFile(path);
        for (const QString& key : keys) {
            values << fuzz::throughUtf8(input.text());
            settings.save(key, values.last());
        }
    }
    const Settings settings = Settings::fromFile(path);
    for (qsizetype index = 0; index < keys.size(); ++index) {
        const QString read = settings.get(keys[index], QStringLiteral("?"));
        require(read == values[index], "what is saved is read again", values[index], read);
    }
    QFile::remove(path);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static fuzz::MemoryFile file;
    // In memory, where the system has a folder for that: saving waits for the disk.
    static const QTemporaryDir folder(QFileInfo(QStringLiteral("/dev/shm")).isWritable()
                                          ? QStringLiteral("/dev/shm/fuzz-XXXXXX")
                                          : QStringLiteral("fuzz-XXXXXX"));
    fuzz::Input input(data, size);
    const QByteArray bytes = input.bytes();
    if (bytes == "save") {
        checkSaved(folder, input);
    } else if (bytes == "list") {
        checkList(file, input);
    } else {
        checkAnyFile(file, bytes);
    }
    return 0;
}
