#pragma once

#include <QFont>
#include <QString>

namespace app
{

/// Pixels that a tooltip is wide at most; longer lines go on in the next one.
constexpr int kToolTipWidth = 480;

/// The text with its lines broken between words, or within one that is wider than `width` pixels
/// by itself. The breaks that it has stay.
[[nodiscard]] QString wrapped(const QString& text, const QFont& font, int width = kToolTipWidth);

} // namespace app
