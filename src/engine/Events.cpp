// Which control's event leads where; those of day, period and rooms are tied in context/Events.

#include "context/Events.h"
#include "engine/Engine.h"

namespace engine
{

void Engine::tieEvents()
{
    context::tieEvents(m_state.form, m_periods, m_rooms);
    tiePages();
    tieOptions();
}

void Engine::tiePages()
{
    form::PlanForm& form = m_state.form;
    form.Total_L_P.change = [this] { m_paging.Total_L_P_Change(); };
    form.EveryRoom.click = [this] { m_paging.EveryRoom_Click(); };
    form.Command2.click = [this] { m_paging.Command2_Click(); };
    form.Command3.click = [this] { m_paging.Command3_Click(); };
}

void Engine::tieOptions()
{
    form::PlanForm& form = m_state.form;
    form.Check1.click = [this] { m_subjectFilter.Check1_Click(); };
    form.Cb_Mat.click = [this] { m_subjectFilter.Cb_Mat_Click(); };
    form.XOpCl.click = [this] { m_cellOptions.XOpCl_Click(); };
    form.XOpEns.click = [this] { m_cellOptions.XOpEns_Click(); };
    form.XpMat.click = [this] { m_cellOptions.XpMat_Click(); };
    form.Command4.click = [this] { m_palette.Choisir_Palette(); };
    // Counting starts or stops with the next refresh.
    form.Chk_Compt.click = [this] {
        m_state.totals.CountingOn = m_state.form.Chk_Compt.isChecked();
    };
    // These change what a refresh shows and nothing else. "Grille" redraws only a window that is
    // visible, and so does every refresh.
    for (form::Event* redraws : {&form.Check3.click, &form.Chk_Type.click, &form.ChkGrille.click,
                                 &form.Colorer.click, &form.xOpExam.click, &form.OptA().click(),
                                 &form.OptB().click(), &form.OptFixe().click()}) {
        *redraws = [this] { m_refresh.RefreshPlan(); };
    }
}

} // namespace engine
