#pragma once

#include "form/Colour.h"
#include "paint/DrawingTarget.h"
#include "plan/PlanContent.h"

#include <QMarginsF>
#include <QPainter>
#include <QRectF>
#include <QString>
#include <optional>

namespace print
{

/// The size of the classes in a box against the places of its room, as "Imprimer Capacité" asks.
struct CapacityLabel {
    form::Colour color; ///< of the frame; the text is black
    QString text;       ///< "students/places", "Dépassement students/places" when over-full
    QString fontName = QStringLiteral("Arial");
};

/// Blue for a single class that fits, red for an over-full room, pale grey for several classes
/// that fit. The group counter on the screen decides, so that paper and screen never disagree: it
/// stands over boxes of several classes and over over-full rooms only.
[[nodiscard]] CapacityLabel capacityLabel(const plan::PlanBox& box, const QString& places);

/// "+3": how many groups are in a box beside the one that its text tells, as "S. Groupées" asks;
/// nothing for a single one.
[[nodiscard]] std::optional<CapacityLabel> othersLabel(const plan::PlanBox& box,
                                                       const QString& fontName);

/// Where the label lies inside its box, in device pixels: the lower right corner.
[[nodiscard]] QRectF capacityPlace(const paint::DrawingTarget& target, const QRectF& box,
                                   const CapacityLabel& label);
/// What the label takes from the box's text, in device pixels.
[[nodiscard]] QMarginsF reservedByCapacity(const paint::DrawingTarget& target, const QRectF& box,
                                           const QRectF& place);
void drawCapacity(QPainter& surface, const paint::DrawingTarget& target, const QRectF& place,
                  const CapacityLabel& label);

} // namespace print
