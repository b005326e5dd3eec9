#pragma once

#include "files/PlanDocument.h"

#include <QByteArray>

namespace files
{

/// The pages as one web page that needs nothing else: a table of rooms and slots that a browser
/// shows and prints and a screen reader reads. What colours and hatching say is said in words as
/// well; every text is escaped; there is no script. A document that refreshes is a page that loads
/// itself again, and tells when it was written.
[[nodiscard]] QByteArray planAsHtml(const PlanDocument& document);

} // namespace files
