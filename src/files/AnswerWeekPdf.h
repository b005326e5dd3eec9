#pragma once

#include "files/AnswerDocument.h"
#include "print/WeekSheets.h"

#include <QByteArray>

namespace files
{

/// A week as it goes on paper. The document's answer is a WeekAnswer.
[[nodiscard]] print::WeekSheets weekSheetsOf(const AnswerDocument& document);
/// The same as a PDF document. Error: PrinterError.
[[nodiscard]] QByteArray weekAsPdf(const AnswerDocument& document);

} // namespace files
