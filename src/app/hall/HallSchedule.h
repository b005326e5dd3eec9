#pragma once

#include "shell/CommandLine.h"

#include <QDate>
#include <QDateTime>
#include <optional>

namespace app
{

/// How much of the shown day lies behind the clock.
enum class HallPast {
    None,       ///< a day that is still to come: the clock was put back
    UntilClock, ///< today
    All,        ///< a day that has ended, and is shown because no other could be read
};

/// What the screen in the hall shows at one moment, as far as the clock decides it.
struct HallMoment {
    QDate today;
    int minute = 0; ///< of the day, since midnight: what the clock says
    int page = 0;   ///< 0 upward
    HallPast past = HallPast::None;
    /// Where the line of the clock stands, in minutes since midnight: on today's plan alone.
    std::optional<int> line;

    friend bool operator==(const HallMoment&, const HallMoment&) = default;
};

/// When the screen in the hall turns its page, reads the database and goes on to another day. It
/// has no clock of its own: whoever asks tells the time.
class HallSchedule
{
public:
    /// `began`: when the first page is first shown.
    HallSchedule(shell::DisplayRequest pace, const QDateTime& began) : m_pace(pace), m_began(began)
    {
    }

    /// Of a plan of `shownDay` on `pages` pages; no valid day: there is no plan so far.
    [[nodiscard]] HallMoment at(const QDateTime& now, QDate shownDay, int pages) const;
    /// Whether the database is to be asked, when it was last asked at `asked`: after the time that
    /// the pace says, at once on another day, and when the clock was put back. `asked` is not valid
    /// before the first time.
    [[nodiscard]] bool isReadingDue(const QDateTime& now, const QDateTime& asked) const;

private:
    shell::DisplayRequest m_pace;
    QDateTime m_began;
};

} // namespace app
