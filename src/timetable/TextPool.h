#pragma once

#include <QString>
#include <QStringView>
#include <cstddef>
#include <unordered_map>
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
    /// Of the text's bytes, eight at a time. Rows of a timetable come by ten thousands with ten
    /// names each, and Qt's own two functions take several times as long for so short texts.
    struct Hash {
        [[nodiscard]] std::size_t operator()(QStringView text) const;
    };
    struct Same {
        [[nodiscard]] bool operator()(QStringView left, QStringView right) const;
    };

    std::vector<QString> m_texts;
    /// The keys are views of `m_texts`. They outlive a growth and a copy of the pool: the
    /// characters of a QString stay where they are as long as one of its copies lives.
    std::unordered_map<QStringView, int, Hash, Same> m_numbers;
};

} // namespace timetable
