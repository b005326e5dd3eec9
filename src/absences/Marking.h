#pragma once

#include "absences/AbsenceRecords.h"
#include "absences/AsyncKeyState.h"
#include "absences/Toggled.h"
#include "plan/PlanRefresh.h"

#include <QString>
#include <QStringList>
#include <vector>

namespace absences
{

/// The two gestures on a box of the plan: a click with Shift held records that the box's classes
/// were absent, a click with Ctrl held that students of these classes were; the same gesture takes
/// the records back. The box's markers show the outcome at once.
///
/// `index` is the number of a marker, from 1. One that was never given to a box is a
/// SubscriptOutOfRange. A click may come while a refresh yields: the marker then stands for the
/// séance it was last filled with, and a box that is not drawn has no picture to change.
class Marking
{
public:
    /// All three outlive the marking.
    Marking(plan::PlanRefresh& plan, AbsenceRecords& records, AsyncKeyState& keys)
        : m_plan(plan), m_records(records), m_keys(keys)
    {
    }

    /// Toggles the absence of every class of the box, each by itself.
    /// Errors: SubscriptOutOfRange, any database error. The classes before the one at fault are
    /// done, those after it are not.
    Toggled Marquer_AbsClasses(int index);
    /// Toggles the absence of students of every class of the box: the class's name stands in the
    /// student's place too. The tooltip of `YAbs` follows each toggle.
    /// Errors: as above, TypeMismatch when the start time is no time of day.
    Toggled Marquer_AbsEtuds(int index);

    /// A click on `XAbs`, `YAbs` or `ZAbs` of a box: asks for the state of Ctrl, then of Shift.
    /// A key counts only when it reads exactly "down now and pressed since the previous query", so
    /// that a key held over several clicks toggles once. Without any of the two nothing happens.
    /// Returns what was done, in its order. Errors: as above.
    std::vector<Toggled> Clic_Marqueur(int index);

private:
    [[nodiscard]] bool isPressed(VirtualKey key);
    void showClassAbsence(int index);
    void showStudentAbsence(int index);
    void tellStudentAbsence(int index);

    plan::PlanRefresh& m_plan;
    AbsenceRecords& m_records;
    AsyncKeyState& m_keys;
};

} // namespace absences
