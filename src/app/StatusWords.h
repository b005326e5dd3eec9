#pragma once

#include <QString>

namespace shell
{
class Shell;
}

/// What the line below the plan says of dates.
namespace app
{

/// Which week A or B the shown date lies in; empty where nobody knows.
[[nodiscard]] QString weekShownWords(shell::Shell& shell);

/// The date that the gestures mark: that of the drawn boxes, not always the picker's. Empty without
/// a box.
[[nodiscard]] QString markedDayWords(shell::Shell& shell);

} // namespace app
