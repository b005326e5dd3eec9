// What the windows that answer questions have in common: the letters for Alt.

#include "app/asking/AnswerWindow.h"

#include "app/asking/AskingDesk.h"

#include <QAbstractButton>
#include <QAction>

using namespace test;

namespace
{

/// The fields and buttons of a window by their letters, and those without one.
struct Letters {
    explicit Letters(const QWidget& window)
    {
        for (const auto* button : window.findChildren<QAbstractButton*>()) {
            note(*button, button->text());
        }
        for (const auto* caption : window.findChildren<QLabel*>()) {
            if (caption->buddy() != nullptr) {
                note(*caption->buddy(), caption->text());
            }
        }
        for (const QWidget* widget : window.findChildren<QWidget*>()) {
            const bool isControl =
                widget->inherits("QAbstractButton") || widget->inherits("QComboBox") ||
                widget->inherits("QAbstractSpinBox") || widget->inherits("QLineEdit");
            const QWidget* parent = widget->parentWidget(); // whose part it may be
            const bool isPart =
                widget->objectName().isEmpty() || widget->objectName().startsWith("qt_") ||
                widget->objectName() == "OpenSaved" || widget->objectName().startsWith("Scroll") ||
                parent->inherits("QComboBox") || parent->inherits("QAbstractSpinBox");
            if (isControl && !isPart && !names.contains(widget->objectName())) {
                without << widget->objectName();
            }
        }
        without.sort();
    }

    void note(const QWidget& control, const QString& text)
    {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (!key.isEmpty()) {
            keys << key.toString();
            names << control.objectName();
        }
    }

    QStringList keys;
    QStringList names;
    QStringList without;
};

class TheAnswersLetters : public TheAnswers
{
protected:
    /// Opens the window by its question in the menu, and looks at its letters: none is given
    /// twice, and of all fields and buttons only `without` has none.
    void expectLetters(const char* question, const char* name, const QStringList& without)
    {
        control<QAction>(question)->trigger();
        const QWidget* asked = nullptr;
        ASSERT_TRUE(until([&] {
            asked = window().findChild<QWidget*>(QString::fromLatin1(name));
            return asked != nullptr && asked->isVisible();
        })) << name;
        const Letters letters(*asked);
        EXPECT_GE(letters.keys.size(), 3) << name;
        QStringList once = letters.keys;
        once.removeDuplicates();
        EXPECT_EQ(letters.keys, once) << name << letters.keys.join(' ').toStdString();
        EXPECT_EQ(letters.without, without) << name << letters.without.join(' ').toStdString();
        EXPECT_LE(asked->minimumSizeHint().width(), 900) << name; // of the smallest screen
    }
};

} // namespace

TEST_F(TheAnswersLetters, areGivenOnceAndToAllFieldsAndButtons)
{
    open();
    // Beside their check boxes, from which Tab leads to them.
    expectLetters("AskFreeRooms", "FreeRoomsWindow", {"AskedDate"});
    expectLetters("Find", "FindWindow", {});
    // The arrows are the keys ← and → of the drawn week.
    expectLetters("AskWeek", "WeekWindow", {"NextName", "PreviousName", "WeekDate"});
    expectLetters("AskClashes", "ClashesWindow", {});
    expectLetters("AskRoomUse", "RoomUseWindow", {});
}

TEST_F(TheAnswersLetters, leadToTheirFields)
{
    open();
    ASSERT_NE(ask<QWidget>({"ctrl+l"}, "FreeRoomsWindow"), nullptr);
    hands.press({"alt+l"});
    EXPECT_TRUE(until([this] { return control<QCheckBox>("AskedByDate")->isChecked(); }));
    hands.press({"alt+c"});
    EXPECT_TRUE(until([this] { return control<QSpinBox>("AskedPlaces")->hasFocus(); }));
    hands.press({"alt+m"});
    EXPECT_TRUE(until([this] { return control<QWidget>("QuickQuestion")->hasFocus(); }));
}

TEST_F(TheAnswersLetters, leadToTheNameOfAWeek)
{
    open();
    ASSERT_NE(ask<QWidget>({"ctrl+w"}, "WeekWindow"), nullptr);
    hands.press({"alt+n"});
    EXPECT_TRUE(until([this] { return control<QWidget>("WeekName")->hasFocus(); }));
    hands.press({"alt+s"});
    EXPECT_TRUE(until([this] { return control<QWidget>("WeekWeek")->hasFocus(); }));
}
