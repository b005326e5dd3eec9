#include "form/FormCopy.h"

namespace form
{
namespace
{

// The copy's controls have no events, so that their setters raise nothing.

void copy(const CheckBox& from, CheckBox& to)
{
    to.caption = from.caption;
    to.visible = from.visible;
    to.setChecked(from.isChecked());
}

void copy(const OptionButton& from, OptionButton& to)
{
    to.caption = from.caption;
    if (from.isSelected()) {
        to.select();
    }
}

void copy(const List& from, List& to)
{
    to.visible = from.visible;
    to.design(from.items(), from.listIndex());
}

void copy(const DatePicker& from, DatePicker& to)
{
    to.visible = from.visible;
    to.setValue(from.value());
}

void copy(const Button& from, Button& to)
{
    to.caption = from.caption;
    to.enabled = from.enabled;
}

void copyLabels(const PlanForm& from, PlanForm& to)
{
    to.XSalle = from.XSalle;
    to.Label4 = from.Label4;
    to.Label11 = from.Label11;
    to.Lab_Ver = from.Lab_Ver;
    to.Label20 = from.Label20;
    to.ImgSql = from.ImgSql;
    to.ImgAccess = from.ImgAccess;
    to.Semn = from.Semn;
    to.Frame1 = from.Frame1;
    to.Label5 = from.Label5;
    to.Label1 = from.Label1;
    to.Salle = from.Salle;
    to.Cap = from.Cap;
    to.Tot = from.Tot;
}

void copyContext(const PlanForm& from, PlanForm& to)
{
    copy(from.CbTranche, to.CbTranche);
    copy(from.CbJour, to.CbJour);
    copy(from.DTPicker1, to.DTPicker1);
    copy(from.Check2, to.Check2);
    copy(from.OpEns, to.OpEns);
    copy(from.OpExam, to.OpExam);
    copy(from.Combo10, to.Combo10);
    copy(from.OptFixe, to.OptFixe);
    copy(from.OptA, to.OptA);
    copy(from.OptB, to.OptB);
    copy(from.cb_Locaux, to.cb_Locaux);
    copy(from.ElemDep, to.ElemDep);
    copy(from.Combo1, to.Combo1);
    copy(from.Chk_Neutre, to.Chk_Neutre);
}

void copyDisplay(const PlanForm& from, PlanForm& to)
{
    copy(from.XOpCl, to.XOpCl);
    copy(from.XOpEns, to.XOpEns);
    copy(from.XpMat, to.XpMat);
    copy(from.Chk_Type, to.Chk_Type);
    copy(from.xOpExam, to.xOpExam);
    copy(from.Check1, to.Check1);
    copy(from.Cb_Mat, to.Cb_Mat);
    to.Total_L_P.setText(from.Total_L_P.text());
    copy(from.Colorer, to.Colorer);
    copy(from.ChkGrille, to.ChkGrille);
    copy(from.Check3, to.Check3);
    copy(from.Chk_Compt, to.Chk_Compt);
    copy(from.Opt_Cap, to.Opt_Cap);
    copy(from.Command1, to.Command1);
    copy(from.PrintPreview, to.PrintPreview);
    copy(from.PrintAllPages, to.PrintAllPages);
    copy(from.Command2, to.Command2);
    copy(from.Command3, to.Command3);
    copy(from.Command4, to.Command4);
}

} // namespace

std::unique_ptr<PlanForm> copyOf(const PlanForm& form)
{
    auto result = std::make_unique<PlanForm>();
    result->caption = form.caption;
    result->visible = form.visible;
    result->scaleWidth = form.scaleWidth;
    result->scaleHeight = form.scaleHeight;
    result->backColor = form.backColor;
    result->controlFontName = form.controlFontName;
    copyLabels(form, *result);
    copyContext(form, *result);
    copyDisplay(form, *result);
    return result;
}

} // namespace form
