#include "app/HelpWindow.h"

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QListWidget>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBlock>
#include <QTextBrowser>
#include <QUrl>

namespace app
{
namespace
{

constexpr int kChapterWidth = 280;
constexpr int kTextWidth = 840; // the guide's pictures and the scroll bar
constexpr int kHeight = 680;
// Headings of this level are the chapters.
constexpr int kChapterLevel = 2;
// Larger than in the plan's window: this is read, not glanced at.
constexpr auto kStyle = "* { font-size: 14px; }";

} // namespace

HelpWindow::HelpWindow(const QString& guide, QWidget* parent)
    : QWidget(parent, Qt::Window), m_chapters(new QListWidget), m_text(new QTextBrowser)
{
    setObjectName(QStringLiteral("HelpWindow"));
    setWindowTitle(QStringLiteral("Aide"));
    setStyleSheet(QString::fromLatin1(kStyle));
    m_chapters->setObjectName(QStringLiteral("Chapters"));
    m_chapters->setAccessibleName(QStringLiteral("Chapitres"));
    m_chapters->setFixedWidth(kChapterWidth);
    m_chapters->setWordWrap(true);
    m_text->setObjectName(QStringLiteral("Guide"));
    m_text->setAccessibleName(QStringLiteral("Guide"));
    auto* row = new QHBoxLayout(this);
    row->addWidget(m_chapters);
    row->addWidget(m_text, 1);
    resize(kChapterWidth + kTextWidth, kHeight);

    if (QFileInfo(guide).isFile()) {
        m_text->setSource(QUrl::fromLocalFile(guide), QTextDocument::MarkdownResource);
    } else {
        m_text->setPlainText(QStringLiteral("Le guide n’a pas été trouvé : « %1 ».")
                                 .arg(QDir::toNativeSeparators(guide)));
    }
    listChapters();
    m_text->setFocus();
    connect(m_chapters, &QListWidget::currentRowChanged, this, &HelpWindow::showChapter);
    connect(m_chapters, &QListWidget::itemClicked, this,
            [this] { showChapter(m_chapters->currentRow()); });
    auto* close = new QShortcut(Qt::Key_Escape, this);
    connect(close, &QShortcut::activated, this, &QWidget::close);
}

void HelpWindow::listChapters()
{
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
