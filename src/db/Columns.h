#pragma once

#include <QString>
#include <QStringList>
#include <cstddef>
#include <unordered_map>

namespace db
{

/// The names of a result's columns, shared by all that was read from it. A name is found whatever
/// its case, accents included: `matière` finds "Matière".
class Columns
{
public:
    explicit Columns(QStringList names);

    /// Position of the column, 0 upward. Error: ItemNotFound.
    [[nodiscard]] int position(const QString& name) const;
    [[nodiscard]] int count() const { return static_cast<int>(m_names.size()); }
    [[nodiscard]] const QStringList& names() const { return m_names; }

private:
    /// Looks at a name's length and ends alone: a page asks for names thousands of times, and to
    /// hash them whole took a sixteenth of a refresh. The few of a table seldom agree in these.
    struct QuickHash {
        [[nodiscard]] std::size_t operator()(const QString& name) const;
    };

    QStringList m_names;
    std::unordered_map<QString, int, QuickHash> m_positions; ///< of the names as they are spelt
};

} // namespace db
