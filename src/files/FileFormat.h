#pragma once

#include "files/PlanDocument.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

namespace files
{

/// A form in which the plan becomes a file.
struct FileFormat {
    /// Ending of the file's name, in lower case.
    QString ending;
    /// Made from pages that are looked up anew, as paper is, and of as many as there are; else from
    /// the one page as it is drawn.
    bool holdsPages = false;
    /// Can load itself again (PlanDocument::SelfRefresh).
    bool refreshes = false;
    QByteArray (*write)(const PlanDocument&) = nullptr;
};

/// All of them.
[[nodiscard]] const std::vector<FileFormat>& fileFormats();
/// The one that the file's name asks for, whatever the case of its ending; null for any other.
[[nodiscard]] const FileFormat* formatOf(const QString& path);
/// The endings, for words such as ".json|.png".
[[nodiscard]] QStringList fileEndings();

} // namespace files
