#include "paint/Overlays.h"

#include "paint/CellBox.h"
#include "paint/Inks.h"
#include "plan/BoxWords.h"

#include <algorithm>

namespace paint
{
namespace
{

// Design size of the absence pictures in twips; lower rows make them as high as the row.
constexpr int kPictureSize = 480;
// The two pictures of a box overlap a little: the left one starts 1.7 widths from the edge.
constexpr double kClassPictureStep = 1.7;
constexpr int kOverlayFontPixels = 10;
constexpr int kSmallestOverlayFont = 9;
// Rows lower than this hold one line, so labels stand beside the text instead of below it.
constexpr double kOneLinePixels = 26;
// A label no wider than this share of its box stands beside the text as well.
constexpr double kSideLabelShare = 0.3;

// Pixels around the letter of a week.
constexpr double kTagMargin = 6;
// A label that lies over more than this share of a picture hides it.
constexpr double kHidingShare = 0.25;

bool hides(const QRectF& label, const QRectF& picture)
{
    const QRectF common = label.intersected(picture);
    return common.width() * common.height() > kHidingShare * picture.width() * picture.height();
}

/// In the upper left corner, or beside the counter that stands there.
QRectF weekPlace(const form::PlanForm& form, const OverlayPlaces& places, const plan::PlanBox& box,
                 const OverlayFonts& fonts)
{
    const GlyphFont& font = fonts.fitting(plan::weekLetter(box), places.ZAbs.width());
    const bool isBesideCounter = box.group && form.Check3.isChecked() && !box.group->atRight;
    const double left = isBesideCounter ? places.Label2.right() : places.ZAbs.left();
    const double width =
        std::min(font.width(plan::weekLetter(box)) + kTagMargin, places.ZAbs.right() - left);
    return {left, places.ZAbs.top(), std::max(0.0, width),
            std::min(font.height(), places.ZAbs.height())};
}

} // namespace

RowShare shareOf(const form::PlanForm& form, const DrawingTarget& target, int row,
                 const plan::PlanBox& box)
{
    const int top = form.Salle.at(static_cast<std::size_t>(row)).place.top;
    const int height = form.Salle.front().place.height;
    if (!target.hasHints) {
        return {top, height};
    }
    const int from = height * box.lane / box.lanes;
    return {top + from, height * (box.lane + 1) / box.lanes - from};
}

OverlayFonts::OverlayFonts()
{
    for (int pixels = kOverlayFontPixels; pixels >= kSmallestOverlayFont; --pixels) {
        m_fonts.emplace_back(planFont(pixels, true));
    }
    m_fonts.emplace_back(planFont(kSmallestOverlayFont));
}

const GlyphFont& OverlayFonts::fitting(const QString& text, double width) const
{
    const auto found = std::find_if(m_fonts.begin(), m_fonts.end(), [&](const GlyphFont& font) {
        return font.width(text) + 2 <= width;
    });
    return found != m_fonts.end() ? *found : m_fonts.back();
}

OverlayPlaces overlayPlaces(const form::PlanForm& form, const DrawingTarget& target, int row,
                            const plan::PlanBox& box, const OverlayFonts& fonts)
{
    const RowShare share = shareOf(form, target, row, box);
    const int size = std::min(share.height, kPictureSize);
    const double right = box.x + box.width;
    const auto picture = [&](double left) {
        return QRectF(target.onAxis(left), target.toPixelsY(share.top), target.toPixelsX(size),
                      target.toPixelsY(size));
    };
    OverlayPlaces places;
    places.YAbs = picture(right - size);
    places.XAbs = picture(right - kClassPictureStep * size);
    places.ZAbs = boxArea(target, target.toPixelsX(box.x), target.toPixelsY(share.top), box.width,
                          share.height);
    if (box.group) {
        const GlyphFont& font = fonts.fitting({}, places.ZAbs.width());
        const double height = std::min(font.height(), places.ZAbs.height());
        // No wider than the box: a neighbour's is not theirs to cover.
        const auto widthFor = [&](const QString& text) {
            return std::clamp(places.ZAbs.width(), 0.0, font.width(text) + 6);
        };
        const double counter = widthFor(box.group->counter);
        const double size2 = widthFor(box.group->sizeLabel);
        const double left = box.group->atRight ? places.ZAbs.right() - counter : places.ZAbs.left();
        places.Label2 = QRectF(left, places.ZAbs.top(), counter, height);
        places.Labelz =
            QRectF(places.ZAbs.right() - size2, places.ZAbs.bottom() - height, size2, height);
    }
    if (target.hasHints && !plan::weekLetter(box).isEmpty()) {
        places.week = weekPlace(form, places, box, fonts);
    }
    return places;
}

OverlayPlaces drawnPlaces(const form::PlanForm& form, OverlayPlaces places,
                          const plan::PlanBox& box)
{
    if (!box.group || !form.Check3.isChecked()) {
        return places;
    }
    double way = 0;
    double most = 0;
    const auto makeWay = [&](const QRectF& picture) {
        most = std::max(most, picture.left() - places.ZAbs.left());
        if (hides(places.Labelz, picture)) {
            way = std::max(way, picture.right() - places.Labelz.left());
        }
        if (box.group->atRight && hides(places.Label2, picture)) {
            way = std::max(way, picture.right() - places.Label2.left());
        }
    };
    if (box.studentAbsent) {
        makeWay(places.YAbs);
    }
    if (box.classAbsent) {
        most = 0; // it stands farther left
        makeWay(places.XAbs);
    }
    way = std::clamp(way, 0.0, std::max(0.0, most));
    places.XAbs.translate(-way, 0);
    places.YAbs.translate(-way, 0);
    return places;
}

QMarginsF reservedByOverlays(const form::PlanForm& form, const OverlayPlaces& places,
                             const plan::PlanBox& box)
{
    QMarginsF reserved;
    if (box.studentAbsent) {
        reserved.setRight(places.ZAbs.right() - places.YAbs.left());
    }
    if (box.classAbsent) {
        reserved.setRight(places.ZAbs.right() - places.XAbs.left());
    }
    if (box.group && form.Check3.isChecked()) {
        const bool besideText = places.ZAbs.height() < kOneLinePixels ||
                                places.Labelz.width() < kSideLabelShare * places.ZAbs.width();
        const double counterRight = box.group->atRight ? places.Label2.width() : 0;
        reserved.setLeft(box.group->atRight ? 0 : places.Label2.width());
        reserved.setRight(
            std::max(reserved.right(),
                     besideText ? std::max(counterRight, places.Labelz.width()) : counterRight));
        if (!besideText) {
            reserved.setBottom(places.Labelz.height());
        }
    }
    if (!places.week.isEmpty()) {
        reserved.setLeft(places.week.right() - places.ZAbs.left());
    }
    return reserved;
}

} // namespace paint
