#include "app/FocusGroups.h"

#include <QApplication>
#include <QShortcut>
#include <QWidget>
#include <algorithm>
#include <utility>

namespace app
{
namespace
{

bool takesFocus(const QWidget& widget)
{
    return widget.isVisible() && widget.isEnabled() &&
           (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
}

} // namespace

FocusGroups::FocusGroups(QWidget& window, std::vector<QWidget*> groups)
    : QObject(&window), m_groups(std::move(groups))
{
    auto* forth = new QShortcut(Qt::Key_F6, &window);
    connect(forth, &QShortcut::activated, this, [this] { go(1); });
    auto* back = new QShortcut(Qt::SHIFT | Qt::Key_F6, &window);
    connect(back, &QShortcut::activated, this, [this] { go(-1); });
}

QWidget* FocusGroups::entryOf(QWidget& group)
{
    QWidget* proxy = group.focusProxy();
    if (proxy != nullptr && takesFocus(*proxy)) {
        return proxy;
    }
    if (proxy == nullptr && takesFocus(group)) {
        return &group;
    }
    for (QWidget* next = group.nextInFocusChain(); next != &group;
         next = next->nextInFocusChain()) {
        if (group.isAncestorOf(next) && takesFocus(*next)) {
            return next;
        }
    }
    return nullptr;
}

void FocusGroups::go(int step)
{
    const auto count = static_cast<int>(m_groups.size());
    const QWidget* focus = QApplication::focusWidget();
    const auto holdsFocus = [focus](const QWidget* group) {
        return focus != nullptr && (group == focus || group->isAncestorOf(focus));
    };
    const auto found = std::find_if(m_groups.begin(), m_groups.end(), holdsFocus);
    // From outside of all of them to the first or to the last.
    int at = found != m_groups.end() ? static_cast<int>(found - m_groups.begin())
                                     : (step > 0 ? -1 : count);
    for (int tries = 0; tries < count; ++tries) {
        at = (at + step + count) % count;
        if (QWidget* entry = entryOf(*m_groups.at(static_cast<std::size_t>(at)))) {
            entry->setFocus(Qt::TabFocusReason);
            return;
        }
    }
}

} // namespace app
