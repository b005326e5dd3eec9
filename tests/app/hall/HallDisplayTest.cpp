// The screen in the hall in the hands of those who walk by, and of a database that comes and goes.

#include "app/hall/HallDisplay.h"

#include "app/Hands.h"
#include "app/hall/HallDesk.h"
#include "support/CuttingProxy.h"
#include "support/FileHolder.h"
#include "support/MariaDbServer.h"
#include "support/TestFolder.h"
#include "support/TinyFaculty.h"

#include <QApplication>
#include <QWindow>
#include <atomic>
#include <optional>

using namespace test;

namespace
{

const QDate kMonday(2025, 3, 17);
const QDate kTuesday(2025, 3, 18);

class TheHall : public testing::TestWithParam<DatabaseKind>
{
protected:
    TheHall()
    {
        createTinyFaculty(database);
        if (database.usesMySql()) {
            const QString file = setup.path("app_data/" + database.baseName() + ".php");
            writeFile(file, fileText(file).replace(QString::number(MariaDbServer::shared().port()),
                                                   QString::number(proxy.port())));
        }
    }
    ~TheHall() override { display.reset(); }

    void open(const shell::CommandLine& choices = {})
    {
        app::HallDisplay::Ties ties;
        ties.now = [this] { return now; };
        ties.left = [this] { ++timesLeft; };
        ties.failed = [this](const std::exception_ptr& raised) { fault = raised; };
        display = std::make_unique<app::HallDisplay>(hallReader(setup, choices),
                                                     shell::DisplayRequest(), ties);
        display->open();
        ASSERT_TRUE(until([this] { return !display->isReading(); }));
    }
    /// Lets the clock go on to that time, and a reading that is due then end.
    void goOnTo(const QDateTime& time)
    {
        now = time;
        display->followClock();
        ASSERT_TRUE(until([this] { return !display->isReading(); }));
    }
    /// The server cuts every line; the file is somebody else's alone.
    void takeDatabaseAway()
    {
        isAway = true;
        if (!database.usesMySql()) {
            holder.emplace(database.file(), "begin exclusive;\n");
        }
    }
    void bringDatabaseBack()
    {
        isAway = false;
        holder.reset();
    }
    [[nodiscard]] bool isOnTheScreen() const
    {
        return display->isActiveWindow() && display->windowHandle()->isExposed();
    }

    TestDatabase database{GetParam()};
    ProgramSetup setup{database};
    std::optional<FileHolder> holder;
    std::atomic<bool> isAway = false;
    CuttingProxy proxy{static_cast<quint16>(MariaDbServer::shared().port()),
                       [this](const QByteArray&) {
                           return isAway ? CuttingProxy::Verdict::Cut : CuttingProxy::Verdict::Pass;
                       }};
    QDateTime now = hallTime(kMonday, 9, 0);
    int timesLeft = 0;
    std::exception_ptr fault;
    Hands hands;
    std::unique_ptr<app::HallDisplay> display;
};

TEMPORA_ON_BOTH_DATABASES(TheHall);

} // namespace

TEST_P(TheHall, showsAllRoomsOfTodayOnTheWholeScreen)
{
    open();
    ASSERT_TRUE(until([this] { return isOnTheScreen() && display->size() == QSize(1920, 1080); }));
    EXPECT_TRUE(display->isFullScreen());
    EXPECT_EQ(display->plan().day, kMonday);
    EXPECT_EQ(hallRows(display->plan().pages.at(0)),
              QStringList({"A1:", "A2: 1 2r", "B1: 3", "B2: 2", "C1: 1"}));
    EXPECT_EQ(display->moment().line, 540);
    EXPECT_EQ(display->remark(), "");
    EXPECT_EQ(display->cursor().shape(), Qt::BlankCursor);
}

TEST_P(TheHall, turnsItsPagesAndReadsEveryMinute)
{
    shell::CommandLine twoRooms;
    twoRooms.roomsPerPage = 2;
    open(twoRooms);
    ASSERT_EQ(display->plan().pageCount(), 3);
    EXPECT_EQ(display->moment().page, 0);
    goOnTo(hallTime(kMonday, 9, 0, 20));
    EXPECT_EQ(display->moment().page, 1);
    EXPECT_EQ(display->plan().readAt, hallTime(kMonday, 9, 0));
    goOnTo(hallTime(kMonday, 9, 1));
    EXPECT_EQ(display->moment().page, 0);
    EXPECT_EQ(display->plan().readAt, hallTime(kMonday, 9, 1));
}

