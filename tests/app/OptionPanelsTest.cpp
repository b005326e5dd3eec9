#include "app/OptionPanels.h"

#include "app/DateField.h"
#include "app/MirroredPlan.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QSpinBox>

using namespace test;

namespace
{

/// The panels over the plan.
class TheOptionPanels : public MirroredPlan
{
protected:
    TheOptionPanels() { mirror.sync(); }

    [[nodiscard]] app::OptionPanels& panels() { return m_panels; }
    template <typename Widget>
    [[nodiscard]] Widget& find(const char* name)
    {
        auto* widget = m_panels.findChild<Widget*>(name);
        if (widget == nullptr) {
            throw std::runtime_error(std::string("no widget ") + name);
        }
        return *widget;
    }
    [[nodiscard]] QAbstractButton& button(const char* name) { return find<QAbstractButton>(name); }
    [[nodiscard]] QComboBox& list(const char* name) { return find<QComboBox>(name); }

private:
    app::OptionPanels m_panels{engine(), mirror};
};

} // namespace

TEST_F(TheOptionPanels, groupTheChoicesByWhatTheyAreFor)
{
    QStringList titles;
    for (const QGroupBox* panel : panels().findChildren<QGroupBox*>()) {
        titles << panel->title();
    }
    EXPECT_EQ(titles, (QStringList{"&Période", "&Jour", "Semaine", "Dans les cases", "Salles",
                                   "Page", "Affichage", "Matière et couleurs", "Impression"}));
}

TEST_F(TheOptionPanels, showTheChoicesAsTheyStand)
{
    EXPECT_EQ(list("CbTranche").currentText(), "Printemps");
    EXPECT_EQ(list("CbJour").currentText(), "Lundi");
    EXPECT_EQ(list("cb_Locaux").currentText(), desk.form().cb_Locaux.text());
    EXPECT_TRUE(button("OpEns").isChecked());
    EXPECT_FALSE(button("OpExam").isChecked());
    EXPECT_TRUE(button("OptFixe").isChecked());
    EXPECT_EQ(button("OptA").text(), "Semaine &A");
    EXPECT_TRUE(button("Colorer").isChecked());
    EXPECT_TRUE(button("ChkGrille").isChecked());
    EXPECT_FALSE(button("Chk_Compt").isChecked());
    EXPECT_EQ(find<QSpinBox>("Total_L_P").value(), 19);
    EXPECT_EQ(find<app::DateField>("DTPicker1").date(), QDate(2025, 3, 17));
    EXPECT_EQ(find<QLabel>("Label5").text(), desk.form().Label5.caption);
}

TEST_F(TheOptionPanels, passAUsersChoiceOnToThePlan)
{
    const std::uint64_t before = engine().refreshCount();
    button("XOpCl").click();
    EXPECT_FALSE(desk.form().XOpCl.isChecked());
    EXPECT_EQ(engine().refreshCount(), before + 1);
    button("OptB").click();
    EXPECT_TRUE(desk.form().OptB().isSelected());
    EXPECT_FALSE(button("OptFixe").isChecked());
}

TEST_F(TheOptionPanels, haveOnePlaceForTheTypeAndForTheInvigilators)
{
    EXPECT_FALSE(button("Chk_Type").isHidden());
    EXPECT_TRUE(button("xOpExam").isHidden());
    EXPECT_TRUE(list("Combo10").isHidden());
    button("OpExam").click();
    EXPECT_TRUE(button("Chk_Type").isHidden());
    EXPECT_FALSE(button("xOpExam").isHidden());
    EXPECT_FALSE(list("Combo10").isHidden());
}

TEST_F(TheOptionPanels, tellWhatAListIsForAndWhatItShows)
{
    EXPECT_EQ(list("CbTranche").accessibleName(), "Période affichée");
    EXPECT_EQ(list("CbTranche").toolTip(), "Période affichée : Printemps");
    list("CbTranche").setCurrentIndex(-1);
    desk.form().CbTranche.setListIndex(-1);
    mirror.sync();
    EXPECT_EQ(list("CbTranche").toolTip(), "Période affichée");
}

TEST_F(TheOptionPanels, offerTheCapacityOnlyWhereItIsPrinted)
{
    EXPECT_TRUE(button("Check3").isChecked());
    EXPECT_FALSE(button("Opt_Cap").isEnabled());
    EXPECT_TRUE(button("Opt_Cap").toolTip().startsWith("Sans effet tant que « S. Groupées »"));
    button("Check3").click();
    mirror.sync();
    EXPECT_TRUE(button("Opt_Cap").isEnabled());
    EXPECT_EQ(button("Opt_Cap").toolTip(), "Imprimer l’effectif et les places de chaque case");
    button("Opt_Cap").click();
    button("Check3").click(); // greyed, and ticked as it was
    mirror.sync();
    EXPECT_FALSE(button("Opt_Cap").isEnabled());
    EXPECT_TRUE(button("Opt_Cap").isChecked());
}

TEST_F(TheOptionPanels, tellHowManyRoomsAPageHoldsAtMost)
{
    auto& lines = find<QSpinBox>("Total_L_P");
    EXPECT_EQ(lines.toolTip(), "Nombre de salles par page, 29 au plus");
    lines.setValue(50);
    EXPECT_EQ(desk.form().Total_L_P.text(), "29");
    EXPECT_EQ(lines.value(), 29);
}

TEST_F(TheOptionPanels, haveCaptionsThatLeadToTheirField)
{
    QStringList fields;
    for (const QLabel* caption : panels().findChildren<QLabel*>()) {
        if (caption->buddy() != nullptr) {
            fields << caption->text() + caption->buddy()->objectName();
        }
    }
    EXPECT_EQ(fields, (QStringList{"&Zonecb_Locaux", "&Lignes/Page : Total_L_P"}));
}

TEST_F(TheOptionPanels, putTheFocusOnTheFirstOptionOfTheView)
{
    panels().focusColorer();
    EXPECT_EQ(panels().focusWidget(), &button("Colorer"));
}
