#pragma once

#include <QStyledItemDelegate>

namespace app
{

/// The number behind an item's text, by which it is sorted; of a bar the share, 0 to 1, below 0 for
/// none.
inline constexpr int kShareRole = Qt::UserRole + 10;

/// Shows an item's share as a bar with its text beside it.
class ShareBar : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

} // namespace app
