#include "shell/Player.h"

#include "context/Periods.h"

namespace shell
{
namespace
{

/// Selects an item of a list that the database filled.
void select(form::List& list, const QString& option, const QString& text)
{
    if (!list.selectText(text)) {
        throw UsageError(QStringLiteral("--%1 : « %2 » n’existe pas ; valeurs acceptées : %3")
                             .arg(option, text, list.items().join(QStringLiteral(", "))));
    }
}

void playMode(form::PlanForm& form, const CommandLine& line)
{
    if (line.mode) {
        (*line.mode == CommandLine::Mode::Exam ? form.OpExam() : form.OpEns()).select();
    }
    if (line.examWeek) {
        form.Combo10.setListIndex(*line.examWeek - 1);
    }
}

void playDisplay(form::PlanForm& form, const CommandLine& line)
{
    if (line.show) {
        form.XOpCl.setChecked(line.show->cls);
        form.XOpEns.setChecked(line.show->teacher);
        form.XpMat.setChecked(line.show->subject);
        form.Chk_Type.setChecked(line.show->type);
        form.xOpExam.setChecked(line.show->invigilator);
    }
    if (line.week) {
        switch (*line.week) {
        case CommandLine::Week::All:
            form.OptFixe().select();
            break;
        case CommandLine::Week::A:
            form.OptA().select();
            break;
        case CommandLine::Week::B:
            form.OptB().select();
            break;
        }
    }
    if (line.makeup) {
        form.Check2.setChecked(true);
    }
    if (line.subject) {
        form.Check1.setChecked(true);
        select(form.Cb_Mat, QStringLiteral("subject"), *line.subject);
    }
}

void playRooms(form::PlanForm& form, const CommandLine& line)
{
    if (line.everyRoom) {
        form.EveryRoom.setChecked(true);
    }
    if (line.roomsPerPage) {
        form.Total_L_P.setText(QString::number(*line.roomsPerPage));
    }
    if (line.zone) {
        form.cb_Locaux.setListIndex(*line.zone);
    }
    if (line.department) {
        select(form.Combo1, QStringLiteral("department"), *line.department);
        form.ElemDep.setChecked(true);
        form.Chk_Neutre.setChecked(line.neutral);
    }
}

void playDay(Shell& shell, const CommandLine& line)
{
    form::PlanForm& form = shell.form();
    if (line.counting) {
        form.Chk_Compt.setChecked(true);
    }
    if (line.day) {
        form.CbJour.setListIndex(*line.day);
    } else if (line.date) {
        shell.keepDate();
        context::pickDate(form, *line.date);
    } else if (line.makeup || line.counting) {
        // Neither option redraws by itself; choosing the day again shows both.
        form.CbJour.setListIndex(form.CbJour.listIndex());
    }
}

} // namespace

void choosePeriod(Shell& shell, const CommandLine& line)
{
    if (line.tranche) {
        select(shell.form().CbTranche, QStringLiteral("tranche"), *line.tranche);
    }
}

void play(Shell& shell, const CommandLine& line)
{
    form::PlanForm& form = shell.form();
    const auto step = [&](auto&& choose) {
        if (form.visible) { // else it was closed in the middle of a redraw
            choose();
        }
    };
    step([&] { choosePeriod(shell, line); });
    step([&] { playMode(form, line); });
    step([&] { playDisplay(form, line); });
    step([&] { playRooms(form, line); });
    step([&] { playDay(shell, line); });
    for (int page = 1; page < line.page && form.visible; ++page) {
        form.Command3.press();
    }
}

} // namespace shell
