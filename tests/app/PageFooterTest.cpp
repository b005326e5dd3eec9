// Pages in a user's hands: what the status bar says of them, the first and the last one.

#include "app/PageFooter.h"

#include "app/PlainTexts.h"
#include "app/WindowDesk.h"
#include "app/asking/WeekView.h"

#include <QScrollBar>
#include <QToolButton>

using namespace test;

namespace
{

/// The window with 41 rooms on pages of ten lines: A1, A2, B1, B2, C1, S01 to S36.
class ThePages : public TheWindow
{
protected:
    ThePages()
    {
        for (int room = 1; room <= 36; ++room) {
            database.execute(QString("INSERT INTO salle (Nom, Zone, places) VALUES ('S%1', 4, 30)")
                                 .arg(room, 2, 10, QChar('0')));
        }
        setup.set("Total_L_P", "10");
    }

    [[nodiscard]] QString footer() { return control<QLabel>("PageInfo")->text(); }
    void expectFooter(const QString& text)
    {
        static_cast<void>(until([&] { return footer() == text; }));
        EXPECT_EQ(footer(), text);
    }
    [[nodiscard]] bool offersTheWayBack() { return control<QToolButton>("FirstPage")->isVisible(); }
    void choose(const char* button) { hands.click(control<QPushButton>(button)); }
};

} // namespace

TEST_F(ThePages, areToldByTheirRoomsAndTheirNumber)
{
    open();
    expectFooter("Salles 2–11 sur 41, page 1/4"); // A1 is greyed
    EXPECT_EQ(control<QLabel>("PageInfo")->toolTip(), app::plainToolTip("De « A2 » à « S06 »"));
    choose("Command3");
    expectFooter("Salles 13–22 sur 41, page 2/4");
    choose("Command3");
    expectFooter("Salles 24–33 sur 41, page 3/4");
    choose("Command3");
    expectFooter("Salles 35–41 sur 41, page 4/4");
    EXPECT_FALSE(offersTheWayBack());
}

TEST_F(ThePages, areToldOfTheChosenRoomsAlone)
{
    open();
    ASSERT_TRUE(hands.choose(control<QComboBox>("cb_Locaux"), 1)); // A1 and A2
    expectFooter("Salle 2 sur 2, page 1/1");
    ASSERT_TRUE(hands.choose(control<QComboBox>("cb_Locaux"), 9));
    expectFooter("Aucune salle affichée");
    EXPECT_EQ(control<QLabel>("PageInfo")->toolTip(), "");
}

TEST_F(ThePages, holdEveryRoomWhereThatIsTicked)
{
    open();
    hands.click(control<QCheckBox>("EveryRoom"));
    expectFooter("Salles 1–10 sur 41, page 1/5");
    choose("Command3");
    expectFooter("Salles 11–20 sur 41, page 2/5");
    hands.replaceText(control<QSpinBox>("Total_L_P"), "29");
    expectFooter("Salles 1–29 sur 41, page 1/2");
    hands.click(control<QCheckBox>("EveryRoom"));
    expectFooter("Salles 2–30 sur 41, page 1/2");
    window().close();
    EXPECT_EQ(setup.saved("Toutes_Salles"), "(none)"); // as it was
}

TEST_F(ThePages, areSavedToHoldEveryRoom)
{
    open();
    hands.click(control<QCheckBox>("EveryRoom"));
    ASSERT_TRUE(until([&] { return form().EveryRoom.isChecked(); }));
    window().close();
    EXPECT_EQ(setup.saved("Toutes_Salles"), "True");
}

TEST_F(ThePages, haveAFirstAndALastOneAtTheKeysHomeAndEnd)
{
    open();
    view()->setFocus();
    hands.press({"End"});
    expectFooter("Salles 35–41 sur 41, page 4/4");
    EXPECT_TRUE(until([&] { return !control<QPushButton>("Command3")->isEnabled(); }));
    const std::uint64_t before = redraws();
    hands.press({"Home"});
    expectFooter("Salles 2–11 sur 41, page 1/4");
    EXPECT_EQ(redraws(), before + 1);
    EXPECT_TRUE(until([&] { return !control<QPushButton>("Command2")->isEnabled(); }));
}

