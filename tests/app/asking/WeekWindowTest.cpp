// "Semaine de…" in a user's hands.

#include "app/asking/WeekWindow.h"

#include "app/asking/AskingDesk.h"
#include "app/asking/OverviewView.h"
#include "app/asking/WeekView.h"
#include "shell/Answers.h"

#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QToolButton>

using namespace test;

namespace
{

class TheWeeks : public TheAnswers
{
protected:
    app::WeekWindow* asked() { return ask<app::WeekWindow>({"ctrl+w"}, "WeekWindow"); }
    app::WeekView* drawing() { return control<app::WeekView>("WeekView"); }
    /// The boxes of the drawn week, "day start: what stands in them".
    QStringList boxes()
    {
        QStringList all;
        for (const answers::WeekBox& box : drawing()->grid().boxes) {
            all << QString("%1 %2: %3")
                       .arg(box.day)
                       .arg(box.time.start.value)
                       .arg(box.lines.join('|') + (box.corner.isEmpty() ? "" : " " + box.corner));
        }
        return all;
    }
    void expectBoxes(const QStringList& expected)
    {
        static_cast<void>(until([&] { return boxes() == expected; }));
        EXPECT_EQ(boxes(), expected);
    }
    QString name() { return control<QComboBox>("WeekName")->currentText(); }

    const QStringList weekOfA2{"0 510: G1|Algèbre|Dupont, Durand", "1 615: G3|Chimie|Roux"};
};

} // namespace

TEST_F(TheWeeks, goThroughTheRoomsWithTheArrowKeys)
{
    open();
    ASSERT_NE(asked(), nullptr);
    EXPECT_EQ(name(), "A1");
    expectBoxes({});
    hands.press({"Right"});
    expectBoxes(weekOfA2);
    EXPECT_EQ(name(), "A2");
    hands.press({"Left", "Left"}); // from the first one to the last
    expectBoxes({"0 510: G3|Chimie|Roux A", "0 510: G3|Optique|Blanc B"});
    EXPECT_EQ(name(), "C1");
}

TEST_F(TheWeeks, openByADoubleClickOnARoomsName)
{
    open();
    const auto cell = view()->table().cellOf("A2", 0);
    ASSERT_TRUE(cell);
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(60000); // milliseconds: longer than any machine is slow
    const auto putBack =
        qScopeGuard([interval] { QApplication::setDoubleClickInterval(interval); });
    hands.doubleClick(view()->onScreen(*cell).center());
    ASSERT_TRUE(until([&] { return window().findChild<QWidget*>("WeekWindow") != nullptr; }));
    expectBoxes(weekOfA2);
}

TEST_F(TheWeeks, areOfTeachersClassesAndSubjectsToo)
{
    open();
    ASSERT_NE(asked(), nullptr);
    ASSERT_TRUE(hands.choose(control<QComboBox>("WeekKind"), 1));
    expectBoxes({"0 510: G3|Optique|C1 B"}); // Blanc, the first teacher
    ASSERT_TRUE(hands.choose(control<QComboBox>("WeekKind"), 2));
    ASSERT_TRUE(until([&] { return name() == "G1"; }));
    expectBoxes({"0 510: Algèbre|Dupont, Durand|A2"});
    ASSERT_TRUE(hands.choose(control<QComboBox>("WeekKind"), 3));
    expectBoxes({"0 510: G1|Dupont, Durand|A2"}); // Algèbre
}

TEST_F(TheWeeks, ofADateHoldItsMakeUps)
{
    open();
    ASSERT_TRUE(hands.choose(control<QComboBox>("CbJour"), 0));
    control<QCheckBox>("Check2")->setFocus();
    hands.press({"space"});
    ASSERT_TRUE(until([&] { return form().Check2.isChecked(); }));
    ASSERT_NE(asked(), nullptr);
    EXPECT_TRUE(control<QCheckBox>("WeekByDate")->isChecked());
    hands.press({"Right"});
    expectBoxes(
        {"0 510: G1|Algèbre|Dupont, Durand", "0 615: G1|Algèbre|Dupont", "1 615: G3|Chimie|Roux"});
    hands.press({"alt+Right"}); // the week after
    expectBoxes(weekOfA2);
}

