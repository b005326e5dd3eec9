#include "absences/Marking.h"

#include "plan/ClassList.h"

namespace absences
{

void Marking::Marquer_AbsClasses(int index)
{
    plan::Marqueur& marker = m_plan.markers().at(index);
    for (const QString& className : plan::classNames(marker.Classes)) {
        m_records.Basculer_AbsClasse(marker, className);
    }
}

void Marking::Marquer_AbsEtuds(int index)
{
    plan::Marqueur& marker = m_plan.markers().at(index);
    for (const QString& className : plan::classNames(marker.Classes)) {
        m_records.Basculer_AbsEtud(marker, className, className);
        tellStudentAbsence(index);
    }
}

void Marking::Clic_Marqueur(int index)
{
    if (isPressed(VirtualKey::Ctrl)) {
        Marquer_AbsEtuds(index);
        showStudentAbsence(index);
    }
    if (isPressed(VirtualKey::Shift)) {
        Marquer_AbsClasses(index);
        showClassAbsence(index);
    }
}

bool Marking::isPressed(VirtualKey key)
{
    return m_keys.state(key) == AsyncKeyState::kDownAndPressed;
}

void Marking::showClassAbsence(int index)
{
    if (plan::PlanBox* box = m_plan.box(index)) {
        // The class toggled last decides.
        box->classAbsent = m_plan.markers().at(index).AbsClasse;
    }
}

void Marking::showStudentAbsence(int index)
{
    if (plan::PlanBox* box = m_plan.box(index)) {
        box->studentAbsent = m_plan.markers().at(index).AbsEtud;
    }
}

void Marking::tellStudentAbsence(int index)
{
    if (plan::PlanBox* box = m_plan.box(index)) {
        const plan::Marqueur& marker = m_plan.markers().at(index);
        // All classes of the box are named, whichever was toggled.
        box->absentToolTip = marker.AbsEtud ? plan::studentAbsentToolTip(marker) : QString();
    }
}

} // namespace absences
