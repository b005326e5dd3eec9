#include "db/BoundColumns.h"

namespace db
{
namespace
{

/// What MariaDB's driver cannot put into UTF-16 it leaves out of a bound place without a word, so
/// that the text of a row before stays there; and it never takes back that a bit was null.
bool canBeBound(const FieldForm& form)
{
    return form.cType == SQL_C_CHAR || form.cType == SQL_C_BINARY;
}

} // namespace

// Delegates, so that what was bound is undone when a column is refused.
BoundColumns::BoundColumns(StatementHandle& statement, const std::vector<FieldForm>& forms)
    : BoundColumns(statement)
{
    m_places.resize(forms.size() * kPlace);
    m_lengths.resize(forms.size(), kElsewhere);
    for (std::size_t column = 0; column < forms.size(); ++column) {
        m_capacity.push_back(kPlace - forms[column].terminator());
        if (canBeBound(forms[column])) {
            m_statement.check(SQLBindCol(m_statement.get(), static_cast<SQLUSMALLINT>(column + 1),
                                         forms[column].cType, &m_places[column * kPlace],
                                         static_cast<SQLLEN>(kPlace), &m_lengths[column]));
        }
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
    if (length < 0 || static_cast<std::size_t>(length) > m_capacity[column]) {
        return false;
    }
    fields.append(&m_places[column * kPlace], static_cast<std::size_t>(length));
    fields.end();
    return true;
}

} // namespace db
