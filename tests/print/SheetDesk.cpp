#include "print/SheetDesk.h"

#include "print/Paper.h"
#include "print/PrintJob.h"

#include <QBuffer>
#include <QPdfWriter>
#include <gtest/gtest.h>
#include <utility>

namespace test
{

print::Sheet sheetOf(const PlanDesk& desk)
{
    plan::PlanPage page = desk.engine.drawnPage();
    page.state.establishment = establishment();
    return print::makeSheet(std::move(page));
}

std::vector<print::Sheet> documentOf(const PlanDesk& desk)
{
    std::vector<print::Sheet> sheets;
    sheets.push_back(sheetOf(desk));
    return sheets;
}

QByteArray pdfOn(QPageSize::PageSizeId paper, const std::vector<print::Sheet>& sheets)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(print::kSheetResolution);
    writer.setPageSize(QPageSize(paper));
    EXPECT_TRUE(print::layPaper(writer));
    print::printSheets(writer, sheets);
    return bytes;
}

} // namespace test
