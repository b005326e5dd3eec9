#include "shell/Export.h"

#include "shell/CsvExport.h"
#include "shell/HtmlExport.h"
#include "shell/JsonExport.h"
#include "shell/PdfExport.h"
#include "shell/PictureExport.h"

#include <QFileInfo>
#include <QSaveFile>
#include <algorithm>
#include <vector>

namespace shell
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

namespace
{

/// How the plan becomes a file of one form: as it stands, or from pages.
struct Form {
    QString ending;
    QByteArray (*ofShown)(const Shell&) = nullptr;
    QByteArray (*ofPages)(const Shell&, std::vector<plan::PlanPage>) = nullptr;
};

const std::vector<Form>& forms()
{
    static const std::vector<Form> list = {{QStringLiteral("json"), planAsJson, nullptr},
                                           {QStringLiteral("png"), planAsPng, nullptr},
                                           {QStringLiteral("pdf"), nullptr, planAsPdf},
                                           {QStringLiteral("csv"), nullptr, planAsCsv},
                                           {QStringLiteral("html"), nullptr, planAsHtml}};
    return list;
}

const Form& formOf(const QString& ending)
{
    const auto found = std::find_if(forms().begin(), forms().end(),
                                    [&](const Form& form) { return form.ending == ending; });
    return found != forms().end() ? *found : forms().front();
}

std::vector<plan::PlanPage> pagesOf(Shell& shell, bool allPages)
{
    if (allPages) {
        return shell.allPages();
    }
    std::vector<plan::PlanPage> pages;
    pages.push_back(shell.shownPage());
    return pages;
}

} // namespace

const QStringList& exportEndings()
{
    static const QStringList endings = [] {
        QStringList list;
        for (const Form& form : forms()) {
            list.append(form.ending);
        }
        return list;
    }();
    return endings;
}

bool holdsAllPages(const QString& ending)
{
    return formOf(ending).ofPages != nullptr;
}

void exportPlan(Shell& shell, const QString& path, bool allPages)
{
    const Form& form = formOf(QFileInfo(path).suffix().toLower());
    writeWholeFile(path, form.ofPages != nullptr ? form.ofPages(shell, pagesOf(shell, allPages))
                                                 : form.ofShown(shell));
}

} // namespace shell
