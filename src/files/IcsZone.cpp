#include "files/IcsZone.h"

#include <algorithm>
#include <cstdlib>

namespace files
{
namespace
{

constexpr int kMinute = 60; // seconds
constexpr int kHour = 60 * kMinute;

QDateTime utc(qint64 seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
}

/// "+0100"; of an offset that is no whole minute "+000921".
QString offsetText(int offset)
{
    const int length = std::abs(offset);
    const auto twoDigits = [](int number) {
        return QStringLiteral("%1").arg(number, 2, 10, QChar(u'0'));
    };
    const int seconds = length % kMinute;
    return (offset < 0 ? u'-' : u'+') + twoDigits(length / kHour) +
           twoDigits(length % kHour / kMinute) + (seconds != 0 ? twoDigits(seconds) : QString());
}

} // namespace

IcsZone::IcsZone(const QTimeZone& zone, QDate first, QDate last)
{
    const QTimeZone known = zone.isValid() ? zone : QTimeZone::utc();
    m_id = QString::fromUtf8(known.id());
    constexpr int margin = 2; // days: a zone's dates are at most one day off those of UTC
    const QDateTime from = first.addDays(-margin).startOfDay(Qt::UTC);
    readChangesBefore(known, from);
    for (const auto& data : known.transitions(from, last.addDays(margin).startOfDay(Qt::UTC))) {
        m_changes.push_back(changeOf(known, data));
    }
}

IcsZone::Change IcsZone::changeOf(const QTimeZone& zone, const QTimeZone::OffsetData& data)
{
    return {data.atUtc.toSecsSinceEpoch(), zone.offsetFromUtc(data.atUtc.addSecs(-1)),
            data.offsetFromUtc, data.daylightTimeOffset != 0, data.abbreviation};
}

void IcsZone::readChangesBefore(const QTimeZone& zone, const QDateTime& from)
{
    QDateTime latest = from;
    while (m_changes.empty() || m_changes.front().isDaylight) {
        const QTimeZone::OffsetData data = zone.previousTransition(latest);
        if (!data.atUtc.isValid()) {
            break;
        }
        m_changes.insert(m_changes.begin(), changeOf(zone, data));
        latest = data.atUtc;
    }
    if (m_changes.empty()) {                         // the clocks have never been changed
        const int offset = zone.offsetFromUtc(from); // the offset data of UTC itself is not valid
        const qint64 since = std::min<qint64>(0, from.toSecsSinceEpoch());
        m_changes.push_back({since - offset, offset, offset, false, zone.abbreviation(from)});
    }
}

/// How long a stretch of time the clocks leave out that holds this time; 0 where they show it.
qint64 IcsZone::skippedAt(qint64 clock) const
{
    for (const Change& change : m_changes) {
        if (clock >= change.at + change.before && clock < change.at + change.after) {
            return change.after - change.before;
        }
    }
    return 0;
}

IcsZone::Stretch IcsZone::stretch(QDate date, const timetable::TimeSpan& time) const
{
    const qint64 midnight = date.startOfDay(Qt::UTC).toSecsSinceEpoch();
    qint64 start = midnight + qint64(time.start.value) * kMinute;
    start += skippedAt(start);
    qint64 end = start + qint64(time.length.value) * kMinute;
    end += skippedAt(end);
    return {utc(start), utc(end)};
}

QString IcsZone::parameter() const
{
    const bool needsQuotes =
        m_id.contains(u',') || m_id.contains(u';') || m_id.contains(u':'); // a rule, not a name
    return QStringLiteral(";TZID=") + (needsQuotes ? u'"' + m_id + u'"' : m_id);
}

void IcsZone::write(IcsLines& lines) const
{
    lines.add(QStringLiteral("BEGIN"), QStringLiteral("VTIMEZONE"));
    lines.addText(QStringLiteral("TZID"), m_id);
    for (const Change& change : m_changes) {
        const QString kind =
            change.isDaylight ? QStringLiteral("DAYLIGHT") : QStringLiteral("STANDARD");
        lines.add(QStringLiteral("BEGIN"), kind);
        lines.add(QStringLiteral("DTSTART"),
                  utc(change.at + change.before).toString(QStringLiteral("yyyyMMdd'T'HHmmss")));
        lines.add(QStringLiteral("TZOFFSETFROM"), offsetText(change.before));
        lines.add(QStringLiteral("TZOFFSETTO"), offsetText(change.after));
        lines.addText(QStringLiteral("TZNAME"), change.name);
        lines.add(QStringLiteral("END"), kind);
    }
    lines.add(QStringLiteral("END"), QStringLiteral("VTIMEZONE"));
}

} // namespace files
