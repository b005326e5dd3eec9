#pragma once

#include <QSettings>
#include <memory>

namespace shell
{

/// The store that keeps the user's settings where this system keeps them. Its groups are the
/// sections of shell::Settings.
[[nodiscard]] std::unique_ptr<QSettings> openUserStore();

} // namespace shell
