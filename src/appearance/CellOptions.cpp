#include "appearance/CellOptions.h"

#include "context/RoomPage.h"

namespace appearance
{
namespace
{

using form::PlanForm;
using plan::CellLayout;

// From this many rooms on a box text is centred, whatever it shows.
constexpr double kCentredFrom = 19;

int heightFor(int lines)
{
    switch (lines) {
    case 3:
        return CellLayout::kThreeLinesHeight;
    case 2:
        return CellLayout::kTwoLinesHeight;
    default:
        return CellLayout::kOneLineHeight;
    }
}

void hideRowsBeyond(form::PlanForm& form, double lastRow)
{
    for (std::size_t row = 0; row < form.Salle.size(); ++row) {
        if (static_cast<double>(row) > lastRow) {
            form.Salle[row].visible = false;
            form.Cap[row].visible = false;
        }
    }
}

} // namespace

void Adapter_Cellules(form::PlanForm& form, plan::CellLayout& layout)
{
    layout.displayStyle = (form.XpMat.isChecked() ? 1 : 0) + (form.XOpEns.isChecked() ? 1 : 0) +
                          (form.XOpCl.isChecked() ? 1 : 0);
    if (context::linesPerPage(form) < CellLayout::kManyRooms) {
        form.Salle.front().place.height = heightFor(layout.displayStyle);
        layout.CellSeparator = QStringLiteral("\r\n");
    } else {
        if (context::linesPerPage(form) > PlanForm::kMostRooms) {
            form.Total_L_P.setText(QString::number(PlanForm::kMostRooms));
        }
        form.Salle.front().place.height = CellLayout::kManyRoomsHeight;
        layout.CellSeparator.clear();
    }
    layout.CellTextFormat = layout.displayStyle >= 2 && context::linesPerPage(form) < kCentredFrom
                                ? CellLayout::kWordBreak
                                : CellLayout::kCentredLines;
    hideRowsBeyond(form, context::linesPerPage(form));
}

CellOptions::CellOptions(form::PlanForm& form, plan::CellLayout& layout, plan::Paging& paging,
                         plan::PlanRefresh& refresh)
    : m_form(form), m_layout(layout), m_paging(paging), m_refresh(refresh)
{
}

void CellOptions::Appliquer_Options()
{
    Adapter_Cellules(m_form, m_layout);
    m_paging.recomputePages();
}

void CellOptions::applyAndRefresh()
{
    Appliquer_Options();
    m_refresh.RefreshPlan();
}

void CellOptions::XOpCl_Click()
{
    applyAndRefresh();
}

void CellOptions::XOpEns_Click()
{
    applyAndRefresh();
}

void CellOptions::XpMat_Click()
{
    applyAndRefresh();
}

} // namespace appearance
