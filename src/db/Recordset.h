#pragma once

#include "db/Value.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <memory>
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
    QStringList m_names;
    QHash<QString, int> m_positions; ///< of the names as they are spelt
};

/// One row of a result, a plain value that outlives the record set. Copies share the fields, which
/// never change.
class Row
{
public:
    Row(std::shared_ptr<const Columns> columns, std::vector<Value> values);

    /// Error: ItemNotFound when the result has no such column.
    [[nodiscard]] const Value& field(const QString& name) const;
    /// `position` counts from 0. Error: ItemNotFound.
    [[nodiscard]] const Value& field(int position) const;

private:
    std::shared_ptr<const Columns> m_columns;
    std::shared_ptr<const std::vector<Value>> m_values;
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
