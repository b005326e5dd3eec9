#include "lookup/PlainRowSource.h"

namespace lookup
{

db::Recordset PlainRowSource::timetableRows(const RoomQuestion& question)
{
    return m_database.Db().open(question.sql(m_database.dialect()));
}

int PlainRowSource::studentRows(const QString& className)
{
    return m_database.Db().recordCount(QStringLiteral("Select * from etudiant WHERE classe=") +
                                       m_database.dialect().literal(className));
}

db::Recordset PlainRowSource::classRows(const QString& className)
{
    return m_database.Db().open(QStringLiteral("select * from classe Where Nom=") +
                                m_database.dialect().literal(className));
}

} // namespace lookup
