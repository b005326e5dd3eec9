#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace app
{

/// Asks which file to save into, in a dialog of that title that proposes a name. `endings`: those
/// that can be written, in small letters and without the dot, the first chosen to begin with. A
/// name typed with none of them gets the chosen one. A file that is there is replaced only if the
/// user agrees. Empty when turned down.
[[nodiscard]] QString askWhereToSave(QWidget* window, const QString& title, const QString& proposed,
                                     const QStringList& endings);

} // namespace app
