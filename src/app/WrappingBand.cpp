#include "app/WrappingBand.h"

#include <QWidget>
#include <algorithm>

namespace app
{

WrappingBand::~WrappingBand() = default;

void WrappingBand::addItem(QLayoutItem* item)
{
    m_items.emplace_back(item);
}

QLayoutItem* WrappingBand::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* WrappingBand::takeAt(int index)
{
    if (index < 0 || index >= count()) {
        return nullptr;
    }
    QLayoutItem* taken = m_items[static_cast<std::size_t>(index)].release();
    m_items.erase(m_items.begin() + index);
    return taken;
}

std::vector<QLayoutItem*> WrappingBand::shown() const
{
    std::vector<QLayoutItem*> items;
    for (const auto& item : m_items) {
        if (!item->isEmpty()) {
            items.push_back(item.get());
        }
    }
    return items;
}

std::vector<WrappingBand::Row> WrappingBand::rowsFor(int width, int gap) const
{
    const QMargins margins = contentsMargins();
    const int room = width - margins.left() - margins.right();
    std::vector<Row> rows;
    int used = 0;
    for (QLayoutItem* item : shown()) {
        const QSize size = item->sizeHint();
        if (rows.empty() || used + gap + size.width() > room) {
            rows.emplace_back();
            used = 0;
        }
        used += (rows.back().items.empty() ? 0 : gap) + size.width();
        rows.back().items.push_back(item);
        rows.back().height = std::max(rows.back().height, size.height());
    }
    return rows;
}

int WrappingBand::gapFor(int width) const
{
    const int close = spacing() / 2;
    return rowsFor(width, close).size() < rowsFor(width, spacing()).size() ? close : spacing();
}

int WrappingBand::heightForWidth(int width) const
{
    const QMargins margins = contentsMargins();
    int height = margins.top() + margins.bottom();
    const std::vector<Row> rows = rowsFor(width, gapFor(width));
    for (const Row& row : rows) {
        height += row.height;
    }
    return height + spacing() * std::max(0, static_cast<int>(rows.size()) - 1);
}

QSize WrappingBand::minimumSize() const
{
    QSize least(0, 0);
    for (const QLayoutItem* item : shown()) {
        least = least.expandedTo(item->minimumSize());
    }
    const QMargins margins = contentsMargins();
    return least + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

QSize WrappingBand::sizeHint() const
{
    const QMargins margins = contentsMargins();
    QSize size(0, 0);
    for (const QLayoutItem* item : shown()) {
        const QSize hint = item->sizeHint();
        size = QSize(size.width() + hint.width() + (size.width() > 0 ? spacing() : 0),
                     std::max(size.height(), hint.height()));
    }
    return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

void WrappingBand::setGeometry(const QRect& place)
{
    QLayout::setGeometry(place);
    const QMargins margins = contentsMargins();
    int top = place.top() + margins.top();
    const int room = place.width() - margins.left() - margins.right();
    const int gap = gapFor(place.width());
    for (const Row& row : rowsFor(place.width(), gap)) {
        int left = place.left() + margins.left();
        for (QLayoutItem* item : row.items) {
            const int width = std::min(item->sizeHint().width(), room);
            item->setGeometry(QRect(left, top, width, row.height));
            left += width + gap;
        }
        top += row.height + spacing();
    }
}

} // namespace app
