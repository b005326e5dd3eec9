#include "app/hall/HallSchedule.h"

#include "paint/ClockLine.h"

namespace app
{
namespace
{

constexpr int kSecondsPerMinute = 60;

/// The page that is due so many seconds after the first one: round and round, also where the clock
/// was put back to before the beginning.
int pageAfter(qint64 seconds, int secondsAPage, int pages)
{
    if (pages < 1) {
        return 0;
    }
    const qint64 round = static_cast<qint64>(secondsAPage) * pages;
    const qint64 within = (seconds % round + round) % round;
    return static_cast<int>(within / secondsAPage);
}

HallPast pastOf(QDate shownDay, QDate today)
{
    if (!shownDay.isValid() || shownDay > today) {
        return HallPast::None;
    }
    return shownDay == today ? HallPast::UntilClock : HallPast::All;
}

} // namespace

HallMoment HallSchedule::at(const QDateTime& now, QDate shownDay, int pages) const
{
    HallMoment moment;
    moment.today = now.date();
    moment.minute = QTime(0, 0).secsTo(now.time()) / kSecondsPerMinute;
    moment.page = pageAfter(m_began.secsTo(now), m_pace.secondsAPage, pages);
    moment.past = pastOf(shownDay, moment.today);
    moment.line = paint::clockMinute(now, shownDay);
    return moment;
}

bool HallSchedule::isReadingDue(const QDateTime& now, const QDateTime& asked) const
{
    if (!asked.isValid() || now.date() != asked.date()) {
        return true;
    }
    const qint64 passed = asked.secsTo(now);
    return passed < 0 || passed >= m_pace.secondsARefresh;
}

} // namespace app
