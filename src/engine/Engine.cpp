#include "engine/Engine.h"

#include "context/LoadSlots.h"
#include "plan/RoomRows.h"
#include "timetable/NameSearch.h"
#include "timetable/TimetableReader.h"

#include <utility>

namespace engine
{

namespace
{

/// Pages are worked out in one go.
Surroundings withoutEvents(Surroundings surroundings)
{
    surroundings.processEvents = [] {};
    return surroundings;
}

} // namespace

Engine::Engine(Surroundings surroundings) : Engine(std::move(surroundings), StandIns()) {}

Engine::Engine(Surroundings surroundings, const StandIns& standIns)
    : Engine(std::move(surroundings),
             standIns.state ? standIns.state : std::make_shared<plan::PlanState>(),
             standIns.database ? standIns.database : std::make_shared<db::Database>(), standIns)
{
    m_state.colors = plan::RowColors(runtime::RandomSource(m_surroundings.seed));
    m_database->setAwait(m_surroundings.await);
    tieEvents();
}

Engine::Engine(const Engine& other, OnCopy /*copy*/)
    : Engine(withoutEvents(other.m_surroundings), std::make_shared<plan::PlanState>(other.m_state),
             other.m_database, other.m_standIns)
{
    m_state.form.visible = true;
    m_pageReads.goOnFrom(other.m_pageReads); // a sheet tells the time that the window tells
}

Engine::Engine(Surroundings surroundings, std::shared_ptr<plan::PlanState> state,
               std::shared_ptr<db::Database> database, StandIns standIns)
    : m_surroundings(std::move(surroundings)), m_ownedState(std::move(state)),
      m_state(*m_ownedState), m_database(std::move(database)), m_standIns(std::move(standIns)),
      m_sources(*m_database), m_pageReads(upkeep()), m_rowsAsked(whoKnowsRows(), m_pageReads),
      m_absencesAsked(whoKnowsAbsences(), m_pageReads), m_reads(*m_database, m_surroundings.plain),
      m_periods(m_state.form, m_state.period, *m_database, m_state.totals, *this,
                m_surroundings.today),
      m_rooms(m_state.form, *m_database, m_state.page, *this),
      m_refresh(m_state, {m_rowsAsked, m_absencesAsked, m_pageReads},
                [this] { m_periods.yieldTo(m_surroundings.processEvents); }),
      m_paging(m_state, m_rooms, m_refresh, [this] { adaptCells(); }),
      m_subjectFilter(m_state.form, *m_database, *this),
      m_palette(m_state.colors, m_state.form, *this, m_surroundings.applicationFolder,
                m_surroundings.openFile),
      m_cellOptions(m_state.form, m_state.layout, m_paging, m_refresh)
{
}

Engine::~Engine() = default;

lookup::PageReads::Upkeep Engine::upkeep()
{
    lookup::PageReads::Upkeep upkeep;
    upkeep.revive = [this] { m_database->revive(); };
    upkeep.renew = [this] { m_database->renew(); };
    upkeep.holds = [this](const QString& name) { return m_database->dialect().holds(name); };
    return upkeep;
}

lookup::RowSource& Engine::whoKnowsRows()
{
    return m_standIns.rows != nullptr ? *m_standIns.rows : m_sources.rows(m_surroundings.plain);
}

plan::AbsenceSource& Engine::whoKnowsAbsences()
{
    return m_standIns.absences != nullptr ? *m_standIns.absences
                                          : m_sources.absences(m_surroundings.plain);
}

long long Engine::statementCount() const
{
    return m_database->statementCount();
}

void Engine::chooseDatabase(bool useMySql, bool doublesQuotes)
{
    m_database->setKind(useMySql, doublesQuotes ? db::SqlDialect::Quotes::Doubled
                                                : db::SqlDialect::Quotes::AsTheyStand);
    m_state.form.ImgSql.visible = useMySql;
    m_state.form.ImgAccess.visible = !useMySql;
}

void Engine::startAppearance()
{
    m_state.totals.CountingOn = m_state.form.Chk_Compt.isChecked();
    m_state.layout.CellTextFormat = plan::CellLayout::kCentredLines;
    adaptCells();
    m_state.colors.fillRandomly();
}

void Engine::togglePaleColors()
{
    m_state.colors.PaleColors = !m_state.colors.PaleColors;
    m_state.colors.RedrawMode = false;
    m_refresh.RefreshPlan();
}

void Engine::adaptCells()
{
    appearance::Adapter_Cellules(m_state.form, m_state.layout);
}

void Engine::loadEstablishment(const context::HeaderSource& source)
{
    m_state.establishment = context::LoadEstablishment(m_state.form, *m_database, m_reads,
                                                       m_periods, m_state.page, source);
}

void Engine::loadSlots()
{
    context::LoadSlots(m_state.form, m_reads, m_state.slots, m_state.places);
}

timetable::Timetable Engine::readTimetable()
{
    m_database->revive();
    return timetable::readTimetable(m_database->Db(), m_state.period.TrancheIdent);
}

std::vector<timetable::RoomId> Engine::roomsOf(const timetable::Timetable& timetable,
                                               const QString& department)
{
    return timetable::findRoomsOf(m_database->Db(), timetable, department);
}

void Engine::placeRoomRows()
{
    plan::PlaceRoomRows(m_state.form);
}

void Engine::Command2_Click()
{
    m_refresh.withoutYielding([this] { m_paging.Command2_Click(); });
}

void Engine::Command3_Click()
{
    m_refresh.withoutYielding([this] { m_paging.Command3_Click(); });
}

Engine::RoomLine Engine::showRoom(const QString& room)
{
    const std::optional<int> position = m_rooms.positionOf(room);
    if (!position) {
        return RoomLine::None;
    }
    m_paging.showPageOf(*position);
    const bool isGreyed = !m_state.form.EveryRoom.isChecked() && m_state.page.room(0).name == room;
    return isGreyed ? RoomLine::Greyed : RoomLine::Drawn;
}

std::vector<absences::Toggled> Engine::clickMarker(int marker, absences::AsyncKeyState& keys)
{
    return absences::Marking(m_refresh, m_sources.records(), keys).Clic_Marqueur(marker);
}

void Engine::Label2_Click(const plan::GroupCounter& group)
{
    m_surroundings.showMessage(QStringLiteral("Salles Occupées"), group.details);
}

} // namespace engine
