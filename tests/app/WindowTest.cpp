// The window in a user's hands: every choice shows on the plan.

#include "app/WindowDesk.h"

#include <algorithm>
#include <utility>

using namespace test;

namespace
{

const QMap<int, QString> mondayInA2 = {{1, "G1\r\n Dupont/Durand\r\n [Algèbre]\r\n"}};
const QMap<int, QString> nothing;

} // namespace

TEST_F(TheWindow, showsTodaysWeekWhenItOpens)
{
    open();
    EXPECT_EQ(window().windowTitle(), "Planning des Classes");
    EXPECT_EQ(window().objectName(), "PlClasse");
    EXPECT_EQ(control<QLabel>("XSalle")->text(), "Occupation des Salles du Lundi");
    EXPECT_EQ(control<QLabel>("Label4_4")->text(), "Faculté Témoin");
    EXPECT_EQ(control<QLabel>("Label4_1")->text(), "03/FÉVRIER/2025");
    EXPECT_EQ(control<QLabel>("Label4_3")->text(), "06/JUIN/2025");
    EXPECT_EQ(control<QLabel>("Label11")->text(), "1");
    EXPECT_TRUE(control<QLabel>("ImgAccess")->isVisible());
    EXPECT_FALSE(control<QLabel>("ImgSql")->isVisible());
    EXPECT_TRUE(control<QCheckBox>("Colorer")->hasFocus());
    expectRooms({"A2", "B1", "B2", "C1"});
    expectTexts("A2", mondayInA2);
}

TEST_F(TheWindow, showsAnotherPeriod)
{
    open();
    ASSERT_TRUE(hands.choose(control<QComboBox>("CbTranche"), 1));
    expectTexts("A2", nothing);
    EXPECT_EQ(plan()["tranche"].toObject()["name"].toString(), "Automne");
    EXPECT_EQ(control<QLabel>("Label4_1")->text(), "16/SEPTEMBRE/2024");
    EXPECT_EQ(control<QLabel>("Label11")->text(), "2");
}

TEST_F(TheWindow, showsAnotherDay)
{
    open();
    ASSERT_TRUE(hands.choose(control<QComboBox>("CbJour"), 1));
    expectTexts("A2", {{2, "G3\r\n Roux\r\n [Chimie]\r\n"}});
    EXPECT_EQ(control<QLabel>("XSalle")->text(), "Occupation des Salles du Mardi");
}

TEST_F(TheWindow, showsADayChosenWithTheKeyboard)
{
    open();
    control<QComboBox>("CbJour")->setFocus();
    hands.press({"Down"});
    expectTexts("A2", {{2, "G3\r\n Roux\r\n [Chimie]\r\n"}});
}

TEST_F(TheWindow, showsThePickerOnlyWhileDateIsTicked)
{
    open();
    auto* picker = control<QDateEdit>("DTPicker1");
    EXPECT_FALSE(picker->isVisible());
    hands.click(control<QCheckBox>("Check2"));
    EXPECT_TRUE(until([&] { return picker->isVisible(); }));
    EXPECT_EQ(control<QLabel>("XSalle")->text(), "Occupation des Salles du 17/03/25");
    hands.click(control<QCheckBox>("Check2"));
    EXPECT_TRUE(until([&] { return !picker->isVisible(); }));
}

TEST_F(TheWindow, showsADateTypedIntoThePicker)
{
    open();
    hands.click(control<QCheckBox>("Check2"));
    auto* picker = control<QDateEdit>("DTPicker1");
    ASSERT_TRUE(until([&] { return picker->isVisible(); }));
    picker->setFocus(); // which selects the day
    hands.type("22042025");
    expectTexts("A2", {{2, "G3\r\n Roux\r\n [Chimie]\r\n"}});
    EXPECT_TRUE(until([&] { return plan()["date"].toString() == "2025-04-22"; }));
    EXPECT_EQ(control<QComboBox>("CbJour")->currentText(), "Mardi");
    EXPECT_EQ(control<QLabel>("XSalle")->text(), "Occupation des Salles du 22/04/25");
}

