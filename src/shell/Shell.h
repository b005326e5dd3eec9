#pragma once

#include "absences/AbsenceRecords.h"
#include "absences/PageAbsences.h"
#include "appearance/CellOptions.h"
#include "appearance/Palette.h"
#include "context/Establishment.h"
#include "context/Periods.h"
#include "context/PlanActions.h"
#include "context/RoomSet.h"
#include "context/TimeSlots.h"
#include "db/Database.h"
#include "form/PlanForm.h"
#include "plan/PageRowSource.h"
#include "plan/Paging.h"
#include "plan/PlainRowSource.h"
#include "plan/PlanOptions.h"
#include "plan/PlanPage.h"
#include "plan/PlanPainter.h"
#include "plan/PlanRefresh.h"
#include "plan/SubjectFilter.h"
#include "runtime/RandomSource.h"
#include "shell/DatabaseChoice.h"
#include "shell/Settings.h"

#include <QDate>
#include <QString>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace shell
{

struct WalkStart;

/// What the program finds around it. Tests and the command line give their own.
struct Environment {
    /// Folder that holds the executable, `app_data` and `Styles`.
    QString applicationFolder;
    std::function<QDate()> today = [] { return QDate::currentDate(); };
    /// Fixes the random row colours.
    std::optional<std::uint32_t> seed;
    /// Sends one statement per question instead of a few per page.
    bool plain = false;
    /// Lets waiting events run in the middle of a refresh.
    std::function<void()> processEvents = [] {};
    /// Lets the user choose a file to open; empty when the user cancels.
    appearance::Palette::OpenFile openFile = [](const QString&, const QString&) {
        return QString();
    };
    /// Shows a message box with an OK button.
    std::function<void(const QString& title, const QString& text)> showMessage =
        [](const QString&, const QString&) {};
};

/// The program without its window: builds all the parts, ties the controls' events to their
/// handlers, starts up and shuts down.
class Shell : private context::PlanActions
{
public:
    Shell(Settings settings, Environment environment);
    ~Shell() override;

    /// Start-up, in a fixed order: settings, database, header, slots, rooms, date. Errors: a
    /// setting that does not convert (TypeMismatch, Overflow), any database error.
    void Form_Load();
    /// The window has been shown: the first drawing.
    void Form_Activate();
    /// Lays rows and totals out for that inner size of the window's plan, in twips.
    void layOut(int scaleWidth, int scaleHeight);
    /// The window has another size.
    void Form_Resize();
    /// Sizes the plan for a picture that holds all of it.
    void fitPicture();
    /// F2 (key code 113) switches pale colours; other keys do nothing.
    void Form_KeyDown(int keyCode);
    /// Closes the database and writes back the settings that changed. Closing twice does nothing.
    /// Error: PathFileAccess when the settings cannot be saved; all else is done by then.
    void Form_Unload();
    /// Gives every control the font of `Label20` and redraws.
    void Label20_Click();
    /// Asks for the focus to go to `Colorer`. The backgrounds of the option controls need no
    /// matching: the window's style sheet sets them, and nothing changes them.
    void MatchControlBackgrounds();

    [[nodiscard]] form::PlanForm& form() { return m_form; }
    [[nodiscard]] const form::PlanForm& form() const { return m_form; }
    [[nodiscard]] context::Periods& periods() { return m_periods; }
    [[nodiscard]] const context::Periods& periods() const { return m_periods; }
    [[nodiscard]] const context::TimeSlots& slots() const { return m_slots; }
    [[nodiscard]] const context::RoomPage& page() const { return m_page; }
    [[nodiscard]] const context::EstablishmentHeader& establishment() const
    {
        return m_establishment;
    }
    [[nodiscard]] plan::PlanRefresh& refresh() { return m_refresh; }
    [[nodiscard]] const plan::PlanRefresh& refresh() const { return m_refresh; }
    [[nodiscard]] plan::PlanOptions& options() { return m_options; }
    [[nodiscard]] absences::AbsenceRecords& absences() { return m_absences; }
    [[nodiscard]] db::Database& database() { return m_database; }
    [[nodiscard]] const plan::CellLayout& cellLayout() const { return m_layout; }
    /// Tells that the shown date was asked for, and is not just the week of the clock.
    void keepDate() { m_dateAskedFor = true; }
    /// The shown date for files that carry one: only where the plan shows it, where it was asked
    /// for and in exam weeks, which the database dates. Elsewhere it is invalid: a plan titled by
    /// its day has the same bytes in every week.
    [[nodiscard]] QDate fileDate() const;
    /// Everything needed to draw the plan on the target.
    [[nodiscard]] plan::PlanScene scene(const plan::DrawingTarget& target) const;
    /// The page that the window shows, looked up anew with the controls as they stand: a box is
    /// what its sheet's heading says, also where an option does not redraw the plan. The window
    /// stays as it is. Errors: those of a refresh, any database error.
    [[nodiscard]] plan::PlanPage shownPage();
    /// Every page of the room set from the first one on, as "Page Suivante" would show them; the
    /// window stays where it is. Pages without a room are left out, unless there are no others.
    /// Errors: those of a refresh, any database error.
    [[nodiscard]] std::vector<plan::PlanPage> allPages();

private:
    void RefreshPlan() override { m_refresh.RefreshPlan(); }
    void PlaceRoomRows() override;
    // Steps on the way to a new room set, which ends with a redraw of its own.
    void Command2_Click() override
    {
        m_refresh.withoutYielding([this] { m_paging.Command2_Click(); });
    }
    void Command3_Click() override
    {
        m_refresh.withoutYielding([this] { m_paging.Command3_Click(); });
    }

    [[nodiscard]] WalkStart walkStart();
    [[nodiscard]] plan::RowSource& rowSource();
    [[nodiscard]] plan::AbsenceTests& absenceTests();
    void connectEvents();
    void chooseDatabase();
    void readDisplayOptions();
    void readSeanceTypes();
    void listDepartments();
    void saveCheckBox(const QString& key, const form::CheckBox& box, std::int16_t atStart);
    [[nodiscard]] QString setting(const QString& key, const QString& fallback) const;

    Settings m_settings;
    Environment m_environment;

    // In the order in which they build on one another.
    form::PlanForm m_form;
    db::Database m_database;
    runtime::RandomSource m_random;
    context::Totals m_totals;
    context::RoomPage m_page;
    context::Periods m_periods;
    context::TimeSlots m_slots;
    context::RoomSet m_rooms;
    context::EstablishmentHeader m_establishment;
    plan::CellLayout m_layout;
    plan::SeanceTypeShortNames m_SeanceTypeShortNames;
    plan::RowColors m_colors;
    appearance::Palette m_palette;
    plan::PlainRowSource m_plainRows;
    plan::PageRowSource m_pageRows;
    plan::OccupancyLookup m_lookup;
    absences::AbsenceRecords m_absences;
    absences::PageAbsences m_pageAbsences;
    plan::PlanRefresh m_refresh;
    plan::Paging m_paging;
    plan::SubjectFilter m_subjectFilter;
    plan::PlanOptions m_options;
    appearance::CellOptions m_cellOptions;

    DatabaseChoice m_choice;
    bool m_SkinOn = false; ///< kept for that shape of the state; nothing reads it

    QString m_PaletteAtStart;
    std::int16_t m_ShowTeacherAtStart = 1;
    std::int16_t m_ShowClassAtStart = 1;
    std::int16_t m_ShowSubjectAtStart = 1;
    std::int16_t m_RoomsPerPage = 0;
    bool m_dateAskedFor = false;
    bool m_loaded = false;
};

} // namespace shell
