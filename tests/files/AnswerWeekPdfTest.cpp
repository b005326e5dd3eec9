#include "files/AnswerWeekPdf.h"

#include "files/AnswerFormat.h"
#include "files/WeekDocument.h"
#include "print/Pdf.h"
#include "support/RuntimeMatchers.h"

using namespace test;

namespace
{

const answers::AskedWeek november{timetable::Week::Every, QDate(2026, 11, 23)};

} // namespace

TEST(AWeekAsPdf, isOneSheetOfTheDocument)
{
    const Pdf pdf(files::weekAsPdf(weekDocument(firstRoom(), november)));
    EXPECT_EQ(pdf.pageCount(), 1);
    for (const char* expected : {"Salle R1", "semaine du 23/11/2026 · Période Semestre 1",
                                 "Mardi 24/11", "Algèbre", "L5", "Case hachurée : rattrapage"}) {
        EXPECT_TRUE(pdf.text().contains(expected)) << expected;
    }
}

TEST(AWeekAsPdf, ofAllRoomsHasTheirNames)
{
    const Pdf pdf(files::weekAsPdf(weekDocument({})));
    EXPECT_TRUE(pdf.text().contains("Toutes les salles"));
    EXPECT_TRUE(pdf.text().contains("R2 <&>"));
}

TEST(AWeekAsPdf, isOfTheDateOfTheWeek)
{
    EXPECT_TRUE(files::weekAsPdf(weekDocument(firstRoom(), november))
                    .contains("/CreationDate (D:20261123000000Z)"));
}

TEST(AWeekAsPdf, isWhatAFileOfThatEndingHolds)
{
    const files::AnswerFormat* format =
        files::answerFormatOf(files::AnswerKind::Week, "semaine.pdf");
    ASSERT_NE(format, nullptr);
    const files::AnswerDocument document = weekDocument(firstRoom());
    EXPECT_EQ(format->write(document), files::weekAsPdf(document));
}
