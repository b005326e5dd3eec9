// What the window shows while a server keeps it waiting.

#include "app/StartWindow.h"
#include "app/WindowDesk.h"
#include "support/CuttingProxy.h"
#include "support/Gate.h"
#include "support/MariaDbServer.h"
#include "support/TestFolder.h"
#include "support/XSession.h"

#include <QStatusBar>
#include <QTimer>

using namespace test;

namespace
{

/// Counts the events of one kind that a widget gets.
class EventCounter : public QObject
{
public:
    EventCounter(QObject* watched, QEvent::Type type) : m_type(type)
    {
        watched->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        m_count += event->type() == m_type ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
    [[nodiscard]] int count() const { return m_count; }

private:
    QEvent::Type m_type;
    int m_count = 0;
};

/// The window before a server whose answers a gate holds up.
class TheWaitingWindow : public TheWindow
{
protected:
    TheWaitingWindow() : TheWindow(DatabaseKind::MariaDb)
    {
        const QString phpFile = setup.path("app_data/" + database.baseName() + ".php");
        writeFile(phpFile, fileText(phpFile).replace(port(MariaDbServer::shared().port()),
                                                     port(proxy.port())));
    }
    static QString port(int number) { return QString::number(number); }

    /// Runs `look` once while the window waits, and then lets the server answer.
    void whileItWaits(const std::function<bool()>& waits, const std::function<void()>& look)
    {
        gate.shut();
        QObject::connect(&clock, &QTimer::timeout, &clock, [this, waits, look] {
            if (waits()) {
                clock.stop();
                look();
                gate.open();
            }
        });
        clock.start(5);
    }
    void whileItReads(const std::function<void()>& look)
    {
        whileItWaits([] { return QGuiApplication::overrideCursor() != nullptr; }, look);
    }
    [[nodiscard]] QString footer() { return window().statusBar()->currentMessage(); }
    [[nodiscard]] static app::StartWindow* startWindow()
    {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == u"StartWindow") {
                return dynamic_cast<app::StartWindow*>(widget);
            }
        }
        return nullptr;
    }

    Gate gate;
    CuttingProxy proxy{static_cast<quint16>(MariaDbServer::shared().port()),
                       [this](const QByteArray&) {
                           gate.pass();
                           return CuttingProxy::Verdict::Pass;
                       }};
    QTimer clock;
};

} // namespace

TEST_F(TheWaitingWindow, saysThatItReadsAndIsPaintedMeanwhile)
{
    open();
    const EventCounter counter(view()->viewport(), QEvent::Paint);
    QString told;
    Qt::CursorShape shape = Qt::ArrowCursor;
    bool painted = false;
    QImage plan;
    const QImage before = view()->viewport()->grab().toImage();
    whileItReads([&] {
        told = footer();
        shape = QGuiApplication::overrideCursor()->shape();
        const int paintings = counter.count();
        view()->viewport()->update();
        painted = until([&] { return counter.count() > paintings; });
        plan = view()->viewport()->grab().toImage();
    });
    window().forward([this] { form().CbJour.setListIndex(1); });
    EXPECT_EQ(told, "Lecture…");
    EXPECT_EQ(shape, Qt::WaitCursor);
    EXPECT_TRUE(painted);
    // What was there is there, paled.
    ASSERT_EQ(plan.size(), before.size());
    int darker = 0;
    int paler = 0;
    for (int y = 0; y < plan.height(); ++y) {
        for (int x = 0; x < plan.width(); ++x) {
            const int change = qGray(plan.pixel(x, y)) - qGray(before.pixel(x, y));
            darker += change < -12 ? 1 : 0;
            paler += change > 50 ? 1 : 0;
        }
    }
    EXPECT_EQ(darker, 0);
    EXPECT_GT(paler, 1000);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(footer(), "");
    EXPECT_EQ(view()->viewport()->grab().toImage().pixelColor(2, 2), before.pixelColor(2, 2));
}

TEST_F(TheWaitingWindow, takesWhatTheUserDoesMeanwhileInItsTurn)
{
    open();
    bool untouched = false;
    whileItReads([&] {
        hands.click(control<QCheckBox>("XpMat"));
        untouched = form().XpMat.isChecked();
    });
    ASSERT_TRUE(form().XpMat.isChecked());
    window().forward([this] { form().CbJour.setListIndex(1); });
    EXPECT_TRUE(untouched);
    EXPECT_TRUE(until([this] { return !form().XpMat.isChecked(); }));
    EXPECT_EQ(form().CbJour.listIndex(), 1);
}

