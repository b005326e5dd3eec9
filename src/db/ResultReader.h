#pragma once

#include "db/OdbcHandles.h"
#include "db/Recordset.h"

#include <array>

namespace db
{

/// Reads the rows of an executed statement as values.
///
/// Fields are read as text wherever that loses nothing, because SQLite keeps the type of the value
/// and not that of the column: a text in a column declared INTEGER must arrive as that text.
class ResultReader
{
public:
    explicit ResultReader(StatementHandle& statement) : m_statement(statement) {}

    /// All rows from the current position on.
    [[nodiscard]] Recordset readAll();
    /// How many rows follow, without reading their fields.
    [[nodiscard]] int countRows();
    /// Type of the column as the driver describes it, an SQL_… code. `index` counts from 1.
    [[nodiscard]] SQLSMALLINT columnType(SQLUSMALLINT index);
    /// The field of the current row as text; null stays null. `index` counts from 1; fields are
    /// read in ascending order, each once.
    [[nodiscard]] Value readText(SQLUSMALLINT index) { return readText(index, SQL_WVARCHAR); }

private:
    struct Column {
        QString name;
        SQLSMALLINT type = SQL_UNKNOWN_TYPE;
    };

    [[nodiscard]] int columnCount();
    [[nodiscard]] Column describe(SQLUSMALLINT index);
    [[nodiscard]] Value read(SQLUSMALLINT index, SQLSMALLINT type);
    [[nodiscard]] Value readBit(SQLUSMALLINT index);
    [[nodiscard]] Value readText(SQLUSMALLINT index, SQLSMALLINT type);
    [[nodiscard]] SQLSMALLINT cTypeForText(SQLSMALLINT type) const;

    static constexpr std::size_t bufferUnits = 1024;

    StatementHandle& m_statement;
    std::array<char16_t, bufferUnits> m_wideBuffer{};
    std::array<char, 2 * bufferUnits> m_narrowBuffer{};
};

} // namespace db
