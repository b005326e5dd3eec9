#include "app/DateField.h"

#include "support/RuntimeMatchers.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>

namespace
{

/// The field on 10 November 2026, with all of its text selected.
class TheDateField : public testing::Test
{
protected:
    class Field : public app::DateField
    {
    public:
        using app::DateField::lineEdit;
    };

    TheDateField()
    {
        field.setDisplayFormat("dd/MM/yyyy");
        field.setDate(QDate(2026, 11, 10));
        QObject::connect(&field, &QDateEdit::dateChanged, [this](QDate date) {
            if (date != shown) { // Enter tells the same date once more
                shown = date;
                changes.append(date);
            }
        });
        field.selectAll();
    }

    void press(int key, const QString& text = {}, Qt::KeyboardModifiers modifiers = {})
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
        QCoreApplication::sendEvent(&field, &event);
    }
    void type(const QString& text)
    {
        for (const QChar letter : text) {
            press(letter.unicode(), letter);
        }
    }
    void mouse(QEvent::Type type)
    {
        QMouseEvent event(type, QPointF(5, 5), field.lineEdit()->mapToGlobal(QPointF(5, 5)),
                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(field.lineEdit(), &event);
    }
    [[nodiscard]] QString text() const { return field.lineEdit()->text(); }

    Field field;
    QDate shown{2026, 11, 10};
    QList<QDate> changes;
};

} // namespace

TEST_F(TheDateField, takesADateTypedOverItsText)
{
    type("27/11/2027");
    EXPECT_EQ(changes, QList<QDate>{QDate(2027, 11, 27)}); // once, and no part of it
    EXPECT_EQ(text(), "27/11/2027");
    EXPECT_EQ(field.lineEdit()->selectedText(), text());
}

TEST_F(TheDateField, showsWhatIsTypedAsItIs)
{
    type("3.2");
    EXPECT_EQ(text(), "3.2");
    EXPECT_TRUE(changes.isEmpty());
    EXPECT_EQ(field.date(), QDate(2026, 11, 10));
    press(Qt::Key_Shift);
    type("7"); // a two-digit year may go on, and "3.27" is a month of its own
    EXPECT_EQ(text(), "3.27");
}

TEST_F(TheDateField, takesAShortDateWithEnter)
{
    type("31/12");
    EXPECT_TRUE(changes.isEmpty());
    press(Qt::Key_Return);
    EXPECT_EQ(changes, QList<QDate>{QDate(2026, 12, 31)});
    EXPECT_EQ(text(), "31/12/2026");
}

TEST_F(TheDateField, waitsForTheOtherDigitsOfAYear)
{
    type("27/11/27");
    EXPECT_TRUE(changes.isEmpty());
    type("30"); // "2730" is a year
    EXPECT_EQ(changes, QList<QDate>{QDate(2730, 11, 27)});
}

TEST_F(TheDateField, takesADateWithoutSeparators)
{
    type("2711202");
    EXPECT_TRUE(changes.isEmpty());
    type("7");
    EXPECT_EQ(changes, QList<QDate>{QDate(2027, 11, 27)});
}

TEST_F(TheDateField, staysWhereATextIsNoDate)
{
    type("31/11");
    press(Qt::Key_Return);
    EXPECT_TRUE(changes.isEmpty());
    EXPECT_EQ(text(), "10/11/2026");
}

TEST_F(TheDateField, takesBackWhatIsTyped)
{
    type("12");
    press(Qt::Key_Backspace);
    EXPECT_EQ(text(), "1");
    type("5");
    press(Qt::Key_Escape);
    EXPECT_EQ(text(), "10/11/2026");
    EXPECT_TRUE(changes.isEmpty());
    type("15");
    press(Qt::Key_Return);
    EXPECT_EQ(changes, QList<QDate>{QDate(2026, 11, 15)});
}

TEST_F(TheDateField, takesADateAsItIsWhenTheFocusGoes)
{
    type("15/12");
    QFocusEvent gone(QEvent::FocusOut);
    QCoreApplication::sendEvent(&field, &gone);
    EXPECT_EQ(changes, QList<QDate>{QDate(2026, 12, 15)});
}

TEST_F(TheDateField, takesADateBeforeItStepsOn)
{
    type("15/12");
    field.stepBy(1); // of the part where the cursor stands
    ASSERT_FALSE(changes.isEmpty());
    EXPECT_EQ(changes.first(), QDate(2026, 12, 15));
    EXPECT_EQ(changes.size(), 2);
}

TEST_F(TheDateField, takesADateBeforeAClickAndIsSelectedByOne)
{
    type("15/12");
    mouse(QEvent::MouseButtonPress);
    EXPECT_EQ(changes, QList<QDate>{QDate(2026, 12, 15)});
    field.lineEdit()->deselect();
    mouse(QEvent::MouseButtonRelease);
    EXPECT_EQ(field.lineEdit()->selectedText(), "15/12/2026");
}

TEST_F(TheDateField, changesPartByPartWithoutASelection)
{
    field.lineEdit()->deselect();
    field.setSelectedSection(QDateEdit::DaySection);
    type("27");
    EXPECT_EQ(field.date(), QDate(2026, 11, 27));
    EXPECT_EQ(field.currentSection(), QDateEdit::MonthSection);
    type("/"); // typed by habit, after the field went on by itself
    EXPECT_EQ(field.currentSection(), QDateEdit::MonthSection);
    type("12");
    EXPECT_EQ(field.date(), QDate(2026, 12, 27));
}

TEST_F(TheDateField, takesNoCommandForADigit)
{
    press(Qt::Key_3, "3", Qt::ControlModifier);
    press(Qt::Key_Return);
    EXPECT_TRUE(changes.isEmpty());
    EXPECT_EQ(text(), "10/11/2026");
}
