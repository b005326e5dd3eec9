#include "lookup/PlainRowSource.h"

#include "lookup/ClassStatements.h"

namespace lookup
{

db::Recordset PlainRowSource::timetableRows(const RoomQuestion& question)
{
    return m_database.Db().open(question.sql(m_database.dialect()));
}

int PlainRowSource::studentRows(const QString& className)
{
    return m_database.Db().recordCount(studentsSql(className, m_database.dialect()));
}

db::Recordset PlainRowSource::classRows(const QString& className)
{
    return m_database.Db().open(classSql(className, m_database.dialect()));
}

} // namespace lookup