TEST_F(ThePages, leaveHomeAndEndToTheFieldsThatHaveTheFocus)
{
    open();
    choose("Command3");
    expectFooter("Salles 13–22 sur 41, page 2/4");
    control<QComboBox>("CbJour")->setFocus();
    hands.press({"End"}); // Saturday
    ASSERT_TRUE(until([&] { return form().CbJour.text() == "Samedi"; }));
    expectFooter("Salles 13–22 sur 41, page 2/4");
}

TEST_F(ThePages, offerTheWayBackWhereTheButtonsDoNotLeadToTheFirstOne)
{
    open();
    choose("Command3");
    expectFooter("Salles 13–22 sur 41, page 2/4");
    hands.replaceText(control<QSpinBox>("Total_L_P"), "20");
    ASSERT_TRUE(until([&] { return form().Total_L_P.text() == "20"; }));
    expectFooter("Salles 13–32 sur 41"); // no page of twenty lines begins there
    ASSERT_TRUE(offersTheWayBack());
    hands.click(control<QToolButton>("FirstPage"));
    expectFooter("Salles 2–21 sur 41, page 1/2");
    EXPECT_TRUE(until([&] { return !offersTheWayBack(); }));
}

TEST_F(ThePages, openAtTheirTop)
{
    setup.set("Total_L_P", "18");
    open({1366, 560});
    QScrollBar* bar = view()->verticalScrollBar();
    ASSERT_GT(bar->maximum(), 0);
    bar->setValue(bar->maximum());
    window().forward([this] { window().shell().engine().refreshPlan(); });
    EXPECT_EQ(bar->value(), bar->maximum()); // the same page
    choose("Command3");
    expectFooter("Salles 21–38 sur 41, page 2/3");
    EXPECT_TRUE(until([&] { return bar->value() == 0; }));
}

TEST_F(ThePages, openTheDayOfTheGreyedRoomAtAClickOnItsName)
{
    database.execute("UPDATE emplois SET Salle = 'A1' WHERE Salle = 'A2'");
    open();
    ASSERT_TRUE(hands.choose(control<QComboBox>("CbJour"), 1));
    ASSERT_TRUE(until([&] { return form().CbJour.text() == "Mardi"; }));
    const form::Place& place = form().Salle[0].place;
    const paint::DrawingTarget& target = view()->target();
    hands.click(view()->viewport()->mapToGlobal(
        view()
            ->toViewport({target.toPixelsX(place.left + place.width / 2),
                          target.toPixelsY(place.top + place.height / 2)})
            .toPoint()));
    ASSERT_TRUE(until([&] { return window().findChild<QWidget*>("WeekWindow") != nullptr; }));
    auto* week = control<app::WeekView>("WeekView");
    ASSERT_TRUE(until([&] { return week->cursor().has_value(); }));
    EXPECT_EQ(control<QComboBox>("WeekName")->currentText(), "A1");
    EXPECT_EQ(week->accessibleDescription(), "Mardi 10h15–11h45 : G3, Chimie, Roux");
}

TEST_F(ThePages, sayThatTheGreyedRoomsDayIsFree)
{
    open();
    const form::Place& place = form().Salle[0].place;
    const paint::DrawingTarget& target = view()->target();
    hands.click(view()->viewport()->mapToGlobal(
        view()
            ->toViewport({target.toPixelsX(place.left + place.width / 2),
                          target.toPixelsY(place.top + place.height / 2)})
            .toPoint()));
    ASSERT_TRUE(until([&] { return window().findChild<QWidget*>("WeekWindow") != nullptr; }));
    const auto* status =
        window().findChild<QWidget*>("WeekWindow")->findChild<QLabel*>("AnswerStatus");
    EXPECT_TRUE(until([&] { return status->text().startsWith("Lundi : rien dans la salle A1"); }))
        << status->text().toStdString();
}
