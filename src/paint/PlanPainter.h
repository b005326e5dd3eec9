#pragma once

#include "form/PlanForm.h"
#include "paint/CellBox.h"
#include "paint/DrawingTarget.h"
#include "paint/Overlays.h"
#include "paint/TextRuler.h"
#include "plan/PlanContent.h"
#include "plan/PlanState.h"
#include "plan/ShownHours.h"

#include <QColor>
#include <QFont>
#include <QPainter>
#include <optional>

namespace paint
{

/// What is drawn, and how twips turn into pixels on the way.
struct PlanScene {
    const form::PlanForm& form;
    const plan::PlanContent& content;
    const plan::CellLayout& layout;
    DrawingTarget target;
    int rowsShown = 0;
    bool hasOldTotals = false; ///< the totals were counted before the last choice
    /// The part of the time axis that the window shows, and all that it draws otherwise than the
    /// design has it; pictures that are written to a file have the design's.
    std::optional<plan::ShownHours> hours = std::nullopt;
};

/// The scene of a state and of what a refresh worked out from it; both outlive it.
[[nodiscard]] PlanScene sceneOf(const plan::PlanState& state, const plan::PlanContent& content,
                                const DrawingTarget& target);
/// The same for the window, whose target has the first of these hours beside the rooms' names.
[[nodiscard]] PlanScene windowSceneOf(const plan::PlanState& state,
                                      const plan::PlanContent& content, const DrawingTarget& target,
                                      const plan::ShownHours& hours);

/// Draws the plan, band by band, in device pixels from the window's inner top left corner. A
/// scrolling view moves and clips the painter; nothing here loads, waits or remembers.
class PlanPainter
{
public:
    PlanPainter(QPainter& surface, const PlanScene& scene);

    /// The whole plan but its totals line, which stands where the surface has room for it: hours,
    /// grid, boxes, rooms and places, later ones over earlier ones.
    void paintPlan();

    void paintTicks();
    void paintGrid();
    void paintBoxes();
    /// The boxes of one row of the content.
    void paintBoxesOf(const plan::PlanRow& row);
    void paintRoomLabels();
    void paintPlaces();
    /// Boxes, names and places of these rows, in the order in which the whole plan is painted. The
    /// grid lies beneath.
    void paintRows(const std::vector<int>& rows);
    void paintTotals();

    /// Bottom of the last row that is shown, in device pixels.
    [[nodiscard]] static double rowsBottom(const PlanScene& scene);

private:
    void paintTick(double x, const form::Place& label, const QString& caption);
    void paintUnknownCells(const plan::PlanRow& row);
    /// A box before it is drawn.
    struct LaidOutBox {
        OverlayPlaces places;
        RowShare share;
        BoxStyle style;
    };
    [[nodiscard]] LaidOutBox layOut(const plan::PlanRow& row, const plan::PlanBox& box) const;
    [[nodiscard]] std::vector<TextSetting> textsOf(const plan::PlanRow& row,
                                                   const std::vector<LaidOutBox>& boxes) const;
    void paintBox(const LaidOutBox& laidOut, const plan::PlanBox& box);
    void paintOverlays(const OverlayPlaces& places, const plan::PlanBox& box, form::Colour under);
    void paintOverlayLabel(const QRectF& place, const QColor& fill, bool isEdged,
                           const QString& text);
    void paintRowLabel(const form::Label& label, bool isRowZero, Qt::AlignmentFlag side);
    /// A room's name; in the window with its places, so that nobody looks for them at the far end
    /// of the row.
    void paintName(std::size_t row);
    [[nodiscard]] QColor greyedInk() const;
    void fillRowLabel(const QRectF& place, const form::Label& label, bool isRowZero);
    [[nodiscard]] static QFont rowZeroFont();

    QPainter& m_surface;
    const PlanScene& m_scene;
    TextRuler m_ruler;
    TextRuler m_labelRuler;
    TextRuler m_rowZeroRuler;
    TextRuler m_placesRuler;
    OverlayFonts m_overlayFonts;
};

} // namespace paint
