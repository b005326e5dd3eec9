#include "app/OptionPanels.h"

#include "app/DateField.h"
#include "app/FormMirror.h"
#include "app/Mnemonics.h"
#include "app/PlainTexts.h"
#include "app/TitledGroup.h"
#include "app/WrappingBand.h"
#include "engine/Engine.h"

#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

namespace app
{
namespace
{

constexpr int kPanelRows = 4;
constexpr int kRowPixels = 22;
constexpr int kWidestList = 260;
constexpr int kArrowPixels = 18; // all groups are to find room beside one another on 1366 pixels

/// Makes the widgets of the panels: each has its control's name and is bound to it.
class PanelBuilder
{
public:
    explicit PanelBuilder(FormMirror& mirror) : m_mirror(mirror) {}

    template <typename Widget, typename Control>
    Widget* add(const char* name, Control& control, const QString& toolTip = {})
    {
        auto* widget = new Widget;
        widget->setObjectName(QString::fromLatin1(name));
        setPlainToolTip(widget, toolTip);
        m_mirror.bind(widget, control);
        return widget;
    }

    QCheckBox* check(const char* name, form::CheckBox& control, const QString& toolTip = {})
    {
        return add<QCheckBox>(name, control, toolTip);
    }
    QRadioButton* radio(const char* name, form::OptionButton<form::OptionGroup> control,
                        const QString& toolTip = {})
    {
        return add<QRadioButton>(name, control, toolTip);
    }
    QComboBox* list(const char* name, form::List& control, const QString& accessibleName,
                    int minimumCharacters)
    {
        auto* widget = add<QComboBox>(name, control, accessibleName);
        widget->setAccessibleName(accessibleName);
        widget->view()->setAccessibleName(accessibleName);
        widget->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        widget->setIconSize({0, 0}); // no item has an icon: the room is the text's
        widget->setMinimumContentsLength(minimumCharacters);
        m_mirror.follow([widget, accessibleName, &control] {
            const QString text = control.text();
            setPlainToolTip(widget, text.isEmpty() ? accessibleName
                                                   : accessibleName + QStringLiteral(" : ") + text);
        });
        return widget;
    }
    /// A list as wide as its longest item, within reason.
    QComboBox* wideList(const char* name, form::List& control, const QString& accessibleName,
                        int minimumCharacters)
    {
        auto* widget = list(name, control, accessibleName, minimumCharacters);
        widget->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        widget->setMaximumWidth(kWidestList);
        return widget;
    }
    QPushButton* button(const char* name, form::Button& control, const QString& toolTip)
    {
        return add<QPushButton>(name, control, toolTip);
    }

private:
    FormMirror& m_mirror;
};

/// A titled panel whose rows are filled from the top.
QGridLayout* addPanel(QLayout* band, const QString& title)
{
    auto* panel = new TitledGroup(title);
    auto* grid = new QGridLayout(panel);
    grid->setContentsMargins(8, 2, 8, 3);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(0);
    for (int row = 0; row < kPanelRows; ++row) {
        grid->setRowMinimumHeight(row, kRowPixels);
    }
    grid->setRowStretch(kPanelRows, 1);
    band->addWidget(panel);
    return grid;
}

/// The title speaks for a list that has no caption of its own: its key leads there, and F6.
void entitle(QGridLayout* grid, QWidget* list)
{
    auto* panel = qobject_cast<QGroupBox*>(grid->parentWidget());
    panel->setTitle(withMnemonic(panel->title(), list->objectName()));
    panel->setFocusProxy(list);
}

/// A caption that leads to its field.
QLabel* captionOf(QWidget* field, const QString& text)
{
    auto* caption = plainLabel(withMnemonic(text, field->objectName()));
    caption->setBuddy(field);
    return caption;
}

/// The widget keeps its place while it is hidden, so that nothing around it moves.
template <typename Widget>
Widget* keepPlace(Widget* widget)
{
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
    return widget;
}

void addPeriodPanel(QLayout* band, PanelBuilder& make, form::PlanForm& form)
{
    QGridLayout* grid = addPanel(band, QStringLiteral("Période"));
    auto* period =
        make.wideList("CbTranche", form.CbTranche, QStringLiteral("Période affichée"), 15);
    grid->addWidget(period, 0, 0);
    entitle(grid, period);
    grid->addWidget(
        make.radio("OpEns", form.OpEns(), QStringLiteral("Emploi du temps hebdomadaire")), 1, 0);
    grid->addWidget(make.radio("OpExam", form.OpExam(), QStringLiteral("Semaines d’examen")), 2, 0);
    grid->addWidget(
        keepPlace(make.wideList("Combo10", form.Combo10, QStringLiteral("Semaine d’examen"), 15)),
        3, 0);
}

/// The toolkit's calendar has two buttons that are mere arrows, and gives none of its parts a name.
void nameCalendarParts(QCalendarWidget& calendar)
{
    calendar.setAccessibleName(QStringLiteral("Calendrier"));
    const auto name = [&calendar](const char* part, const QString& accessibleName) {
        auto* widget = calendar.findChild<QWidget*>(QString::fromLatin1(part));
        if (widget != nullptr) { // the names of the parts are the toolkit's own affair
            widget->setAccessibleName(accessibleName);
        }
    };
    name("qt_calendar_prevmonth", QStringLiteral("Mois précédent"));
    name("qt_calendar_nextmonth", QStringLiteral("Mois suivant"));
    name("qt_calendar_yearedit", QStringLiteral("Année"));
    name("qt_calendar_calendarview", QStringLiteral("Jours du mois"));
}

/// The list of days between the buttons that lead to the day before and behind.
QLayout* dayRow(PanelBuilder& make, FormMirror& mirror, engine::Engine& engine, QWidget* days)
{
    form::PlanForm& form = engine.form();
    auto* row = new QHBoxLayout;
    row->setSpacing(1);
    const auto arrow = [&](const char* name, form::Button& control, const QString& help,
                           const QString& keys, int step) {
        auto* button = make.add<QToolButton>(name, control, help + keys);
        button->setAccessibleName(help);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setFixedWidth(kArrowPixels);
        mirror.follow([button, &engine, step] { button->setEnabled(engine.hasDayBeside(step)); });
        return button;
    };
    row->addWidget(arrow("DayBefore", form.DayBefore, QStringLiteral("Jour précédent"),
                         QStringLiteral(" (Alt+←)"), -1));
    row->addWidget(days, 1);
    row->addWidget(arrow("DayAfter", form.DayAfter, QStringLiteral("Jour suivant"),
                         QStringLiteral(" (Alt+→)"), 1));
    return row;
}

void addDayPanel(QLayout* band, PanelBuilder& make, FormMirror& mirror, engine::Engine& engine)
{
    form::PlanForm& form = engine.form();
    QGridLayout* grid = addPanel(band, QStringLiteral("Jour"));
    auto* days = make.list("CbJour", form.CbJour, QStringLiteral("Jour affiché"), 8);
    grid->addLayout(dayRow(make, mirror, engine, days), 0, 0);
    entitle(grid, days);
    grid->addWidget(make.check("Check2", form.Check2,
                               QStringLiteral("Choisir une date et montrer ses rattrapages, "
                                              "hachurés")),
                    1, 0);
    auto* picker =
        make.add<DateField>("DTPicker1", form.DTPicker1, QStringLiteral("Date affichée (Ctrl+D)"));
    const QSignalBlocker quiet(picker);
    picker->setAccessibleName(QStringLiteral("Date affichée"));
    picker->setLocale(QLocale(QLocale::French, QLocale::France));
    picker->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    picker->setCalendarPopup(true);
    nameCalendarParts(*picker->calendarWidget());
    grid->addWidget(keepPlace(picker), 2, 0);
    grid->addWidget(
        make.button("Today", form.Today, QStringLiteral("Montrer aujourd’hui (Ctrl+T)")), 3, 0);
}

void addWeekPanel(QLayout* band, PanelBuilder& make, form::PlanForm& form)
{
    QGridLayout* grid = addPanel(band, QStringLiteral("Semaine"));
    grid->addWidget(
        make.radio("OptFixe", form.OptFixe(), QStringLiteral("Les deux semaines ensemble")), 0, 0);
    grid->addWidget(make.radio("OptA", form.OptA()), 1, 0);
    grid->addWidget(make.radio("OptB", form.OptB()), 2, 0);
}

void addBoxPanel(QLayout* band, PanelBuilder& make, form::PlanForm& form)
{
    QGridLayout* grid = addPanel(band, QStringLiteral("Dans les cases"));
    grid->addWidget(make.check("XOpCl", form.XOpCl), 0, 0);
    grid->addWidget(make.check("XOpEns", form.XOpEns), 1, 0);
    grid->addWidget(make.check("XpMat", form.XpMat), 2, 0);
    // One belongs to teaching, the other to exams: they share a place.
    grid->addWidget(make.check("Chk_Type", form.Chk_Type, QStringLiteral("Type de séance")), 3, 0);
    grid->addWidget(make.check("xOpExam", form.xOpExam, QStringLiteral("Responsables de l’examen")),
                    3, 0);
    grid->setColumnMinimumWidth(0, 92);
}

void addRoomPanel(QLayout* band, PanelBuilder& make, form::PlanForm& form)
{
    QGridLayout* grid = addPanel(band, QStringLiteral("Salles"));
    auto* zone = make.list("cb_Locaux", form.cb_Locaux,
                           QStringLiteral("Zone des salles ; 0 pour toutes"), 3);
    grid->addWidget(captionOf(zone, QStringLiteral("Zone")), 0, 0);
    grid->addWidget(zone, 0, 1);
    grid->addWidget(
        make.check("ElemDep", form.ElemDep, QStringLiteral("Ajouter les salles d’un département")),
        1, 0, 1, 2);
    grid->addWidget(make.list("Combo1", form.Combo1, QStringLiteral("Département"), 8), 2, 0, 1, 2);
    grid->addWidget(keepPlace(make.check("Chk_Neutre", form.Chk_Neutre,
                                         QStringLiteral("Ajouter les salles sans département"))),
                    3, 0, 1, 2);
    grid->setColumnStretch(1, 1);
}

void addPagePanel(QLayout* band, PanelBuilder& make, form::PlanForm& form)
{
    QGridLayout* grid = addPanel(band, QStringLiteral("Page"));
    auto* lines = make.add<QSpinBox>(
        "Total_L_P", form.Total_L_P,
        QStringLiteral("Nombre de salles par page, %1 au plus").arg(form::PlanForm::kMostRooms));
    const QSignalBlocker quiet(lines);
    lines->setRange(1, 99);
    lines->setAccessibleName(QStringLiteral("Lignes par page"));
    grid->addWidget(captionOf(lines, QStringLiteral("Lignes/Page : ")), 0, 0);
    grid->addWidget(lines, 0, 1);
    grid->addWidget(make.check("EveryRoom", form.EveryRoom,
                               QStringLiteral("Des pages qui ne laissent aucune salle de côté, "
                                              "sans la première ligne grisée")),
                    1, 0, 1, 2);
    grid->addWidget(
        make.button("Command3", form.Command3, QStringLiteral("Salles suivantes (Ctrl+Pg.Suiv)")),
        2, 0, 1, 2);
    grid->addWidget(
        make.button("Command2", form.Command2, QStringLiteral("Salles précédentes (Ctrl+Pg.Préc)")),
        3, 0, 1, 2);
}

QCheckBox* addViewPanel(QLayout* band, PanelBuilder& make, form::PlanForm& form)
{
    QGridLayout* grid = addPanel(band, QStringLiteral("Affichage"));
    auto* colorer = make.check("Colorer", form.Colorer, QStringLiteral("Une couleur par salle"));
    grid->addWidget(colorer, 0, 0);
    grid->addWidget(make.check("ChkGrille", form.ChkGrille,
                               QStringLiteral("Lignes des heures et des quarts d’heure")),
                    1, 0);
    grid->addWidget(
        make.check("Check3", form.Check3,
                   QStringLiteral("Compteurs des classes groupées et des dépassements")),
        2, 0);
    grid->addWidget(make.check("Chk_Compt", form.Chk_Compt,
                               QStringLiteral("Compter les places occupées par séance, à partir "
                                              "du prochain affichage")),
                    3, 0);
    return colorer;
}

void addSubjectPanel(QLayout* band, PanelBuilder& make, FormMirror& mirror, engine::Engine& engine)
{
    form::PlanForm& form = engine.form();
    QGridLayout* grid = addPanel(band, QStringLiteral("Matière et couleurs"));
    grid->addWidget(make.check("Check1", form.Check1,
                               QStringLiteral("Ne montrer que les séances d’une matière")),
                    0, 0, 1, 2);
    grid->addWidget(make.list("Cb_Mat", form.Cb_Mat, QStringLiteral("Matière montrée"), 10), 1, 0,
                    1, 2);
    auto* frame = new QWidget;
    frame->setObjectName(QStringLiteral("Frame1"));
    mirror.bindVisible(frame, form.Frame1.visible);
    auto* row = new QGridLayout(frame);
    row->setContentsMargins(0, 0, 0, 0);
    row->setVerticalSpacing(1);
    row->addWidget(plainLabel(form.Frame1.caption), 0, 0);
    auto* name = plainLabel();
    name->setObjectName(QStringLiteral("Label5"));
    name->setProperty("role", QStringLiteral("strong"));
    mirror.bind(name, form.Label5);
    row->addWidget(name, 0, 1, Qt::AlignLeft);
    row->setColumnStretch(1, 1);
    row->addWidget(
        make.button("Command4", form.Command4, QStringLiteral("Choisir une palette de couleurs")),
        1, 0, 1, 2);
    grid->addWidget(frame, 1, 0, 2, 2);
}

void addPrintPanel(QLayout* band, PanelBuilder& make, FormMirror& mirror, engine::Engine& engine)
{
    form::PlanForm& form = engine.form();
    QGridLayout* grid = addPanel(band, QStringLiteral("Impression"));
    grid->addWidget(make.button("Command1", form.Command1,
                                QStringLiteral("Imprimer la page affichée (Ctrl+P)")),
                    0, 0);
    grid->addWidget(make.button("PrintPreview", form.PrintPreview,
                                QStringLiteral("Voir la feuille avant de l’imprimer")),
                    0, 1);
    grid->addWidget(make.button("PrintAllPages", form.PrintAllPages,
                                QStringLiteral("Imprimer toutes les salles, une feuille par "
                                               "page (Ctrl+Maj+P)")),
                    1, 0, 1, 2);
    grid->addWidget(make.button("PreviewAllPages", form.PreviewAllPages,
                                QStringLiteral("Voir toutes les feuilles avant de les imprimer")),
                    2, 0, 1, 2);
    auto* capacity = make.check("Opt_Cap", form.Opt_Cap);
    mirror.follow([capacity, &form] {
        const bool counts = !form.Check3.isChecked();
        capacity->setEnabled(counts);
        setPlainToolTip(
            capacity, counts ? QStringLiteral("Imprimer l’effectif et les places de chaque case")
                             : QStringLiteral("Sans effet tant que « S. Groupées » est coché : les "
                                              "feuilles ont alors ses compteurs. Décochez-le pour "
                                              "imprimer l’effectif et les places de chaque case."));
    });
    grid->addWidget(capacity, 3, 0, 1, 2);
}

} // namespace

OptionPanels::OptionPanels(engine::Engine& engine, FormMirror& mirror)
{
    setObjectName(QStringLiteral("Picture1"));
    auto* band = new WrappingBand(this);
    band->setContentsMargins(6, 2, 6, 4);
    band->setSpacing(5);
    PanelBuilder make(mirror);
    form::PlanForm& form = engine.form();
    addPeriodPanel(band, make, form);
    addDayPanel(band, make, mirror, engine);
    addWeekPanel(band, make, form);
    addBoxPanel(band, make, form);
    addRoomPanel(band, make, form);
    addPagePanel(band, make, form);
    m_colorer = addViewPanel(band, make, form);
    addSubjectPanel(band, make, mirror, engine);
    addPrintPanel(band, make, mirror, engine);
}

std::vector<QWidget*> OptionPanels::groups() const
{
    const QList<QGroupBox*> boxes = findChildren<QGroupBox*>(Qt::FindDirectChildrenOnly);
    return {boxes.begin(), boxes.end()};
}

void OptionPanels::focusColorer()
{
    m_colorer->setFocus();
}

} // namespace app
