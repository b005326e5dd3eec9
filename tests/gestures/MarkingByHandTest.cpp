#include "ScreenPlan.h"
#include "support/RuntimeMatchers.h"
#include "support/XSession.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

using namespace test;
using Image = ScreenPlan::Image;

namespace
{

class MarkingByHand : public OnBothDatabases
{
protected:
    void TearDown() override
    {
        byHand("keyup shift keyup Shift_R keyup ctrl"); // whatever a failed test has left down
    }

    [[nodiscard]] ScreenPlan& screen() { return m_screen; }

    /// The classes recorded in the table.
    [[nodiscard]] QStringList recorded(const QString& table)
    {
        QStringList classes;
        for (const QStringList& row :
             database().read("select Classe from " + table + " order by Classe")) {
            classes << row.first();
        }
        return classes;
    }
    void expectRecorded(const QStringList& classes, const QStringList& classesOfStudents)
    {
        EXPECT_EQ(recorded("abscence"), classes);
        EXPECT_EQ(recorded("etud_abs"), classesOfStudents);
    }

private:
    ScreenPlan m_screen{database()};
};

const QStringList none;
const QStringList both = {"L1", "L2"};
const QStringList alone = {"L4"};

} // namespace

TEST_P(MarkingByHand, recordsAndTakesBackClassesWithShift)
{
    screen().pointAt(1, Image::ZAbs);
    screen().clickByHand("keydown shift click 1 keyup shift");
    expectRecorded(both, none);
    EXPECT_TRUE(screen().box(1).classAbsent);
    screen().clickByHand("keydown shift click 1 keyup shift");
    expectRecorded(none, none);
    EXPECT_FALSE(screen().box(1).classAbsent);
}

TEST_P(MarkingByHand, recordsAndTakesBackStudentsWithCtrl)
{
    screen().pointAt(1, Image::ZAbs);
    screen().clickByHand("keydown ctrl click 1 keyup ctrl");
    expectRecorded(none, both);
    EXPECT_TRUE(screen().box(1).studentAbsent);
    EXPECT_EQ(screen().box(1).absentToolTip, "L1\tL2 Absent");
    screen().clickByHand("keydown ctrl click 1 keyup ctrl");
    expectRecorded(none, none);
    EXPECT_FALSE(screen().box(1).studentAbsent);
}

TEST_P(MarkingByHand, togglesBothWithBothKeys)
{
    screen().pointAt(3, Image::ZAbs);
    screen().clickByHand("keydown shift keydown ctrl click 1 keyup ctrl keyup shift");
    expectRecorded(alone, alone);
}

TEST_P(MarkingByHand, doesNothingWithoutAKey)
{
    screen().pointAt(1, Image::ZAbs);
    screen().clickByHand("click 1");
    screen().clickByHand("keydown shift keyup shift keydown ctrl keyup ctrl click 1");
    expectRecorded(none, none);
}

TEST_P(MarkingByHand, doesNothingOutsideTheBoxesOrWithAnotherButton)
{
    screen().pointAt(1, Image::ZAbs);
    screen().clickByHand("keydown shift click 3 keyup shift");
    screen().clickByHand("mousemove_relative -- 400 0 keydown shift click 1 keyup shift");
    expectRecorded(none, none);
}

TEST_P(MarkingByHand, worksOnEachOfTheThreeImages)
{
    for (const Image image : {Image::XAbs, Image::YAbs, Image::ZAbs}) {
        screen().pointAt(3, image);
        screen().clickByHand("keydown shift click 1 keyup shift");
        expectRecorded(alone, none);
        screen().clickByHand("keydown ctrl click 1 keyup ctrl");
        expectRecorded(alone, alone);
        screen().clickByHand("keydown shift keydown ctrl click 1 keyup ctrl keyup shift");
        expectRecorded(none, none);
    }
}

TEST_P(MarkingByHand, togglesOnceWhileAKeyIsHeldOverSeveralClicks)
{
    screen().pointAt(3, Image::ZAbs);
    screen().clickByHand("keydown shift click 1");
    screen().clickByHand("click 1");
    screen().clickByHand("click 1");
    expectRecorded(alone, none);
    screen().pointAt(1, Image::ZAbs); // another box is no other gesture
    screen().clickByHand("click 1");
    expectRecorded(alone, none);
    byHand("keyup shift");
    screen().clickByHand("keydown shift click 1 keyup shift");
    expectRecorded({"L1", "L2", "L4"}, none);
}

TEST_P(MarkingByHand, takesAQuickSecondGestureLikeAnyOther)
{
    // So long that the second press is a double click, however slow the machine.
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(60000);
    screen().pointAt(3, Image::ZAbs);
    screen().clickByHand("keydown shift click 1 keyup shift");
    expectRecorded(alone, none);
    screen().clickByHand("keydown shift click 1 keyup shift");
    expectRecorded(none, none);
    screen().pointAt(1, Image::ZAbs);
    screen().clickByHand("keydown ctrl click 1 keyup ctrl");
    screen().clickByHand("keydown shift click 1 keyup shift");
    expectRecorded(both, both);
    QApplication::setDoubleClickInterval(interval);
}

TEST_P(MarkingByHand, takesTheRightKeyLikeTheLeftOne)
{
    screen().pointAt(3, Image::ZAbs);
    screen().clickByHand("keydown Shift_R click 1 keyup Shift_R");
    expectRecorded(alone, none);
}

TEST_P(MarkingByHand, knowsAKeyPressedBeforeTheWindowHadTheFocus)
{
    const OtherProgram other;
    for (const char* key : {"shift", "ctrl"}) {
        screen().pointAt(3, Image::ZAbs);
        OtherProgram::takeFocus();
        byHand(QString("keydown %1").arg(key));
        screen().clickByHand("click 1");
        screen().clickByHand("click 1");
        byHand(QString("keyup %1").arg(key));
    }
    expectRecorded(alone, alone);
}

TEST_P(MarkingByHand, knowsAKeyLetGoWhileAnotherWindowHadTheFocus)
{
    const OtherProgram other;
    screen().pointAt(3, Image::ZAbs);
    screen().clickByHand("keydown shift click 1");
    expectRecorded(alone, none);
    OtherProgram::takeFocus();
    byHand("keyup shift");
    screen().clickByHand("click 1");
    expectRecorded(alone, none);
    screen().clickByHand("keydown shift click 1 keyup shift");
    expectRecorded(none, none);
}

TEST_P(MarkingByHand, endsTheProgramWhenTheDatabaseRefuses)
{
    screen().pointAt(2, Image::ZAbs); // the class "L'3"
    QString message;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box != nullptr && box->isActiveWindow()) {
            watch.stop();
            message = box->text() + u'\n' + box->informativeText();
            byHand("key Return");
        }
    });
    watch.start(10);
    QTimer::singleShot(0, [] { byHand("keydown shift click 1 keyup shift"); });
    QTimer limit;
    QObject::connect(&limit, &QTimer::timeout, [] { QApplication::exit(99); });
    limit.start(30000);
    EXPECT_EQ(QApplication::exec(), 1);
    EXPECT_TRUE(message.startsWith("La base de données refuse une demande.\n\n"))
        << message.toStdString();
    EXPECT_TRUE(message.contains("\nRun-time error '-2147217900':\n\n")) << message.toStdString();
    EXPECT_TRUE(message.contains("« L'3 »")) << message.toStdString();
    EXPECT_TRUE(screen().window().failed());
    expectRecorded(none, none);
}

TEMPORA_ON_BOTH_DATABASES(MarkingByHand);
