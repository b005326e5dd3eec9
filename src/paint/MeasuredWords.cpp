#include "paint/MeasuredWords.h"

#include <algorithm>

namespace paint
{

MeasuredWords::MeasuredWords(const TextRuler& ruler, const QStringList& lines)
    : m_blank(ruler.width(QChar(u' ')))
{
    for (const QString& line : lines) {
        bool first = true;
        for (const QStringView word : QStringView(line).split(u' ')) {
            m_words.push_back({word, ruler.width(word), first});
            first = false;
        }
    }
}

template <typename Begin, typename Join>
void MeasuredWords::walk(double width, Begin begin, Join join) const
{
    double used = 0;
    for (const Word& word : m_words) {
        if (!word.startsLine && used > 0 && used + m_blank + word.width <= width) {
            used += m_blank + word.width;
            join(word.text, used);
        } else {
            used = word.width;
            begin(word.text, used);
        }
    }
}

QStringList MeasuredWords::broken(double width) const
{
    QStringList lines;
    walk(
        width, [&](QStringView word, double) { lines.append(word.toString()); },
        [&](QStringView word, double) {
            lines.last() += u' ';
            lines.last() += word;
        });
    return lines;
}

MeasuredWords::Extent MeasuredWords::extent(double width) const
{
    Extent extent;
    const auto widen = [&](QStringView, double used) {
        extent.width = std::max(extent.width, used);
    };
    walk(
        width,
        [&](QStringView word, double used) {
            ++extent.lines;
            widen(word, used);
        },
        widen);
    return extent;
}

} // namespace paint
