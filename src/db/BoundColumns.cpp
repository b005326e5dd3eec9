#include "db/BoundColumns.h"

namespace db
{

BoundColumns::BoundColumns(StatementHandle& statement, const std::vector<FieldForm>& forms)
    : m_statement(statement), m_places(forms.size() * kPlace), m_lengths(forms.size())
{
    for (std::size_t column = 0; column < forms.size(); ++column) {
        m_room.push_back(kPlace - forms[column].terminator());
        if (forms[column].cType == SQL_C_BIT) {
            // MariaDB's driver never takes back that a bit was null in a row before.
            m_lengths[column] = kElsewhere;
            continue;
        }
        m_statement.check(SQLBindCol(m_statement.get(), static_cast<SQLUSMALLINT>(column + 1),
                                     forms[column].cType, &m_places[column * kPlace],
                                     static_cast<SQLLEN>(kPlace), &m_lengths[column]));
    }
}

BoundColumns::~BoundColumns()
{
    SQLFreeStmt(m_statement.get(), SQL_UNBIND);
}

bool BoundColumns::take(std::size_t column, FetchedFields& fields) const
{
    const SQLLEN length = m_lengths[column];
    if (length == SQL_NULL_DATA) {
        fields.endNull();
        return true;
    }
    if (length < 0 || static_cast<std::size_t>(length) > m_room[column]) {
        return false;
    }
    fields.append(&m_places[column * kPlace], static_cast<std::size_t>(length));
    fields.end();
    return true;
}

} // namespace db
