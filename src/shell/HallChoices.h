#pragma once

#include "plan/PlanPage.h"
#include "shell/CommandLine.h"

#include <QDate>
#include <vector>

/// What a plan for everybody's eyes shows, on a screen in a hall or as a web page there.
namespace shell
{

/// The line with that day's date and its make-ups, in week A or B where `weekA`, the setting
/// `SemaineA`, tells the date's; a week that the line names goes before.
[[nodiscard]] CommandLine hallChoices(CommandLine line, QDate day, QDate weekA);

/// The line of a web page that loads itself again: all rooms, on all pages unless it names one, and
/// the choices of a hall for today, unless it names a day or a date.
[[nodiscard]] CommandLine hallPageChoices(CommandLine line, QDate today, QDate weekA);

/// Who was absent is not for everybody to read.
void hideAbsences(std::vector<plan::PlanPage>& pages);

} // namespace shell
