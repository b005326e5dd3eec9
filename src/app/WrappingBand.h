#pragma once

#include <QLayout>
#include <memory>
#include <vector>

namespace app
{

/// Lays its items out from left to right in as many rows as the width makes necessary, each as wide
/// as it wants to be; the items of a row are equally high. The widest item is the least width.
/// Where that saves a row, items stand half as far apart.
class WrappingBand : public QLayout
{
public:
    explicit WrappingBand(QWidget* parent) : QLayout(parent) {}
    ~WrappingBand() override;

    void addItem(QLayoutItem* item) override;
    [[nodiscard]] int count() const override { return static_cast<int>(m_items.size()); }
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize minimumSize() const override;
    /// All items in one row.
    [[nodiscard]] QSize sizeHint() const override;
    void setGeometry(const QRect& place) override;

private:
    /// Items that stand beside one another.
    struct Row {
        std::vector<QLayoutItem*> items;
        int height = 0;
    };

    [[nodiscard]] std::vector<Row> rowsFor(int width, int gap) const;
    /// Pixels between items beside one another.
    [[nodiscard]] int gapFor(int width) const;
    [[nodiscard]] std::vector<QLayoutItem*> shown() const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};

} // namespace app
