#pragma once

#include <QByteArray>
#include <QString>
#include <functional>

namespace test
{

/// The folder in the build tree where this process's tests keep their files. It is removed when
/// the process ends; what a crashed process left is removed by the next one.
[[nodiscard]] const QString& processFolder();

/// The folder in the build tree that all test processes share.
[[nodiscard]] QString sharedFolder();

/// A folder of that name in the shared one, made once per build tree by the process that asks
/// first: `make` is given the path of a folder that does not exist yet, and fills it. What costs
/// seconds and is the same for all belongs there. Throws std::runtime_error when nobody finishes
/// it.
[[nodiscard]] QString madeOnce(const QString& name,
                               const std::function<void(const QString& path)>& make);

/// What the file holds; nothing where it cannot be read.
[[nodiscard]] QByteArray bytesOf(const QString& path);

/// Writes the text as UTF-8; fails the process when it cannot.
void writeFile(const QString& path, const QString& text);

} // namespace test
