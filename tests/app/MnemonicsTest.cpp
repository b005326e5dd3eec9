// The letters that lead to the window's controls with Alt.

#include "app/Mnemonics.h"

#include "app/WindowDesk.h"

#include <QAction>
#include <QGroupBox>
#include <QToolButton>
#include <set>

using namespace test;

namespace
{

class TheLetters : public TheWindow
{
protected:
    /// The key of each control that has one, by its name.
    QMap<QString, QString> all()
    {
        QMap<QString, QString> keys;
        const auto note = [&keys](const QString& control, const QString& text) {
            const QKeySequence key = QKeySequence::mnemonic(text);
            if (!key.isEmpty()) {
                keys[control] = key.toString();
            }
        };
        for (const auto* button : window().findChildren<QAbstractButton*>()) {
            note(button->objectName(), button->text());
        }
        for (const auto* caption : window().findChildren<QLabel*>()) {
            if (caption->buddy() != nullptr) {
                note(caption->buddy()->objectName(), caption->text());
            }
        }
        for (const auto* group : window().findChildren<QGroupBox*>()) {
            if (group->focusProxy() != nullptr) {
                note(group->focusProxy()->objectName(), group->title());
            }
        }
        return keys;
    }
};

} // namespace

TEST(Mnemonics, markTheLetterOfAControl)
{
    EXPECT_EQ(app::withMnemonic("Enseignant", "XOpEns"), "En&seignant");
    EXPECT_EQ(app::withMnemonic("Surveillant", "XOpEns"), "&Surveillant");
    EXPECT_EQ(app::withMnemonic("Semaine A", "OptA"), "Semaine &A");
    EXPECT_EQ(app::withMnemonic("Aperçu", "PrintPreview"), "Aper&çu");
}

TEST(Mnemonics, leaveACaptionAloneWithoutTheLetterOrTheControl)
{
    EXPECT_EQ(app::withMnemonic("Zone", "OptA"), "Zone"); // no a
    EXPECT_EQ(app::withMnemonic("Zone", "Label20"), "Zone");
    EXPECT_EQ(app::withMnemonic("Zone & Co", ""), "Zone && Co");
}

TEST_F(TheLetters, areGivenOnce)
{
    open();
    const QMap<QString, QString> keys = all();
    std::set<QString> seen;
    for (auto key = keys.begin(); key != keys.end(); ++key) {
        EXPECT_TRUE(seen.insert(key.value()).second)
            << key.key().toStdString() << ": " << key.value().toStdString();
    }
    EXPECT_EQ(keys.size(), 25);
}

TEST_F(TheLetters, areGivenToEveryControlThatHasNoOtherWay)
{
    open();
    QSet<QString> without;
    for (const auto* widget : window().findChildren<QWidget*>()) {
        const bool isControl = widget->inherits("QAbstractButton") ||
                               widget->inherits("QComboBox") ||
                               widget->inherits("QAbstractSpinBox");
        const bool isPart = widget->objectName().startsWith("qt_") ||
                            widget->objectName().isEmpty() ||
                            widget->objectName() == "ScrollLeftButton" ||
                            widget->objectName() == "ScrollRightButton";
        if (isControl && !isPart && !all().contains(widget->objectName())) {
            without.insert(widget->objectName());
        }
    }
    const QSet<QString> otherKey{"Aide",      "Today",    "DayBefore", "DayAfter",
                                 "DTPicker1", "Command1", "Command2",  "PrintAllPages",
                                 "Command3",  "Retry",    "Refresh",   "FirstPage"};
    const QSet<QString> besideTheirCheckBox{"Combo10", "Combo1", "Cb_Mat"};
    const QSet<QString> noLetterLeft{"xOpExam", "Command4", "PreviewAllPages", "Label20",
                                     "OpenSaved"};
    EXPECT_EQ(without, otherKey + besideTheirCheckBox + noLetterLeft)
        << QStringList(without.values()).join(' ').toStdString();
}

TEST_F(TheLetters, workTheirControl)
{
    open();
    const std::uint64_t before = redraws();
    hands.press({"alt+u"});
    EXPECT_TRUE(until([&] { return !form().Check3.isChecked() && redraws() == before + 1; }));
    hands.press({"alt+b"});
    EXPECT_TRUE(until([&] { return form().OptB().isSelected(); }));
    hands.press({"alt+z"});
    EXPECT_TRUE(until([&] { return control<QWidget>("cb_Locaux")->hasFocus(); }));
    hands.press({"alt+l"});
    EXPECT_TRUE(until([&] { return control<QWidget>("Total_L_P")->hasFocus(); }));
    hands.press({"alt+x"});
    EXPECT_TRUE(until([&] { return form().OpExam().isSelected(); }));
    EXPECT_TRUE(until([&] { return control<QCheckBox>("XOpEns")->text() == "&Surveillant"; }));
    hands.press({"alt+s"});
    EXPECT_TRUE(until([&] { return !form().XOpEns.isChecked(); }));
}

TEST_F(TheLetters, areKeysOfAFrenchKeyboardToo)
{
    open();
    EXPECT_EQ(control<QCheckBox>("Check1")->shortcut(), QKeySequence(Qt::ALT | Qt::Key_Egrave));
    EXPECT_EQ(control<QCheckBox>("Opt_Cap")->shortcut(), QKeySequence(Qt::ALT | Qt::Key_Eacute));
    EXPECT_EQ(control<QPushButton>("PrintPreview")->shortcut(),
              QKeySequence(Qt::ALT | Qt::Key_Ccedilla));
}
