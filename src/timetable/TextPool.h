#pragma once

#include <QString>
#include <QStringView>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace timetable
{

/// Texts, each kept once and known by a number. Two texts are the same here when they consist of
/// the same characters; which of them the database takes for equal is another matter.
class TextPool
{
public:
    /// The text's number, 0 upward in the order in which texts came.
    int add(QStringView text);
    /// -1 for a text that is not here.
    [[nodiscard]] int find(QStringView text) const;
    /// Requires: a number of this pool.
    [[nodiscard]] const QString& text(int number) const
    {
        return m_texts[static_cast<std::size_t>(number)];
    }
    [[nodiscard]] const std::vector<QString>& texts() const { return m_texts; }
    [[nodiscard]] int count() const { return static_cast<int>(m_texts.size()); }
    [[nodiscard]] bool isEmpty() const { return m_texts.empty(); }

private:
    /// A place for a text's number. Places lie side by side, and the hash beside the number spares
    /// most looks at other texts: rows of a timetable come by ten thousands with ten names each.
    struct Place {
        std::uint32_t hash = 0;
        int number = -1; ///< none
    };

    /// The place of the text, or the free one where it would be. Requires: there are places.
    [[nodiscard]] std::size_t placeOf(QStringView text, std::uint32_t hash) const;
    void grow();

    std::vector<QString> m_texts;
    /// A power of two in number, none at first, a quarter of them free at least. A text lies at the
    /// place that its hash tells, or behind it.
    std::vector<Place> m_places;
};

} // namespace timetable
