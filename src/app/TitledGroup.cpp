#include "app/TitledGroup.h"

#include "app/FocusGroups.h"

#include <QEvent>

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

} // namespace app
