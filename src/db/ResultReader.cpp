#include "db/ResultReader.h"

#include <QRegularExpression>

namespace db
{
namespace
{

/// The number that a text is as a whole, or the text itself.
Value integerOrText(const QString& text)
{
    bool ok = false;
    const qlonglong integer = text.toLongLong(&ok);
    if (ok) {
        return Value(std::int64_t{integer});
    }
    const double real = text.toDouble(&ok);
    return ok ? Value(real) : Value(text);
}

Value realOrText(const QString& text)
{
    bool ok = false;
    const double real = text.toDouble(&ok);
    return ok ? Value(real) : Value(text);
}

Value booleanOrText(const QString& text)
{
    bool ok = false;
    const qlonglong integer = text.toLongLong(&ok);
    return ok ? Value(integer != 0) : Value(text);
}

/// A date, also where the column holds times and this one is midnight, as all dates of Access are.
Value dateOrText(const QString& text)
{
    static const QRegularExpression form(
        QStringLiteral("^([0-9]{4}-[0-9]{2}-[0-9]{2})(?: 00:00:00(?:\\.0*)?)?\\z"));
    const QRegularExpressionMatch match = form.match(text);
    const QDate date = QDate::fromString(match.captured(1), Qt::ISODate);
    return date.isValid() ? Value(date) : Value(text);
}

Value valueOfType(const QString& text, SQLSMALLINT type)
{
    switch (type) {
    case SQL_BIT:
        return booleanOrText(text);
    case SQL_TINYINT:
    case SQL_SMALLINT:
    case SQL_INTEGER:
    case SQL_BIGINT:
        return integerOrText(text);
    case SQL_REAL:
    case SQL_FLOAT:
    case SQL_DOUBLE:
    case SQL_DECIMAL:
    case SQL_NUMERIC:
        return realOrText(text);
    case SQL_DATE: // the two of ODBC 2
    case SQL_TIMESTAMP:
    case SQL_TYPE_DATE:
    case SQL_TYPE_TIMESTAMP:
        return dateOrText(text);
    default:
        return Value(text);
    }
}

/// Reads one field piece by piece, whatever its length: `append` gets each piece and whether more
/// may follow. False when it is null.
template <typename Unit, std::size_t Size, typename Append>
bool readPieces(StatementHandle& statement, SQLUSMALLINT index, SQLSMALLINT cType,
                std::array<Unit, Size>& buffer, Append append)
{
    const std::size_t terminator = cType == SQL_C_BINARY ? 0 : 1;
    const SQLLEN roomForText = static_cast<SQLLEN>((Size - terminator) * sizeof(Unit));
    for (bool first = true;; first = false) {
        SQLLEN length = 0;
        const SQLRETURN result = SQLGetData(statement.get(), index, cType, buffer.data(),
                                            static_cast<SQLLEN>(Size * sizeof(Unit)), &length);
        if (result == SQL_NO_DATA) {
            return true;
        }
        statement.check(result);
        if (first && length == SQL_NULL_DATA) {
            return false;
        }
        const bool more = length == SQL_NO_TOTAL || length > roomForText;
        const SQLLEN bytes = more ? roomForText : length;
        append(buffer.data(), static_cast<qsizetype>(bytes) / static_cast<qsizetype>(sizeof(Unit)),
               more);
        if (!more) {
            return true;
        }
    }
}

} // namespace

Recordset ResultReader::readAll()
{
    if (!m_statement.fetch()) {
        return {};
    }
    std::vector<SQLSMALLINT> types;
    QStringList names;
    const int count = columnCount();
    for (int i = 1; i <= count; ++i) {
        const Column column = describe(static_cast<SQLUSMALLINT>(i));
        names << column.name;
        types.push_back(column.type);
    }
    const auto columns = std::make_shared<const Columns>(std::move(names));
    std::vector<Row> rows;
    do {
        std::vector<Value> values;
        values.reserve(types.size());
        for (std::size_t i = 0; i < types.size(); ++i) {
            values.push_back(read(static_cast<SQLUSMALLINT>(i + 1), types[i]));
        }
        rows.emplace_back(columns, std::move(values));
    } while (m_statement.fetch());
    return {columns, std::move(rows)};
}

int ResultReader::countRows()
{
    int count = 0;
    while (m_statement.fetch()) {
        ++count;
    }
    return count;
}

int ResultReader::columnCount()
{
    SQLSMALLINT count = 0;
    m_statement.check(SQLNumResultCols(m_statement.get(), &count));
    return count;
}

ResultReader::Column ResultReader::describe(SQLUSMALLINT index)
{
    Column column;
    SQLULEN size = 0;
    SQLSMALLINT digits = 0;
    SQLSMALLINT nullable = 0;
    if (m_statement.connection().textForm() == TextForm::Utf8) {
        m_statement.check(SQLDescribeCol(m_statement.get(), index,
                                         reinterpret_cast<SQLCHAR*>(m_narrowBuffer.data()),
                                         static_cast<SQLSMALLINT>(m_narrowBuffer.size()), nullptr,
                                         &column.type, &size, &digits, &nullable));
        column.name = QString::fromUtf8(m_narrowBuffer.data());
    } else {
        m_statement.check(SQLDescribeColW(m_statement.get(), index,
                                          reinterpret_cast<SQLWCHAR*>(m_wideBuffer.data()),
                                          static_cast<SQLSMALLINT>(m_wideBuffer.size()), nullptr,
                                          &column.type, &size, &digits, &nullable));
        column.name = QString::fromUtf16(m_wideBuffer.data());
    }
    return column;
}

SQLSMALLINT ResultReader::columnType(SQLUSMALLINT index)
{
    return describe(index).type;
}

Value ResultReader::read(SQLUSMALLINT index, SQLSMALLINT type)
{
    // A server's BIT column read as text is a raw byte; SQLite's is what was stored there.
    if (type == SQL_BIT && m_statement.connection().product() != Product::Sqlite) {
        return readBit(index);
    }
    Value text = readText(index, type);
    return text.isNull() ? text : valueOfType(text.toText(), type);
}

Value ResultReader::readBit(SQLUSMALLINT index)
{
    unsigned char bit = 0;
    SQLLEN length = 0;
    m_statement.check(SQLGetData(m_statement.get(), index, SQL_C_BIT, &bit, sizeof(bit), &length));
    return length == SQL_NULL_DATA ? Value() : Value(bit != 0);
}

/// SQLite's driver speaks UTF-8. A server's driver gives numbers and dates in characters that are
/// the same in every character set; texts it gives as the bytes that the server sent, where these
/// are known to be UTF-8.
SQLSMALLINT ResultReader::cTypeForText(SQLSMALLINT type) const
{
    const ConnectionHandle& connection = m_statement.connection();
    if (connection.textForm() == TextForm::Utf8) {
        return SQL_C_CHAR;
    }
    if (!connection.sendsUtf8()) {
        return SQL_C_WCHAR;
    }
    switch (type) {
    case SQL_CHAR:
    case SQL_VARCHAR:
    case SQL_LONGVARCHAR:
    case SQL_WCHAR:
    case SQL_WVARCHAR:
    case SQL_WLONGVARCHAR:
        return SQL_C_BINARY;
    case SQL_TINYINT:
    case SQL_SMALLINT:
    case SQL_INTEGER:
    case SQL_BIGINT:
    case SQL_REAL:
    case SQL_FLOAT:
    case SQL_DOUBLE:
    case SQL_DECIMAL:
    case SQL_NUMERIC:
    case SQL_TYPE_DATE:
    case SQL_TYPE_TIMESTAMP:
        return SQL_C_CHAR;
    default:
        return SQL_C_WCHAR;
    }
}

Value ResultReader::readText(SQLUSMALLINT index, SQLSMALLINT type)
{
    const SQLSMALLINT cType = cTypeForText(type);
    if (cType != SQL_C_WCHAR) {
        // Decoded as a whole: a piece may end within a character.
        QByteArray pieces;
        QString text;
        const bool there = readPieces(m_statement, index, cType, m_narrowBuffer,
                                      [&](const char* piece, qsizetype length, bool more) {
                                          if (!more && pieces.isEmpty()) {
                                              text = QString::fromUtf8(piece, length);
                                          } else {
                                              pieces.append(piece, length);
                                          }
                                      });
        if (!pieces.isEmpty()) {
            text = QString::fromUtf8(pieces);
        }
        return there ? Value(text) : Value();
    }
    QString text;
    const bool there = readPieces(m_statement, index, SQL_C_WCHAR, m_wideBuffer,
                                  [&text](const char16_t* piece, qsizetype length, bool) {
                                      text.append(QStringView(piece, length));
                                  });
    return there ? Value(text) : Value();
}

} // namespace db
