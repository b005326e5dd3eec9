#include "app/Printing.h"

#include "app/WhenOpen.h"
#include "paint/PlanPainter.h"
#include "print/Pdf.h"
#include "print/Targets.h"
#include "shell/ShellDesk.h"
#include "support/FullDisk.h"
#include "support/RuntimeMatchers.h"
#include "support/TestFolder.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QScreen>

using namespace test;

namespace
{

/// A user's answer to the dialogs: prints into a file, or cancels.
struct Answer {
    QString file; ///< empty: cancels
    int from = 0; ///< pages, when not 0
    int to = 0;
    int sheetsOffered = 0;
    bool printsIncomplete = false;
    QStringList missing; ///< what was said to be missing
    QString document;

    app::PrintDialogs dialogs()
    {
        return {[this](const QString& whatIsMissing) {
                    missing << whatIsMissing;
                    return printsIncomplete;
                },
                [this](QPrinter& printer, int sheets) {
                    sheetsOffered = sheets;
                    document = printer.docName();
                    answer(printer);
                    // Sheets lie across all the same.
                    printer.setPageOrientation(QPageLayout::Portrait);
                    return !file.isEmpty();
                },
                [this](QPrinter& printer, const std::function<void(QPrinter&)>& paint) {
                    answer(printer);
                    paint(printer);
                    paint(printer); // a preview paints whenever its paper changes
                }};
    }

    void answer(QPrinter& printer) const
    {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(file);
        printer.setPageSize(QPageSize(QPageSize::A4));
        if (from != 0) {
            printer.setPrintRange(QPrinter::PageRange);
            printer.setFromTo(from, to);
        }
    }
};

class ThePrinting : public testing::Test
{
protected:
    ThePrinting()
    {
        createTinyFaculty(m_database);
        desk.play({"--date", "2025-03-17"});
        answer.file = desk.setup.path("printed.pdf");
    }

