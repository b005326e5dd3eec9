#pragma once

#include "files/AnswerDocument.h"

#include <QByteArray>

namespace files
{

/// An answer as a PDF document on A4 standing upright: its tables with their headers on every page,
/// the pages numbered, the text searchable. Dated from the answer's day, so that the same answer
/// gives the same bytes. Error: PrinterError.
[[nodiscard]] QByteArray answerAsPdf(const AnswerDocument& document);

} // namespace files
