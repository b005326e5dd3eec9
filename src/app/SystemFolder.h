#pragma once

#include <QString>

namespace app
{

/// The folder in which the machine's administrator may keep what other machines keep beside the
/// program, such as `app_data`; empty where the system has no such place.
[[nodiscard]] QString systemFolder();

} // namespace app
