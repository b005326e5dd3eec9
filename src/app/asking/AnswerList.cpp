#include "app/asking/AnswerList.h"

#include <QAccessible>
#include <QTimer>
#include <algorithm>

namespace app
{

AnswerList::AnswerList(const QString& accessibleName, const QStringList& columns)
{
    setAccessibleName(accessibleName);
    setHeaderLabels(columns);
    setRootIsDecorated(false);
    setAllColumnsShowFocus(true);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setTextElideMode(Qt::ElideRight);
    // The first row of a list that was empty is not told by the toolkit, which has not laid it out.
    connect(this, &QTreeWidget::currentItemChanged, this,
            [this](const QTreeWidgetItem* /*current*/, const QTreeWidgetItem* before) {
                if (before == nullptr) {
                    tellOfCurrentRowSoon();
                }
            });
}

void AnswerList::focusInEvent(QFocusEvent* event)
{
    QTreeWidget::focusInEvent(event);
    tellOfCurrentRowSoon(); // the toolkit tells of the list as a whole after this
}

void AnswerList::tellOfCurrentRowSoon()
{
    QTimer::singleShot(0, this, [this] { tellOfCurrentRow(); });
}

void AnswerList::tellOfCurrentRow()
{
    const QTreeWidgetItem* current = currentItem();
    if (!QAccessible::isActive() || current == nullptr || !hasFocus()) {
        return;
    }
    int row = 0; // among those that can be seen, headings included
    for (const QTreeWidgetItem* item = topLevelItem(0); item != current; item = itemBelow(item)) {
        if (item == nullptr) {
            return;
        }
        ++row;
    }
    QAccessibleTableInterface* table =
        QAccessible::queryAccessibleInterface(this)->tableInterface();
    QAccessibleInterface* cell = table->cellAt(row, std::max(0, currentColumn()));
    if (cell != nullptr) {
        QAccessibleEvent told(cell, QAccessible::Focus);
        QAccessible::updateAccessibility(&told);
    }
}

} // namespace app
