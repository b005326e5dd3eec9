#include "timetable/MeetingRows.h"

#include "db/PackedRow.h"
#include "runtime/RunTimeError.h"

#include <algorithm>

namespace timetable
{
namespace
{

QStringList namesOf(std::span<const FieldColumn> columns)
{
    QStringList names;
    for (const FieldColumn& each : columns) {
        names << each.column;
    }
    return names;
}

/// Where the columns of a result stand; -1 for a column that it does not have and need not have.
std::vector<int> positionsOf(MeetingKind kind, const db::Columns& result)
{
    std::vector<int> positions;
    for (const FieldColumn& each : columnsOf(kind)) {
        int& position = positions.emplace_back(-1);
        runtime::skipOnError([&] { position = result.position(each.column); });
        if (position < 0 && isIndispensable(kind, each.field)) {
            const QString words = QStringLiteral("la colonne « %1 » manque").arg(each.column);
            runtime::RunTimeError fault(runtime::ErrorNumber::ItemNotFound, words);
            fault.explain(words + QStringLiteral(" dans la table « %1 »").arg(tableOf(kind)));
            throw fault;
        }
    }
    return positions;
}

} // namespace

QString MeetingRows::source() const
{
    return QStringLiteral(" from ") + tableOf(m_kind) + QStringLiteral(" where ") +
           m_connection.metByMost(column::kTranche + QStringLiteral(" =") +
                                  QString::number(m_period));
}

bool MeetingRows::readPacked(MeetingTaker& taker)
{
    const std::span<const FieldColumn> columns = columnsOf(m_kind);
    const std::size_t usual = usualColumns(m_kind);
    const std::optional<db::Packing> packing = m_connection.packing();
    if (!packing) {
        return false;
    }
    db::Recordset rows;
    try {
        rows = m_connection.open(QStringLiteral("select ") +
                                 db::packed(*packing, {namesOf(columns), qsizetype(usual)}) +
                                 QStringLiteral(" as packed") + source());
    } catch (const runtime::RunTimeError& error) {
        if (error.number() != runtime::ErrorNumber::StatementRefused) {
            throw;
        }
        return false;
    }
    taker.expect(rows.rows().size());
    db::PackedRow packedRow(*packing, columns.size(), usual);
    MeetingTexts texts;
    for (const db::Row& row : rows.rows()) {
        const db::Value whole = row.field(0);
        const auto* const text = std::get_if<QString>(&whole.variant());
        if (text == nullptr || !packedRow.unpack(*text)) {
            return false;
        }
        for (std::size_t index = 0; index < columns.size(); ++index) {
            texts[columns[index].field] = packedRow.fields()[index];
        }
        taker.take(texts);
    }
    return true;
}

void MeetingRows::readAll(MeetingTaker& taker)
{
    const db::Recordset rows = m_connection.open(QStringLiteral("select *") + source());
    if (rows.isEmpty()) {
        return;
    }
    taker.expect(rows.rows().size());
    const std::span<const FieldColumn> columns = columnsOf(m_kind);
    const std::vector<int> positions = positionsOf(m_kind, *rows.columns());
    std::vector<QString> kept(columns.size());
    MeetingTexts texts;
    for (const db::Row& row : rows.rows()) {
        for (std::size_t index = 0; index < columns.size(); ++index) {
            const db::Value value =
                positions[index] < 0 ? db::Value() : row.field(positions[index]);
            kept[index] = value.toJoinedText();
            texts[columns[index].field] = value.isNull()          ? QStringView()
                                          : kept[index].isEmpty() ? QStringView(u"")
                                                                  : QStringView(kept[index]);
        }
        taker.take(texts);
    }
}

} // namespace timetable
