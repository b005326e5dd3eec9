#pragma once

#include "db/Value.h"

#include <QString>
#include <QStringList>
#include <cstddef>
#include <memory>
#include <unordered_map>
#include <vector>

namespace db
{

/// The names of a result's columns, shared by all that was read from it. A name is found whatever
/// its case, accents included: `matière` finds "Matière".
class Columns
{
public:
    explicit Columns(QStringList names);

    /// Position of the column, 0 upward. Error: ItemNotFound.
    [[nodiscard]] int position(const QString& name) const;
    [[nodiscard]] int count() const { return static_cast<int>(m_names.size()); }
    [[nodiscard]] const QStringList& names() const { return m_names; }

private:
    /// Looks at a name's length and ends alone: a page asks for names thousands of times, and to
    /// hash them whole took a sixteenth of a refresh. The few of a table seldom agree in these.
    struct QuickHash {
        [[nodiscard]] std::size_t operator()(const QString& name) const;
    };

    QStringList m_names;
    std::unordered_map<QString, int, QuickHash> m_positions; ///< of the names as they are spelt
};

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

/// A static client-side record set: all rows are read when it is opened, so its count is known,
/// and later changes in the database do not show.
class Recordset
{
public:
    Recordset() = default; ///< No rows
    Recordset(std::shared_ptr<const Columns> columns, std::vector<Row> rows);

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
