#include "app/CellNote.h"

#include "app/PlainTexts.h"

#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

namespace app
{
namespace
{

constexpr int kWidestLine = 480; // pixels of a line of text
constexpr int kNoteMargin = 10;
constexpr int kGap = 3;

} // namespace

CellNote::CellNote(const QString& text, QWidget* parent) : QFrame(parent, Qt::Popup)
{
    setObjectName(QStringLiteral("CellNote"));
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameShape(QFrame::Box);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setAutoFillBackground(true);
    auto* words = plainLabel(text);
    words->setObjectName(QStringLiteral("CellText"));
    words->setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
    words->setFocusPolicy(Qt::StrongFocus);
    words->setWordWrap(true);
    words->ensurePolished();
    const QRect lines =
        words->fontMetrics().boundingRect(QRect(0, 0, kWidestLine, 0), Qt::TextWordWrap, text);
    words->setFixedSize(lines.width() + 4, lines.height() + 2);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kNoteMargin, kNoteMargin, kNoteMargin, kNoteMargin);
    column->addWidget(words);
    setFocusProxy(words);
}

void CellNote::showBeside(const QRect& place)
{
    adjustSize();
    const QRect desk = parentWidget()->screen()->availableGeometry();
    const bool fitsBelow = place.bottom() + kGap + height() <= desk.bottom();
    const int top = fitsBelow ? place.bottom() + kGap : place.top() - kGap - height();
    const int left = std::min(place.left(), desk.right() - width());
    move(std::max(left, desk.left()), std::max(top, desk.top()));
    show();
    setFocus(Qt::PopupFocusReason);
    findChild<QLabel*>()->setSelection(0, 0); // read from the beginning
}

void CellNote::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        close();
        return;
    }
    QFrame::keyPressEvent(event);
}

} // namespace app
