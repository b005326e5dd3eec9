#include "files/PdfExport.h"

#include "plan/PlanDesk.h"
#include "print/Pdf.h"
#include "support/RuntimeMatchers.h"

using test::Pdf;
using test::PlanDesk;

namespace
{

files::PlanDocument documentOf(const PlanDesk& desk, std::size_t pages, QDate date = {})
{
    files::PlanDocument document;
    document.pages.assign(pages, desk.engine.drawnPage());
    document.date = date;
    return document;
}

} // namespace

TEST(PdfExport, hasASheetPerPage)
{
    PlanDesk desk(3);
    desk.meeting(1, 1);
    desk.draw();
    EXPECT_EQ(Pdf(files::planAsPdf(documentOf(desk, 1))).pageCount(), 1);
    EXPECT_EQ(Pdf(files::planAsPdf(documentOf(desk, 3))).pageCount(), 3);
}

TEST(PdfExport, isMadeOnTheDayOfThePlan)
{
    PlanDesk desk(2);
    desk.draw();
    EXPECT_TRUE(files::planAsPdf(documentOf(desk, 1, QDate(2026, 10, 12)))
                    .contains("/CreationDate (D:20261012000000Z)"));
    EXPECT_TRUE(
        files::planAsPdf(documentOf(desk, 1)).contains("/CreationDate (D:20000101000000Z)"));
}
