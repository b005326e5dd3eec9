#include "plan/PlanState.h"

namespace plan
{
namespace
{

lookup::ViewedDay dayOf(const PlanState& state)
{
    return {state.form.OpExam().isSelected(), state.period.examWeek, state.form.Check2.isChecked(),
            state.form.DTPicker1.value()};
}

lookup::DisplayOptions optionsOf(const PlanState& state)
{
    const form::PlanForm& form = state.form;
    lookup::DisplayOptions options;
    options.exam = form.OpExam().isSelected();
    options.showClass = form.XOpCl.isChecked();
    options.showTeachers = form.XOpEns.isChecked();
    options.showInvigilators = form.xOpExam.isChecked();
    options.showSubject = form.XpMat.isChecked();
    options.showType = form.Chk_Type.isChecked();
    options.everyWeek = form.OptFixe().isSelected();
    options.showsWeekA = form.OptA().isSelected();
    options.showsWeekB = form.OptB().isSelected();
    options.separator = state.layout.CellSeparator;
    return options;
}

} // namespace

lookup::View viewOf(const PlanState& state)
{
    lookup::View view{dayOf(state), optionsOf(state), std::nullopt, state.SeanceTypeShortNames, {}};
    if (state.form.Check1.isChecked()) {
        view.subject = state.form.Cb_Mat.text();
    }
    for (int tick = 0; tick < form::PlanForm::kTicks; ++tick) {
        view.tickTimes << form::PlanForm::tickTime(tick);
    }
    return view;
}

} // namespace plan
