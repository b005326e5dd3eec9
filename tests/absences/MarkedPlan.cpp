#include "MarkedPlan.h"

#include <memory>
#include <utility>

namespace test
{
namespace
{

using absences::VirtualKey;

QString roomName(std::size_t position)
{
    return QStringLiteral("A10%1").arg(position + 1);
}

db::Value number(std::int64_t value)
{
    return db::Value(value);
}

} // namespace

db::Recordset MarkedPlan::Rooms::timetableRows(const lookup::RoomQuestion& question)
{
    const plan::Marqueur held = lesson({});
    const auto columns = std::make_shared<const db::Columns>(QStringList{
        QStringLiteral("Salle"), QStringLiteral("Classe"), QStringLiteral("Seance"),
        QStringLiteral("matière"), QStringLiteral("Enseignant1"), QStringLiteral("newnature"),
        QStringLiteral("TypeS1"), QStringLiteral("TypeS3B"), QStringLiteral("Durée"),
        QStringLiteral("Commune"), QStringLiteral("Debut")});
    std::vector<db::Row> rows;
    for (std::size_t position = 0; position < classes.size(); ++position) {
        if (question.room != roomName(position) || question.seanceKey != held.Seance) {
            continue;
        }
        for (const QString& className : classes[position]) {
            rows.emplace_back(
                columns, std::vector<db::Value>{
                             db::Value(question.room), db::Value(className), db::Value(held.Seance),
                             db::Value(held.Matiere), db::Value(held.Enseignant1),
                             db::Value(held.newnature), number(held.TypeS1), number(held.TypeS3B),
                             number(held.Duree), db::Value(held.Commune), db::Value(held.Debut)});
        }
    }
    return {columns, std::move(rows)};
}

std::int16_t MarkedPlan::Keys::state(VirtualKey key)
{
    queries.push_back(key);
    return states[key];
}

MarkedPlan::MarkedPlan(const TestDatabase& database, std::vector<QStringList> rooms)
    : MarkedPlan(database.usesMySql(), database.connectString(), std::move(rooms))
{
}

MarkedPlan::MarkedPlan(bool useMySql, const QString& connectString, std::vector<QStringList> rooms,
                       const QString& preparation)
    : m_database(useMySql),
      m_periods(m_form, m_database, m_totals, m_actions, [] { return QDate(2025, 3, 17); }),
      m_slots(m_form, m_database), m_lookup(m_form, m_rooms, m_layout, m_typeNames),
      m_records(m_database), m_plan({m_form, m_periods, m_slots, m_page, m_totals, m_lookup,
                                     m_records, m_colors, m_layout},
                                    [this] { form::raise(whileYielding); }),
      m_marking(m_plan, m_records, m_keys)
{
    m_database.open(connectString);
    if (!preparation.isEmpty()) {
        m_database.Db().execute(preparation);
    }
    m_rooms.classes = std::move(rooms);
    m_page.RowsShown = static_cast<std::int16_t>(m_rooms.classes.size());
    for (std::size_t position = 0; position < m_rooms.classes.size(); ++position) {
        m_form.Salle.at(position + 1).caption = roomName(position);
    }
    m_form.CbTranche.addItem(QStringLiteral("Semestre 2"));
    m_periods.chooseByIdent(lesson({}).Tranche);
    m_form.XOpCl.setChecked(true);
    m_form.CbJour.selectText(QStringLiteral("Lundi"));
    m_form.DTPicker1.setValue(QDate(2025, 3, 17));
    m_form.visible = true;
    refresh();
}

void MarkedPlan::click(int index, std::int16_t shift, std::int16_t ctrl)
{
    m_keys.states = {{VirtualKey::Shift, shift}, {VirtualKey::Ctrl, ctrl}};
    m_marking.Clic_Marqueur(index);
}

std::vector<VirtualKey> MarkedPlan::takeQueries()
{
    return std::exchange(m_keys.queries, {});
}

} // namespace test
