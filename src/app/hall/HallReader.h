#pragma once

#include "app/hall/HallPlan.h"
#include "shell/CommandLine.h"
#include "shell/Shell.h"

#include <functional>
#include <memory>

namespace app
{

/// Reads the plan of a day with all rooms, by a program of its own beside the window's: other
/// settings, another connection, nothing saved. It may be asked on any thread, on one at a time.
class HallReader
{
public:
    /// Makes a program that has not started up.
    using Open = std::function<std::unique_ptr<shell::Shell>()>;

    /// `choices`: period, mode, zone and what else the command line asks for. Day, make-ups, and
    /// unless it names one the week A or B, go with the day that is read.
    HallReader(Open open, shell::CommandLine choices);

    /// The plan of the day that `now` lies in, `roomsAPage` rooms on a page where the choices ask
    /// for no other number. A new day starts the program anew: slots, period and settings may have
    /// changed over night. Nobody is told who was absent. Errors: db::DatabaseError where the
    /// database does not answer at all; those of start-up; shell::UsageError.
    [[nodiscard]] HallPlan read(const QDateTime& now, int roomsAPage);

private:
    void startUp(QDate day);

    Open m_open;
    shell::CommandLine m_choices;
    std::unique_ptr<shell::Shell> m_shell; ///< null until it has started up
    QDate m_day;                           ///< that it shows
};

/// The choices of a window that a screen in the hall can share: period, mode, rooms, what boxes
/// show.
[[nodiscard]] shell::CommandLine hallChoicesOf(const form::PlanForm& form);

} // namespace app
