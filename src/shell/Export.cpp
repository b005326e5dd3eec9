#include "shell/Export.h"

#include "files/FileFormat.h"
#include "files/WholeFile.h"
#include "plan/FaultWords.h"
#include "shell/HallChoices.h"

#include <algorithm>

namespace shell
{
namespace
{

std::vector<plan::PlanPage> pagesFor(const Shell& shell, const files::FileFormat& format,
                                     bool allPages)
{
    const engine::Engine& engine = shell.engine();
    if (format.holdsPages && allPages) {
        return engine.allPages();
    }
    std::vector<plan::PlanPage> pages;
    pages.push_back(format.holdsPages ? engine.shownPage() : engine.drawnPage());
    return pages;
}

/// All that the pages lack, as one page would tell it.
plan::PlanContent gapsOf(const std::vector<plan::PlanPage>& pages)
{
    plan::PlanContent gaps;
    for (const plan::PlanPage& page : pages) {
        for (const lookup::ReadFault& fault : page.content.faults) {
            if (std::find(gaps.faults.begin(), gaps.faults.end(), fault) == gaps.faults.end()) {
                gaps.faults.push_back(fault);
            }
        }
        gaps.rows.insert(gaps.rows.end(), page.content.rows.begin(), page.content.rows.end());
    }
    return gaps;
}

} // namespace

QString exportPlan(const Shell& shell, const QString& path, ExportChoice choice)
{
    const files::FileFormat& format = *files::formatOf(path);
    files::PlanDocument document{pagesFor(shell, format, choice.allPages), shell.fileDate()};
    if (choice.refresh) {
        document.refresh = {*choice.refresh, QDateTime::currentDateTime()};
        hideAbsences(document.pages);
    }
    const plan::PlanContent gaps = gapsOf(document.pages);
    QString told = plan::faultSentence(gaps, static_cast<qsizetype>(gaps.faults.size()));
    if (lookup::isIncomplete(gaps.faults)) {
        told += u'\n' + plan::faultDetails(gaps);
        if (!choice.allowIncomplete) {
            throw files::ExportError(
                told + QStringLiteral("\nLe fichier « %1 » n’est pas écrit (--allow-incomplete "
                                      "l’écrit tout de même).")
                           .arg(path));
        }
    }
    files::writeWholeFile(path, format.write(document));
    return told;
}

} // namespace shell
