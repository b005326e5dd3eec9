#include "db/ResultReader.h"

#include "db/BoundColumns.h"

#include <optional>

namespace db
{
namespace
{

/// Binding takes a call for every column: it pays from some rows on.
constexpr std::size_t kRowsBeforeBinding = 4;

} // namespace

Recordset ResultReader::readAll()
{
    if (!m_statement.fetch()) {
        return {};
    }
    const std::shared_ptr<FetchedFields> fields = describeAll();
    std::vector<Row> rows;
    std::optional<BoundColumns> bound;
    do {
        readRow(bound ? &*bound : nullptr, *fields);
        rows.emplace_back(fields, rows.size());
        if (rows.size() == kRowsBeforeBinding && m_statement.connection().rereadsBoundFields()) {
            bound.emplace(m_statement, fields->forms()); // for the next row
        }
    } while (m_statement.fetch());
    return {fields->columns(), std::move(rows)};
}

int ResultReader::countRows()
{
    int count = 0;
    while (m_statement.fetch()) {
        ++count;
    }
    return count;
}

std::shared_ptr<FetchedFields> ResultReader::describeAll()
{
    SQLSMALLINT count = 0;
    m_statement.check(SQLNumResultCols(m_statement.get(), &count));
    QStringList names;
    std::vector<FieldForm> forms;
    for (int index = 1; index <= count; ++index) {
        const Column column = describe(static_cast<SQLUSMALLINT>(index));
        names << column.name;
        forms.push_back(formOf(column.type));
    }
    return std::make_shared<FetchedFields>(std::make_shared<const Columns>(std::move(names)),
                                           std::move(forms));
}

ResultReader::Column ResultReader::describe(SQLUSMALLINT index)
{
    Column column;
    SQLULEN size = 0;
    SQLSMALLINT digits = 0;
    SQLSMALLINT nullable = 0;
    if (m_statement.connection().textForm() == TextForm::Utf8) {
        m_statement.check(SQLDescribeCol(m_statement.get(), index,
                                         reinterpret_cast<SQLCHAR*>(m_buffer.data()),
                                         static_cast<SQLSMALLINT>(kBufferBytes), nullptr,
                                         &column.type, &size, &digits, &nullable));
        column.name = QString::fromUtf8(m_buffer.data());
    } else {
        auto* name = reinterpret_cast<SQLWCHAR*>(m_buffer.data());
        m_statement.check(SQLDescribeColW(m_statement.get(), index, name,
                                          static_cast<SQLSMALLINT>(kBufferBytes / sizeof(SQLWCHAR)),
                                          nullptr, &column.type, &size, &digits, &nullable));
        column.name = QString::fromUtf16(reinterpret_cast<const char16_t*>(name));
    }
    return column;
}

SQLSMALLINT ResultReader::columnType(SQLUSMALLINT index)
{
    return describe(index).type;
}

FieldForm ResultReader::formOf(SQLSMALLINT type) const
{
    return {type, m_statement.connection().product().cTypeOf(type)};
}

/// `bound`: where the driver has put the row, if anywhere.
void ResultReader::readRow(const BoundColumns* bound, FetchedFields& fields)
{
    const std::vector<FieldForm>& forms = fields.forms();
    for (std::size_t column = 0; column < forms.size(); ++column) {
        if (bound == nullptr || !bound->take(column, fields)) {
            read(static_cast<SQLUSMALLINT>(column + 1), forms[column], fields);
        }
    }
}

/// Reads one field piece by piece, whatever its length.
void ResultReader::read(SQLUSMALLINT index, const FieldForm& form, FetchedFields& fields)
{
    const auto capacity = static_cast<SQLLEN>(kBufferBytes - form.terminator());
    for (bool more = true; more;) {
        SQLLEN length = 0;
        const SQLRETURN result = SQLGetData(m_statement.get(), index, form.cType, m_buffer.data(),
                                            static_cast<SQLLEN>(kBufferBytes), &length);
        if (result == SQL_NO_DATA) {
            break;
        }
        m_statement.check(result);
        if (length == SQL_NULL_DATA) {
            fields.endNull();
            return;
        }
        more = length == SQL_NO_TOTAL || length > capacity;
        fields.append(m_buffer.data(), static_cast<std::size_t>(more ? capacity : length));
    }
    fields.end();
}

Value ResultReader::readText(SQLUSMALLINT index)
{
    const FieldForm text = formOf(SQL_WVARCHAR);
    FetchedFields field(std::make_shared<const Columns>(QStringList{QString()}), {text});
    read(index, text, field);
    return field.value(0, 0);
}

} // namespace db
