#pragma once

#include "files/AnswerDocument.h"

#include <QByteArray>

namespace files
{

/// A week as an HTML page: of somebody or something a table of hours and days, of all rooms one of
/// rooms and days. The document's answer is a WeekAnswer.
[[nodiscard]] QByteArray weekAsHtml(const AnswerDocument& document);

} // namespace files
