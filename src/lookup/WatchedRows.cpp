#include "lookup/WatchedRows.h"

namespace lookup
{

PageFacts WatchedRows::prepare(const PageQuestions& questions)
{
    PageFacts facts;
    runtime::skipOnError(
        [&] { facts = m_reads.ask({}, [&] { return m_source.prepare(questions); }); });
    return facts;
}

db::Recordset WatchedRows::timetableRows(const RoomQuestion& question)
{
    const QStringList names{question.room, question.seanceKey};
    db::Recordset rows = m_reads.ask(names, [&] { return m_source.timetableRows(question); });
    if (rows.isEmpty()) {
        m_reads.expectHeld(names);
    }
    return rows;
}

int WatchedRows::studentRows(const QString& className)
{
    return m_reads.ask({className}, [&] { return m_source.studentRows(className); });
}

db::Recordset WatchedRows::classRows(const QString& className)
{
    return m_reads.ask({className}, [&] { return m_source.classRows(className); });
}

} // namespace lookup
