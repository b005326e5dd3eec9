#include "shell/Export.h"

#include "files/FileFormat.h"
#include "files/WholeFile.h"

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

} // namespace

void exportPlan(const Shell& shell, const QString& path, bool allPages)
{
    const files::FileFormat& format = *files::formatOf(path);
    files::writeWholeFile(path,
                          format.write({pagesFor(shell, format, allPages), shell.fileDate()}));
}

} // namespace shell
