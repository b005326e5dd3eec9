// The screen in the hall as somebody opens it out of the window, or starts it by itself.

#include "app/hall/HallDisplay.h"

#include "app/TemporaProcess.h"
#include "app/WindowDesk.h"
#include "app/hall/HallDesk.h"
#include "support/XSession.h"

using namespace test;

namespace
{

[[nodiscard]] app::HallDisplay* shownHall()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == u"HallDisplay" && widget->isVisible()) {
            return dynamic_cast<app::HallDisplay*>(widget);
        }
    }
    return nullptr;
}

class TheHallProgram : public OnBothDatabases
{
protected:
    void SetUp() override { createTinyFaculty(database()); }

    ProgramSetup setup{database()};
    TemporaProcess program{setup};
};

TEMPORA_ON_BOTH_DATABASES(TheHallProgram);

} // namespace

TEST_F(TheWindow, opensTheScreenInTheHallByF11AndComesBackByEscape)
{
    open();
    ASSERT_TRUE(hands.choose(control<QComboBox>("cb_Locaux"), 1));
    expectRooms({"A2"});
    const QJsonObject before = plan();
    hands.press({"F11"});
    ASSERT_TRUE(until([] { return shownHall() != nullptr && shownHall()->plan().isThere(); }));
    app::HallDisplay* hall = shownHall();
    EXPECT_TRUE(until([&] { return hall->isActiveWindow() && hall->isFullScreen(); }));
    EXPECT_EQ(hall->plan().day, QDate(2025, 3, 19));
    EXPECT_EQ(hall->plan().zone, "Zone 1");
    EXPECT_EQ(hallRows(hall->plan().pages.at(0)), QStringList({"A1:", "A2:"}));
    hands.press({"Escape"});
    EXPECT_TRUE(until([this] { return shownHall() == nullptr && window().isActiveWindow(); }));
    EXPECT_EQ(plan(), before);
    // The window manager has its own say about where keys go once the hall is gone.
    byHand("search --onlyvisible --name Planning windowactivate --sync");
    hands.press({"F11"}); // and again
    EXPECT_TRUE(until([] { return shownHall() != nullptr && shownHall()->plan().isThere(); }));
    window().close();
    EXPECT_EQ(shownHall(), nullptr);
}

TEST_P(TheHallProgram, endsByEscape)
{
    const QString settings = setup.settingsText();
    program.environment.insert("DISPLAY", QString::fromLatin1(qgetenv("DISPLAY")));
    program.environment.insert("QT_QPA_PLATFORM", "xcb");
    program.startWithSettings({"--display", "--zone", "1", "--display-seconds", "5"});
    byHand("search --sync --onlyvisible --name Tempora windowactivate --sync");
    byHand("key Escape");
    ASSERT_TRUE(program.waitForEnd());
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_EQ(program.errors(), "");
    EXPECT_EQ(setup.settingsText(), settings);
}

TEST_P(TheHallProgram, refusesAMistakeWithoutAScreen)
{
    EXPECT_EQ(program.run({"--display", "--display-seconds", "4"}), 2);
    EXPECT_TRUE(program.errors().startsWith("--display-seconds : valeur « 4 » refusée"));
    EXPECT_EQ(program.run({"--display", "--export", setup.path("p.html")}), 2);
    EXPECT_EQ(program.run({"--export", setup.path("p.pdf"), "--refresh", "60"}), 2);
    EXPECT_EQ(program.run({"--display"}), 1); // there is nothing to show it on
}