TEST_F(TheWindow, hatchesTheMakeUpsOfADate)
{
    open();
    hands.click(control<QCheckBox>("Check2"));
    auto* picker = control<QDateEdit>("DTPicker1");
    ASSERT_TRUE(until([&] { return picker->isVisible(); }));
    picker->setFocus();
    hands.press({"Home", "Up", "Down"}); // a day further and back
    expectTexts("A2", {{1, "G1\r\n Dupont/Durand\r\n [Algèbre]\r\n"},
                       {2, "G1\r\n Dupont\r\n [Algèbre]\r\n"}});
    const QJsonValue makeUp = plan()["rows"].toArray()[0].toObject()["boxes"].toArray()[1];
    EXPECT_TRUE(makeUp["makeup"].toBool());
}

TEST_F(TheWindow, showsTheExamsAndComesBackToTeaching)
{
    open();
    hands.click(control<QRadioButton>("OpExam"));
    expectTexts("A2", {{1, "G1\r\n Dupont\r\n [Algèbre]\r\n"}});
    auto* weeks = control<QComboBox>("Combo10");
    EXPECT_TRUE(weeks->isVisible());
    EXPECT_TRUE(control<QCheckBox>("xOpExam")->isVisible());
    EXPECT_FALSE(control<QCheckBox>("Chk_Type")->isVisible());
    EXPECT_EQ(control<QCheckBox>("XOpEns")->text(), "&Surveillant");
    EXPECT_EQ(control<QLabel>("Label4_1")->text(), "09/JUIN/2025");
    hands.click(control<QCheckBox>("xOpExam"));
    expectTexts("A2", {{1, "G1\r\n Dupont Petit/Roux\r\n [Algèbre]\r\n"}});
    ASSERT_TRUE(hands.choose(weeks, 1));
    expectTexts("A2", nothing);
    EXPECT_EQ(control<QLabel>("Label4_1")->text(), "16/JUIN/2025");
    hands.click(control<QRadioButton>("OpEns"));
    EXPECT_TRUE(until([&] { return !weeks->isVisible(); }));
    EXPECT_EQ(control<QCheckBox>("XOpEns")->text(), "En&seignant");
    EXPECT_EQ(plan()["date"].toString(), "2025-03-17");
    EXPECT_FALSE(boxTexts(plan(), "A2").isEmpty());
}

TEST_F(TheWindow, keepsAnOptionButtonDownThatIsClickedAgain)
{
    open();
    auto* teaching = control<QRadioButton>("OpEns");
    const std::uint64_t before = redraws();
    hands.click(teaching);
    hands.click(control<QCheckBox>("Check3")); // what comes after it has come when this shows
    EXPECT_TRUE(until([&] { return redraws() == before + 1; }));
    EXPECT_TRUE(teaching->isChecked());
    EXPECT_FALSE(control<QRadioButton>("OpExam")->isChecked());
}

TEST_F(TheWindow, showsTheWeekThatIsChosen)
{
    open();
    hands.click(control<QRadioButton>("OptA"));
    expectTexts("C1", {{1, "G3\r\n Roux\r\n [Chimie]\r\n"}});
    hands.click(control<QRadioButton>("OptB"));
    expectTexts("C1", {{1, "G3  Blanc [Optique]\r\n"}});
    EXPECT_FALSE(control<QRadioButton>("OptA")->isChecked());
    hands.click(control<QRadioButton>("OptFixe"));
    expectTexts("C1", {{1, "G3\r\n Roux\r\n [Chimie] = G3  Blanc [Optique]\r\n"}});
}

TEST_F(TheWindow, showsInTheBoxesWhatIsTicked)
{
    open();
    hands.click(control<QCheckBox>("XOpEns"));
    expectTexts("A2", {{1, "G1\r\n [Algèbre]\r\n"}});
    hands.click(control<QCheckBox>("XpMat"));
    expectTexts("A2", {{1, "G1\r\n\r\n"}});
    hands.click(control<QCheckBox>("Chk_Type"));
    expectTexts("A2", {{1, "G1\r\n (TD)\r\n"}});
    hands.click(control<QCheckBox>("XOpCl"));
    expectTexts("A2", nothing);
    hands.click(control<QCheckBox>("XOpCl"));
    expectTexts("A2", {{1, "G1\r\n (TD)\r\n"}});
}

