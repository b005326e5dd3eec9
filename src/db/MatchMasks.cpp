#include "db/MatchMasks.h"

#include <algorithm>

namespace db
{
namespace
{

// Bits per column: their sum stays within 32 bits with a sign.
constexpr int kBits = 30;

QString quoted(const QString& text)
{
    return u'\'' + text + u'\'';
}

} // namespace

MatchMasks::MatchMasks(QString column, QStringList texts)
    : m_column(std::move(column)), m_texts(std::move(texts))
{
}

int MatchMasks::columnCount() const
{
    return (static_cast<int>(m_texts.size()) + kBits - 1) / kBits;
}

QString MatchMasks::selectList(const QString& alias) const
{
    QStringList columns;
    for (int first = 0; first < m_texts.size(); first += kBits) {
        QStringList bits;
        const int end = std::min(first + kBits, static_cast<int>(m_texts.size()));
        for (int index = first; index < end; ++index) {
            bits << QStringLiteral("case when ") + m_column + u'=' + quoted(m_texts[index]) +
                        QStringLiteral(" then ") + QString::number(1 << (index - first)) +
                        QStringLiteral(" else 0 end");
        }
        // Most of a course's rooms are null; asking that first spares the database the rest.
        columns << QStringLiteral("case when ") + m_column +
                       QStringLiteral(" is null then 0 else ") + bits.join(QStringLiteral(" + ")) +
                       QStringLiteral(" end as ") + alias + QString::number(columns.size());
    }
    return columns.join(QStringLiteral(", "));
}

QString MatchMasks::anyOf() const
{
    if (m_texts.isEmpty()) {
        return QStringLiteral("1=0");
    }
    QStringList literals;
    for (const QString& text : m_texts) {
        literals << quoted(text);
    }
    return m_column + QStringLiteral(" in (") + literals.join(u',') + u')';
}

std::vector<int> MatchMasks::matches(const Row& row, int firstColumn) const
{
    std::vector<int> found;
    for (int column = 0; column < columnCount(); ++column) {
        const int mask = row.field(firstColumn + column).toInt32();
        for (int bit = 0; bit < kBits && mask != 0; ++bit) {
            if ((mask >> bit & 1) != 0) {
                found.push_back(column * kBits + bit);
            }
        }
    }
    return found;
}

bool isPlainLiteral(const QString& text)
{
    return std::none_of(text.begin(), text.end(), [](QChar character) {
        return character == u'\'' || character == u'\\' || character == u'\0';
    });
}

QStringList plainLiterals(const QStringList& texts)
{
    QStringList plain = texts;
    plain.removeIf([](const QString& text) { return !isPlainLiteral(text); });
    plain.removeDuplicates();
    return plain;
}

} // namespace db
