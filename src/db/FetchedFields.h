#pragma once

#include "db/OdbcApi.h"
#include "db/RowFields.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace db
{

/// How the fields of a column come from the driver.
struct FieldForm {
    /// Of the column as the driver describes it, an SQL_… code.
    SQLSMALLINT type = SQL_UNKNOWN_TYPE;
    /// What the driver is asked for: SQL_C_CHAR or SQL_C_BINARY (UTF-8), SQL_C_WCHAR (UTF-16) or
    /// SQL_C_BIT.
    SQLSMALLINT cType = SQL_C_WCHAR;

    /// Bytes that the driver adds behind a text to end it.
    [[nodiscard]] std::size_t terminator() const;
};

/// The fields of a result's rows as the driver gave them, one behind the other. They become values
/// when they are asked for: of some thirty fields of most rows of a page only two or three are.
///
/// Fields are text wherever that loses nothing, because SQLite keeps the type of the value and not
/// that of the column: a text in a column declared INTEGER must arrive as that text.
class FetchedFields : public RowFields
{
public:
    FetchedFields(std::shared_ptr<const Columns> columns, std::vector<FieldForm> forms);

    [[nodiscard]] const std::vector<FieldForm>& forms() const { return m_forms; }

    /// Adds bytes to the field that comes next, row by row and column by column.
    void append(const char* bytes, std::size_t count)
    {
        m_bytes.insert(m_bytes.end(), bytes, bytes + count);
    }
    /// Ends that field, whose bytes are all there.
    void end() { m_ends.push_back({m_bytes.size(), false}); }
    /// Ends it as a null.
    void endNull() { m_ends.push_back({m_bytes.size(), true}); }

    [[nodiscard]] Value value(std::size_t row, std::size_t column) const override;

private:
    struct End {
        std::size_t position; ///< behind the field's last byte
        bool isNull;
    };

    std::vector<FieldForm> m_forms; ///< of the columns
    std::vector<char> m_bytes;
    std::vector<End> m_ends;
};

} // namespace db
