// The buttons and keys that lead to today and to the days beside the shown one. Today is Wednesday,
// 19 March 2025.

#include "app/WindowDesk.h"

#include <QToolButton>

using namespace test;

namespace
{

class TheDays : public TheWindow
{
protected:
    /// "Mardi 2025-03-18".
    [[nodiscard]] QString shown()
    {
        return form().CbJour.text() + ' ' + form().DTPicker1.value().toString(Qt::ISODate);
    }
    void expectDay(const QString& day)
    {
        static_cast<void>(until([&] { return shown() == day; }));
        EXPECT_EQ(shown(), day);
    }
};

} // namespace

TEST_F(TheDays, followTheKeys)
{
    open();
    hands.press({"alt+Right"});
    expectDay("Mardi 2025-03-18");
    expectTexts("A2", {{2, "G3\r\n Roux\r\n [Chimie]\r\n"}});
    hands.press({"alt+Left"});
    expectDay("Lundi 2025-03-17");
    hands.press({"alt+Left"}); // over the Sunday
    expectDay("Samedi 2025-03-15");
    hands.press({"ctrl+t"});
    expectDay("Mercredi 2025-03-19");
    EXPECT_TRUE(until(
        [&] { return control<QLabel>("XSalle")->text() == "Occupation des Salles du Mercredi"; }));
}

TEST_F(TheDays, followTheKeysWhereverTheFocusIs)
{
    open();
    for (const char* name : {"Total_L_P", "CbJour"}) {
        control<QWidget>(name)->setFocus();
        hands.press({"alt+Right"});
        ASSERT_TRUE(until([&] { return form().CbJour.text() == "Mardi"; })) << name;
        hands.press({"alt+Left"});
        ASSERT_TRUE(until([&] { return form().CbJour.text() == "Lundi"; })) << name;
    }
    EXPECT_EQ(form().Total_L_P.text(), "19");
}

TEST_F(TheDays, followTheButtons)
{
    open();
    hands.click(control<QToolButton>("DayAfter"));
    expectDay("Mardi 2025-03-18");
    hands.click(control<QPushButton>("Today"));
    expectDay("Mercredi 2025-03-19");
    hands.click(control<QToolButton>("DayBefore"));
    expectDay("Mardi 2025-03-18");
}

TEST_F(TheDays, moveTheDateWhileThatIsTicked)
{
    open();
    hands.click(control<QCheckBox>("Check2"));
    ASSERT_TRUE(until([&] { return form().DTPicker1.visible; }));
    hands.press({"alt+Left"});
    expectDay("Samedi 2025-03-15");
    EXPECT_TRUE(
        until([&] { return control<QDateEdit>("DTPicker1")->date() == QDate(2025, 3, 15); }));
    EXPECT_EQ(control<QLabel>("XSalle")->text(), "Occupation des Salles du 15/03/25");
    hands.press({"alt+Right"});
    expectDay("Lundi 2025-03-17");
    expectTexts("A2", {{1, "G1\r\n Dupont/Durand\r\n [Algèbre]\r\n"},
                       {2, "G1\r\n Dupont\r\n [Algèbre]\r\n"}}); // with its make-up
}

TEST_F(TheDays, endWithTheExamWeek)
{
    open();
    hands.click(control<QRadioButton>("OpExam"));
    ASSERT_TRUE(until([&] { return !control<QToolButton>("DayBefore")->isEnabled(); }));
    EXPECT_TRUE(control<QToolButton>("DayAfter")->isEnabled());
    hands.press({"alt+Right"});
    expectDay("Mardi 2025-06-10");
    EXPECT_TRUE(until([&] { return control<QToolButton>("DayBefore")->isEnabled(); }));
    hands.press({"ctrl+t"}); // today lies in no exam week
    expectDay("Mercredi 2025-03-19");
    EXPECT_TRUE(form().OpEns().isSelected());
}

TEST_F(TheDays, haveNamesForScreenReaders)
{
    open();
    EXPECT_EQ(control<QToolButton>("DayBefore")->accessibleName(), "Jour précédent");
    EXPECT_EQ(control<QToolButton>("DayAfter")->accessibleName(), "Jour suivant");
}

TEST_F(TheDays, beginWithTodayWhereTheSettingsSaySo)
{
    setup.set("Ouvrir_Aujourdhui", "True");
    open();
    expectDay("Mercredi 2025-03-19");
    EXPECT_EQ(control<QComboBox>("CbJour")->currentText(), "Mercredi");
}
