// The line above the plan, in the window of a user whose database goes away.

#include "app/FaultBar.h"

#include "app/WindowDesk.h"

#include <QToolButton>

using namespace test;

namespace
{

class TheFaultBar : public TheWindow
{
protected:
    [[nodiscard]] app::FaultBar* bar()
    {
        return dynamic_cast<app::FaultBar*>(control<QFrame>("FaultBar"));
    }
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
