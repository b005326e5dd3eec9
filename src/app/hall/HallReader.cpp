#include "app/hall/HallReader.h"

#include "shell/HallChoices.h"
#include "shell/Player.h"

#include <utility>

namespace app
{
namespace
{

/// What one gap of a page would say of all: nothing is answered any more, and the page before is
/// worth more than this one.
void refuseWithoutAnswers(const std::vector<plan::PlanPage>& pages)
{
    for (const plan::PlanPage& page : pages) {
        for (const lookup::ReadFault& fault : page.content.faults) {
            if (fault.name.isEmpty() && db::concernsAllReads(fault.failure)) {
                throw db::DatabaseError(fault.failure, runtime::ErrorNumber::DatabaseFailure,
                                        fault.text);
            }
        }
    }
}

timetable::Week weekOf(const form::PlanForm& form)
{
    if (form.OptFixe().isSelected()) {
        return timetable::Week::Every;
    }
    return form.OptA().isSelected() ? timetable::Week::A : timetable::Week::B;
}

} // namespace

HallReader::HallReader(Open open, shell::CommandLine choices)
    : m_open(std::move(open)), m_choices(std::move(choices))
{
}

HallPlan HallReader::read(const QDateTime& now, int roomsAPage)
{
    if (!m_shell || m_day != now.date()) {
        startUp(now.date());
    }
    HallPlan plan;
    plan.pages = m_shell->engine().pagesOfEveryRoom(m_choices.roomsPerPage.value_or(roomsAPage));
    refuseWithoutAnswers(plan.pages);
    shell::hideAbsences(plan.pages);
    plan.day = m_day;
    plan.readAt = now;
    plan.establishment = m_shell->engine().state().establishment.EstablishmentName;
    if (m_shell->form().cb_Locaux.listIndex() > 0) {
        plan.zone = QStringLiteral("Zone ") + m_shell->form().cb_Locaux.text();
    }
    plan.week = weekOf(m_shell->form());
    return plan;
}

void HallReader::startUp(QDate day)
{
    m_shell.reset();
    std::unique_ptr<shell::Shell> shell = m_open();
    shell->Form_Load();
    shell->fitPicture();
    shell->Form_Activate();
    shell::play(*shell, shell::hallChoices(m_choices, day, shell->weekA()));
    m_shell = std::move(shell);
    m_day = day;
}

shell::CommandLine hallChoicesOf(const form::PlanForm& form)
{
    shell::CommandLine line;
    if (form.CbTranche.listIndex() >= 0) {
        line.tranche = form.CbTranche.text();
    }
    if (form.OpExam().isSelected()) {
        line.mode = shell::CommandLine::Mode::Exam;
        line.examWeek = form.Combo10.listIndex() + 1;
    }
    line.zone = form.cb_Locaux.listIndex();
    if (form.ElemDep.isChecked()) {
        line.department = form.Combo1.text();
        line.neutral = form.Chk_Neutre.isChecked();
    }
    line.show = shell::CommandLine::Shown{form.XOpCl.isChecked(), form.XOpEns.isChecked(),
                                          form.XpMat.isChecked(), form.Chk_Type.isChecked(),
                                          form.xOpExam.isChecked()};
    return line;
}

} // namespace app
