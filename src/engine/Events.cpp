// Which control's event leads where.

#include "engine/Engine.h"

namespace engine
{

void Engine::tieEvents()
{
    tieContext();
    tieOptions();
}

void Engine::tieContext()
{
    form::PlanForm& form = m_state.form;
    form.CbTranche.click = [this] { m_periods.CbTranche_Click(); };
    form.CbJour.click = [this] { m_periods.CbJour_Click(); };
    form.DTPicker1.change = [this] { m_periods.DTPicker1_Change(); };
    form.Check2.click = [this] { m_periods.Check2_Click(); };
    form.Combo10.click = [this] { m_periods.Combo10_Click(); };
    form.OpEns().click() = [this] { m_periods.OpEns_Click(); };
    form.OpExam().click() = [this] { m_periods.OpExam_Click(); };

    form.cb_Locaux.click = [this] { m_rooms.cb_Locaux_Click(); };
    form.ElemDep.click = [this] { m_rooms.ElemDep_Click(); };
    form.Combo1.click = [this] { m_rooms.Combo1_Click(); };
    form.Chk_Neutre.click = [this] { m_rooms.Chk_Neutre_Click(); };

    form.Total_L_P.change = [this] { m_paging.Total_L_P_Change(); };
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
