#pragma once

#include "app/SavedLink.h"

#include <QFrame>
#include <QTimer>

class QStatusBar;

namespace app
{

class ElidedLabel;

/// What has just been done, in the left part of the status bar, over what else is told there: an
/// absence that was recorded, a file that was saved, with a link that opens it. It goes after a
/// while, but not while its link has the focus. Screen readers speak it.
class StatusNews : public QFrame
{
public:
    StatusNews(QStatusBar* bar, FileOpener open);

    /// An empty sentence takes the last one away.
    void tell(const QString& sentence);
    void tellSaved(const QString& path);
    /// What is told; empty by the time it has gone.
    [[nodiscard]] QString sentence() const { return m_sentence; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void say(const QString& sentence, const QString& file);
    void place();
    void leave();

    QStatusBar* m_bar;
    ElidedLabel* m_text;
    SavedLink* m_link;
    QString m_sentence;
    QTimer m_goes;
};

} // namespace app