    [[nodiscard]] bool isPrinted() const { return QFile::exists(answer.file); }
    [[nodiscard]] Pdf printed() const { return Pdf(bytesOf(answer.file)); }
    /// What the window shows of the plan.
    [[nodiscard]] QImage screen()
    {
        QImage image(1400, 700, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        const paint::PlanScene scene =
            paint::sceneOf(desk.shell().engine().state(), desk.shell().engine().content(),
                           print::UseScreenTarget());
        paint::PlanPainter plan(painter, scene);
        plan.paintPlan();
        return image;
    }

private:
    TestDatabase m_database{DatabaseKind::Sqlite};

protected:
    ShellDesk desk{m_database};
    Answer answer;
};

} // namespace

TEST_F(ThePrinting, printsThePageThatTheWindowShows)
{
    app::Printing printing(desk.shell().engine(), answer.dialogs());
    desk.form().Command1.press();
    ASSERT_TRUE(isPrinted());
    const Pdf pdf = printed();
    EXPECT_EQ(pdf.pageCount(), 1);
    EXPECT_EQ(pdf.fact("Page size"), "842 x 595 pts (A4)");
    const QString text = pdf.text();
    for (const char* expected :
         {"Occupation des Salles du Lundi", "A2", "C1", "Dupont/Durand", "Algèbre", "Physique"}) {
        EXPECT_TRUE(text.contains(expected)) << expected;
    }
}

TEST_F(ThePrinting, printsNothingAfterCancel)
{
    answer.file.clear();
    app::Printing printing(desk.shell().engine(), answer.dialogs());
    const QJsonObject before = desk.plan();
    desk.form().Command1.press();
    desk.form().PrintAllPages.press();
    EXPECT_EQ(desk.plan(), before);
}

TEST_F(ThePrinting, leavesTheScreenAsItWas)
{
    app::Printing printing(desk.shell().engine(), answer.dialogs());
    const QImage before = screen();
    const QJsonObject plan = desk.plan();
    desk.form().Command1.press();
    desk.form().PrintAllPages.press();
    desk.form().PrintPreview.press();
    EXPECT_EQ(desk.plan(), plan);
    EXPECT_EQ(screen(), before);
    EXPECT_EQ(desk.form().Label1[1].place.left - desk.form().Label1[0].place.left, 1600);
}

TEST_F(ThePrinting, looksTheMakeUpsOfTheDateUpThatItsTitleNames)
{
    app::Printing printing(desk.shell().engine(), answer.dialogs());
    desk.form().Check2.setChecked(true); // which by itself redraws nothing
    const QImage before = screen();
    desk.form().Command1.press();
    EXPECT_TRUE(printed().text().contains("Occupation des Salles du 17/03/25"));
    EXPECT_TRUE(printed().text().contains("Case hachurée : rattrapage"));
    desk.form().PrintPreview.press();
    EXPECT_TRUE(printed().text().contains("Case hachurée : rattrapage"));
    EXPECT_EQ(screen(), before);
}

TEST_F(ThePrinting, printsAllSubjectsOnceTheFilterIsOff)
{
    desk.play({"--date", "2025-03-17", "--subject", "Algèbre"});
    app::Printing printing(desk.shell().engine(), answer.dialogs());
    desk.form().Command1.press();
    EXPECT_TRUE(printed().text().contains("Matière : Algèbre"));
    EXPECT_FALSE(printed().text().contains("Physique"));
    desk.form().Check1.setChecked(false); // which by itself redraws nothing
    const QImage before = screen();
    desk.form().Command1.press();
    EXPECT_FALSE(printed().text().contains("Matière :"));
    EXPECT_TRUE(printed().text().contains("Physique"));
    EXPECT_EQ(screen(), before);
}

TEST_F(ThePrinting, printsInTheFontThatLabel20GaveToAllControls)
{
    app::Printing printing(desk.shell().engine(), answer.dialogs());
    desk.form().Label20.font.name = "Liberation Serif";
    desk.shell().Label20_Click();
    desk.form().Command1.press();
    const QStringList fonts = printed().fonts();
    EXPECT_FALSE(fonts.isEmpty());
    for (const QString& font : fonts.filter("Liberation")) {
        EXPECT_TRUE(font.contains("LiberationSerif")) << font.toStdString();
    }
}

TEST_F(ThePrinting, printsEveryPageOfTheRoomSet)
{
    desk.form().Total_L_P.setText("2");
    app::Printing printing(desk.shell().engine(), answer.dialogs());
    desk.form().PrintAllPages.press();
    EXPECT_EQ(answer.sheetsOffered, 2);
    const Pdf pdf = printed();
    EXPECT_EQ(pdf.pageCount(), 2);
    EXPECT_TRUE(pdf.text(1).contains("B1"));
    EXPECT_TRUE(pdf.text(1).contains("Page 1 / 2"));
    EXPECT_TRUE(pdf.text(2).contains("Occupation des Salles du Lundi"));
    EXPECT_TRUE(pdf.text(2).contains("C1"));
}

TEST_F(ThePrinting, printsTheChosenPagesAlone)
{
    desk.form().Total_L_P.setText("2");
    answer.from = 2;
    answer.to = 2;
    app::Printing printing(desk.shell().engine(), answer.dialogs());
    desk.form().PrintAllPages.press();
    EXPECT_EQ(printed().pageCount(), 1);
    EXPECT_TRUE(printed().text().contains("Page 2 / 2"));
}

TEST_F(ThePrinting, numbersTheOnlyPageOfTheRoomSet)
{
    app::Printing printing(desk.shell().engine(), answer.dialogs());
    desk.form().PrintAllPages.press();
    EXPECT_TRUE(printed().text().contains("Page 1 / 1"));
    desk.form().Command1.press();
    EXPECT_FALSE(printed().text().contains("Page 1"));
}

TEST_F(ThePrinting, printsNothingWhereNoSuchPageIs)
{
    answer.from = 7;
    answer.to = 9;
    app::Printing printing(desk.shell().engine(), answer.dialogs());
    desk.form().Command1.press();
    EXPECT_FALSE(isPrinted());
}

TEST_F(ThePrinting, previewsTheSheetThatItPrints)
{
    app::Printing printing(desk.shell().engine(), answer.dialogs());
    desk.form().PrintPreview.press();
    const QString previewed = printed().text();
    desk.form().Command1.press();
    EXPECT_EQ(printed().text(), previewed);
}

TEST_F(ThePrinting, previewsAllPagesThatItPrints)
{
    desk.form().Total_L_P.setText("2");
    app::Printing printing(desk.shell().engine(), answer.dialogs());
    const QJsonObject plan = desk.plan();
    desk.form().PreviewAllPages.press();
    ASSERT_TRUE(isPrinted());
    EXPECT_EQ(printed().pageCount(), 2); // five rooms, of which each page greys one
    EXPECT_EQ(desk.plan(), plan);
    EXPECT_EQ(answer.sheetsOffered, 0); // no printer is chosen
}

TEST_F(ThePrinting, tellsTheFileThatItHasPrinted)
{
    QStringList saved;
    app::Printing printing(desk.shell().engine(), answer.dialogs(),
                           [&](const QString& path) { saved << path; });
    desk.form().PrintPreview.press();
    EXPECT_TRUE(saved.isEmpty());
    desk.form().Command1.press();
    EXPECT_EQ(saved, QStringList({answer.file}));
    const QString file = std::exchange(answer.file, QString());
    desk.form().Command1.press(); // cancelled
    EXPECT_EQ(saved, QStringList({file}));
}

TEST_F(ThePrinting, givesItsDocumentANameThatAFileCanHave)
{
    desk.form().Check2.setChecked(true);
    app::Printing printing(desk.shell().engine(), answer.dialogs());
    desk.form().Command1.press();
    EXPECT_EQ(answer.document, "Occupation des Salles du 17-03-25");
    EXPECT_TRUE(printed().text().contains("Occupation des Salles du 17/03/25"));
}

TEST_F(ThePrinting, endsInThePlatformsErrorWhereThePrinterFails)
{
    answer.file = "/nowhere/plan.pdf";
    app::Printing printing(desk.shell().engine(), answer.dialogs());
    const runtime::RunTimeError error = errorOf([&] { desk.form().Command1.press(); });
    EXPECT_EQ(error.number(), runtime::ErrorNumber::PrinterError);
    EXPECT_TRUE(error.message().startsWith("Run-time error '482':\n\nPrinter error\n\n"
                                           "Impossible d’écrire « /nowhere/plan.pdf » : "))
        << error.what();
}

TEST_F(ThePrinting, leavesTheFormerFileWhereTheDiskIsFull)
{
    app::Printing printing(desk.shell().engine(), answer.dialogs());
    desk.form().Command1.press();
    const QByteArray before = bytesOf(answer.file);
    desk.form().CbJour.setListIndex(1);
    // A preview has a button that prints, too.
    for (const form::Button* button : {&desk.form().Command1, &desk.form().PrintPreview}) {
        const FullDisk fullDisk;
        const runtime::RunTimeError error = errorOf([&] { button->press(); });
        EXPECT_EQ(error.number(), runtime::ErrorNumber::PrinterError);
        EXPECT_EQ(bytesOf(answer.file), before);
    }
    EXPECT_TRUE(printed().text().contains("Occupation des Salles du Lundi"));
    desk.form().Command1.press();
    EXPECT_TRUE(printed().text().contains("Occupation des Salles du Mardi"));
}

TEST_F(ThePrinting, offersAPdfFileWhereThereIsNoPrinter)
{
    app::Printing printing(desk.shell().engine(), app::platformPrintDialogs(nullptr));
    QStringList printers;
    whenOpen<QPrintDialog>([&printers](QPrintDialog& dialog) {
        for (const QComboBox* list : dialog.findChildren<QComboBox*>("printers")) {
            for (int item = 0; item < list->count(); ++item) {
                printers << list->itemText(item);
            }
        }
        dialog.reject();
    });
    desk.form().Command1.press();
    EXPECT_TRUE(printers.join(';').contains("PDF")) << printers.join(';').toStdString();
}

TEST_F(ThePrinting, showsThePreviewOfThePlatform)
{
    app::Printing printing(desk.shell().engine(), app::platformPrintDialogs(nullptr));
    int pages = 0;
    whenOpen<QPrintPreviewDialog>([&pages](QPrintPreviewDialog& dialog) {
        // The offscreen platform's screen has 800 by 800 pixels.
        EXPECT_LT(dialog.frameGeometry().width(), dialog.screen()->availableSize().width());
        EXPECT_LT(dialog.frameGeometry().height(), dialog.screen()->availableSize().height());
        const auto* preview = dialog.findChild<QPrintPreviewWidget*>();
        pages = preview == nullptr ? -1 : preview->pageCount();
        dialog.reject();
    });
    desk.form().PrintPreview.press();
    EXPECT_EQ(pages, 1);
}
