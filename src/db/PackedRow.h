#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>
#include <cstddef>
#include <span>
#include <vector>

namespace db
{

/// How the fields of a row arrive as one text: drivers take as long for each field of a row as
/// SQLite takes for the whole row, and most fields of a timetable are null.
enum class Packing {
    Json,      ///< SQLite's own array: ["A101",null]
    Separated, ///< a server's fields between separators, which texts do not hold
};

/// Some columns of a table. Most rows have nothing but nulls in the last ones: these rows come
/// without them, which makes their texts a third shorter.
struct PackedColumns {
    QStringList names;
    qsizetype usual = names.size(); ///< so many at the front are always there
};

/// The expression that packs the columns of a row into one text.
[[nodiscard]] QString packed(Packing packing, const PackedColumns& columns);

/// Takes such texts apart.
class PackedRow
{
public:
    /// `usualCount`: how many fields a row has at the front that comes without the others.
    PackedRow(Packing packing, std::size_t fieldCount, std::size_t usualCount)
        : m_packing(packing), m_fields(fieldCount), m_usualCount(usualCount)
    {
    }
    PackedRow(Packing packing, std::size_t fieldCount) : PackedRow(packing, fieldCount, fieldCount)
    {
    }

    /// Takes a row apart; false where it has neither all fields nor the usual ones.
    [[nodiscard]] bool unpack(const QString& row);
    /// Its fields, in the order of the columns; a null view for a null. They end with the row's
    /// text and with the next `unpack`.
    [[nodiscard]] std::span<const QStringView> fields() const { return m_fields; }

private:
    [[nodiscard]] bool unpackJson(QStringView row);
    [[nodiscard]] bool unpackSeparated(QStringView row);
    [[nodiscard]] static QStringView readJsonWord(QStringView row, qsizetype& position);
    [[nodiscard]] QStringView readJsonText(QStringView row, qsizetype& position);

    Packing m_packing;
    /// That a row has no fields behind this one, if it may end there.
    bool endsAt(std::size_t field);

    std::vector<QStringView> m_fields;
    std::size_t m_usualCount;
    bool m_hasEscapes = false; ///< whether the current row writes a character otherwise
    QString m_unescaped;       ///< the texts of such a row
};

} // namespace db
