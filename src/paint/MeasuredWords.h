#pragma once

#include "paint/TextRuler.h"

#include <QStringList>
#include <QStringView>
#include <vector>

namespace paint
{

/// The words of a text, each measured once, to see how its lines break in one width after another.
/// Widths are pixels at the ruler's own size.
class MeasuredWords
{
public:
    /// What lines take: their number and the width of the longest.
    struct Extent {
        int lines = 0;
        double width = 0;
    };

    /// The lines, as written, must outlive the words.
    MeasuredWords(const TextRuler& ruler, const QStringList& lines);

    /// The lines broken between words so that they fit the width where they can.
    [[nodiscard]] QStringList broken(double width) const;
    /// What `broken` would take.
    [[nodiscard]] Extent extent(double width) const;

private:
    struct Word {
        QStringView text;
        double width = 0;
        bool startsLine = false; ///< as written
    };

    /// Goes through the words: `begin` for one that starts a line, `join` for one that follows on
    /// it, each with the width of the line so far.
    template <typename Begin, typename Join>
    void walk(double width, Begin begin, Join join) const;

    double m_blank;
    std::vector<Word> m_words;
};

} // namespace paint
