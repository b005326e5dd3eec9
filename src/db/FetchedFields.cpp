#include "db/FetchedFields.h"

#include <QByteArrayView>
#include <QRegularExpression>
#include <cstring>

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

/// With a byte order mark at its beginning, where it has one: it is part of a name that came into
/// the table from a file, and without it the name would not be found again.
QString utf8Text(QByteArrayView bytes)
{
    constexpr QByteArrayView mark("\xef\xbb\xbf");
    QString text = QString::fromUtf8(bytes); // leaves the mark out
    return bytes.startsWith(mark) ? text.prepend(QChar(QChar::ByteOrderMark)) : text;
}

/// Half a character at the end of a UTF-16 text is left out.
QString textOf(QByteArrayView bytes, SQLSMALLINT cType)
{
    if (cType != SQL_C_WCHAR) {
        return utf8Text(bytes);
    }
    // Copied: they begin where the field before them ends, which may be no place for a char16_t.
    const qsizetype length = bytes.size() / static_cast<qsizetype>(sizeof(char16_t));
    QString text(length, Qt::Uninitialized);
    if (length > 0) {
        std::memcpy(text.data(), bytes.data(), static_cast<std::size_t>(length) * sizeof(char16_t));
    }
    return text;
}

} // namespace

std::size_t FieldForm::terminator() const
{
    switch (cType) {
    case SQL_C_CHAR:
        return sizeof(char);
    case SQL_C_WCHAR:
        return sizeof(char16_t);
    default:
        return 0;
    }
}

FetchedFields::FetchedFields(std::shared_ptr<const Columns> columns, std::vector<FieldForm> forms)
    : RowFields(std::move(columns)), m_forms(std::move(forms))
{
}

Value FetchedFields::value(std::size_t row, std::size_t column) const
{
    const std::size_t index = row * m_forms.size() + column;
    const End& end = m_ends[index];
    if (end.isNull) {
        return {};
    }
    const std::size_t start = index == 0 ? 0 : m_ends[index - 1].position;
    const QByteArrayView bytes(m_bytes.data() + start,
                               static_cast<qsizetype>(end.position - start));
    const FieldForm& form = m_forms[column];
    if (form.cType == SQL_C_BIT) {
        return Value(!bytes.isEmpty() && bytes.front() != 0);
    }
    return valueOfType(textOf(bytes, form.cType), form.type);
}

} // namespace db
