#pragma once

#include "db/Columns.h"
#include "db/Value.h"

#include <cstddef>
#include <memory>
#include <utility>

namespace db
{

/// Where the fields of a result's rows are kept.
class RowFields
{
public:
    explicit RowFields(std::shared_ptr<const Columns> columns) : m_columns(std::move(columns)) {}
    virtual ~RowFields() = default;
    RowFields(const RowFields&) = delete;
    RowFields& operator=(const RowFields&) = delete;

    [[nodiscard]] const std::shared_ptr<const Columns>& columns() const { return m_columns; }
    /// Row and column count from 0 and are there.
    [[nodiscard]] virtual Value value(std::size_t row, std::size_t column) const = 0;

private:
    std::shared_ptr<const Columns> m_columns;
};

} // namespace db
