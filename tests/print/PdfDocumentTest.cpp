#include "print/PdfDocument.h"

#include "print/Pdf.h"
#include "print/SheetDesk.h"
#include "support/RuntimeMatchers.h"

#include <QFontInfo>
#include <QPainter>
#include <QRegularExpression>

using namespace test;

namespace
{

const QDate monday(2026, 10, 12);

std::vector<print::Sheet> pagesOf(PlanDesk& desk, int count)
{
    std::vector<plan::PlanPage> pages;
    for (int page = 0; page < count; ++page) {
        pages.push_back(std::move(sheetOf(desk).page));
        pages.back().number = page + 1;
        pages.back().count = count;
    }
    return print::makeSheets(std::move(pages));
}

/// Every object lies where the table of positions says.
void expectSoundPositions(const QByteArray& pdf)
{
    const qsizetype start = pdf.lastIndexOf("startxref\n") + 10;
    const qsizetype table = pdf.mid(start, pdf.indexOf('\n', start) - start).toLongLong();
    ASSERT_TRUE(pdf.mid(table).startsWith("xref"));
    static const QRegularExpression entry("(\\d{10}) \\d{5} n");
    int number = 0;
    auto entries = entry.globalMatch(QString::fromLatin1(pdf.mid(table)));
    while (entries.hasNext()) {
        const qsizetype position = entries.next().captured(1).toLongLong();
        const QByteArray head = QByteArray::number(++number) + " 0 obj";
        EXPECT_TRUE(pdf.mid(position).startsWith(head));
    }
    EXPECT_GT(number, 5);
}

} // namespace

TEST(PdfDocument, holdsTheTextsOfTheSheet)
{
    PlanDesk desk(4);
    desk.meeting(1, 1).set("Enseignant1", "Lefèvre").set("matière", "Béton armé");
    desk.meeting(2, 3).set("Classe", "GC2");
    desk.draw();
    const QString text = Pdf(print::pdfOf(documentOf(desk), monday)).text();
    for (const char* expected :
         {"Occupation des Salles du Lundi", "Université du Nord · 2026", "8h00", "19h00", "R01",
          "R02", "R03", "30", "GC1", "Lefèvre", "Béton armé", "GC2"}) {
        EXPECT_TRUE(text.contains(expected)) << expected << "\n" << text.toStdString();
    }
    EXPECT_EQ(text.count("R00"), 1); // the room before the first drawn one, in the footer
}

TEST(PdfDocument, numbersItsPages)
{
    PlanDesk desk(4);
    desk.draw();
    const Pdf pdf(print::pdfOf(pagesOf(desk, 3), monday));
    EXPECT_EQ(pdf.pageCount(), 3);
    EXPECT_TRUE(pdf.text(2).contains("Page 2 / 3"));
    EXPECT_TRUE(pdf.text(3).contains("Occupation des Salles du Lundi"));
}

TEST(PdfDocument, numbersTheOnlyPageOfARoomSetButNotAPageOnItsOwn)
{
    PlanDesk desk(4);
    desk.draw();
    EXPECT_TRUE(Pdf(print::pdfOf(pagesOf(desk, 1), monday)).text().contains("Page 1 / 1"));
    EXPECT_FALSE(Pdf(print::pdfOf(documentOf(desk), monday)).text().contains("Page"));
}

TEST(PdfDocument, saysWhatTheHatchingMeansWhereThereIsSome)
{
    PlanDesk desk(4);
    desk.meeting(1, 1);
    desk.draw();
    EXPECT_FALSE(Pdf(print::pdfOf(documentOf(desk), monday)).text().contains("rattrapage"));
    desk.tick(desk.form.Check2);
    desk.makeUp(2, 1).set("DateX", db::Value(QString("2026-10-12")));
    desk.draw();
    EXPECT_TRUE(
        Pdf(print::pdfOf(documentOf(desk), monday)).text().contains("Case hachurée : rattrapage"));
}

TEST(PdfDocument, namesTheRoomsThatItsSheetLeavesOut)
{
    PlanDesk desk(12); // R11 would stand alone above a second page
    desk.draw();
    EXPECT_TRUE(Pdf(print::pdfOf(documentOf(desk), monday))
                    .text()
                    .contains("Salle sans ligne sur cette feuille : R00"));
    EXPECT_TRUE(Pdf(print::pdfOf(print::makeSheets(desk.engine.allPages()), monday))
                    .text()
                    .contains("Salles sans ligne sur cette feuille : R00, R11"));
    desk.form.EveryRoom.setChecked(true);
    const QString text = Pdf(print::pdfOf(documentOf(desk), monday)).text();
    EXPECT_FALSE(text.contains("sans ligne"));
    EXPECT_EQ(text.count("R00"), 1); // its row
}

TEST(PdfDocument, embedsItsFonts)
{
    PlanDesk desk(4);
    desk.meeting(1, 1);
    desk.draw();
    const Pdf pdf(print::pdfOf(documentOf(desk), monday));
    EXPECT_FALSE(pdf.fonts().isEmpty());
    EXPECT_EQ(pdf.missingFonts(), QStringList());
}

TEST(PdfDocument, setsTheTitleInItsOwnFont)
{
    PlanDesk desk(4);
    EXPECT_EQ(desk.form.XSalle.font.name, "Arial Black");
    QString other;
    const QString body = QFontInfo(QFont(desk.form.Label20.font.name)).family();
    for (const char* family : {"Liberation Serif", "DejaVu Serif", "Times New Roman"}) {
        if (QFontInfo(QFont(family)).family() == family) {
            other = family;
        }
    }
    if (other.isEmpty()) {
        GTEST_SKIP() << "no second family of fonts on this machine";
    }
    desk.form.XSalle.font.name = other;
    desk.draw();
    const QString fonts = Pdf(print::pdfOf(documentOf(desk), monday)).fonts().join('\n');
    EXPECT_TRUE(fonts.contains(QString(other).remove(' '))) << fonts.toStdString();
    EXPECT_TRUE(fonts.contains(QString(body).remove(' '))) << fonts.toStdString();
}

