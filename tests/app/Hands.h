#pragma once

#include <QDialog>
#include <QObject>
#include <QPoint>
#include <QString>
#include <QStringList>
#include <functional>

class QComboBox;
class QWidget;

namespace test
{

/// Runs the event loop until the condition holds. False when it does not come to hold.
[[nodiscard]] bool until(const std::function<bool()>& condition);

/// A user's hands: real mouse and key events, sent through the X server as a device would. Each
/// call returns when the server has passed the events on; what they do shows when the event loop
/// has run, so a test waits for it with `until`.
class Hands
{
public:
    /// Moves the mouse there and presses the left button.
    void click(QPoint screenPoint) const;
    /// Clicks on the widget: on the indicator of a check box or option button, else in the middle.
    void click(const QWidget* widget) const;
    /// Moves the mouse there and turns the wheel by one notch, towards the user or away.
    void turnWheel(QPoint screenPoint, bool towardsUser) const;
    void rightClick(QPoint screenPoint) const;
    /// The test sees to it that the toolkit takes it for one, however slow the machine is
    /// (QApplication::setDoubleClickInterval).
    void doubleClick(QPoint screenPoint) const;
    void moveTo(QPoint screenPoint) const;
    /// Presses and releases keys, named like "F2", "Return" or "alt+F4".
    void press(const QStringList& keys) const;
    /// The text holds no blank.
    void type(const QString& text) const;

    /// Opens the list with the mouse and chooses an item of it. False when it does not open.
    [[nodiscard]] bool choose(QComboBox* list, int index) const;
    /// Replaces what the field holds; the text is typed key by key.
    void replaceText(const QWidget* field, const QString& text) const;

private:
    static void play(const QString& commands);
};

/// Answers the next dialogs of the application as they appear. A dialog runs its own event loop,
/// so whoever makes it appear only goes on when it has been answered.
class DialogAnswer : public QObject
{
public:
    /// `answer` runs once the dialog is on the screen, and must make it close.
    explicit DialogAnswer(std::function<void(QDialog&)> answer);
    ~DialogAnswer() override;

    /// How many dialogs have appeared.
    [[nodiscard]] int count() const { return m_count; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void(QDialog&)> m_answer;
    int m_count = 0;
};

} // namespace test
