#include "db/MatchMasks.h"

#include <algorithm>

namespace db
{
namespace
{

// Bits per column: their sum stays within 32 bits with a sign.
constexpr int kBits = 30;

} // namespace

MatchMasks::MatchMasks(QStringList conditions) : m_conditions(std::move(conditions)) {}

int MatchMasks::columnCount() const
{
    return (static_cast<int>(m_conditions.size()) + kBits - 1) / kBits;
}

QString MatchMasks::selectList() const
{
    QStringList columns;
    for (int first = 0; first < m_conditions.size(); first += kBits) {
        QStringList bits;
        const int end = std::min(first + kBits, static_cast<int>(m_conditions.size()));
        for (int index = first; index < end; ++index) {
            bits << QStringLiteral("case when ") + m_conditions[index] +
                        QStringLiteral(" then %1 else 0 end").arg(1 << (index - first));
        }
        columns << bits.join(QStringLiteral(" + "));
    }
    return columns.join(QStringLiteral(", "));
}

QString MatchMasks::anyOf() const
{
    return u'(' + m_conditions.join(QStringLiteral(" or ")) + u')';
}

std::vector<int> MatchMasks::matches(const Row& row, int firstColumn) const
{
    std::vector<int> found;
    for (int column = 0; column < columnCount(); ++column) {
        const int mask = row.field(firstColumn + column).toInt32();
        for (int bit = 0; bit < kBits; ++bit) {
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

} // namespace db