TEST(PdfDocument, printsTheTotalsThatTheWindowShows)
{
    PlanDesk desk(4);
    desk.draw();
    desk.form.Tot[0].caption = "4711";
    desk.form.Tot[0].visible = false;
    desk.form.Tot[1].caption = "4712";
    desk.form.Tot[1].visible = true;
    const QString text = Pdf(print::pdfOf(documentOf(desk), monday)).text();
    EXPECT_FALSE(text.contains("4711"));
    EXPECT_TRUE(text.contains("4712"));
}

TEST(PdfDocument, isDatedFromTheDayThatItShows)
{
    PlanDesk desk(4);
    desk.draw();
    const Pdf pdf(print::pdfOf(documentOf(desk), monday));
    EXPECT_EQ(pdf.fact("CreationDate"), "2026-10-12T00:00:00Z");
    EXPECT_EQ(pdf.fact("Title"), "Occupation des Salles du Lundi");
}

TEST(PdfDocument, hasAFixedDateWhereThePlanShowsNone)
{
    PlanDesk desk(4);
    desk.draw();
    const Pdf pdf(print::pdfOf(documentOf(desk), QDate()));
    EXPECT_EQ(pdf.fact("CreationDate"), "2000-01-01T00:00:00Z");
}

TEST(PdfDocument, hasTheSameBytesForTheSamePlan)
{
    PlanDesk desk(25, "19");
    desk.meeting(1, 1);
    desk.draw();
    const QByteArray first = print::pdfOf(documentOf(desk), monday);
    for (int time = 0; time < 5; ++time) {
        EXPECT_EQ(print::pdfOf(documentOf(desk), monday), first);
    }
}

TEST(PdfDocument, keepsItsPositionsSoundWhateverTheDateTakes)
{
    PlanDesk desk(4);
    desk.draw();
    const QByteArray pdf = print::pdfOf(documentOf(desk), monday);
    expectSoundPositions(pdf);
    const QByteArray dated =
        print::withCreationDate(print::withCreationDate(pdf, QDate(2026, 1, 2)), monday);
    EXPECT_EQ(dated, pdf);
}

TEST(PdfDocument, movesEveryPositionBehindALongerDate)
{
    const QByteArray east = "%PDF-1.4\n" // 9 bytes
                            "1 0 obj\n<<\n/CreationDate (D:20261012090000+09'00')\n>>\nendobj\n"
                            "2 0 obj\n<<>>\nendobj\n"
                            "xref\n0 3\n0000000000 65535 f \n0000000009 00000 n \n"
                            "0000000070 00000 n \ntrailer\n<<>>\nstartxref\n90\n%%EOF\n";
    ASSERT_EQ(east.indexOf("2 0 obj"), 70);
    ASSERT_EQ(east.indexOf("xref"), 90);
    const QByteArray fixed = print::withCreationDate(east, monday);
    EXPECT_TRUE(fixed.contains("/CreationDate (D:20261012000000Z)"));
    EXPECT_TRUE(fixed.contains("0000000009 00000 n"));
    EXPECT_TRUE(fixed.contains("0000000064 00000 n"));
    EXPECT_TRUE(fixed.contains("startxref\n84\n"));
    EXPECT_EQ(fixed.indexOf("2 0 obj"), 64);
    EXPECT_EQ(fixed.lastIndexOf("\nxref") + 1, 84);
}

TEST(PdfDocument, isAlsoMadeOfAnyDrawing)
{
    const auto draw = [](QPdfWriter& paper) {
        QPainter surface(&paper);
        surface.setFont(QFont("Arial", 10));
        surface.drawText(QPointF(720, 720), "Un texte"); // an inch from the corner
    };
    const QByteArray bytes = print::pdfDrawn("Un titre", monday, draw);
    const Pdf pdf(bytes);
    EXPECT_EQ(pdf.text(), "Un texte");
    EXPECT_EQ(pdf.fact("Title"), "Un titre");
    EXPECT_EQ(pdf.fact("CreationDate"), "2026-10-12T00:00:00Z");
    EXPECT_TRUE(pdf.fact("Page size").startsWith("595 x 842 pts")); // upright
    EXPECT_EQ(print::pdfDrawn("Un titre", monday, draw), bytes);
}

TEST(PdfDocument, isWholeOnlyWithEveryByte)
{
    PlanDesk desk(4);
    desk.draw();
    const QByteArray pdf = print::pdfOf(documentOf(desk), monday);
    EXPECT_TRUE(print::isWholePdf(pdf));
    EXPECT_FALSE(print::isWholePdf({}));
    EXPECT_FALSE(print::isWholePdf(pdf.chopped(1)));
    EXPECT_FALSE(print::isWholePdf(pdf.left(pdf.size() / 2)));
    EXPECT_FALSE(print::isWholePdf(QByteArray(pdf).remove(pdf.size() / 2, 1)));
}

TEST(PdfDocument, ofAnEmptyRoomSetHasItsHeader)
{
    PlanDesk desk(0);
    desk.draw();
    const Pdf pdf(print::pdfOf(documentOf(desk), monday));
    EXPECT_EQ(pdf.pageCount(), 1);
    EXPECT_TRUE(pdf.text().contains("Occupation des Salles du Lundi"));
}
