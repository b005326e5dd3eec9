#include "shell/Export.h"

#include "shell/JsonExport.h"
#include "shell/PictureExport.h"

#include <QFileInfo>
#include <QSaveFile>

namespace shell
{

void writeWholeFile(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    if (!written) {
        throw ExportError(
            QStringLiteral("Impossible d’écrire « %1 » : %2").arg(path, file.errorString()));
    }
}

void exportPlan(const Shell& shell, const QString& path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    writeWholeFile(path, suffix == u"png" ? planAsPng(shell) : planAsJson(shell));
}

} // namespace shell
