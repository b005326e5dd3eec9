#pragma once

#include "absences/Marking.h"
#include "appearance/CellOptions.h"
#include "appearance/Palette.h"
#include "context/Establishment.h"
#include "context/Periods.h"
#include "context/PlanActions.h"
#include "context/RoomSet.h"
#include "context/StartReads.h"
#include "db/Database.h"
#include "engine/DatabaseSources.h"
#include "engine/Surroundings.h"
#include "lookup/WatchedRows.h"
#include "plan/Paging.h"
#include "plan/PlanPage.h"
#include "plan/PlanRefresh.h"
#include "plan/PlanState.h"
#include "plan/SubjectFilter.h"
#include "plan/WatchedAbsences.h"
#include "timetable/Timetable.h"

#include <QString>
#include <chrono>
#include <cstdint>
#include <memory>
#include <vector>

namespace engine
{

/// Builds and owns the parts that make a plan out of a database, and ties the controls' events to
/// them: the same for the window, for the command line, for the pages that are printed and for
/// tests. What it knows is one value, the state; what it does is asked for by these functions and
/// by the controls in that state.
///
/// Errors of all that asks the database or redraws: any database error; TypeMismatch, Overflow or
/// SubscriptOutOfRange for what the plan cannot show.
class Engine : private context::PlanActions
{
public:
    /// What a test brings of its own; null: the engine makes it. They outlive the engine.
    struct StandIns {
        lookup::RowSource* rows = nullptr;       ///< answers in the place of the database
        plan::AbsenceSource* absences = nullptr; ///< so does this
        std::shared_ptr<db::Database> database;  ///< to be opened by the engine as its own
        std::shared_ptr<plan::PlanState> state;  ///< so that the test can change it from outside
    };

    explicit Engine(Surroundings surroundings);
    Engine(Surroundings surroundings, const StandIns& standIns);
    ~Engine() override;
    Engine(const Engine&) = delete; // the parts refer to one another
    Engine& operator=(const Engine&) = delete;

    /// The choices, what start-up has read, where the plan stands.
    [[nodiscard]] const plan::PlanState& state() const { return m_state; }
    /// The controls, whose setters raise their events.
    [[nodiscard]] form::PlanForm& form() { return m_state.form; }
    [[nodiscard]] const form::PlanForm& form() const { return m_state.form; }
    /// What the last refresh worked out, as far as it has come.
    [[nodiscard]] const plan::PlanContent& content() const { return m_refresh.content(); }
    /// The records behind its boxes.
    [[nodiscard]] const plan::MarkerRecords& markers() const { return m_refresh.markers(); }
    /// How many refreshes have started.
    [[nodiscard]] std::uint64_t refreshCount() const { return m_refresh.refreshCount(); }
    /// When the last one did.
    [[nodiscard]] std::chrono::steady_clock::time_point refreshBegan() const
    {
        return m_refresh.began();
    }
    /// Statements sent so far: what a click costs over a far server.
    [[nodiscard]] long long statementCount() const;

    // Steps of start-up, in their order.

    /// `useMySql` is the setting "Mysql", `doublesQuotes` is "Apostrophes".
    void chooseDatabase(bool useMySql, bool doublesQuotes = false);
    /// How the plan looks before the settings are read: counting as its box says, centred lines,
    /// random row colours.
    void startAppearance();
    void loadPalette(const QString& path) { m_palette.Charger_Palette(path); }
    /// Random row colours again, and no palette in use, from the next redraw on.
    void useDefaultColors() { m_palette.useDefault(); }
    /// Opens the database and reads what the header shows.
    void loadEstablishment(const context::HeaderSource& source);
    void loadSlots();
    void placeRoomRows();
    void fillRoomPage() { m_rooms.FillRoomPage(m_reads.takeAllRooms()); }
    /// This week's Monday.
    void showCurrentWeek() { m_periods.showCurrentWeek(); }
    void openOnToday() { m_periods.openOnToday(); }
    void readSeanceTypes();
    void listDepartments();

    // While the program runs.

