#pragma once

#include <QString>
#include <QWidget>

class QListWidget;
class QTextBrowser;

namespace app
{

/// The room manager's guide in a window of its own, its chapters beside the text. It stays open
/// while the plan is used, and closes with the plan's window.
class HelpWindow : public QWidget
{
public:
    /// `guide` is the guide's Markdown file; its pictures lie where it names them. Without the
    /// file the window says so.
    HelpWindow(const QString& guide, QWidget* parent);

private:
    void listChapters();
    void showChapter(int row);

    QListWidget* m_chapters;
    QTextBrowser* m_text;
};

} // namespace app
