#pragma once

#include "files/IcsLines.h"
#include "timetable/TimeSpan.h"

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QTimeZone>
#include <vector>

namespace files
{

/// A time zone as a calendar tells it: each change of its clocks over a stretch of dates, as they
/// really are.
class IcsZone
{
public:
    /// From the first to the last date, both included and valid. An unknown zone is UTC.
    IcsZone(const QTimeZone& zone, QDate first, QDate last);

    /// A start and an end as the zone's clocks show them. Their time spec, UTC, means nothing.
    struct Stretch {
        QDateTime start;
        QDateTime end;
    };
    /// The stretch of a day by the clock. Where the clocks skip its start, all of it is as much
    /// later; where they skip its end, that alone is.
    [[nodiscard]] Stretch stretch(QDate date, const timetable::TimeSpan& time) const;

    /// What a property's name is followed by so that its value is a time of this zone.
    [[nodiscard]] QString parameter() const;
    /// Adds the component VTIMEZONE.
    void write(IcsLines& lines) const;

private:
    /// Seconds. `at` since 1970 in UTC, offsets to the east of Greenwich.
    struct Change {
        qint64 at = 0;
        int before = 0;
        int after = 0;
        bool isDaylight = false;
        QString name;
    };

    void readChangesBefore(const QTimeZone& zone, const QDateTime& from);
    [[nodiscard]] static Change changeOf(const QTimeZone& zone, const QTimeZone::OffsetData& data);
    [[nodiscard]] qint64 skippedAt(qint64 clock) const;

    QString m_id;
    /// The first is before the first date, and no summer time: what that differs from readers know
    /// by it.
    std::vector<Change> m_changes;
};

} // namespace files
