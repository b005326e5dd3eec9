#include "files/WholeFile.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSaveFile>
#include <filesystem>
#include <system_error>

namespace files
{
namespace
{

[[noreturn]] void refuse(const QString& path, const QString& reason)
{
    throw ExportError(QStringLiteral("Impossible d’écrire « %1 » : %2").arg(path, reason));
}

/// What stands in the way of a file of that name; empty when nothing does.
QString obstacle(const QFileInfo& there)
{
    if (there.isSymLink()) {
        return QStringLiteral("c’est un lien vers un autre fichier");
    }
    if (there.exists() && !there.isFile()) {
        return QStringLiteral("ce n’est pas un fichier ordinaire");
    }
    if (there.exists() && !there.isWritable()) {
        return QStringLiteral("le fichier est protégé en écriture");
    }
    return {};
}

/// Whether all bytes have reached the file. A disk that is full takes a part of them first and
/// tells its reason at the next attempt.
bool writeAll(QSaveFile& file, const QByteArray& bytes)
{
    qint64 written = 0;
    while (written < bytes.size()) {
        const qint64 count = file.write(bytes.constData() + written, bytes.size() - written);
        if (count <= 0) {
            return false;
        }
        written += count;
    }
    return true;
}

/// A name in the same folder that nobody can foresee.
QString nameBeside(const QFileInfo& there)
{
    return there.path() + QStringLiteral("/.tempora-") +
           QString::number(QRandomGenerator::system()->generate64(), 36);
}

} // namespace

void writeWholeFile(const QString& path, const QByteArray& bytes)
{
    const QFileInfo there(path);
    if (const QString reason = obstacle(there); !reason.isEmpty()) {
        refuse(path, reason);
    }
    // Under its own name QSaveFile would follow a link that has come there in the meantime.
    const QString beside = nameBeside(there);
    QSaveFile file(beside);
    // Unbuffered: what waits in a buffer is written by `commit`, which does not notice a failure.
    bool written = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    if (written && there.exists()) {
        file.setPermissions(there.permissions()); // not every file system knows any
    }
    written = written && writeAll(file, bytes) && file.commit();
    if (!written) {
        refuse(path, file.errorString());
    }
    std::error_code fault;
    std::filesystem::rename(QFileInfo(beside).filesystemFilePath(), there.filesystemFilePath(),
                            fault);
    if (fault) {
        QFile::remove(beside);
        refuse(path, QString::fromLocal8Bit(fault.message().c_str()));
    }
}

} // namespace files
