#include "form/PlanForm.h"

#include "runtime/FrenchDate.h"

namespace form
{
namespace
{

// Places of the design, in twips. The time axis leaves room for the row labels on its left.
constexpr int kAxisLeft = 2040;
constexpr int kHeaderHeight = 300;
constexpr int kRowTop = 345;
constexpr int kRowHeight = 300;
constexpr int kRoomWidth = 1920;
constexpr int kPlacesWidth = 540;
constexpr int kTotalHeight = 285;
constexpr int kTickWidth = 600;

// The header: the title over the establishment on the left, the period's dates on the right.
constexpr int kTitleTop = -1050;
constexpr int kNotesTop = -540;
constexpr int kTitleHeight = 480;
constexpr int kNotesHeight = 320;

QStringList zones()
{
    QStringList items;
    for (int zone = 0; zone <= 9; ++zone) {
        items.append(QString::number(zone));
    }
    return items;
}

QStringList dayNames()
{
    const auto& names = runtime::frenchDayNames();
    return {names.begin(), names.end()};
}

void designHeader(PlanForm& form)
{
    form.XSalle.place = {0, kTitleTop, 9700, kTitleHeight};
    form.XSalle.font = {QStringLiteral("Arial Black"), 18, true};
    form.Label4[4].place = {0, kNotesTop, 6300, kNotesHeight};
    form.Label4[4].font = {QStringLiteral("Arial"), 12, true};
    // "Du", the first day, "au", the last day.
    constexpr std::array<int, 5> lefts = {10200, 10560, 12840, 13200, 15480};
    for (std::size_t part = 0; part + 1 < lefts.size(); ++part) {
        Label& label = form.Label4.at(part);
        label.place = {lefts.at(part), kNotesTop, lefts.at(part + 1) - lefts.at(part),
                       kNotesHeight};
        label.font = {QStringLiteral("Arial"), 11, part % 2 == 1};
    }
}

void designPlan(PlanForm& form)
{
    for (std::size_t tick = 0; tick < form.Label1.size(); ++tick) {
        Label& label = form.Label1.at(tick);
        label.caption = PlanForm::tickTime(static_cast<int>(tick));
        label.place = {kAxisLeft, 0, kTickWidth, kHeaderHeight};
        label.font.bold = true;
    }
    form.Salle.resize(PlanForm::kRows);
    form.Cap.resize(PlanForm::kRows);
    for (Label& room : form.Salle) {
        room.place = {0, kRowTop, kRoomWidth, kRowHeight};
        room.visible = false;
    }
    for (Label& places : form.Cap) {
        places.place = {0, kRowTop, kPlacesWidth, kRowHeight};
        places.visible = false;
    }
    for (Label& total : form.Tot) {
        total.place.height = kTotalHeight;
        total.font.bold = true;
        total.visible = false;
    }
}

} // namespace

PlanForm::PlanForm()
    : caption(QStringLiteral("Planning des Classes")), backColor(Colour::fromRgb(240, 240, 240)),
      Today(QStringLiteral("Aujourd’hui")), DayBefore(QStringLiteral("◀")),
      DayAfter(QStringLiteral("▶")), Check2(QStringLiteral("Date")),
      mode({QStringLiteral("Enseignement"), QStringLiteral("Examen")}),
      week({QStringLiteral("Toute Semaine"), QStringLiteral("Semaine A"),
            QStringLiteral("Semaine B")}),
      XOpCl(QStringLiteral("Classe")), XOpEns(QStringLiteral("Enseignant")),
      XpMat(QStringLiteral("Matière")), Chk_Type(QStringLiteral("Type de S.")),
      xOpExam(QStringLiteral("Responsable")), Check1(QStringLiteral("Selon la Matière:")),
      ElemDep(QStringLiteral("Eléments du département ")),
      Chk_Neutre(QStringLiteral("+ Eléments Neutres")),
      EveryRoom(QStringLiteral("Toutes les salles")), Command2(QStringLiteral("Page Précédente")),
      Command3(QStringLiteral("Page Suivante")), Colorer(QStringLiteral("Colorer"), true),
      ChkGrille(QStringLiteral("Grille")), Check3(QStringLiteral("S. Groupées"), true),
      Chk_Compt(QStringLiteral("Comptage")), Command4(QStringLiteral("Changer de Palette")),
      Command1(QStringLiteral("Imprimer")), PrintPreview(QStringLiteral("Aperçu")),
      PrintAllPages(QStringLiteral("Imprimer toutes les pages")),
      PreviewAllPages(QStringLiteral("Aperçu de toutes les pages")),
      Opt_Cap(QStringLiteral("Imprimer Capacité"))
{
    XSalle.caption = QStringLiteral("Occupation des Salles du");
    Label4[0].caption = QStringLiteral("Du");
    Label4[2].caption = QStringLiteral("au");
    Label5.caption = QStringLiteral("Défaut");
    Label20.caption = QStringLiteral("Police");
    Frame1.caption = QStringLiteral("Palette : ");
    Semn.caption = QStringLiteral("1");
    ImgSql.visible = false;
    ImgAccess.visible = false;
    xOpExam.visible = false;
    Combo10.visible = false;
    Cb_Mat.visible = false;
    Chk_Neutre.visible = false;
    CbJour.design(dayNames(), 0);
    cb_Locaux.design(zones(), 0);
    Command2.enabled = false;
    Command3.enabled = false;
    designHeader(*this);
    designPlan(*this);
}

QString PlanForm::tickTime(int tick)
{
    return QStringLiteral("%1h00").arg(kFirstHour + tick);
}

void PlanForm::setFontName(const QString& name)
{
    controlFontName = name;
    for (Label* label : {&XSalle, &Label11, &Lab_Ver, &Semn, &Label5}) {
        label->font.name = name;
    }
    const auto setAll = [&name](auto& labels) {
        for (Label& label : labels) {
            label.font.name = name;
        }
    };
    setAll(Label4);
    setAll(Label1);
    setAll(Salle);
    setAll(Cap);
    setAll(Tot);
}

QString PlanForm::title() const
{
    const QString when = DTPicker1.visible
                             ? DTPicker1.value().toString(QStringLiteral("dd/MM/yy")).toUpper()
                             : CbJour.text();
    return XSalle.caption + u' ' + when;
}

} // namespace form
