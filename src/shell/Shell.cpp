#include "shell/Shell.h"

#include "plan/RoomRows.h"
#include "runtime/Numbers.h"

#include <utility>

namespace shell
{
namespace
{

// Key code of F2.
constexpr int kKeyF2 = 113;
// Twips between the totals line and the window's inner bottom once the window is active.
constexpr int kTotalsMargin = 470;
// Twips around the places in a picture of the plan: before them, and at the picture's edge.
constexpr int kAfterAxis = 60;
constexpr int kAfterPlaces = 250;

} // namespace

Shell::Shell(Settings settings, Environment environment)
    : m_settings(std::move(settings)), m_environment(std::move(environment)),
      m_random(m_environment.seed),
      m_periods(m_form, m_database, m_totals, *this, m_environment.today),
      m_slots(m_form, m_database), m_rooms(m_form, m_database, m_page, *this), m_colors(m_random),
      m_palette(m_colors, m_form, *this, m_environment.applicationFolder, m_environment.openFile),
      m_plainRows(m_database), m_pageRows(m_database, m_plainRows),
      m_lookup(m_form, rowSource(), m_layout, m_SeanceTypeShortNames), m_absences(m_database),
      m_pageAbsences(m_database, m_absences),
      m_refresh({m_form, m_periods, m_slots, m_page, m_totals, m_lookup, absenceTests(), m_colors,
                 m_layout},
                [this] { m_periods.yieldTo(m_environment.processEvents); }),
      m_paging(m_form, m_page, m_totals, m_rooms, m_colors, m_refresh,
               [this] { appearance::Adapter_Cellules(m_form, m_layout); }),
      m_subjectFilter(m_form, m_database, *this),
      m_options(m_form, m_totals, m_refresh, m_environment.showMessage),
      m_cellOptions(m_form, m_layout, m_paging, m_refresh)
{
    connectEvents();
}

Shell::~Shell() = default;

plan::RowSource& Shell::rowSource()
{
    return m_environment.plain ? static_cast<plan::RowSource&>(m_plainRows) : m_pageRows;
}

plan::AbsenceTests& Shell::absenceTests()
{
    return m_environment.plain ? static_cast<plan::AbsenceTests&>(m_absences) : m_pageAbsences;
}

void Shell::PlaceRoomRows()
{
    plan::PlaceRoomRows(m_form);
}

void Shell::connectEvents()
{
    m_form.CbTranche.click = [this] { m_periods.CbTranche_Click(); };
    m_form.CbJour.click = [this] { m_periods.CbJour_Click(); };
    m_form.DTPicker1.change = [this] { m_periods.DTPicker1_Change(); };
    m_form.Check2.click = [this] { m_periods.Check2_Click(); };
    m_form.Combo10.click = [this] { m_periods.Combo10_Click(); };
    m_form.OpEns.click = [this] { m_periods.OpEns_Click(); };
    m_form.OpExam.click = [this] { m_periods.OpExam_Click(); };

    m_form.cb_Locaux.click = [this] { m_rooms.cb_Locaux_Click(); };
    m_form.ElemDep.click = [this] { m_rooms.ElemDep_Click(); };
    m_form.Combo1.click = [this] { m_rooms.Combo1_Click(); };
    m_form.Chk_Neutre.click = [this] { m_rooms.Chk_Neutre_Click(); };

    m_form.Total_L_P.change = [this] { m_paging.Total_L_P_Change(); };
    m_form.Command2.click = [this] { m_paging.Command2_Click(); };
    m_form.Command3.click = [this] { m_paging.Command3_Click(); };

    m_form.Check1.click = [this] { m_subjectFilter.Check1_Click(); };
    m_form.Cb_Mat.click = [this] { m_subjectFilter.Cb_Mat_Click(); };

    m_form.Check3.click = [this] { m_options.Check3_Click(); };
    m_form.Chk_Compt.click = [this] { m_options.Chk_Compt_Click(); };
    m_form.Chk_Type.click = [this] { m_options.Chk_Type_Click(); };
    m_form.ChkGrille.click = [this] { m_options.ChkGrille_Click(); };
    m_form.Colorer.click = [this] { m_options.Colorer_Click(); };
    m_form.OptA.click = [this] { m_options.OptA_Click(); };
    m_form.OptB.click = [this] { m_options.OptB_Click(); };
    m_form.OptFixe.click = [this] { m_options.OptFixe_Click(); };

    m_form.XOpCl.click = [this] { m_cellOptions.XOpCl_Click(); };
    m_form.XOpEns.click = [this] { m_cellOptions.XOpEns_Click(); };
    m_form.XpMat.click = [this] { m_cellOptions.XpMat_Click(); };
    m_form.Command4.click = [this] { m_palette.Choisir_Palette(); };
    m_form.xOpExam.click = [this] { m_refresh.RefreshPlan(); };
}

void Shell::Form_Activate()
{
    m_form.visible = true;
    m_refresh.RefreshPlan();
    m_slots.placeTotals(kTotalsMargin);
    MatchControlBackgrounds();
}

void Shell::layOut(int scaleWidth, int scaleHeight)
{
    m_form.scaleWidth = scaleWidth;
    m_form.scaleHeight = scaleHeight;
    m_slots.placeTotals(kTotalsMargin);
    PlaceRoomRows();
}

void Shell::Form_Resize()
{
    PlaceRoomRows();
    MatchControlBackgrounds();
}

void Shell::fitPicture()
{
    const form::Place& places = m_form.Cap.front().place;
    layOut(m_slots.axisEnd() + kAfterAxis + places.width + kAfterPlaces, m_form.scaleHeight);
}

void Shell::Form_KeyDown(int keyCode)
{
    if (keyCode == kKeyF2) {
        m_colors.PaleColors = !m_colors.PaleColors;
        m_colors.RedrawMode = false;
        m_refresh.RefreshPlan();
    }
}

void Shell::Form_Unload()
{
    if (!std::exchange(m_loaded, false)) {
        return;
    }
    m_refresh.abandon();
    m_form.visible = false;
    m_database.close();
    if (m_colors.PaletteName != m_PaletteAtStart) {
        m_settings.save(QStringLiteral("Palette"), m_colors.PaletteName);
    }
    if (runtime::leadingNumber(m_form.Total_L_P.text()) != m_RoomsPerPage) {
        m_settings.save(QStringLiteral("Total_L_P"), m_form.Total_L_P.text());
    }
    saveCheckBox(QStringLiteral("ChkEnseignant"), m_form.XOpEns, m_ShowTeacherAtStart);
    saveCheckBox(QStringLiteral("ChkClasse"), m_form.XOpCl, m_ShowClassAtStart);
    saveCheckBox(QStringLiteral("ChkMatiere"), m_form.XpMat, m_ShowSubjectAtStart);
}

void Shell::saveCheckBox(const QString& key, const form::CheckBox& box, std::int16_t atStart)
{
    const int value = box.isChecked() ? 1 : 0;
    if (value != atStart) {
        m_settings.save(key, QString::number(value));
    }
}

void Shell::Label20_Click()
{
    m_form.setFontName(m_form.Label20.font.name);
    m_refresh.RefreshPlan();
}

void Shell::MatchControlBackgrounds()
{
    ++m_form.colorerFocusRequests;
}

QDate Shell::fileDate() const
{
    const bool examWeek = m_form.OpExam.isSelected() && m_periods.ExamWeek1Start().isValid();
    const bool dated = m_form.DTPicker1.visible || m_dateAskedFor || examWeek;
    return dated ? m_periods.shownDate() : QDate();
}

plan::PlanScene Shell::scene(const plan::DrawingTarget& target) const
{
    return {m_form, m_refresh.content(), m_layout, target, m_page.RowsShown, m_slots.axisEnd()};
}

} // namespace shell
