#include "db/MatchMasks.h"

#include "runtime/RunTimeError.h"

#include <algorithm>

namespace db
{
namespace
{

// Bits per column: their sum stays within 32 bits with a sign.
constexpr int kBits = 30;

// Characters of a text's question around its column and the text itself, at most.
constexpr qsizetype kAround = 20;

/// Characters that a list takes which names every text, and the column with each.
qsizetype lengthOfList(const QString& column, const QStringList& texts)
{
    qsizetype length = 0;
    for (const QString& text : texts) {
        length += column.size() + text.size() + kAround;
    }
    return length;
}

} // namespace

MatchMasks::MatchMasks(QString column, QStringList texts, const SqlDialect& dialect)
    : m_column(std::move(column)), m_texts(std::move(texts)), m_dialect(dialect)
{
}

int MatchMasks::columnCount() const
{
    return (static_cast<int>(m_texts.size()) + kBits - 1) / kBits;
}

QString MatchMasks::selectList(const QString& alias) const
{
    QString sql;
    sql.reserve(lengthOfList(m_column, m_texts));
    for (int first = 0; first < m_texts.size(); first += kBits) {
        // Most of a course's rooms are null; asking that first spares the database the rest.
        sql += first == 0 ? QStringLiteral("case when ") : QStringLiteral(", case when ");
        sql += m_column;
        sql += QStringLiteral(" is null then 0 else ");
        const int end = std::min(first + kBits, static_cast<int>(m_texts.size()));
        for (int index = first; index < end; ++index) {
            sql += index == first ? QStringLiteral("(") : QStringLiteral("+(");
            sql += m_column;
            sql += u'=';
            sql += m_dialect.literal(m_texts[index]);
            sql += QStringLiteral(")*");
            sql += QString::number(1 << (index - first));
        }
        sql += QStringLiteral(" end as ");
        sql += alias;
        sql += QString::number(first / kBits);
    }
    return sql;
}

QString MatchMasks::anyOf() const
{
    if (m_texts.isEmpty()) {
        return QStringLiteral("1=0");
    }
    QString sql;
    sql.reserve(lengthOfList(QString(), m_texts));
    sql += m_column;
    sql += QStringLiteral(" in (");
    for (const QString& text : m_texts) {
        sql += m_dialect.literal(text);
        sql += u',';
    }
    sql.back() = u')';
    return sql;
}

std::vector<int> MatchMasks::matches(const Row& row, int firstColumn) const
{
    std::vector<int> found;
    for (int column = 0; column < columnCount(); ++column) {
        const int mask = row.field(firstColumn + column).toInt32();
        const int bits = std::min(kBits, static_cast<int>(m_texts.size()) - column * kBits);
        if (mask < 0 || mask >> bits != 0) {
            throw runtime::RunTimeError(runtime::ErrorNumber::Overflow);
        }
        for (int bit = 0; bit < bits && mask != 0; ++bit) {
            if ((mask >> bit & 1) != 0) {
                found.push_back(column * kBits + bit);
            }
        }
    }
    return found;
}

} // namespace db
