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
    plan::Marqueur held = lesson({});
    held.Matiere = subject.isEmpty() ? held.Matiere : subject;
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
    : m_engine(surroundings(), {&m_rooms, nullptr, m_database, m_state})
{
    m_engine.chooseDatabase(useMySql);
    m_database->open(connectString);
    if (!preparation.isEmpty()) {
        m_database->Db().execute(preparation);
    }
    m_rooms.classes = std::move(rooms);
    plan::PlanState& state = *m_state;
    state.page.RowsShown = static_cast<std::int16_t>(m_rooms.classes.size());
    for (std::size_t position = 0; position < m_rooms.classes.size(); ++position) {
        state.page.setName(state.form, static_cast<int>(position) + 1, roomName(position));
    }
    state.period.TrancheIdent = lesson({}).Tranche;
    state.form.XOpCl.design(true);
    state.form.DTPicker1.setValue(QDate(2025, 3, 17));
    state.form.visible = true;
    refresh();
}

engine::Surroundings MarkedPlan::surroundings()
{
    engine::Surroundings around;
    around.today = [] { return QDate(2025, 3, 17); };
    around.seed = 1;
    around.processEvents = [this] {
        if (whileYielding) {
            whileYielding();
        }
    };
    return around;
}

void MarkedPlan::teach(const QString& subject)
{
    m_rooms.subject = subject;
    refresh();
}

std::vector<absences::Toggled> MarkedPlan::click(int index, std::int16_t shift, std::int16_t ctrl)
{
    m_keys.states = {{VirtualKey::Shift, shift}, {VirtualKey::Ctrl, ctrl}};
    return m_engine.clickMarker(index, m_keys);
}

std::vector<VirtualKey> MarkedPlan::takeQueries()
{
    return std::exchange(m_keys.queries, {});
}

} // namespace test
