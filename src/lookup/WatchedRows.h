#pragma once

#include "lookup/PageReads.h"
#include "lookup/RowSource.h"

namespace lookup
{

/// Answers as another source does, and tells the page what got no answer. A room whose name a
/// statement cannot hold is not found free: its question was another one.
class WatchedRows : public RowSource
{
public:
    /// Both outlive this source.
    WatchedRows(RowSource& source, PageReads& reads) : m_source(source), m_reads(reads) {}

    /// Raises no error: it is noted.
    PageFacts prepare(const PageQuestions& questions) override;
    /// Error: StatementRefused, too, where a name cannot be asked about.
    [[nodiscard]] db::Recordset timetableRows(const RoomQuestion& question) override;
    [[nodiscard]] int studentRows(const QString& className) override;
    [[nodiscard]] db::Recordset classRows(const QString& className) override;
    void noteUnreadable(const runtime::RunTimeError& error) override { m_reads.note({}, error); }

private:
    RowSource& m_source;
    PageReads& m_reads;
};

} // namespace lookup
