#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QRect>
#include <algorithm>
#include <functional>
#include <utility>

namespace test
{

/// A picture that a test draws on. What nobody has drawn on is magenta.
class Canvas
{
public:
    explicit Canvas(int width = 400, int height = 200)
        : m_image(width, height, QImage::Format_RGB32)
    {
        m_image.fill(untouched);
    }

    void draw(const std::function<void(QPainter&)>& drawing)
    {
        QPainter painter(&m_image);
        drawing(painter);
    }

    [[nodiscard]] QColor at(int x, int y) const { return m_image.pixelColor(x, y); }
    [[nodiscard]] bool isTouched(int x, int y) const { return at(x, y) != untouched; }
    /// The smallest rectangle that holds everything drawn.
    [[nodiscard]] QRect touched() const { return bounds(untouched, m_image.rect()); }
    /// The smallest rectangle that holds all pixels of the area that differ from the colour.
    [[nodiscard]] QRect bounds(const QColor& background, const QRect& area) const
    {
        QRect found;
        forEach(area, [&](int x, int y) {
            if (at(x, y) != background) {
                found |= QRect(x, y, 1, 1);
            }
        });
        return found;
    }
    /// The smallest rectangle that holds all pixels of the area that have exactly the colour.
    [[nodiscard]] QRect boundsOf(const QColor& color, const QRect& area) const
    {
        QRect found;
        forEach(area, [&](int x, int y) {
            if (at(x, y) == color) {
                found |= QRect(x, y, 1, 1);
            }
        });
        return found;
    }
    /// How many pixels of the area have exactly the colour.
    [[nodiscard]] int count(const QColor& color, const QRect& area) const
    {
        int pixels = 0;
        forEach(area, [&](int x, int y) { pixels += at(x, y) == color ? 1 : 0; });
        return pixels;
    }
    /// The least and the greatest lightness in the area, 0 to 255.
    [[nodiscard]] std::pair<int, int> lightness(const QRect& area) const
    {
        std::pair<int, int> range{255, 0};
        forEach(area, [&](int x, int y) {
            range.first = std::min(range.first, at(x, y).lightness());
            range.second = std::max(range.second, at(x, y).lightness());
        });
        return range;
    }
    [[nodiscard]] const QImage& image() const { return m_image; }

    static constexpr QColor untouched{255, 0, 255};

private:
    template <typename Visit>
    static void forEach(const QRect& area, Visit visit)
    {
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                visit(x, y);
            }
        }
    }

    QImage m_image;
};

} // namespace test
