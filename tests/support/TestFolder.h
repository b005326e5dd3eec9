#pragma once

#include <QString>

namespace test
{

/// The folder in the build tree where this process's tests keep their files. It is removed when
/// the process ends; what a crashed process left is removed by the next one.
[[nodiscard]] const QString& processFolder();

/// The folder in the build tree that all test processes share.
[[nodiscard]] QString sharedFolder();

/// Writes the text as UTF-8; fails the process when it cannot.
void writeFile(const QString& path, const QString& text);

} // namespace test
