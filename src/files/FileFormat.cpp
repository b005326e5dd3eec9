#include "files/FileFormat.h"

#include "files/CsvExport.h"
#include "files/HtmlExport.h"
#include "files/JsonExport.h"
#include "files/PdfExport.h"
#include "files/PictureExport.h"

#include <QFileInfo>
#include <algorithm>

namespace files
{

const std::vector<FileFormat>& fileFormats()
{
    static const std::vector<FileFormat> formats = {
        {QStringLiteral("json"), false, false, planAsJson},
        {QStringLiteral("png"), false, false, planAsPng},
        {QStringLiteral("pdf"), true, false, planAsPdf},
        {QStringLiteral("csv"), true, false, planAsCsv},
        {QStringLiteral("html"), true, true, planAsHtml}};
    return formats;
}

const FileFormat* formatOf(const QString& path)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    const auto& formats = fileFormats();
    const auto found = std::find_if(formats.begin(), formats.end(), [&](const FileFormat& format) {
        return format.ending == ending;
    });
    return found != formats.end() ? &*found : nullptr;
}

QStringList fileEndings()
{
    QStringList endings;
    for (const FileFormat& format : fileFormats()) {
        endings << format.ending;
    }
    return endings;
}

} // namespace files