    /// Whether "◀" (-1) or "▶" (1) leads to a day.
    [[nodiscard]] bool hasDayBeside(int step) const { return m_periods.hasDayBeside(step); }
    void refreshPlan() { m_refresh.RefreshPlan(); }
    /// Chooses the shown day again, so that the plan shows all that the options say.
    void chooseDayAgain() { m_periods.chooseDayAgain(); }
    /// Row colours become pale, or full again; redraws.
    void togglePaleColors();
    /// Works out the rows that a refresh in progress has not come to.
    void finishRefresh() { m_refresh.finishRows(); }
    /// Makes a refresh in progress end where it stands: the window closes.
    void abandonRefresh() { m_refresh.abandon(); }
    /// Goes to the first page of the room set, whatever the buttons' state.
    void showFirstPage() { m_paging.showFirstPage(); }
    /// Goes to the last page that draws a room.
    void showLastPage() { m_paging.showLastPage(); }
    /// How the page that holds a room shows it.
    enum class RoomLine {
        Drawn,  ///< as a row
        Greyed, ///< as the room before the first row
        None,   ///< not at all: the choice of rooms leaves it out
    };
    /// Goes to the page that holds the room, by its name in the room table.
    RoomLine showRoom(const QString& room);
    /// A click on one of a box's marker images: the keys decide what is toggled. Returns what was.
    std::vector<absences::Toggled> clickMarker(int marker, absences::AsyncKeyState& keys);
    /// A click on a group counter: shows the classes behind it.
    void Label2_Click(const plan::GroupCounter& group);
    void closeDatabase() { m_database->close(); }

    // Pages as values, made on a copy: the window stays as it is.

    /// The page that is shown, looked up anew with the controls as they stand: a box is what its
    /// sheet's heading says, also where an option does not redraw the plan. Its rows have the
    /// window's colours, its totals are the window's.
    [[nodiscard]] plan::PlanPage shownPage() const;
    /// Every page of the room set from the first one on, as "Page Suivante" would show them. Pages
    /// without a room are left out, unless there are no others.
    [[nodiscard]] std::vector<plan::PlanPage> allPages() const;
    /// Every room that the filter chooses, `most` of them on a page (1 to 29) and as evenly spread
    /// as can be: no room stands greyed before the first row, and none is left out. The rooms are
    /// read anew. Nothing is counted; rows keep their colours from one call to the next. Empty
    /// without rooms.
    [[nodiscard]] std::vector<plan::PlanPage> pagesOfEveryRoom(int most) const;
    /// Everything that the database says about the chosen period (see TimetableReader.h).
    [[nodiscard]] timetable::Timetable readTimetable();
    /// The rooms of a department, as the database compares them: one statement.
    [[nodiscard]] std::vector<timetable::RoomId> roomsOf(const timetable::Timetable& timetable,
                                                         const QString& department);
    /// The colours of all rooms, given in their order: of one that is shown its row's, of others
    /// that of the row which they have where pages hold all rooms.
    [[nodiscard]] std::vector<form::Colour> roomColors(const std::vector<QString>& rooms) const;
    /// The page as it is shown, with what the last refresh worked out.
    [[nodiscard]] plan::PlanPage drawnPage() const { return {m_state, content(), 0, 0, leftOut()}; }

private:
    /// Works on a copy of the other's state and on the same database. No event is tied: the copy's
    /// controls are set by the walk through the pages alone.
    struct OnCopy {
    };
    Engine(const Engine& other, OnCopy copy);
    Engine(Surroundings surroundings, std::shared_ptr<plan::PlanState> state,
           std::shared_ptr<db::Database> database, StandIns standIns);

    void RefreshPlan() override { m_refresh.RefreshPlan(); }
    void PlaceRoomRows() override { placeRoomRows(); }
    /// Fits the boxes to what they show and to the rooms per page.
    void adaptCells();
    // Steps on the way to a new room set, which ends with a redraw of its own.
    void Command2_Click() override;
    void Command3_Click() override;

    [[nodiscard]] lookup::PageReads::Upkeep upkeep();
    [[nodiscard]] lookup::RowSource& whoKnowsRows();
    [[nodiscard]] plan::AbsenceSource& whoKnowsAbsences();
    void tieEvents();
    void tiePages();
    void tieOptions();
    [[nodiscard]] plan::PlanPage lookedUpAgain();
    [[nodiscard]] bool showNextPage();
    [[nodiscard]] QStringList leftOut() const;
    [[nodiscard]] std::vector<plan::PlanPage> walkedPages();

    // In the order in which they build on one another.
    Surroundings m_surroundings;
    std::shared_ptr<plan::PlanState> m_ownedState;
    plan::PlanState& m_state;
    std::shared_ptr<db::Database> m_database;
    StandIns m_standIns;
    DatabaseSources m_sources;
    lookup::PageReads m_pageReads;
    lookup::WatchedRows m_rowsAsked;
    plan::WatchedAbsences m_absencesAsked;
    context::StartReads m_reads;
    context::Periods m_periods;
    context::RoomSet m_rooms;
    plan::PlanRefresh m_refresh;
    plan::Paging m_paging;
    plan::SubjectFilter m_subjectFilter;
    appearance::Palette m_palette;
    appearance::CellOptions m_cellOptions;
};

} // namespace engine
