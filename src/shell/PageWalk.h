#pragma once

#include "absences/AbsenceRecords.h"
#include "absences/PageAbsences.h"
#include "context/PlanActions.h"
#include "context/RoomSet.h"
#include "plan/PageRowSource.h"
#include "plan/Paging.h"
#include "plan/PlainRowSource.h"
#include "plan/PlanPage.h"
#include "plan/PlanRefresh.h"

#include <memory>
#include <vector>

namespace shell
{

/// What a walk through the pages starts from; all of it outlives the walk and none of it changes.
struct WalkStart {
    const form::PlanForm& form;
    db::Database& database;
    const context::Periods& periods;
    const context::TimeSlots& slots;
    const context::RoomPage& page;
    const plan::CellLayout& layout;
    const plan::SeanceTypeShortNames& typeNames;
    const plan::RowColors& colors;
    bool plain = false; ///< ask one question per statement, as the window's refresh then does
};

/// Steps through all pages of the room set on a form of its own: the same page buttons, the same
/// refresh, the same database, but not the window's controls. The pages are the user's by
/// construction, and the window shows what it showed.
class PageWalk : private context::PlanActions
{
public:
    explicit PageWalk(const WalkStart& start);

    /// Every page from the first one on, numbered. Errors: those of a refresh, any database error.
    [[nodiscard]] std::vector<plan::PlanPage> pages();
    /// The page that the window shows, looked up anew with the controls as they stand: some of them
    /// (Date, Selon la Matière) change what a box says without redrawing the plan. Its rows have
    /// the window's colours, its totals are the window's. Errors: as above.
    [[nodiscard]] plan::PlanPage shownPage();

private:
    void RefreshPlan() override { m_refresh.RefreshPlan(); }
    void PlaceRoomRows() override;
    void Command2_Click() override { m_paging.Command2_Click(); }
    void Command3_Click() override { m_paging.Command3_Click(); }

    void showFirstPage();
    [[nodiscard]] bool showNextPage();
    [[nodiscard]] plan::PlanPage page(plan::PlanContent content) const;

    std::unique_ptr<form::PlanForm> m_form;
    plan::CellLayout m_layout;
    context::RoomPage m_page;
    context::Totals m_totals;
    plan::RowColors m_colors;
    plan::PlainRowSource m_plainRows;
    plan::PageRowSource m_pageRows;
    plan::OccupancyLookup m_lookup;
    absences::AbsenceRecords m_absences;
    absences::PageAbsences m_pageAbsences;
    context::RoomSet m_rooms;
    plan::PlanRefresh m_refresh;
    plan::Paging m_paging;
};

} // namespace shell
