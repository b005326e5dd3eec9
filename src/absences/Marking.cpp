#include "absences/Marking.h"

#include "plan/ClassList.h"

namespace absences
{

Toggled Marking::Marquer_AbsClasses(int index)
{
    plan::Marqueur& marker = m_plan.markers().at(index);
    Toggled done{Toggled::What::Classes, marker.Jour, {}, {}};
    for (const QString& className : plan::classNames(marker.Classes)) {
        m_records.Basculer_AbsClasse(marker, className);
        (marker.AbsClasse ? done.recorded : done.takenBack) << className;
    }
    return done;
}

Toggled Marking::Marquer_AbsEtuds(int index)
{
    plan::Marqueur& marker = m_plan.markers().at(index);
    Toggled done{Toggled::What::Students, marker.Jour, {}, {}};
    for (const QString& className : plan::classNames(marker.Classes)) {
        m_records.Basculer_AbsEtud(marker, className, className);
        tellStudentAbsence(index);
        (marker.AbsEtud ? done.recorded : done.takenBack) << className;
    }
    return done;
}

std::vector<Toggled> Marking::Clic_Marqueur(int index)
{
    std::vector<Toggled> done;
    if (isPressed(VirtualKey::Ctrl)) {
        done.push_back(Marquer_AbsEtuds(index));
        showStudentAbsence(index);
    }
    if (isPressed(VirtualKey::Shift)) {
        done.push_back(Marquer_AbsClasses(index));
        showClassAbsence(index);
    }
    return done;
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
