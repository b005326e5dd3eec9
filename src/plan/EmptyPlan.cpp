#include "plan/EmptyPlan.h"

#include "context/PageRule.h"
#include "plan/EmptyPlace.h"

#include <algorithm>

namespace plan
{
namespace
{

/// The rooms of the choice, with none in them.
QString noRoomReason(const form::PlanForm& form)
{
    const QString zone = form.cb_Locaux.text();
    const bool isZone = zone != u"0";
    if (!form.ElemDep.isChecked()) {
        return isZone ? QStringLiteral("Aucune salle dans la zone %1.").arg(zone)
                      : QStringLiteral("La base de données ne contient aucune salle.");
    }
    if (form.Combo1.text().isEmpty()) {
        const QString choice =
            form.Combo1.items().isEmpty()
                ? QStringLiteral("La liste des départements est vide.")
                : QStringLiteral(
                      "Aucun département n’est choisi : choisissez-en un dans la liste.");
        return isZone ? QStringLiteral("Aucune salle dans la zone %1. ").arg(zone) + choice
                      : choice;
    }
    return isZone
               ? QStringLiteral("Aucune salle dans la zone %1, ni dans le département « %2 ».")
                     .arg(zone, form.Combo1.text())
               : QStringLiteral("Aucune salle dans le département « %1 ».").arg(form.Combo1.text());
}

QString noRowReason(const PlanState& state)
{
    const context::RoomPage& page = state.page;
    if (page.listed < 1) {
        return noRoomReason(state.form);
    }
    const bool hasGreyed = !state.form.EveryRoom.isChecked();
    if (hasGreyed && context::PageRule(state.form).positionOf(page.PageOffset, 0) < page.listed) {
        return QStringLiteral(
            "La seule salle de cette page est sur la ligne grisée. Cochez « Toutes "
            "les salles » pour voir ses séances.");
    }
    return QStringLiteral("Cette page commence après la dernière des %1 salles. Revenez à la "
                          "première page (Début).")
        .arg(page.listed);
}

/// Whether a box would have a text at all.
bool showsAnything(const form::PlanForm& form)
{
    return form.XOpCl.isChecked() || form.XOpEns.isChecked() || form.XpMat.isChecked() ||
           (form.OpExam().isSelected() && form.xOpExam.isChecked());
}

QString noBoxReason(const PlanState& state, const PlanContent& content)
{
    const form::PlanForm& form = state.form;
    if (form.CbJour.listIndex() < 0) {
        return QStringLiteral(
            "Le plan n’a pas de dimanche. Choisissez un jour du lundi au samedi.");
    }
    if (!showsAnything(form)) {
        return QStringLiteral("Rien n’est coché dans « Dans les cases », donc aucune case n’est "
                              "dessinée. Cochez « %1 », « %2 » ou « %3 ».")
            .arg(form.XOpCl.caption, form.XOpEns.caption, form.XpMat.caption);
    }
    const bool isExam = form.OpExam().isSelected();
    const QString what = isExam ? QStringLiteral("Aucun examen") : QStringLiteral("Aucune séance");
    const QString subject =
        form.Check1.isChecked() ? QStringLiteral(" de « %1 »").arg(form.Cb_Mat.text()) : QString();
    const QString week =
        isExam ? QStringLiteral(" de cette semaine d’examen") : chosenWeekWords(form);
    const bool isUntold = std::any_of(content.rows.begin(), content.rows.end(),
                                      [](const PlanRow& row) { return !row.untold.empty(); });
    const QString shown = isUntold ? QStringLiteral(" à montrer") : QString();
    const QString others =
        !isUntold ? QString()
        : isExam  ? QStringLiteral(" D’autres examens y sont, que ces choix ne montrent pas.")
                  : QStringLiteral(" D’autres séances y sont, que ces choix ne montrent pas.");
    return QStringLiteral("%1%2%3 dans ces salles le %4%5.")
               .arg(what, subject, shown, form.CbJour.text().toLower(), week) +
           others;
}

} // namespace

QString emptyPlanReason(const PlanState& state, const PlanContent& content)
{
    if (!content.drawnFrom || !content.faults.empty()) {
        return {};
    }
    if (state.page.RowsShown < 1) {
        return noRowReason(state);
    }
    const bool isWhole = content.rows.size() >= static_cast<std::size_t>(state.page.RowsShown);
    const bool isEmpty =
        std::all_of(content.rows.begin(), content.rows.end(),
                    [](const PlanRow& row) { return row.boxes.empty() && row.unknown.empty(); });
    return isWhole && isEmpty ? noBoxReason(state, content) : QString();
}

} // namespace plan
