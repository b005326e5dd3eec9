#pragma once

#include "files/PlanDocument.h"

#include <QByteArray>

namespace files
{

/// The whole plan with its header as a PNG picture at 96 dots per inch.
[[nodiscard]] QByteArray planAsPng(const PlanDocument& document);

} // namespace files