TEST_F(TheWeeks, mayBeReadAsALine)
{
    open();
    const app::WeekWindow* answers = asked();
    hands.press({"Right"});
    expectBoxes(weekOfA2);
    EXPECT_TRUE(status(*answers).startsWith("Lundi 8h30–10h00 : G1, Algèbre, Dupont, Durand"))
        << status(*answers).toStdString();
    hands.press({"Down"});
    EXPECT_TRUE(until([&] { return status(*answers).startsWith("Mardi 10h15–11h45 : G3"); }));
    EXPECT_EQ(drawing()->accessibleDescription(), "Mardi 10h15–11h45 : G3, Chimie, Roux");
    hands.press({"Return"}); // goes to the box
    ASSERT_TRUE(until([&] { return day() == "Mardi" && !view()->framed().isEmpty(); }));
    EXPECT_EQ(view()->framedRoom(), "A2");
}

TEST_F(TheWeeks, mayBeReadAsAList)
{
    open();
    ASSERT_NE(asked(), nullptr);
    hands.press({"Right", "alt+l"});
    expectRows("WeekList", {"lundi|8h30–10h00|A2|G1|Dupont, Durand|Algèbre|",
                            "mardi|10h15–11h45|A2|G3|Roux|Chimie|"});
}

TEST_F(TheWeeks, ofAllRoomsShowAtOnce)
{
    open();
    ASSERT_NE(ask<app::WeekWindow>({"ctrl+shift+w"}, "WeekWindow"), nullptr);
    auto* overview = control<app::OverviewView>("OverviewView");
    ASSERT_TRUE(until([&] { return overview->isVisible() && overview->weeks().rows.size() == 5; }));
    EXPECT_EQ(overview->weeks().rows[1].name, "A2");
    EXPECT_EQ(overview->weeks().rows[1].boxes.size(), 2U);
    hands.press({"Down", "Return"}); // the week of the second room
    expectBoxes(weekOfA2);
    EXPECT_EQ(name(), "A2");
}

TEST_F(TheWeeks, areExportedAsTheCommandLineWritesThem)
{
    open();
    ASSERT_NE(asked(), nullptr);
    hands.press({"Right"});
    expectBoxes(weekOfA2);
    const QTemporaryDir folder;
    const QString path = folder.filePath("semaine.json");
    const DialogAnswer answers([&](QDialog& dialog) {
        auto& files = dynamic_cast<QFileDialog&>(dialog);
        ASSERT_TRUE(
            until([&] { return files.windowHandle()->isExposed() && files.isActiveWindow(); }));
        hands.type(path);
        hands.press({"Return"});
    });
    hands.click(control<app::WeekWindow>("WeekWindow")->findChild<QPushButton*>("ExportAnswer"));
    ASSERT_TRUE(until([&] { return QFile::exists(path); }));
    const QString other = folder.filePath("ligne.json");
    shell::writeAnswer(window().shell(),
                       shell::CommandLine::parse({"tempora", "--week-of", other, "--room", "A2"}));
    EXPECT_EQ(fileText(path), fileText(other));
    EXPECT_TRUE(fileText(path).contains("Chimie"));
    auto* link = control<app::WeekWindow>("WeekWindow")->findChild<QToolButton*>("OpenSaved");
    ASSERT_TRUE(until([&] { return link->isVisible(); }));
    hands.click(link);
    EXPECT_TRUE(until([&] { return opened == QStringList({path}); }));
}

TEST_F(TheWeeks, areOfferedToBeOpenedOnceTheyArePrintedIntoAFile)
{
    open();
    ASSERT_NE(asked(), nullptr);
    const QTemporaryDir folder;
    const QString path = folder.filePath("semaine.pdf");
    const DialogAnswer answers([&](QDialog& dialog) {
        auto* name = dialog.findChild<QLineEdit*>("filename"); // of "Print to File (PDF)"
        ASSERT_NE(name, nullptr);
        name->setText(path);
        dialog.accept();
    });
    auto* week = control<app::WeekWindow>("WeekWindow");
    hands.click(week->findChild<QPushButton*>("PrintWeek"));
    ASSERT_TRUE(until([&] { return week->findChild<QToolButton*>("OpenSaved")->isVisible(); }));
    EXPECT_TRUE(fileText(path).startsWith("%PDF"));
    hands.click(week->findChild<QToolButton*>("OpenSaved"));
    EXPECT_TRUE(until([&] { return opened == QStringList({path}); }));
}