TEST_F(TheWaitingWindow, marksNothingByAClickThatWasMeantForThePlanBefore)
{
    open();
    const auto absences = [this] { return database.read("select Classe, Debut from abscence"); };
    const QList<QStringList> before = absences();
    const QRectF image = overlays(0, 0).ZAbs;
    const QPoint point = view()->viewport()->mapToGlobal(
        view()
            ->toViewport(QPointF(image.left() + image.width() / 4, image.center().y()))
            .toPoint());
    const EventCounter releases(view()->viewport(), QEvent::MouseButtonRelease);
    const auto markByHand = [&] {
        byHand(QString("keydown shift mousemove %1 %2 click 1 keyup shift")
                   .arg(point.x())
                   .arg(point.y()));
    };
    whileItReads(markByHand);
    window().forward([this] { window().shell().engine().refreshPlan(); });
    EXPECT_TRUE(until([&] { return releases.count() == 1; }));
    EXPECT_EQ(absences(), before);
    // The next one is meant for what it finds.
    markByHand();
    EXPECT_TRUE(until([&] { return absences() != before; }));
}

TEST_F(TheWaitingWindow, palesNoRowThatIsNew)
{
    open();
    window().forward([this] { window().shell().engine().refreshPlan(); }); // in its later colours
    const QImage before = view()->viewport()->grab().toImage();
    QImage meanwhile;
    window().forward([&] {
        window().shell().engine().refreshPlan();
        view()->showProgress(std::chrono::milliseconds(0));
        view()->setOutOfDate(true);
        meanwhile = view()->viewport()->grab().toImage();
    });
    EXPECT_EQ(meanwhile, before);
    view()->setOutOfDate(true);
    EXPECT_NE(view()->viewport()->grab().toImage(), before);
    view()->setOutOfDate(false);
    EXPECT_EQ(view()->viewport()->grab().toImage(), before);
}

TEST_F(TheWaitingWindow, putsOffAnActionThatComesByAnotherWay)
{
    open();
    QStringList log;
    whileItReads([&] {
        window().forward([&] { log << "second"; });
        log << "put off";
    });
    window().forward([&] {
        form().CbJour.setListIndex(1);
        log << "first";
    });
    EXPECT_EQ(log, QStringList({"put off", "first", "second"}));
}

TEST_F(TheWaitingWindow, isClosedWhenItHasRead)
{
    open();
    bool closed = true;
    whileItReads([&] { closed = window().close(); });
    window().forward([this] {
        form().Total_L_P.setText("3");
        form().CbJour.setListIndex(1);
    });
    EXPECT_FALSE(closed);
    EXPECT_FALSE(window().isVisible());
    EXPECT_FALSE(window().failed());
    EXPECT_EQ(setup.saved("Total_L_P"), "3");
}

TEST_F(TheWaitingWindow, isLeftWhenItHasRead)
{
    open();
    whileItReads([this] { window().leave(); });
    window().forward([this] {
        form().Total_L_P.setText("3");
        form().CbJour.setListIndex(1);
    });
    EXPECT_FALSE(window().isVisible());
    EXPECT_FALSE(window().failed());
    EXPECT_EQ(setup.saved("Total_L_P"), "3");
}

TEST_F(TheWaitingWindow, savesItsOptionsWhileItReads)
{
    open();
    QString saved;
    whileItReads([&] {
        window().saveOptions();
        saved = setup.saved("Total_L_P");
    });
    window().forward([this] {
        form().Total_L_P.setText("3");
        form().CbJour.setListIndex(1);
    });
    EXPECT_EQ(saved, "3");
    EXPECT_TRUE(window().isVisible());
}

TEST_F(TheWaitingWindow, keepsThePlanWhenItIsResizedMeanwhile)
{
    open();
    const QPoint inABox =
        view()->toViewport(overlays(0, 0).ZAbs.topLeft() + QPointF(4, 4)).toPoint();
    const QColor before = view()->viewport()->grab().toImage().pixelColor(inABox);
    ASSERT_GT(before.saturation(), 40); // of a row's colour, as no empty plan is
    QColor meanwhile;
    QSize size;
    whileItReads([&] {
        window().resize(1340, 600);
        std::ignore = until([this] { return window().size() == QSize(1340, 600); });
        size = window().size();
        meanwhile = view()->viewport()->grab().toImage().pixelColor(inABox);
    });
    window().forward([this] { form().CbJour.setListIndex(1); });
    EXPECT_EQ(size, QSize(1340, 600));
    EXPECT_NEAR(meanwhile.hue(), before.hue(), 4);
    EXPECT_GT(meanwhile.saturation(), 10);
    EXPECT_TRUE(window().shell().engine().content().faults.empty());
}

TEST_F(TheWaitingWindow, namesTheDatabaseThatItConnectsTo)
{
    create();
    QString told;
    whileItWaits([] { return startWindow() != nullptr && startWindow()->isVisible(); },
                 [&] { told = startWindow()->findChild<QLabel*>("Connecting")->text(); });
    EXPECT_TRUE(window().load());
    EXPECT_EQ(told, "Connexion à « " + database.baseName() + " »…");
    EXPECT_FALSE(startWindow()->isVisible());
}
