#include "shell/Destination.h"

#include "context/Periods.h"

namespace shell
{
namespace
{

using timetable::MeetingKind;
using timetable::Week;

void chooseMode(form::PlanForm& form, const Destination& destination)
{
    if (destination.kind != MeetingKind::Exam) {
        form.OpEns().select();
        return;
    }
    form.OpExam().select();
    if (destination.examWeek > 0 && form.Combo10.listIndex() != destination.examWeek - 1) {
        form.Combo10.setListIndex(destination.examWeek - 1);
    }
}

/// Only where the chosen week would hide it.
void chooseWeek(form::PlanForm& form, Week weeks)
{
    if (weeks == Week::A && form.OptB().isSelected()) {
        form.OptA().select();
    } else if (weeks == Week::B && form.OptA().isSelected()) {
        form.OptB().select();
    }
}

/// `again`: even if the day is the shown one, for another choice shows with the next day only.
void chooseDay(Shell& shell, const Destination& destination, bool again)
{
    form::PlanForm& form = shell.form();
    if (destination.kind == MeetingKind::Exam || !destination.date.isValid()) {
        const bool isListed = destination.day >= 0 && destination.day < form.CbJour.items().size();
        const int day = isListed ? destination.day : form.CbJour.listIndex();
        if (again || form.CbJour.listIndex() != day) {
            form.CbJour.setListIndex(day);
        }
        return;
    }
    const bool shows =
        !again && form.Check2.isChecked() && form.DTPicker1.value() == destination.date;
    if (!shows) {
        form.Check2.setChecked(true);
        shell.keepDate();
        context::pickDate(form, destination.date);
    }
}

} // namespace

Destination Destination::of(const timetable::Occupancy& occupancy, timetable::HoldingId id)
{
    const timetable::Holding& holding = occupancy.holding(id);
    const timetable::Meeting& meeting = occupancy.meetingOf(holding);
    const timetable::Timetable& timetable = occupancy.timetable();
    Destination destination;
    destination.kind = meeting.kind;
    for (const timetable::RoomId room : occupancy.roomsOf(holding)) {
        if (timetable.isListed(room)) {
            destination.room = timetable.room(room).name;
            break;
        }
    }
    // The window counts the days of an exam week from its first one, whichever that is.
    destination.day = meeting.kind == MeetingKind::Exam ? meeting.slot.day : holding.day;
    destination.date = holding.date;
    destination.slot = meeting.slot.number;
    destination.examWeek = meeting.examWeek;
    destination.weeks = holding.weeks;
    destination.subject = timetable.subjects().text(meeting.part(holding.part).subject);
    return destination;
}

engine::Engine::RoomLine travel(Shell& shell, const Destination& destination)
{
    form::PlanForm& form = shell.form();
    chooseMode(form, destination);
    chooseWeek(form, destination.weeks);
    const bool isFilteredOut = form.Check1.isChecked() && destination.slot > 0 &&
                               form.Cb_Mat.text() != destination.subject;
    if (isFilteredOut) {
        form.Check1.setChecked(false);
    }
    chooseDay(shell, destination, isFilteredOut);
    engine::Engine::RoomLine line = shell.engine().showRoom(destination.room);
    if (line == engine::Engine::RoomLine::None) {
        form.ElemDep.setChecked(false);
        if (form.cb_Locaux.listIndex() != 0) {
            form.cb_Locaux.setListIndex(0);
        }
        line = shell.engine().showRoom(destination.room);
    }
    return line;
}

} // namespace shell
