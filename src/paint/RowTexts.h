#pragma once

#include "paint/BoxText.h"

#include <QRectF>
#include <QString>
#include <vector>

namespace paint
{

/// A text of a row of the plan, and the device pixels that it has.
struct RowText {
    QRectF area;
    QString text;
};

/// How the texts of a row are set, in their order: those that can be read in it have one size, the
/// largest in which all of these fit. A text that would make the others too small has a size of
/// its own, and lines that do not fit below each other go on in one another. `format` is one of
/// CellLayout's two.
[[nodiscard]] std::vector<TextSetting> fitRowTexts(const std::vector<RowText>& texts, int format,
                                                   const TextRuler& ruler);

/// Pixels that the size of a row's texts does not fall below for the sake of a single one.
constexpr int kSmallestRowText = 11;

} // namespace paint