TEST_F(TheWindow, showsTheRoomsOfAZoneAndOfADepartment)
{
    open();
    ASSERT_TRUE(hands.choose(control<QComboBox>("cb_Locaux"), 2));
    expectRooms({"B2"});
    auto* neutral = control<QCheckBox>("Chk_Neutre");
    EXPECT_FALSE(neutral->isVisible());
    ASSERT_TRUE(hands.choose(control<QComboBox>("Combo1"), 1));
    hands.click(control<QCheckBox>("ElemDep"));
    expectRooms({"B1", "B2"}); // with MATH: A2 is row 0
    EXPECT_TRUE(until([&] { return neutral->isVisible(); }));
    hands.click(neutral);
    expectRooms({"B1", "B2", "C1"});
}

TEST_F(TheWindow, showsTheNextPageAndThePageBefore)
{
    setup.set("Total_L_P", "2");
    open();
    auto* next = control<QPushButton>("Command3");
    auto* previous = control<QPushButton>("Command2");
    expectRooms({"A2", "B1"});
    EXPECT_TRUE(next->isEnabled());
    EXPECT_FALSE(previous->isEnabled());
    hands.click(next);
    expectRooms({"C1"});
    EXPECT_TRUE(until([&] { return previous->isEnabled() && !next->isEnabled(); }));
    hands.click(previous);
    expectRooms({"A2", "B1"});
    EXPECT_TRUE(until([&] { return next->isEnabled() && !previous->isEnabled(); }));
}

TEST_F(TheWindow, showsAsManyRoomsAsAreTyped)
{
    open();
    auto* lines = control<QSpinBox>("Total_L_P");
    hands.replaceText(lines, "3");
    expectRooms({"A2", "B1", "B2"});
    hands.replaceText(lines, "29");
    expectRooms({"A2", "B1", "B2", "C1"});
    EXPECT_TRUE(until([&] { return form().Total_L_P.text() == "29"; }));
    EXPECT_EQ(form().Salle.front().place.height, 200); // the low rows of a page of many rooms
}

TEST_F(TheWindow, capsTheRoomsThatAreTyped)
{
    open();
    auto* lines = control<QSpinBox>("Total_L_P");
    hands.replaceText(lines, "35");
    EXPECT_TRUE(until([&] { return form().Total_L_P.text() == "29"; }));
    EXPECT_TRUE(until([&] { return lines->text() == "29"; }));
}

TEST_F(TheWindow, takesNoLettersAndNoEmptinessForANumberOfRooms)
{
    open();
    auto* lines = control<QSpinBox>("Total_L_P");
    hands.replaceText(lines, "abc-");
    hands.press({"BackSpace"}); // all that was there, if anything
    hands.press({"BackSpace"});
    hands.press({"BackSpace"});
    EXPECT_TRUE(until([&] { return lines->text().isEmpty(); }));
    EXPECT_EQ(form().Total_L_P.text(), "19");
    expectRooms({"A2", "B1", "B2", "C1"});
    hands.press({"Tab"}); // leaving the field brings the number back
    EXPECT_TRUE(until([&] { return lines->text() == "19"; }));
    EXPECT_EQ(form().Total_L_P.text(), "19");
    EXPECT_FALSE(window().failed());
}

TEST_F(TheWindow, takesNoZeroForANumberOfRooms)
{
    open();
    auto* lines = control<QSpinBox>("Total_L_P");
    hands.replaceText(lines, "0");
    hands.press({"Tab"});
    EXPECT_TRUE(until([&] { return !lines->hasFocus() && lines->text() != "0"; }));
    EXPECT_EQ(form().Total_L_P.text(), lines->text());
    EXPECT_FALSE(window().failed());
}

TEST_F(TheWindow, turnsPaleAndBackWithF2)
{
    open();
    const QStringList colors = rowColors(plan());
    hands.press({"F2"});
    EXPECT_TRUE(until([&] { return rowColors(plan()) != colors; }));
    for (const QString& color : rowColors(plan())) {
        for (const int at : {1, 3, 5}) {
            EXPECT_GE(color.mid(at, 2).toInt(nullptr, 16), 175) << color.toStdString();
        }
    }
    hands.press({"F2"});
    EXPECT_TRUE(until([&] { return rowColors(plan()) == colors; }));
}

