#include "db/PackedRow.h"

#include <algorithm>
#include <cstddef>

namespace db
{
namespace
{

constexpr char16_t kSeparator = u'\x1f';
constexpr char16_t kNull = u'\x1e';

/// The character that an escape of JSON stands for; `position` is that of the letter behind the
/// backslash and moves to the last character of the escape.
QChar unescaped(QStringView row, qsizetype& position)
{
    constexpr qsizetype digits = 4;
    constexpr int hexadecimal = 16;
    const QChar letter = row[position];
    switch (letter.unicode()) {
    case u'b':
        return u'\b';
    case u'f':
        return u'\f';
    case u'n':
        return u'\n';
    case u'r':
        return u'\r';
    case u't':
        return u'\t';
    case u'u': {
        const ushort code = row.mid(position + 1, digits).toUShort(nullptr, hexadecimal);
        position += digits;
        return QChar(code);
    }
    default:
        return letter;
    }
}

QString packedWhole(Packing packing, const QStringList& columns)
{
    if (packing == Packing::Json) {
        return QStringLiteral("json_array(") + columns.join(u',') + u')';
    }
    QStringList fields;
    for (const QString& column : columns) {
        fields << QStringLiteral("ifnull(") + column + QStringLiteral(",'") + kNull +
                      QStringLiteral("')");
    }
    return QStringLiteral("concat_ws('") + kSeparator + QStringLiteral("',") + fields.join(u',') +
           u')';
}

} // namespace

QString packed(Packing packing, const PackedColumns& columns)
{
    QString all = packedWhole(packing, columns.names);
    const QStringList rest = columns.names.mid(columns.usual);
    if (rest.isEmpty()) {
        return all;
    }
    // Each by itself: a server may not know how to compare one with another.
    const QString areNull = rest.join(QStringLiteral(" is null and ")) + QStringLiteral(" is null");
    return QStringLiteral("case when ") + areNull + QStringLiteral(" then ") +
           packedWhole(packing, columns.names.mid(0, columns.usual)) + QStringLiteral(" else ") +
           all + QStringLiteral(" end");
}

bool PackedRow::endsAt(std::size_t field)
{
    if (field != m_usualCount) {
        return false;
    }
    std::fill(m_fields.begin() + static_cast<std::ptrdiff_t>(field), m_fields.end(), QStringView());
    return true;
}

bool PackedRow::unpack(const QString& row)
{
    return m_packing == Packing::Json ? unpackJson(row) : unpackSeparated(row);
}

bool PackedRow::unpackSeparated(QStringView row)
{
    std::size_t field = 0;
    qsizetype start = 0;
    for (; field < m_fields.size() && start <= row.size(); ++field) {
        qsizetype end = row.indexOf(kSeparator, start);
        if (end < 0) {
            end = row.size();
        }
        // An empty row need not have a place in memory, but is an empty text all the same.
        const QStringView text = row.isNull() ? QStringView(u"") : row.sliced(start, end - start);
        m_fields[field] = text.size() == 1 && text.front() == kNull ? QStringView() : text;
        start = end + 1;
    }
    return start == row.size() + 1 && (field == m_fields.size() || endsAt(field));
}

bool PackedRow::unpackJson(QStringView row)
{
    if (row.size() < 2 || row.front() != u'[' || row.back() != u']') {
        return false;
    }
    m_hasEscapes = row.contains(u'\\');
    if (m_hasEscapes) {
        m_unescaped.clear();
        m_unescaped.reserve(row.size()); // so that it never moves under the fields
    }
    qsizetype position = 0;
    for (std::size_t number = 0; number < m_fields.size(); ++number) {
        QStringView& field = m_fields[number];
        if (position >= row.size() - 1) {
            return position == row.size() - 1 && endsAt(number);
        }
        ++position; // the bracket or the comma
        if (row[position] == u'"') {
            field = readJsonText(row, position);
        } else {
            field = readJsonWord(row, position);
        }
    }
    return position == row.size() - 1;
}

/// A null, as most fields are, or a number. `position` is that of its beginning and moves behind
/// it.
QStringView PackedRow::readJsonWord(QStringView row, qsizetype& position)
{
    constexpr qsizetype lengthOfNull = 4;
    if (row[position] == u'n') { // no other word begins so
        position += lengthOfNull;
        return {};
    }
    const qsizetype start = position;
    while (position < row.size() && row[position] != u',' && row[position] != u']') {
        ++position;
    }
    return row.sliced(start, position - start);
}

/// `position` is that of the opening quote and moves behind the closing one.
QStringView PackedRow::readJsonText(QStringView row, qsizetype& position)
{
    const qsizetype start = position + 1;
    qsizetype end = start;
    if (!m_hasEscapes) {
        end = row.indexOf(u'"', start);
        end = end < 0 ? row.size() : end;
        position = end + 1;
        return row.sliced(start, end - start);
    }
    const qsizetype first = m_unescaped.size();
    for (; end < row.size() && row[end] != u'"'; ++end) {
        const bool isEscape = row[end] == u'\\' && end + 1 < row.size();
        m_unescaped += isEscape ? unescaped(row, ++end) : row[end];
    }
    position = end + 1;
    return QStringView(m_unescaped).sliced(first);
}

} // namespace db
