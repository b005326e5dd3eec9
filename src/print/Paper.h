#pragma once

#include <QPageLayout>
#include <QPagedPaintDevice>

namespace print
{

/// Dots per inch that sheets are laid out with where the device leaves the choice: a pixel is then
/// two twips exactly, in both directions.
constexpr int kSheetResolution = 720;

/// Lays the paper across (landscape), with one margin at all edges: wide enough for any printer,
/// and for what this one says of itself. False when the device refuses.
[[nodiscard]] bool layPaper(QPagedPaintDevice& printer);

/// How many times as large as A4 lying across, which sheets are designed for, the paper is: by its
/// width or its height, whichever gives less.
[[nodiscard]] double designScale(const QPageLayout& layout);

/// Error: PrinterError unless the device did what it was asked.
void requirePaper(bool success);

} // namespace print
