#pragma once

#include "db/Row.h"

#include <memory>
#include <utility>
#include <vector>

namespace db
{

/// A static client-side record set: all rows are read when it is opened, so its count is known,
/// and later changes in the database do not show.
class Recordset
{
public:
    Recordset() = default; ///< No rows
    Recordset(std::shared_ptr<const Columns> columns, std::vector<Row> rows)
        : m_columns(std::move(columns)), m_rows(std::move(rows))
    {
    }

    [[nodiscard]] bool isEmpty() const { return m_rows.empty(); }
    [[nodiscard]] int recordCount() const { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] const std::vector<Row>& rows() const { return m_rows; }
    /// Requires: not empty.
    [[nodiscard]] const Row& first() const { return m_rows.front(); }
    /// Null when there are no rows: the columns of an empty result are not asked for, which most
    /// lookups of a refresh would pay for in vain.
    [[nodiscard]] const std::shared_ptr<const Columns>& columns() const { return m_columns; }

private:
    std::shared_ptr<const Columns> m_columns;
    std::vector<Row> m_rows;
};

} // namespace db
