#pragma once

#include "db/Connection.h"
#include "timetable/MeetingFields.h"

#include <QString>
#include <cstddef>
#include <cstdint>

namespace timetable
{

/// Whoever takes the rows.
class MeetingTaker
{
public:
    virtual ~MeetingTaker() = default;
    /// So many rows are to come.
    virtual void expect(std::size_t rows) = 0;
    /// The next row; the views end with the call.
    virtual void take(const MeetingTexts& texts) = 0;
};

/// The rows of a period in one of the tables of meetings.
class MeetingRows
{
public:
    MeetingRows(db::Connection& connection, std::int32_t period, MeetingKind kind)
        : m_connection(connection), m_period(period), m_kind(kind)
    {
    }

    /// Each row as one text, which is two to three times as quick. Tells whether that went well: it
    /// does not where the table lacks a column, the database does not know how, or a text does not
    /// come through. Rows that were taken by then do not count.
    /// Errors: TableMissing, DatabaseFailure.
    [[nodiscard]] bool readPacked(MeetingTaker& taker);
    /// All columns that the table has. Errors: any of the database; ItemNotFound where there are
    /// rows and the table lacks a column that is indispensable (see `isIndispensable`).
    void readAll(MeetingTaker& taker);

private:
    [[nodiscard]] QString source() const;

    db::Connection& m_connection;
    std::int32_t m_period;
    MeetingKind m_kind;
};

} // namespace timetable
