// The lines above the plan, in the window of a user whose database goes away, and of one who ticks
// what does not redraw. Today is Wednesday, 19 March 2025; the plan opens on Monday, 17 March.

#include "app/PlanNotices.h"

#include "app/WindowDesk.h"

#include <QToolButton>

using namespace test;

namespace
{

class TheFaultBar : public TheWindow
{
protected:
    [[nodiscard]] QFrame* bar() { return control<QFrame>("FaultBar"); }
    /// The table goes away, or comes back.
    void rename(const char* from, const char* to)
    {
        database.execute(QStringLiteral("alter table %1 rename to %2").arg(from, to));
    }
    [[nodiscard]] std::size_t unknownCells()
    {
        std::size_t cells = 0;
        for (const plan::PlanRow& row : window().shell().engine().content().rows) {
            cells += row.unknown.size();
        }
        return cells;
    }
};

class TheStaleBar : public TheWindow
{
protected:
    [[nodiscard]] QFrame* bar() { return control<QFrame>("StaleBar"); }
    /// What the line says; empty while it is hidden.
    void expectLine(const QString& sentence)
    {
        const auto line = [this] {
            return bar()->isVisible() ? control<QLabel>("StaleText")->text() : QString();
        };
        static_cast<void>(until([&] { return line() == sentence; }));
        EXPECT_EQ(line(), sentence);
    }
};

const QString kNoMakeUps =
    QStringLiteral("Les rattrapages du lundi 17/03/2025 n’ont pas encore été cherchés.");

} // namespace

TEST_F(TheFaultBar, isHiddenWhileThePlanLacksNothing)
{
    open();
    EXPECT_FALSE(bar()->isVisible());
    hands.press({"F5"});
    ASSERT_TRUE(hands.choose(control<QComboBox>("CbJour"), 1));
    EXPECT_FALSE(bar()->isVisible());
}

TEST_F(TheFaultBar, saysWhatFailedUntilItIsReadAgain)
{
    open();
    rename("emplois", "ailleurs");
    ASSERT_TRUE(hands.choose(control<QComboBox>("CbJour"), 1));
    EXPECT_TRUE(until([this] { return bar()->isVisible(); }));
    const QString text = control<QLabel>("FaultText")->text();
    EXPECT_TRUE(text.startsWith("Plan incomplet depuis ")) << text.toStdString();
    EXPECT_TRUE(text.endsWith("une table manque dans la base de données. Les cases « ? » sont "
                              "inconnues, et non libres."))
        << text.toStdString();
    EXPECT_EQ(control<QLabel>("FaultText")->textFormat(), Qt::PlainText);
    EXPECT_EQ(unknownCells(), 16U); // four rooms, four slots
    EXPECT_TRUE(view()->table().words().contains("A2, 8h30 à 10h00, inconnu"))
        << view()->table().words().join('\n').toStdString();

    rename("ailleurs", "emplois");
    hands.click(control<QToolButton>("Retry"));
    EXPECT_TRUE(until([this] { return !bar()->isVisible(); }));
    EXPECT_EQ(unknownCells(), 0U);
    expectTexts("A2", {{2, "G3\r\n Roux\r\n [Chimie]\r\n"}});
}

TEST_F(TheFaultBar, readsAgainWithF5)
{
    open();
    rename("emplois", "ailleurs");
    ASSERT_TRUE(hands.choose(control<QComboBox>("CbJour"), 1));
    ASSERT_TRUE(until([this] { return bar()->isVisible(); }));
    rename("ailleurs", "emplois");
    hands.press({"F5"});
    EXPECT_TRUE(until([this] { return !bar()->isVisible(); }));
}

TEST_F(TheFaultBar, leavesTheWindowOpenAndInUse)
{
    open();
    rename("emplois", "ailleurs");
    hands.click(control<QRadioButton>("OptA"));
    EXPECT_TRUE(until([this] { return bar()->isVisible(); }));
    EXPECT_FALSE(window().failed());
    EXPECT_TRUE(window().isVisible());
}

TEST_F(TheStaleBar, isHiddenWhileThePlanShowsWhatTheOptionsSay)
{
    open();
    EXPECT_FALSE(bar()->isVisible());
    hands.click(control<QRadioButton>("OptA"));
    ASSERT_TRUE(until([this] { return form().OptA().isSelected(); }));
    EXPECT_FALSE(bar()->isVisible());
}

