#include "print/WeekSheets.h"

#include "paint/Weeks.h"
#include "print/Pdf.h"
#include "support/RuntimeMatchers.h"

using namespace test;

namespace
{

print::WeekSheets gridSheets()
{
    answers::WeekGrid grid = plainGrid();
    grid.boxes = {boxAt(0, 480, 120, {"L1 INFO A, L1 INFO B", "Algèbre", "Lefèvre"})};
    return {"Salle Amphi B",
            {"semaine du 23/11/2026", "Période Semestre 1"},
            grid,
            {},
            QDate(2026, 11, 23)};
}

print::WeekSheets roomSheets(int rooms)
{
    answers::RoomWeeks weeks = plainRooms(rooms);
    return {"Toutes les salles", {"semaine A"}, std::move(weeks), {}, {}};
}

} // namespace

TEST(ASheetOfAWeek, isOneA4LyingAcross)
{
    const Pdf pdf(print::pdfOf(gridSheets()));
    EXPECT_EQ(pdf.pageCount(), 1);
    EXPECT_TRUE(pdf.fact("Page size").startsWith("842 x 595"))
        << pdf.fact("Page size").toStdString();
    EXPECT_EQ(pdf.fact("Title"), "Salle Amphi B");
    EXPECT_TRUE(pdf.missingFonts().isEmpty());
}

TEST(ASheetOfAWeek, hasTextsThatCanBeSearched)
{
    const QString text = Pdf(print::pdfOf(gridSheets())).text().replace(QChar::Nbsp, u' ');
    for (const char* expected :
         {"Salle Amphi B", "semaine du 23/11/2026 · Période Semestre 1", "Jour", "8h00", "12h00",
          "L1 INFO A", "L1 INFO B", "Algèbre", "Lefèvre"}) {
        EXPECT_TRUE(text.contains(expected)) << expected << '\n' << text.toStdString();
    }
    EXPECT_FALSE(text.contains("Page"));
}

TEST(ASheetOfAWeek, fillsThePaperWithinItsMargins)
{
    const QRectF printed = Pdf(print::pdfOf(gridSheets())).printed(); // of 297 by 210 mm
    EXPECT_GE(printed.left(), 5);
    EXPECT_LE(printed.right(), 292);
    EXPECT_GE(printed.width(), 270);
    EXPECT_GE(printed.top(), 5);
    EXPECT_LE(printed.bottom(), 205);
}

TEST(ASheetOfAWeek, explainsWhatItShows)
{
    print::WeekSheets sheets = gridSheets();
    EXPECT_FALSE(Pdf(print::pdfOf(sheets)).text().contains("rattrapage"));
    auto& grid = std::get<answers::WeekGrid>(sheets.week);
    grid.boxes[0].kind = timetable::MeetingKind::MakeUp;
    EXPECT_TRUE(Pdf(print::pdfOf(sheets)).text().contains("Case hachurée : rattrapage"));
}

TEST(ASheetOfAWeek, saysThatThereIsNothing)
{
    print::WeekSheets sheets = gridSheets();
    sheets.week = plainGrid();
    EXPECT_TRUE(Pdf(print::pdfOf(sheets)).text().contains("Rien cette semaine"));
}

TEST(ASheetOfAWeek, hasTheSameBytesForTheSameWeek)
{
    const QByteArray pdf = print::pdfOf(gridSheets());
    EXPECT_EQ(pdf, print::pdfOf(gridSheets()));
    EXPECT_TRUE(pdf.contains("/CreationDate (D:20261123000000Z)"));
}

TEST(SheetsOfAllRooms, areAsManyAsTheRoomsNeed)
{
    EXPECT_EQ(print::sheetCount(gridSheets()), 1);
    EXPECT_EQ(print::sheetCount(roomSheets(0)), 1);
    EXPECT_EQ(print::sheetCount(roomSheets(26)), 1);
    EXPECT_EQ(print::sheetCount(roomSheets(27)), 2);
    EXPECT_EQ(print::sheetCount(roomSheets(64)), 3);
}

TEST(SheetsOfAllRooms, shareTheRoomsAndRepeatTheDays)
{
    const Pdf pdf(print::pdfOf(roomSheets(27))); // 14 and 13
    ASSERT_EQ(pdf.pageCount(), 2);
    for (const int page : {1, 2}) {
        EXPECT_TRUE(pdf.text(page).contains("Toutes les salles"));
        EXPECT_TRUE(pdf.text(page).contains("8h00"));
        EXPECT_TRUE(pdf.text(page).contains("Jour"));
    }
    EXPECT_TRUE(pdf.text(1).contains("R13"));
    EXPECT_FALSE(pdf.text(1).contains("R14"));
    EXPECT_TRUE(pdf.text(2).contains("R14"));
    EXPECT_TRUE(pdf.text(2).contains("R26"));
    EXPECT_TRUE(pdf.text(1).contains("Page 1 / 2"));
    EXPECT_TRUE(pdf.text(2).contains("Page 2 / 2"));
}

TEST(SheetsOfAllRooms, sayWhereOnlyTheirOwnRoomsHaveNothing)
{
    print::WeekSheets sheets = roomSheets(27);
    auto& weeks = std::get<answers::RoomWeeks>(sheets.week);
    for (answers::RoomWeek& row : weeks.rows) {
        row.boxes.clear();
        row.unknown = {};
    }
    const Pdf none(print::pdfOf(sheets));
    EXPECT_TRUE(none.text(1).contains("Rien cette semaine"));
    EXPECT_FALSE(none.text(1).contains("dans ces salles"));
    weeks.rows.back().unknown[0] = "ni heure de début, ni séance";
    const Pdf one(print::pdfOf(sheets));
    EXPECT_TRUE(one.text(1).contains("Rien cette semaine dans ces salles"));
    EXPECT_FALSE(one.text(2).contains("Rien cette semaine"));
}

TEST(SheetsOfAllRooms, haveNoNumberWhenThereIsOne)
{
    EXPECT_FALSE(Pdf(print::pdfOf(roomSheets(3))).text().contains("Page"));
}
