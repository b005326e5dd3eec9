#pragma once

#include "answers/RoomWeeks.h"
#include "answers/WeekGrid.h"
#include "form/Colour.h"

#include <QByteArray>
#include <QDate>
#include <QPagedPaintDevice>
#include <QString>
#include <QStringList>
#include <variant>
#include <vector>

namespace print
{

/// A week as it goes on paper, as values: of somebody or something on one sheet, of all rooms on as
/// many as they need, each with the days above.
struct WeekSheets {
    QString title;
    QStringList about; ///< what it holds for; not the title
    std::variant<answers::WeekGrid, answers::RoomWeeks> week;
    std::vector<form::Colour> roomColors; ///< by the room's id
    QDate date;                           ///< stands in files that carry a date
};

/// How many sheets that makes; at least one.
[[nodiscard]] std::size_t sheetCount(const WeekSheets& sheets);

/// Prints the sheets on a printer, a preview or a PDF file, laid out by `layPaper`: heading, week,
/// what hatching and marks mean, and the number of the page where there are several. On paper
/// larger or smaller than A4 everything grows or shrinks with it.
/// Error: PrinterError when the device takes no page.
void printWeek(QPagedPaintDevice& printer, const WeekSheets& sheets);

/// The sheets as a PDF document on A4 lying across, as `pdfOf(sheets, date)` makes one of a plan's.
/// Error: PrinterError.
[[nodiscard]] QByteArray pdfOf(const WeekSheets& sheets);

} // namespace print
