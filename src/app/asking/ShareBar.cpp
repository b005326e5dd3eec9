#include "app/asking/ShareBar.h"

#include <QPainter>

namespace app
{
namespace
{

constexpr int kTextWidth = 52; // pixels for "100 %"
constexpr int kBarMargin = 3;
constexpr QColor kBar(72, 89, 122);
constexpr QColor kGround(226, 230, 238);

} // namespace

void ShareBar::paint(QPainter* painter, const QStyleOptionViewItem& option,
                     const QModelIndex& index) const
{
    QStyleOptionViewItem text = option;
    text.rect.setWidth(kTextWidth);
    QStyledItemDelegate::paint(painter, text, index);
    const QRect whole =
        option.rect.adjusted(kTextWidth + kBarMargin, kBarMargin, -kBarMargin, -kBarMargin);
    const QVariant share = index.data(kShareRole);
    if (!share.isValid() || share.toDouble() < 0 || whole.width() <= 0) {
        return;
    }
    QRect bar = whole;
    bar.setWidth(static_cast<int>(whole.width() * share.toDouble()));
    painter->fillRect(whole, kGround);
    painter->fillRect(bar, kBar);
}

} // namespace app
