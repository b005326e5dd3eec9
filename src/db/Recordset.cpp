#include "db/Recordset.h"

#include "runtime/RunTimeError.h"

namespace db
{

Row::Row(std::shared_ptr<const Columns> columns, std::vector<Value> values)
    : m_columns(std::move(columns)),
      m_values(std::make_shared<const std::vector<Value>>(std::move(values)))
{
}

const Value& Row::field(const QString& name) const
{
    return field(m_columns->position(name));
}

const Value& Row::field(int position) const
{
    if (position < 0 || static_cast<std::size_t>(position) >= m_values->size()) {
        throw runtime::RunTimeError(runtime::ErrorNumber::ItemNotFound);
    }
    return (*m_values)[static_cast<std::size_t>(position)];
}

Recordset::Recordset(std::shared_ptr<const Columns> columns, std::vector<Row> rows)
    : m_columns(std::move(columns)), m_rows(std::move(rows))
{
}

} // namespace db
