#include "app/HelpWindow.h"

#include "app/HelpSearch.h"
#include "app/ScreenFit.h"

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace app
{
namespace
{

constexpr int kChapterWidth = 280;
constexpr int kTextWidth = 840; // the guide's pictures and the scroll bar
constexpr int kWindowHeight = 680;
constexpr int kGap = 12;
// Headings of this level are the chapters.
constexpr int kChapterLevel = 2;
// Larger than in the plan's window: this is read, not glanced at.
constexpr auto kStyle = "* { font-size: 14px; }";

} // namespace

HelpWindow::HelpWindow(const QString& guide, QWidget* parent)
    : QWidget(parent, Qt::Window), m_guide(guide), m_chapters(new QListWidget),
      m_text(new QTextBrowser), m_search(new HelpSearch(m_text)), m_news(new QPushButton)
{
    setObjectName(QStringLiteral("HelpWindow"));
    setWindowTitle(QStringLiteral("Aide"));
    setStyleSheet(QString::fromLatin1(kStyle));
    m_chapters->setObjectName(QStringLiteral("Chapters"));
    m_chapters->setAccessibleName(QStringLiteral("Chapitres"));
    m_chapters->setFixedWidth(kChapterWidth);
    m_chapters->setWordWrap(true);
    m_text->setObjectName(QStringLiteral("Guide"));
    m_news->setObjectName(QStringLiteral("HelpNews"));
    auto* top = new QHBoxLayout;
    top->addWidget(m_news);
    top->addSpacing(kGap);
    top->addWidget(m_search, 1);
    auto* right = new QVBoxLayout;
    right->addLayout(top);
    right->addWidget(m_text, 1);
    auto* row = new QHBoxLayout(this);
    row->addWidget(m_chapters);
    row->addLayout(right, 1);
    resize(fittingScreen({kChapterWidth + kTextWidth, kWindowHeight}, *this));

    open(m_guide);
    m_text->setFocus();
    connect(m_chapters, &QListWidget::currentRowChanged, this, &HelpWindow::showChapter);
    connect(m_chapters, &QListWidget::itemClicked, this,
            [this] { showChapter(m_chapters->currentRow()); });
    connect(m_news, &QPushButton::clicked, this, [this] { toggleNews(); });
    auto* close = new QShortcut(Qt::Key_Escape, this);
    connect(close, &QShortcut::activated, this, [this] { leave(); });
}

void HelpWindow::open(const QString& file)
{
    const QString what = m_showsNews ? QStringLiteral("Quoi de neuf") : QStringLiteral("Guide");
    m_text->setAccessibleName(what);
    m_news->setText(m_showsNews ? QStringLiteral("Revenir au &guide")
                                : QStringLiteral("&Quoi de neuf"));
    if (QFileInfo(file).isFile()) {
        m_text->setSource(QUrl::fromLocalFile(file), QTextDocument::MarkdownResource);
    } else {
        m_text->setPlainText((m_showsNews
                                  ? QStringLiteral("Le fichier n’a pas été trouvé : « %1 ».")
                                  : QStringLiteral("Le guide n’a pas été trouvé : « %1 »."))
                                 .arg(QDir::toNativeSeparators(file)));
    }
    listChapters();
    m_search->searchAnew();
}

void HelpWindow::toggleNews()
{
    m_showsNews = !m_showsNews;
    open(m_showsNews ? QFileInfo(m_guide).dir().filePath(QStringLiteral("nouveautes.md"))
                     : m_guide);
}

/// The search first, then the window.
void HelpWindow::leave()
{
    if (!m_search->end()) {
        close();
    }
}

/// Ctrl+F is a question about the timetable in every other window.
bool HelpWindow::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride &&
        dynamic_cast<const QKeyEvent&>(*event).matches(QKeySequence::Find)) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void HelpWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Find)) {
        m_search->begin();
    } else if (event->key() == Qt::Key_F3) {
        m_search->step(event->modifiers() & Qt::ShiftModifier ? -1 : 1);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void HelpWindow::listChapters()
{
    const QSignalBlocker quiet(m_chapters);
    m_chapters->clear();
    for (QTextBlock block = m_text->document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == kChapterLevel) {
            auto* chapter = new QListWidgetItem(block.text(), m_chapters);
            chapter->setData(Qt::UserRole, block.position());
        }
    }
    m_chapters->setVisible(m_chapters->count() > 0);
}

void HelpWindow::showChapter(int row)
{
    const QListWidgetItem* chapter = m_chapters->item(row);
    if (chapter == nullptr) {
        return;
    }
    const QTextDocument& document = *m_text->document();
    const QTextBlock block = document.findBlock(chapter->data(Qt::UserRole).toInt());
    const QRectF place = document.documentLayout()->blockBoundingRect(block);
    m_text->verticalScrollBar()->setValue(static_cast<int>(place.top()));
}

} // namespace app
