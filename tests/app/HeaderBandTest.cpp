#include "app/HeaderBand.h"

#include "app/MirroredPlan.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QToolButton>

using namespace test;

namespace
{

/// The band over the plan.
class TheHeaderBand : public MirroredPlan
{
protected:
    TheHeaderBand() { mirror.sync(); }

    [[nodiscard]] QString text(const char* name) const
    {
        const auto* label = m_band.findChild<QLabel*>(name);
        return label == nullptr ? QString("no label") : label->text();
    }
    [[nodiscard]] const QWidget& band() const { return m_band; }

    QAction help{"Aide"};
    QMenu questions;

private:
    app::HeaderBand m_band{engine(), mirror, &help, &questions};
};

} // namespace

TEST_F(TheHeaderBand, tellsWhosePlanThisIs)
{
    EXPECT_EQ(text("Label4_4"), "Faculté Témoin");
    EXPECT_EQ(text("University"), "Université d'Essai · 2025");
}

TEST_F(TheHeaderBand, tellsThePeriodWithItsDates)
{
    EXPECT_EQ(text("PeriodName"), "Printemps");
    EXPECT_EQ(text("Label4_0") + ' ' + text("Label4_1") + ' ' + text("Label4_2") + ' ' +
                  text("Label4_3"),
              "Du 03/FÉVRIER/2025 au 06/JUIN/2025");
    desk.form().CbTranche.selectText("Automne");
    mirror.sync();
    EXPECT_EQ(text("PeriodName"), "Automne");
    EXPECT_EQ(text("Label4_1"), "16/SEPTEMBRE/2024");
}

TEST_F(TheHeaderBand, keepsItsDatesWholeHoweverNarrowItIs)
{
    for (const char* name : {"Label4_0", "Label4_1", "Label4_2", "Label4_3"}) {
        const auto* date = band().findChild<QLabel*>(name);
        ASSERT_NE(date, nullptr);
        EXPECT_GE(date->minimumSizeHint().width(),
                  date->fontMetrics().horizontalAdvance(date->text()))
            << name;
    }
    EXPECT_LT(band().minimumSizeHint().width(), 900);
}

TEST_F(TheHeaderBand, tellsTheExamWeekWithThePeriod)
{
    desk.form().OpExam().select();
    mirror.sync();
    EXPECT_EQ(text("PeriodName"), "Printemps – " + desk.form().Combo10.items().at(0));
}

TEST_F(TheHeaderBand, isTitledByTheDayOrThePickedDate)
{
    EXPECT_EQ(text("XSalle"), "Occupation des Salles du Lundi");
    desk.form().CbJour.setListIndex(1);
    mirror.sync();
    EXPECT_EQ(text("XSalle"), "Occupation des Salles du Mardi");
    desk.form().CbJour.setListIndex(0);
    desk.form().Check2.setChecked(true);
    mirror.sync();
    EXPECT_EQ(text("XSalle"), "Occupation des Salles du 17/03/25");
}

TEST_F(TheHeaderBand, hasItsTitleInTheFontOfItsLabel)
{
    const auto* title = band().findChild<QLabel*>("XSalle");
    ASSERT_NE(title, nullptr);
    EXPECT_EQ(title->styleSheet(), "font-family: \"Arial Black\", \"Arial\";");
    desk.form().setFontName("Liberation Serif");
    mirror.sync();
    EXPECT_EQ(title->styleSheet(), "font-family: \"Liberation Serif\", \"Arial\";");
}

TEST_F(TheHeaderBand, opensTheHelp)
{
    int opened = 0;
    QObject::connect(&help, &QAction::triggered, &help, [&opened] { ++opened; });
    auto* button = band().findChild<QToolButton*>("Aide");
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->text(), "Aide");
    button->click();
    EXPECT_EQ(opened, 1);
}
