#include "app/TitledGroup.h"

#include "app/FocusGroups.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionGroupBox>

namespace app
{

bool TitledGroup::event(QEvent* event)
{
    QWidget* entry = event->type() == QEvent::Shortcut ? FocusGroups::entryOf(*this) : nullptr;
    if (entry != nullptr) {
        entry->setFocus(Qt::ShortcutFocusReason);
        return true;
    }
    return QGroupBox::event(event);
}

void TitledGroup::paintEvent(QPaintEvent* event)
{
    QGroupBox::paintEvent(event);
    const auto at = title().indexOf(u'&');
    if (at < 0) {
        return;
    }
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    const QRect label =
        style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, this);
    const QFontMetrics letters = fontMetrics();
    QString text = title();
    text.remove(at, 1);
    const int left = label.center().x() - letters.horizontalAdvance(text) / 2 +
                     letters.horizontalAdvance(text.left(at));
    const int width = letters.horizontalAdvance(text.at(at));
    const int line = label.center().y() - letters.height() / 2 + letters.ascent() + 1;
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawLine(left, line, left + width - 1, line);
}

} // namespace app
