#pragma once

#include "db/FetchedFields.h"
#include "db/OdbcHandles.h"
#include "db/Recordset.h"

#include <array>

namespace db
{

class BoundColumns;

/// Reads the rows of an executed statement.
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
    [[nodiscard]] Value readText(SQLUSMALLINT index);

private:
    struct Column {
        QString name;
        SQLSMALLINT type = SQL_UNKNOWN_TYPE;
    };

    [[nodiscard]] Column describe(SQLUSMALLINT index);
    [[nodiscard]] std::shared_ptr<FetchedFields> describeAll();
    void readRow(const BoundColumns* bound, FetchedFields& fields);
    void read(SQLUSMALLINT index, const FieldForm& form, FetchedFields& fields);
    [[nodiscard]] FieldForm formOf(SQLSMALLINT type) const;

    static constexpr std::size_t kBufferBytes = 2048;

    StatementHandle& m_statement;
    alignas(char16_t) std::array<char, kBufferBytes> m_buffer{};
};

} // namespace db
