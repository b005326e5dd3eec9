#pragma once

#include "db/RowFields.h"

#include <QString>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace db
{

/// One row of a result, a plain value that outlives the record set. Copies share the fields, which
/// never change.
class Row
{
public:
    Row(std::shared_ptr<const RowFields> fields, std::size_t row)
        : m_fields(std::move(fields)), m_row(row)
    {
    }
    /// A row of its own, with a value for each column.
    Row(std::shared_ptr<const Columns> columns, std::vector<Value> values);

    /// Error: ItemNotFound when the result has no such column.
    [[nodiscard]] Value field(const QString& name) const;
    /// `position` counts from 0. Error: ItemNotFound.
    [[nodiscard]] Value field(int position) const;

private:
    std::shared_ptr<const RowFields> m_fields;
    std::size_t m_row;
};

} // namespace db