TEST_F(TheWindow, hearsF2WhereverTheFocusIs)
{
    open();
    hands.click(control<QCheckBox>("Check2"));
    ASSERT_TRUE(until([&] { return control<QDateEdit>("DTPicker1")->isVisible(); }));
    for (const char* name : {"CbTranche", "CbJour", "DTPicker1", "Total_L_P", "Command1", "OpEns",
                             "Colorer", "PlanView", "Label20"}) {
        control<QWidget>(name)->setFocus();
        const std::uint64_t before = redraws();
        hands.press({"F2"});
        EXPECT_TRUE(until([&] { return redraws() > before; })) << name;
    }
}

TEST_F(TheWindow, colorsTheRoomsOnlyWhileColorerIsTicked)
{
    open();
    hands.click(control<QCheckBox>("Colorer"));
    EXPECT_TRUE(until([&] { return rowColors(plan()).count("#d7d7d7") == 4; }));
}

TEST_F(TheWindow, countsWhenCountingIsTickedAndTheDayIsChosenAgain)
{
    open();
    hands.click(control<QCheckBox>("Chk_Compt"));
    ASSERT_TRUE(until([&] { return form().Chk_Compt.isChecked(); }));
    EXPECT_EQ(totals(plan()).first(), "-"); // from the next redraw on
    ASSERT_TRUE(hands.choose(control<QComboBox>("CbJour"), 0));
    EXPECT_TRUE(until([&] {
        return totals(plan()).mid(0, 4) == QStringList({"52", "20", "100", "100"});
    }));
}

TEST_F(TheWindow, showsOnlyTheSubjectThatIsChosen)
{
    open();
    auto* subjects = control<QComboBox>("Cb_Mat");
    auto* palette = control<QWidget>("Frame1");
    EXPECT_TRUE(palette->isVisible());
    hands.click(control<QCheckBox>("Check1"));
    expectTexts("A2", {{1, "G1\r\n Dupont/Durand\r\n \r\n"}}); // Algèbre is the first
    EXPECT_TRUE(until([&] { return subjects->isVisible() && !palette->isVisible(); }));
    ASSERT_TRUE(hands.choose(subjects, 4));
    expectTexts("B2", {{2, "G2\r\n Petit\r\n \r\n"}});
    EXPECT_TRUE(boxTexts(plan(), "A2").isEmpty());
    hands.click(control<QCheckBox>("Check1"));
    EXPECT_TRUE(until([&] { return !subjects->isVisible() && palette->isVisible(); }));
    EXPECT_TRUE(boxTexts(plan(), "A2").isEmpty()); // until the next redraw
}

TEST_F(TheWindow, drawsTheGridAndTheCountersOnlyWhileTheyAreTicked)
{
    open();
    const auto shows = [this](QRgb color) {
        const QImage plan = view()->grab().toImage().convertToFormat(QImage::Format_RGB32);
        bool found = false;
        for (int y = 0; y < plan.height() && !found; ++y) {
            const auto* line = reinterpret_cast<const QRgb*>(plan.constScanLine(y));
            found = std::find(line, line + plan.width(), color) != line + plan.width();
        }
        return found;
    };
    // The grid's lines of the hours; the label of B2, which is too small for G2.
    for (const auto& [name, color] :
         {std::pair("ChkGrille", qRgb(0, 0, 180)), std::pair("Check3", qRgb(178, 24, 32))}) {
        EXPECT_TRUE(shows(color)) << name;
        const std::uint64_t before = redraws();
        hands.click(control<QCheckBox>(name));
        EXPECT_TRUE(until([&] { return redraws() == before + 1; }));
        EXPECT_FALSE(shows(color)) << name;
        hands.click(control<QCheckBox>(name));
        EXPECT_TRUE(until([&] { return redraws() == before + 2; }));
    }
}

TEST_F(TheWindow, showsTheClassesOfAGroupWhenItsCounterIsClicked)
{
    open();
    QString title;
    QString text;
    const DialogAnswer answer([&](QDialog& dialog) {
        auto& box = dynamic_cast<QMessageBox&>(dialog);
        title = box.windowTitle();
        text = box.text();
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
        ASSERT_TRUE(until([&] { return box.windowHandle()->isExposed() && box.isActiveWindow(); }));
        hands.click(box.button(QMessageBox::Ok));
    });
    hands.click(counterOnScreen(1, 0)); // B1 holds G2 and G3 together
    ASSERT_TRUE(
        until([&] { return answer.count() == 1 && QApplication::activeModalWidget() == nullptr; }));
    EXPECT_EQ(title, "Salles Occupées");
    EXPECT_EQ(text, "G2\tMartin\r\nG3\tMartin");
    EXPECT_FALSE(window().failed());
}

