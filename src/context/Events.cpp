// Which control's event leads where, as far as day, period and rooms are chosen by it.

#include "context/Events.h"

namespace context
{

void tieEvents(form::PlanForm& form, Periods& periods, RoomSet& rooms)
{
    form.CbTranche.click = [&periods] { periods.CbTranche_Click(); };
    form.CbJour.click = [&periods] { periods.CbJour_Click(); };
    form.Today.click = [&periods] { periods.Today_Click(); };
    form.DayBefore.click = [&periods] { periods.DayBefore_Click(); };
    form.DayAfter.click = [&periods] { periods.DayAfter_Click(); };
    form.DTPicker1.change = [&periods] { periods.DTPicker1_Change(); };
    form.Check2.click = [&periods] { periods.Check2_Click(); };
    form.Combo10.click = [&periods] { periods.Combo10_Click(); };
    form.OpEns().click() = [&periods] { periods.OpEns_Click(); };
    form.OpExam().click() = [&periods] { periods.OpExam_Click(); };

    form.cb_Locaux.click = [&rooms] { rooms.cb_Locaux_Click(); };
    form.ElemDep.click = [&rooms] { rooms.ElemDep_Click(); };
    form.Combo1.click = [&rooms] { rooms.Combo1_Click(); };
    form.Chk_Neutre.click = [&rooms] { rooms.Chk_Neutre_Click(); };
}

} // namespace context
