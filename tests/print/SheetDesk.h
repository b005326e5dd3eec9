#pragma once

#include "plan/PlanDesk.h"
#include "print/Sheet.h"

#include <QPageSize>
#include <vector>

namespace test
{

/// The faculty whose plan is printed.
[[nodiscard]] inline context::EstablishmentHeader establishment()
{
    return {"Université du Nord", "Faculté des Sciences", 2026};
}

/// The plan that the desk shows as a sheet.
[[nodiscard]] print::Sheet sheetOf(const PlanDesk& desk);

/// A document of one sheet.
[[nodiscard]] std::vector<print::Sheet> documentOf(const PlanDesk& desk);

/// The document as a PDF on that paper.
[[nodiscard]] QByteArray pdfOn(QPageSize::PageSizeId paper,
                               const std::vector<print::Sheet>& sheets);

} // namespace test
