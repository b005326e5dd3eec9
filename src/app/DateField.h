#pragma once

#include <QDateEdit>

namespace app
{

/// The field of the date picker. Besides changing a date part by part it takes one typed as a whole
/// over the selected text, in any form that `runtime::fromTypedDate` reads; a click, Tab or a
/// shortcut that leads here selects it, and Tab leaves it then. Alt+Down opens the calendar.
/// The date changes once it is whole, or with Enter, Tab or the loss of
/// focus; a text that is no date changes nothing.
class DateField : public QDateEdit
{
public:
    DateField();

    QValidator::State validate(QString& text, int& position) const override;
    void stepBy(int steps) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    /// A key while a date is typed as a whole. False when the key is not part of it.
    bool typeOn(const QKeyEvent& event);
    [[nodiscard]] bool isSelectedWhole() const;
    void openCalendar();
    void showTyped();
    void finishTyping();

    bool m_typing = false;
    QString m_typed;         ///< while m_typing
    bool m_advanced = false; ///< the last digit completed its part and led to the next one
};

} // namespace app
