#pragma once

#include "print/Sheet.h"

#include <QByteArray>
#include <QDate>
#include <QPdfWriter>
#include <QString>
#include <functional>
#include <vector>

namespace print
{

/// The sheets as a PDF document on A4 lying across: vector drawing, text that can be searched,
/// fonts embedded. `date` is the day that the plan shows; it stands as the document's date of
/// creation, so that the same plan gives the same bytes at any time. A plan of no date has that of
/// 1 January 2000.
/// Error: PrinterError.
[[nodiscard]] QByteArray pdfOf(const std::vector<Sheet>& sheets, QDate date);

/// What `draw` draws as a PDF document, on A4 standing upright unless it lays the paper otherwise:
/// fonts embedded, the title and the date as in `pdfOf`. The writer has `kSheetResolution` dots per
/// inch.
[[nodiscard]] QByteArray pdfDrawn(const QString& title, QDate date,
                                  const std::function<void(QPdfWriter&)>& draw);

/// Whether the bytes are a PDF document of Qt's to its end, with nothing missing in between: its
/// last lines tell where the table of positions lies.
[[nodiscard]] bool isWholePdf(const QByteArray& pdf);

/// A PDF document of Qt's with its date of creation replaced by a day at 0:00 UTC. The table of
/// positions at its end is brought into agreement when the date takes more or less room.
[[nodiscard]] QByteArray withCreationDate(const QByteArray& pdf, QDate date);

} // namespace print
