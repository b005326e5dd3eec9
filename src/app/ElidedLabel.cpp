#include "app/ElidedLabel.h"

#include "app/PlainTexts.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace app
{

ElidedLabel::ElidedLabel()
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

QSize ElidedLabel::minimumSizeHint() const
{
    constexpr int leastLetters = 4;
    const QSize whole = QLabel::minimumSizeHint();
    return {std::min(whole.width(), fontMetrics().averageCharWidth() * leastLetters),
            whole.height()};
}

void ElidedLabel::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    const QRect room = contentsRect();
    style()->drawItemText(&painter, room, static_cast<int>(alignment()), palette(), isEnabled(),
                          fontMetrics().elidedText(text(), Qt::ElideRight, room.width()),
                          foregroundRole());
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty()) {
        return QLabel::event(event);
    }
    if (fontMetrics().horizontalAdvance(text()) > contentsRect().width()) {
        QToolTip::showText(dynamic_cast<const QHelpEvent&>(*event).globalPos(),
                           plainToolTip(text()), this);
    }
    return true;
}

} // namespace app
