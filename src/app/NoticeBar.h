#pragma once

#include <QFrame>
#include <functional>

class QLabel;
class QToolButton;

namespace app
{

/// A line above the plan that says in a sentence what is wrong with it, with a button that mends
/// it; hidden while there is nothing to say. The window's style gives each its colour, by its name.
class NoticeBar : public QFrame
{
public:
    /// What the widgets are called, and what stands on the button.
    struct Words {
        QString name;       ///< object name of the bar
        QString textName;   ///< object name of the sentence's label
        QString buttonName; ///< object name of the button
        QString button;
        QString toolTip; ///< of the button
    };

    /// `mend` is run by the button.
    NoticeBar(const Words& words, std::function<void()> mend);

    /// `sentence` is empty where there is nothing to say; `details` stand in its tooltip. Screen
    /// readers speak a new one. Without a button: pressing it would not help.
    void tell(const QString& sentence, const QString& details = {}, bool hasButton = true);

private:
    QLabel* m_text;
    QToolButton* m_button;
};

} // namespace app