TEST_F(TheWindow, givesEveryControlTheFontOfLabel20)
{
    open();
    const std::uint64_t before = redraws();
    hands.click(control<QWidget>("Label20"));
    EXPECT_TRUE(until([&] { return redraws() == before + 1; }));
    EXPECT_TRUE(until([&] { return control<QLabel>("XSalle")->font().family() == "Arial"; }));
}

TEST_F(TheWindow, writesTheSettingsWhenItIsClosed)
{
    open();
    hands.replaceText(control<QSpinBox>("Total_L_P"), "3");
    hands.click(control<QCheckBox>("XpMat"));
    ASSERT_TRUE(until([&] { return form().Total_L_P.text() == "3" && !form().XpMat.isChecked(); }));
    EXPECT_EQ(setup.saved("Total_L_P"), "(none)"); // not before it is closed
    hands.press({"alt+F4"});
    EXPECT_TRUE(until([&] { return !window().isVisible(); }));
    EXPECT_EQ(setup.saved("Total_L_P"), "3");
    EXPECT_EQ(setup.saved("ChkMatiere"), "0");
    EXPECT_EQ(setup.saved("ChkClasse"), "(none)");
}

TEST_F(TheWindow, hasEveryControlUnderItsName)
{
    open();
    for (const char* name :
         {"CbTranche",  "CbJour",    "DTPicker1", "Check2",   "OpEns",     "OpExam",    "Combo10",
          "Semn",       "OptFixe",   "OptA",      "OptB",     "XOpCl",     "XOpEns",    "XpMat",
          "Chk_Type",   "xOpExam",   "Check1",    "Cb_Mat",   "cb_Locaux", "ElemDep",   "Combo1",
          "Chk_Neutre", "Total_L_P", "Command2",  "Command3", "Colorer",   "ChkGrille", "Check3",
          "Chk_Compt",  "Frame1",    "Command4",  "Label5",   "Command1",  "Opt_Cap",   "XSalle",
          "Label11",    "Lab_Ver",   "Label20",   "ImgSql",   "ImgAccess", "Picture1",  "Label4_0",
          "Label4_1",   "Label4_2",  "Label4_3",  "Label4_4", "EveryRoom", "PageInfo",  "FirstPage",
          "Today",      "DayBefore", "DayAfter"}) {
        EXPECT_EQ(window().findChildren<QWidget*>(name).size(), 1) << name;
    }
}

TEST_F(TheWindow, hasTheCaptionsOfItsControls)
{
    open();
    const QMap<QString, QString> captions = {{"Check2", "Date"},
                                             {"OpEns", "Enseignement"},
                                             {"OpExam", "Examen"},
                                             {"OptFixe", "Toute Semaine"},
                                             {"OptA", "Semaine A"},
                                             {"OptB", "Semaine B"},
                                             {"XOpCl", "Classe"},
                                             {"XOpEns", "Enseignant"},
                                             {"XpMat", "Matière"},
                                             {"Chk_Type", "Type de S."},
                                             {"xOpExam", "Responsable"},
                                             {"Check1", "Selon la Matière:"},
                                             {"ElemDep", "Eléments du département"},
                                             {"Chk_Neutre", "+ Eléments Neutres"},
                                             {"EveryRoom", "Toutes les salles"},
                                             {"Today", "Aujourd’hui"},
                                             {"Command2", "Page Précédente"},
                                             {"Command3", "Page Suivante"},
                                             {"Colorer", "Colorer"},
                                             {"ChkGrille", "Grille"},
                                             {"Check3", "S. Groupées"},
                                             {"Chk_Compt", "Comptage"},
                                             {"Command4", "Changer de Palette"},
                                             {"Command1", "Imprimer"},
                                             {"Opt_Cap", "Imprimer Capacité"}};
    for (auto caption = captions.begin(); caption != captions.end(); ++caption) {
        const auto* button = window().findChild<QAbstractButton*>(caption.key());
        ASSERT_NE(button, nullptr) << caption.key().toStdString();
        EXPECT_EQ(QString(button->text()).remove('&'), caption.value());
    }
}
