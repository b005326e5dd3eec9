#pragma once

#include "form/PlanForm.h"
#include "paint/DrawingTarget.h"
#include "paint/GlyphFont.h"
#include "plan/PlanContent.h"

#include <QMarginsF>
#include <QRectF>
#include <QString>
#include <vector>

namespace paint
{

/// The fonts of the two small labels over a box.
class OverlayFonts
{
public:
    OverlayFonts();
    /// The largest one that the text's width (device pixels) allows, else the smallest.
    [[nodiscard]] const GlyphFont& fitting(const QString& text, double width) const;

private:
    std::vector<GlyphFont> m_fonts; ///< from the largest to the smallest
};

/// Where the small pictures and labels over one box lie, in device pixels of a target.
struct OverlayPlaces {
    QRectF XAbs;   ///< class-absence picture
    QRectF YAbs;   ///< student-absence picture
    QRectF ZAbs;   ///< click band over the whole box
    QRectF Label2; ///< group counter; empty without one
    QRectF Labelz; ///< number of students, or the overflow; empty without one
    QRectF week;   ///< the letter of its week; empty without one
};

/// What a box takes of the height of its row, in twips.
struct RowShare {
    int top = 0;
    int height = 0;
};
[[nodiscard]] RowShare shareOf(const form::PlanForm& form, const DrawingTarget& target, int row,
                               const plan::PlanBox& box);

/// `row` is the row of the page the box stands in. The labels have a place whether or not
/// "S. Groupées" shows them. Who asks for many boxes makes the fonts once.
[[nodiscard]] OverlayPlaces overlayPlaces(const form::PlanForm& form, const DrawingTarget& target,
                                          int row, const plan::PlanBox& box,
                                          const OverlayFonts& fonts = OverlayFonts());

/// The places as they are drawn: where a visible label would hide a picture that is shown, both
/// pictures stand beside the label instead, moved left by the same way as far as the box reaches.
[[nodiscard]] OverlayPlaces drawnPlaces(const form::PlanForm& form, OverlayPlaces places,
                                        const plan::PlanBox& box);

/// What the overlays that show something take from the box's text, in device pixels. `places` are
/// those that are drawn.
[[nodiscard]] QMarginsF reservedByOverlays(const form::PlanForm& form, const OverlayPlaces& places,
                                           const plan::PlanBox& box);

} // namespace paint
