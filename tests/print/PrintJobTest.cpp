#include "print/PrintJob.h"

#include "print/Paper.h"
#include "print/Pdf.h"
#include "print/SheetDesk.h"
#include "runtime/RunTimeError.h"
#include "support/RuntimeMatchers.h"

#include <QBuffer>
#include <QPdfWriter>

using namespace test;

namespace
{

// Millimetres that layPaper leaves at every edge.
constexpr double margin = 6;

/// A plan of many rooms in high rows: more than any page holds.
void fill(PlanDesk& desk)
{
    desk.form.Salle[0].place.height = 700;
    desk.tick(desk.form.ChkGrille);
    for (int slot = 1; slot <= 6; ++slot) {
        desk.meeting(1, slot);
        desk.meeting(19, slot).set("matière", "Algorithmique et structures de données");
    }
    desk.meeting(2, 6).set("Durée", 30000);
    desk.draw();
}

} // namespace

TEST(PrintJob, staysInsideThePrintableArea)
{
    for (const auto paper : {QPageSize::A4, QPageSize::A3, QPageSize::Letter, QPageSize::A5}) {
        PlanDesk desk(25, "19");
        fill(desk);
        const Pdf pdf(pdfOn(paper, documentOf(desk)));
        const QSizeF size = QPageSize(paper).size(QPageSize::Millimeter).transposed();
        const QRectF printed = pdf.printed();
        EXPECT_GT(printed.width(), size.width() * 0.8);
        const double pixel = 25.4 / 96;
        EXPECT_GE(printed.left(), margin - pixel);
        EXPECT_GE(printed.top(), margin - pixel);
        EXPECT_LE(printed.right(), size.width() - margin + pixel);
        EXPECT_LE(printed.bottom(), size.height() - margin + pixel);
    }
}

TEST(PrintJob, keepsOneMarginThatIsWideEnoughForEveryEdgeOfThePrinter)
{
    PlanDesk desk(25, "19");
    fill(desk);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(print::kSheetResolution);
    // A printer that cannot print on 14 mm at the foot of its paper, a side of it lying across.
    ASSERT_TRUE(writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                                 QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter,
                                                 QMarginsF(1, 1, 1, 14))));
    ASSERT_TRUE(print::layPaper(writer));
    EXPECT_EQ(writer.pageLayout().orientation(), QPageLayout::Landscape);
    // 14 mm are 39.7 points.
    EXPECT_EQ(writer.pageLayout().margins(QPageLayout::Point), QMarginsF(40, 40, 40, 40));
    print::printSheets(writer, documentOf(desk));
    const QRectF printed = Pdf(bytes).printed();
    const double pixel = 25.4 / 96;
    EXPECT_GE(printed.left(), 14 - pixel);
    EXPECT_GE(printed.top(), 14 - pixel);
    EXPECT_LE(printed.right(), 297 - 14 + pixel);
    EXPECT_LE(printed.bottom(), 210 - 14 + pixel);
}

TEST(PrintJob, laysThePaperAcross)
{
    PlanDesk desk(3);
    desk.draw();
    EXPECT_EQ(Pdf(pdfOn(QPageSize::A4, documentOf(desk))).fact("Page size"), "842 x 595 pts (A4)");
    EXPECT_EQ(Pdf(pdfOn(QPageSize::A3, documentOf(desk))).fact("Page size"), "1191 x 842 pts (A3)");
}

TEST(PrintJob, printsNinetyMinutesAs1700TwipsOnA4)
{
    PlanDesk desk(3);
    desk.tick(desk.form.Colorer, false);
    desk.meeting(1, 1).set("Classe", ".");
    desk.draw();
    const QImage page = Pdf(pdfOn(QPageSize::A4, documentOf(desk))).picture(1, 144);
    // Grey pixels in the line through row 1, from the box alone: the widest run of them.
    int widest = 0;
    for (int y = 100; y < 400; ++y) {
        int run = 0;
        for (int x = 0; x < page.width(); ++x) {
            run = page.pixelColor(x, y) == QColor(240, 240, 240) ? run + 1 : 0;
            widest = std::max(widest, run);
        }
    }
    EXPECT_NEAR(widest, 170, 3); // ten twips a pixel, the frame aside
}

TEST(PrintJob, keepsTheTimeAxisWhereTooManyRowsAreScaledDown)
{
    PlanDesk few(3);
    PlanDesk many(25, "19");
    many.form.Salle[0].place.height = 700;
    for (PlanDesk* desk : {&few, &many}) {
        for (form::Label& label : desk->form.Label4) {
            label.caption.clear(); // the header is scaled with the rows
        }
        desk->draw();
    }
    EXPECT_NEAR(Pdf(pdfOn(QPageSize::A4, documentOf(few))).printed().width(),
                Pdf(pdfOn(QPageSize::A4, documentOf(many))).printed().width(), 1);
}

TEST(PrintJob, growsWithThePaper)
{
    PlanDesk desk(3);
    desk.draw();
    const QRectF small = Pdf(pdfOn(QPageSize::A4, documentOf(desk))).printed();
    const QRectF large = Pdf(pdfOn(QPageSize::A3, documentOf(desk))).printed();
    EXPECT_NEAR(large.width() / small.width(), 1.414, 0.02);
    EXPECT_NEAR(large.height() / small.height(), 1.414, 0.02);
}

TEST(PrintJob, givesOneDocumentOneScale)
{
    PlanDesk desk(25, "19");
    desk.form.Salle[0].place.height = 700;
    desk.draw();
    std::vector<print::Sheet> sheets = documentOf(desk);
    desk.form.Command3.press(); // four rooms
    sheets.push_back(sheetOf(desk));
    const Pdf pdf(pdfOn(QPageSize::A4, sheets));
    EXPECT_EQ(pdf.pageCount(), 2);
    EXPECT_NEAR(pdf.printed(1).top(), pdf.printed(2).top(), 0.5);
    EXPECT_LT(pdf.printed(2).height(), pdf.printed(1).height() / 2);
}

TEST(PrintJob, printsEveryPageInsideA3)
{
    PlanDesk desk(25, "19");
    fill(desk);
    std::vector<print::Sheet> sheets = documentOf(desk);
    sheets.push_back(sheetOf(desk));
    sheets.push_back(sheetOf(desk));
    const Pdf pdf(pdfOn(QPageSize::A3, sheets));
    EXPECT_EQ(pdf.pageCount(), 3);
    const double pixel = 25.4 / 96;
    const QRectF inside(margin - pixel, margin - pixel, 420 - 2 * (margin - pixel),
                        297 - 2 * (margin - pixel));
    for (int page = 1; page <= 3; ++page) {
        EXPECT_TRUE(inside.contains(pdf.printed(page))) << "page " << page;
    }
}

TEST(PrintJob, failsOnADeviceThatTakesNoPage)
{
    PlanDesk desk(3);
    desk.draw();
    QPdfWriter writer("/nowhere/plan.pdf");
    EXPECT_EQ(errorNumberOf([&] { print::printSheets(writer, documentOf(desk)); }),
              runtime::ErrorNumber::PrinterError);
}
