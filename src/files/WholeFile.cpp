#include "files/WholeFile.h"

#include <QSaveFile>

namespace files
{
namespace
{

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

} // namespace

void writeWholeFile(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    // Unbuffered: what waits in a buffer is written by `commit`, which does not notice a failure.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !writeAll(file, bytes) ||
        !file.commit()) {
        throw ExportError(
            QStringLiteral("Impossible d’écrire « %1 » : %2").arg(path, file.errorString()));
    }
}

} // namespace files
