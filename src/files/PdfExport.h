#pragma once

#include "files/PlanDocument.h"

#include <QByteArray>

namespace files
{

/// The printed sheets of the pages as a PDF document. Error: runtime::RunTimeError.
[[nodiscard]] QByteArray planAsPdf(const PlanDocument& document);

} // namespace files