TEST_F(TheStaleBar, missesMakeUpsUntilActualiserIsPressed)
{
    open();
    hands.click(control<QCheckBox>("Check2"));
    expectLine(kNoMakeUps);
    EXPECT_EQ(control<QLabel>("StaleText")->textFormat(), Qt::PlainText);
    EXPECT_EQ(boxTexts(plan(), "A2").size(), 1);
    hands.click(control<QToolButton>("Refresh"));
    expectLine({});
    expectTexts("A2", {{1, "G1\r\n Dupont/Durand\r\n [Algèbre]\r\n"},
                       {2, "G1\r\n Dupont\r\n [Algèbre]\r\n"}});
}

TEST_F(TheStaleBar, doesTheSameWithF5WhereverTheFocusIs)
{
    open();
    for (const char* name : {"Check2", "CbJour", "Total_L_P", "PlanView"}) {
        form().Check2.setChecked(false);
        window().forward([this] { window().shell().engine().chooseDayAgain(); });
        expectLine({});
        hands.click(control<QCheckBox>("Check2"));
        expectLine(kNoMakeUps);
        control<QWidget>(name)->setFocus();
        hands.press({"F5"});
        expectLine({});
    }
}

TEST_F(TheStaleBar, isReachedWithTheKeyboardAlone)
{
    open();
    hands.click(control<QCheckBox>("Check2"));
    expectLine(kNoMakeUps);
    EXPECT_EQ(control<QToolButton>("Refresh")->focusPolicy(), Qt::StrongFocus);
    control<QToolButton>("Refresh")->setFocus();
    hands.press({"space"});
    expectLine({});
}

TEST_F(TheStaleBar, tellsThatTheFilterIsStillInForce)
{
    open();
    hands.click(control<QCheckBox>("Check1"));
    ASSERT_TRUE(until([this] { return form().Check1.isChecked(); }));
    expectLine({});
    hands.click(control<QCheckBox>("Check1"));
    expectLine("« Selon la Matière » n’est plus coché, mais le plan reste filtré par « Algèbre ».");
    hands.press({"F5"});
    expectLine({});
    expectTexts("B2", {{2, "G2\r\n Petit\r\n [Physique]\r\n"}});
}

TEST_F(TheStaleBar, tellsTheDateOfTheAbsencesOfAnExamWeekAndMovesItToTheDay)
{
    open();
    hands.click(control<QRadioButton>("OpExam"));
    expectLine("Le plan montre le lundi, mais les absences iraient au mardi 10/06/2025.");
    EXPECT_EQ(control<QLabel>("MarkedDay")->text(), "Absences du mardi 10/06/2025");
    hands.click(control<QToolButton>("Refresh"));
    expectLine({});
    EXPECT_TRUE(until(
        [this] { return control<QLabel>("MarkedDay")->text() == "Absences du lundi 09/06/2025"; }));
}

TEST_F(TheStaleBar, hasNoButtonWhereChoosingTheDayWouldNotHelp)
{
    open();
    hands.click(control<QCheckBox>("Check2"));
    expectLine(kNoMakeUps);
    hands.click(control<QRadioButton>("OpExam"));
    expectLine({});
    hands.replaceText(control<QDateEdit>("DTPicker1"), "17/03/2025");
    hands.press({"Return"});
    expectLine(
        "Le plan montre les examens de la semaine du 09/06/2025, mais la date affichée, celle "
        "des absences, est le lundi 17/03/2025.");
    EXPECT_FALSE(control<QToolButton>("Refresh")->isVisible());
}

TEST_F(TheStaleBar, standsBesideTheRedOneWhereBothHaveSomethingToSay)
{
    open();
    database.execute("alter table emplois rename to ailleurs");
    hands.click(control<QRadioButton>("OptA"));
    ASSERT_TRUE(until([this] { return control<QFrame>("FaultBar")->isVisible(); }));
    hands.click(control<QCheckBox>("Check2"));
    expectLine(kNoMakeUps);
    EXPECT_TRUE(control<QFrame>("FaultBar")->isVisible());
    EXPECT_GE(bar()->y(), control<QFrame>("FaultBar")->geometry().bottom());
}
