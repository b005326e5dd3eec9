#include "app/DateField.h"

#include "runtime/FrenchDate.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <algorithm>
#include <utility>

namespace app
{
namespace
{

constexpr Qt::KeyboardModifiers kCommandKeys = Qt::ControlModifier | Qt::AltModifier;

bool isDigit(const QKeyEvent& event)
{
    return event.text().size() == 1 && event.text().front().isDigit() &&
           !(event.modifiers() & kCommandKeys);
}

bool isSeparator(const QKeyEvent& event)
{
    return event.text().size() == 1 && runtime::isDateSeparator(event.text().front()) &&
           !(event.modifiers() & kCommandKeys);
}

/// Nothing can follow: two digits of a year may be the first ones of four.
bool isWhole(const QString& text, QDate shown)
{
    const auto digits = [](const QString& part) {
        return std::all_of(part.begin(), part.end(), [](QChar letter) { return letter.isDigit(); });
    };
    return runtime::fromTypedDate(text, shown).isValid() && text.size() >= 8 &&
           digits(text.right(4));
}

} // namespace

DateField::DateField()
{
    lineEdit()->installEventFilter(this);
}

QValidator::State DateField::validate(QString& text, int& position) const
{
    return m_typing ? QValidator::Intermediate : QDateEdit::validate(text, position);
}

void DateField::stepBy(int steps)
{
    finishTyping();
    QDateEdit::stepBy(steps);
}

bool DateField::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        finishTyping();
    } else if (event->type() == QEvent::MouseButtonRelease && !lineEdit()->hasSelectedText()) {
        selectAll(); // what is typed next takes its place
    }
    return QDateEdit::eventFilter(watched, event);
}

void DateField::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier)) {
        openCalendar();
        return;
    }
    const bool wasAdvanced = std::exchange(m_advanced, false);
    if (m_typing && typeOn(*event)) {
        return;
    }
    const bool digit = isDigit(*event);
    if (digit && isSelectedWhole()) {
        m_typing = true;
        m_typed = event->text();
        showTyped();
        return;
    }
    if (wasAdvanced && isSeparator(*event)) {
        return; // the field has already gone on to the next part
    }
    const int section = currentSectionIndex();
    QDateEdit::keyPressEvent(event);
    m_advanced = digit && currentSectionIndex() != section;
}

bool DateField::typeOn(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Backspace:
        m_typed.chop(1);
        showTyped();
        return true;
    case Qt::Key_Escape:
        m_typed.clear();
        finishTyping();
        return true;
    case Qt::Key_Shift: // some keyboards have the digits there
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
        return true;
    default:
        break;
    }
    if (!isDigit(event) && !isSeparator(event)) {
        finishTyping();
        return false;
    }
    m_typed += event.text();
    showTyped();
    if (isWhole(m_typed, date())) {
        finishTyping();
    }
    return true;
}

void DateField::showTyped()
{
    // Otherwise the field would take the beginning of a date for a wrong one, and put it right.
    const QSignalBlocker quiet(lineEdit());
    lineEdit()->setText(m_typed);
}

void DateField::finishTyping()
{
    if (!std::exchange(m_typing, false)) {
        return;
    }
    const QDate typed = runtime::fromTypedDate(m_typed, date());
    setDate(typed.isValid() ? typed : date()); // shows the date again
    selectAll();
}

bool DateField::isSelectedWhole() const
{
    return lineEdit()->selectedText() == lineEdit()->text();
}

/// The toolkit opens its calendar for a press of the mouse on the arrow alone.
void DateField::openCalendar()
{
    finishTyping();
    if (!calendarPopup()) {
        return;
    }
    QStyleOptionComboBox parts;
    parts.initFrom(this);
    parts.editable = true;
    parts.subControls = QStyle::SC_All;
    const QPointF arrow =
        style()
            ->subControlRect(QStyle::CC_ComboBox, &parts, QStyle::SC_ComboBoxArrow, this)
            .center();
    QMouseEvent press(QEvent::MouseButtonPress, arrow, mapToGlobal(arrow), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    mousePressEvent(&press);
}

void DateField::focusInEvent(QFocusEvent* event)
{
    QDateEdit::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
        reason == Qt::ShortcutFocusReason) {
        selectAll(); // the toolkit selects one part, and the next one after two digits
    }
}

void DateField::focusOutEvent(QFocusEvent* event)
{
    finishTyping();
    QDateEdit::focusOutEvent(event);
}

bool DateField::focusNextPrevChild(bool next)
{
    const bool isWhole = m_typing || isSelectedWhole();
    finishTyping();
    if (isWhole) { // the date edit would go on to its next part, but such a date is left as a whole
        return QAbstractSpinBox::focusNextPrevChild(next); // NOLINT(bugprone-parent-virtual-call)
    }
    return QDateEdit::focusNextPrevChild(next);
}

} // namespace app
