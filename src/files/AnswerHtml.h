#pragma once

#include "files/AnswerDocument.h"

#include <QByteArray>

namespace files
{

/// An answer as one web page that needs nothing else: a table with a caption for each of its lists,
/// and beneath them how the figures are reckoned. A share is told in percent beside its bar or on
/// its shade, so that it can be read without colours.
[[nodiscard]] QByteArray answerAsHtml(const AnswerDocument& document);

} // namespace files
