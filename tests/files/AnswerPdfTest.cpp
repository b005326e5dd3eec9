#include "files/AnswerPdf.h"

#include "files/AnswerSamples.h"
#include "print/Pdf.h"

#include <gtest/gtest.h>

using namespace files;
using namespace test;
using timetable::column::kClasse;
using timetable::column::kSalle;
using timetable::column::kSeance;

namespace
{

class AnswerPdf : public testing::Test
{
protected:
    AnswerSamples school;
};

/// How many pixels of the page have that colour.
int countOf(const QImage& page, QRgb color)
{
    int count = 0;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            count += page.pixel(x, y) == color ? 1 : 0;
        }
    }
    return count;
}

} // namespace

TEST_F(AnswerPdf, holdsTheTextsOfTheAnswer)
{
    const Pdf pdf(answerAsPdf(school.freeRooms()));
    const QString text = pdf.text();
    for (const char* expected :
         {"Salles libres", "Toute semaine", "Salles occupées (1)", "Libre de", "TP 1", "INFO",
          "L1 A, L1 B, Durand, jusqu’à 9h30", "À savoir", "page 1/1"}) {
        EXPECT_TRUE(text.contains(expected)) << expected << "\n" << text.toStdString();
    }
    EXPECT_EQ(pdf.pageCount(), 1);
    EXPECT_TRUE(pdf.fact("Page size").startsWith("595 x 842 pts"));
    EXPECT_EQ(pdf.fact("Title"), "Salles libres");
    EXPECT_EQ(pdf.missingFonts(), QStringList());
}

TEST_F(AnswerPdf, holdsFoundNamesAndClashes)
{
    const QString found = Pdf(answerAsPdf(school.find("petit"))).text();
    EXPECT_TRUE(found.contains("Petit (enseignant)")) << found.toStdString();
    EXPECT_TRUE(found.contains("Chimie"));
    const QString clashes = Pdf(answerAsPdf(school.clashes())).text();
    EXPECT_TRUE(clashes.contains("Heure inconnue (1)")) << clashes.toStdString();
    const QString nothing = Pdf(answerAsPdf(school.find("zzz"))).text();
    EXPECT_TRUE(nothing.contains("Aucun nom ne contient ce texte."));
}

TEST_F(AnswerPdf, repeatsTheHeaderAndNumbersItsPages)
{
    // A page has 297 - 2 * 15 mm, 757 points: 150 rows of a text of 8.5 points fill two at least.
    for (int number = 1; number <= 150; ++number) {
        school.draft().builder().addRoom({QString("Salle %1").arg(number), 1, std::nullopt, 20});
    }
    const Pdf pdf(answerAsPdf(school.freeRooms()));
    const int pages = pdf.pageCount();
    ASSERT_GT(pages, 2);
    for (int page = 1; page <= 3; ++page) {
        const QString text = pdf.text(page);
        EXPECT_TRUE(text.contains("Département")) << page;
        EXPECT_TRUE(text.contains(QString("page %1/%2").arg(page).arg(pages))) << page;
    }
    EXPECT_TRUE(pdf.text().contains("Salle 150"));
}

TEST_F(AnswerPdf, staysWithinItsMargins)
{
    const QRectF printed = Pdf(answerAsPdf(school.roomUse())).printed();
    EXPECT_GE(printed.left(), 14.5);
    EXPECT_LE(printed.right(), 195.5);
    EXPECT_GE(printed.top(), 14.5);
    EXPECT_LE(printed.bottom(), 282.5);
}

TEST_F(AnswerPdf, shadesTheSlotsByTheirShares)
{
    const QImage page = Pdf(answerAsPdf(school.roomUse())).picture(1, 72);
    // A third, a sixth and a quarter of the way from white to 4a86d0; nothing is held fully.
    EXPECT_GT(countOf(page, qRgb(0xc3, 0xd7, 0xef)), 100);
    EXPECT_GT(countOf(page, qRgb(0xe1, 0xeb, 0xf7)), 100);
    EXPECT_GT(countOf(page, qRgb(0xd2, 0xe1, 0xf3)), 100);
    EXPECT_EQ(countOf(page, qRgb(0x4a, 0x86, 0xd0)), 0);
}

TEST_F(AnswerPdf, hasTheSameBytesForTheSameAnswer)
{
    const QByteArray first = answerAsPdf(school.roomUse());
    EXPECT_EQ(answerAsPdf(school.roomUse()), first);
    EXPECT_EQ(Pdf(first).fact("CreationDate"), "2000-01-01T00:00:00Z");
    const AnswerDocument dated = school.find("petit", QDate(2026, 11, 24));
    EXPECT_EQ(Pdf(answerAsPdf(dated)).fact("CreationDate"), "2026-11-24T00:00:00Z");
}

TEST_F(AnswerPdf, copesWithNamesOfAnyLength)
{
    const QString name = QString("x").repeated(30000);
    school.draft().builder().addRoom({name, 1, std::nullopt, 20});
    AnswerDocument document = school.freeRooms();
    document.title = "Salles " + QString("y").repeated(300);
    const Pdf pdf(answerAsPdf(document));
    EXPECT_GT(pdf.pageCount(), 2);
    EXPECT_TRUE(pdf.text(2).contains("page 2/"));
}
