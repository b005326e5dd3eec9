#pragma once

#include <QString>
#include <QWidget>

class QListWidget;
class QPushButton;
class QTextBrowser;

namespace app
{

class HelpSearch;

/// The room manager's guide in a window of its own, its chapters beside the text and a search above
/// it (Ctrl+F), and what is new in this version. It stays open while the plan is used, and closes
/// with the plan's window.
class HelpWindow : public QWidget
{
public:
    /// `guide` is the guide's Markdown file; its pictures lie where it names them, and beside it
    /// `nouveautes.md`, which tells what is new. Without a file the window says so.
    HelpWindow(const QString& guide, QWidget* parent);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void open(const QString& file);
    void listChapters();
    void showChapter(int row);
    void toggleNews();
    void leave();

    QString m_guide;
    QListWidget* m_chapters;
    QTextBrowser* m_text;
    HelpSearch* m_search;
    QPushButton* m_news;
    bool m_showsNews = false;
};

} // namespace app
