#pragma once

#include "db/Recordset.h"
#include "lookup/PageQuestions.h"
#include "lookup/RoomQuestion.h"
#include "runtime/RunTimeError.h"

#include <QString>

namespace lookup
{

/// Who answers the plan's questions about timetable rows and class sizes. Which rows match is
/// always left to the database.
class RowSource
{
public:
    virtual ~RowSource() = default;

    /// Told of all questions of a page before the first is asked: a source may fetch the answers
    /// ahead. Whatever it could not fetch it is asked for all the same.
    /// Errors: those that concern all reads (db::concernsAllReads); nothing more need be asked.
    virtual PageFacts prepare(const PageQuestions& /*questions*/) { return {}; }

    /// The timetable rows of a room in a slot, in the database's own order.
    /// Error: any database error.
    [[nodiscard]] virtual db::Recordset timetableRows(const RoomQuestion& question) = 0;
    /// How many students are registered in the class. Error: any database error.
    [[nodiscard]] virtual int studentRows(const QString& className) = 0;
    /// The rows that describe the class. Error: any database error.
    [[nodiscard]] virtual db::Recordset classRows(const QString& className) = 0;

    /// Told of a row that it has brought and that does not say what its box shows.
    virtual void noteUnreadable(const runtime::RunTimeError& /*error*/) {}
};

} // namespace lookup
