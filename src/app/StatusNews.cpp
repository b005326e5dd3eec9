#include "app/StatusNews.h"

#include "app/ElidedLabel.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QStatusBar>
#include <algorithm>
#include <chrono>
#include <utility>

namespace app
{
namespace
{

// How long a sentence stays; one with a link is to be reached with the mouse first.
constexpr std::chrono::seconds kSentence{10};
constexpr std::chrono::seconds kLink{30};
constexpr int kSideMargin = 8;

} // namespace

StatusNews::StatusNews(QStatusBar* bar, FileOpener open)
    : QFrame(bar), m_bar(bar), m_text(new ElidedLabel),
      m_link(new SavedLink(std::move(open), [this](const QString& sentence) { tell(sentence); }))
{
    setObjectName(QStringLiteral("StatusNews"));
    setAttribute(Qt::WA_StyledBackground);
    m_text->setObjectName(QStringLiteral("NewsText"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(kSideMargin, 0, kSideMargin, 0);
    row->addWidget(m_text);
    row->addWidget(m_link);
    row->addStretch();
    hide();
    m_goes.setSingleShot(true);
    connect(&m_goes, &QTimer::timeout, this, [this] { leave(); });
    connect(bar, &QStatusBar::messageChanged, this, [this](const QString& message) {
        if (!message.isEmpty()) {
            say({}, {}); // it would lie under this
        }
    });
    bar->installEventFilter(this);
}

void StatusNews::tell(const QString& sentence)
{
    say(sentence, {});
}

void StatusNews::tellSaved(const QString& path)
{
    say(savedWords(path), path);
}

void StatusNews::say(const QString& sentence, const QString& file)
{
    m_sentence = sentence;
    m_text->setText(sentence);
    m_text->setAccessibleName(sentence);
    m_link->offer(file);
    setVisible(!sentence.isEmpty());
    if (sentence.isEmpty()) {
        m_goes.stop();
        return;
    }
    place();
    raise();
    m_goes.start(file.isEmpty() ? kSentence : kLink);
    QAccessibleEvent alert(m_text, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void StatusNews::leave()
{
    if (m_link->hasFocus()) {
        m_goes.start(kLink);
    } else {
        say({}, {});
    }
}

/// Over all that stands on the left; a long sentence goes on over the rest.
void StatusNews::place()
{
    auto* right = m_bar->findChild<QWidget*>(QStringLiteral("PeriodCaption"));
    const int left = right != nullptr ? right->x() : 0;
    if (right != nullptr) {
        right->installEventFilter(this); // moves when something on its right grows
    }
    setGeometry(0, 0, std::min(std::max(sizeHint().width() + kSideMargin, left), m_bar->width()),
                m_bar->height());
}

bool StatusNews::eventFilter(QObject* watched, QEvent* event)
{
    if ((event->type() == QEvent::Resize || event->type() == QEvent::Move) && isVisible()) {
        place();
    }
    return QFrame::eventFilter(watched, event);
}

} // namespace app
