#pragma once

#include "files/AnswerDocument.h"

#include <QByteArray>

namespace files
{

/// An answer as one table for spreadsheets, written as the plan's is (see CsvExport.h). Where an
/// answer has several lists, the first column says which of them a line is of, and columns that it
/// does not have are empty there. Shares are percentages with one decimal, such as "62,5%", that a
/// spreadsheet reads as numbers.
[[nodiscard]] QByteArray answerAsCsv(const AnswerDocument& document);

} // namespace files
