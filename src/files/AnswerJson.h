#pragma once

#include "files/AnswerDocument.h"

#include <QByteArray>

namespace files
{

/// An answer as JSON, for other programs: UTF-8; times are minutes since midnight, days count from
/// 0 for Monday, what is not known is null.
[[nodiscard]] QByteArray answerAsJson(const AnswerDocument& document);

} // namespace files
