#pragma once

#include "form/Controls.h"

#include <QString>
#include <array>
#include <vector>

namespace form
{

/// The window `PlClasse` without a screen: all its controls under the names they have in the
/// window. The subsystems read and set them; whoever shows them copies them. A copy has the same
/// values and no events.
class PlanForm
{
public:
    static constexpr int kRows = 30; ///< rows of the window's design, row 0 included
    /// Rooms a page can hold at most: row 0 shows the room before the first one.
    static constexpr int kMostRooms = kRows - 1;
    static constexpr int kTicks = 12;      ///< hour ticks of the time axis, 8h00 to 19h00
    static constexpr int kFirstHour = 8;   ///< what the first of them marks
    static constexpr int kSlotLabels = 11; ///< totals under the plan, one per slot of the day

    /// The controls as the window's design leaves them.
    PlanForm();

    // The window itself. Sizes are the inner ones, in twips.
    QString caption;
    bool visible = false;
    int scaleWidth = 0;
    int scaleHeight = 0;
    Colour backColor;
    /// Counts how often `MatchControlBackgrounds` asked for the focus to go to `Colorer`.
    int colorerFocusRequests = 0;
    /// Font of the controls that have none of their own here; empty: the design's.
    QString controlFontName;

    // Header. Its labels lie above the plan, so their tops are negative.
    Label XSalle; ///< "Occupation des Salles du"
    std::array<Label, 5> Label4;
    Label Label11; ///< period number
    Label Lab_Ver;
    Label Label20; ///< its font is the printer's
    Frame ImgSql;
    Frame ImgAccess;

    // Period, mode, day
    List CbTranche;
    List CbJour;
    Button Today;
    Button DayBefore;
    Button DayAfter;
    DatePicker DTPicker1;
    CheckBox Check2;
    OptionGroup mode;
    [[nodiscard]] auto OpEns() { return OptionButton(mode, 0); }
    [[nodiscard]] auto OpEns() const { return OptionButton(mode, 0); }
    [[nodiscard]] auto OpExam() { return OptionButton(mode, 1); }
    [[nodiscard]] auto OpExam() const { return OptionButton(mode, 1); }
    List Combo10;
    Label Semn;
    OptionGroup week;
    [[nodiscard]] auto OptFixe() { return OptionButton(week, 0); }
    [[nodiscard]] auto OptFixe() const { return OptionButton(week, 0); }
    [[nodiscard]] auto OptA() { return OptionButton(week, 1); }
    [[nodiscard]] auto OptA() const { return OptionButton(week, 1); }
    [[nodiscard]] auto OptB() { return OptionButton(week, 2); }
    [[nodiscard]] auto OptB() const { return OptionButton(week, 2); }

    // What a box shows
    CheckBox XOpCl;
    CheckBox XOpEns;
    CheckBox XpMat;
    CheckBox Chk_Type;
    CheckBox xOpExam;
    CheckBox Check1;
    List Cb_Mat;

    // Rooms and pages
    List cb_Locaux;
    CheckBox ElemDep;
    List Combo1;
    CheckBox Chk_Neutre;
    TextBox Total_L_P;
    CheckBox EveryRoom; ///< pages without a row 0: no room is left out
    Button Command2;
    Button Command3;

    // Appearance, counting and printing
    CheckBox Colorer;
    CheckBox ChkGrille;
    CheckBox Check3;
    CheckBox Chk_Compt;
    Frame Frame1;
    Button Command4;
    Label Label5;
    Button Command1;
    Button PrintPreview;
    Button PrintAllPages;
    Button PreviewAllPages;
    CheckBox Opt_Cap;

    // The plan
    std::array<Label, kTicks> Label1;
    /// The time of day that a tick marks, 0 to 11, as the database would write it: 8h00. `Label1`
    /// shows it.
    [[nodiscard]] static QString tickTime(int tick);
    std::vector<Label> Salle;
    std::vector<Label> Cap;
    std::array<Label, kSlotLabels> Tot;

    /// The title as shown and printed: `XSalle` and the picked date while the picker is in use
    /// ("dd/MM/YY"), else the day.
    [[nodiscard]] QString title() const;
    /// Gives every label the font of that name; sizes and weights stay.
    void setFontName(const QString& name);

    friend bool operator==(const PlanForm&, const PlanForm&) = default;
};

} // namespace form