TEST_P(TheHall, goesOnToTheNextDayWithTheClock)
{
    open();
    goOnTo(hallTime(kMonday, 23, 59, 30));
    goOnTo(hallTime(kTuesday, 0, 0));
    EXPECT_EQ(display->plan().day, kTuesday);
    EXPECT_EQ(display->moment().line, 0);
    EXPECT_EQ(hallRows(display->plan().pages.at(0)).at(1), "A2: 2");
}

TEST_P(TheHall, keepsTheLastPlanWhileTheDatabaseIsAwayAndComesBackByItself)
{
    open();
    takeDatabaseAway();
    goOnTo(hallTime(kMonday, 9, 1));
    EXPECT_EQ(display->plan().readAt, hallTime(kMonday, 9, 0));
    EXPECT_EQ(hallRows(display->plan().pages.at(0)).at(1), "A2: 1 2r");
    EXPECT_TRUE(display->remark().startsWith("Depuis 09:01 : ")) << display->remark().toStdString();
    EXPECT_TRUE(display->remark().endsWith(". Plan lu à 09:00."))
        << display->remark().toStdString();
    goOnTo(hallTime(kMonday, 9, 30)); // the clock goes on, and since when is told as before
    EXPECT_EQ(display->moment().line, 570);
    EXPECT_TRUE(display->remark().startsWith("Depuis 09:01 : "));
    goOnTo(hallTime(kTuesday, 0, 5)); // no plan of that day is to be had
    EXPECT_EQ(display->plan().day, kMonday);
    EXPECT_EQ(display->moment().past, app::HallPast::All);
    EXPECT_TRUE(display->remark().startsWith("Depuis 17/03/2025 09:01 : "))
        << display->remark().toStdString();
    bringDatabaseBack();
    goOnTo(hallTime(kTuesday, 0, 6));
    EXPECT_EQ(display->remark(), "");
    EXPECT_EQ(display->plan().day, kTuesday);
    EXPECT_EQ(hallRows(display->plan().pages.at(0)).at(1), "A2: 2");
    EXPECT_EQ(fault, nullptr);
}

TEST_P(TheHall, waitsForADatabaseThatIsAwayAtTheStart)
{
    takeDatabaseAway();
    open();
    EXPECT_FALSE(display->plan().isThere());
    EXPECT_TRUE(display->remark().startsWith("Depuis 09:00 : ")) << display->remark().toStdString();
    EXPECT_FALSE(display->remark().contains("Plan lu"));
    EXPECT_TRUE(display->isVisible());
    bringDatabaseBack();
    goOnTo(hallTime(kMonday, 9, 1));
    EXPECT_EQ(display->remark(), "");
    EXPECT_EQ(display->plan().roomCount(), 5);
}

TEST_P(TheHall, isLeftByEscapeAlone)
{
    open();
    ASSERT_TRUE(until([this] { return isOnTheScreen(); }));
    const QImage before = display->grab().toImage();
    hands.press(
        {"F1", "F2", "F5", "F11", "Return", "space", "Tab", "Next", "ctrl+p", "ctrl+q", "alt+F4"});
    hands.click(display->rect().center());
    hands.rightClick(display->rect().center());
    // Keys arrive in their order: this one is behind all of them.
    hands.press({"Escape"});
    EXPECT_TRUE(until([this] { return timesLeft > 0; }));
    EXPECT_EQ(timesLeft, 1);
    EXPECT_FALSE(display->isVisible());
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(display->grab().toImage(), before);
}

TEST_P(TheHall, tellsOfAMistakeInItsChoices)
{
    shell::CommandLine choices;
    choices.tranche = "Été";
    open(choices);
    ASSERT_NE(fault, nullptr);
    EXPECT_THROW(std::rethrow_exception(fault), shell::UsageError);
    EXPECT_FALSE(display->isVisible());
    EXPECT_EQ(timesLeft, 0);
}

TEST(TheOutage, isToldWithItsTimes)
{
    app::HallPlan plan;
    const QDateTime now = hallTime(kMonday, 10, 5);
    EXPECT_EQ(app::outageWords(now, hallTime(kMonday, 9, 1), "la base ne répond pas", plan),
              "Depuis 09:01 : la base ne répond pas.");
    plan.day = kMonday;
    plan.readAt = hallTime(kMonday, 9, 0);
    EXPECT_EQ(app::outageWords(now, hallTime(kMonday, 9, 1), "la base ne répond pas", plan),
              "Depuis 09:01 : la base ne répond pas. Plan lu à 09:00.");
    EXPECT_EQ(
        app::outageWords(now.addDays(1), hallTime(kMonday, 9, 1), "la base ne répond pas", plan),
        "Depuis 17/03/2025 09:01 : la base ne répond pas. Plan lu à 17/03/2025 09:00.");
}
