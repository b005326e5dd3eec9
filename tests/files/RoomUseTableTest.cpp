#include "files/RoomUseTable.h"

#include "files/AnswerSamples.h"

#include <gtest/gtest.h>

using namespace files;
using namespace test;

namespace
{

/// The rows of the section with that label, blanks as usual ones.
QStringList rowsOf(const AnswerTable& table, const QString& label)
{
    QStringList rows;
    for (const TableSection& section : table.sections) {
        if (section.label != label) {
            continue;
        }
        for (const TableRow& row : section.rows) {
            QStringList cells;
            for (const TableCell& cell : row) {
                cells << QString(cell.text).replace(u'\u202f', u' ');
            }
            rows << cells.join('|');
        }
    }
    return rows;
}

class TheUseAsTable : public testing::Test
{
protected:
    AnswerTable table(TableUse use) { return answerTable(school.roomUse(), use); }

    AnswerSamples school;
};

} // namespace

// Twelve slots. The Amphi is held in one of them, with 40 students in its 100 places; TP 1 in a
// half (week A), with 10 in its 12; nobody knows when TP 2 is.

TEST_F(TheUseAsTable, tellsOfEachRoom)
{
    EXPECT_EQ(rowsOf(table(TableUse::Page), "salle"),
              QStringList({"Amphi|1|100|1|12|8 %|3 %", // 1 / 12; 40 / 1200
                           "TP 1|2|12|0,5|12|4 %|3 %", // 0.5 / 12; 5 / 144
                           "TP 2|||0|12|0 %|"}));
}

TEST_F(TheUseAsTable, tellsOfEachZoneAndOfTheWhole)
{
    EXPECT_EQ(
        rowsOf(table(TableUse::Page), "zone"),
        QStringList({"sans zone|1|0|0|12|0 %|", "1|1|100|1|12|8 %|3 %", "2|1|12|0,5|12|4 %|3 %"}));
    // 1.5 / 36; 45 / (12 * 112)
    EXPECT_EQ(rowsOf(table(TableUse::Page), "ensemble"), QStringList("3|112|1,5|36|4 %|3 %"));
}

TEST_F(TheUseAsTable, addsUpTheSeatsOfAZone)
{
    school.draft().builder().addRoom({"Amphi 2", 1, std::nullopt, 60});
    const AnswerTable told = table(TableUse::Spreadsheet);
    ASSERT_EQ(told.sections[1].label, "zone");
    const TableRow& zone1 = told.sections[1].rows[1];
    EXPECT_EQ(zone1[1].text, "2");
    EXPECT_EQ(zone1[2].text, "160");
    ASSERT_TRUE(zone1[5].share && zone1[6].share);
    EXPECT_DOUBLE_EQ(*zone1[5].share, 1.0 / 24);
    EXPECT_DOUBLE_EQ(*zone1[6].share, 40.0 / (12 * 160));
}

TEST_F(TheUseAsTable, isAGridOfDaysAndSlotsOnPages)
{
    const AnswerTable told = table(TableUse::Page);
    ASSERT_EQ(told.sections.size(), 4U);
    const TableSection& grid = told.sections[1];
    ASSERT_EQ(grid.columns.size(), 8U);
    EXPECT_EQ(grid.columns[1].title, "Lundi");
    EXPECT_EQ(grid.columns[1].look, ColumnLook::Shade);
    EXPECT_EQ(grid.columns[6].title, "Samedi");
    EXPECT_EQ(rowsOf(told, "créneau"),
              QStringList({"1 : 8h00–9h30|33 %|0 %|0 %|0 %|0 %|0 %|6 %",  // 1 / 3; 1 / 18
                           "2 : 9h30–11h00|17 %|0 %|0 %|0 %|0 %|0 %|3 %", // 0.5 / 3; 0.5 / 18
                           "Moyenne|25 %|0 %|0 %|0 %|0 %|0 %|4 %"}));     // 1.5 / 6; 1.5 / 36
}

TEST_F(TheUseAsTable, leavesMissingSlotsOfTheGridEmptyAndTellsOtherTimes)
{
    school.draft().slot("Mardi1", "10h00", "11h30");
    // Tuesday has one slot of its own, at another time than the others'.
    EXPECT_EQ(rowsOf(table(TableUse::Page), "créneau"),
              QStringList({"1 : 8h00–9h30|33 %|0 % à 10h00|0 %|0 %|0 %|0 %|6 %",
                           "2 : 9h30–11h00|17 %||0 %|0 %|0 %|0 %|3 %", // 0.5 / 15
                           "Moyenne|25 %|0 %|0 %|0 %|0 %|0 %|5 %"}));  // 1.5 / 33
}

TEST_F(TheUseAsTable, listsTheSlotsInASpreadsheet)
{
    const QStringList slots = rowsOf(table(TableUse::Spreadsheet), "créneau");
    ASSERT_EQ(slots.size(), 12);
    EXPECT_EQ(slots[0], "Lundi|1|8h00–9h30|1|3|33 %");
    EXPECT_EQ(slots[1], "Lundi|2|9h30–11h00|0,5|3|17 %");
    EXPECT_EQ(slots[11], "Samedi|2|9h30–11h00|0|3|0 %");
}

TEST_F(TheUseAsTable, saysHowEachFigureIsReckoned)
{
    const AnswerTable told = table(TableUse::Page);
    ASSERT_EQ(told.notes.size(), 5);
    EXPECT_TRUE(told.notes[1].startsWith("Créneaux tenus : "));
    EXPECT_TRUE(told.notes[2].startsWith("Taux : "));
    EXPECT_TRUE(told.notes[3].startsWith("Taux des sièges : "));
}

TEST_F(TheUseAsTable, saysThatTheSeatsAreUnknown)
{
    school.draft().builder().sizes().leaveStudentsUnknown();
    const AnswerTable told = table(TableUse::Page);
    EXPECT_EQ(rowsOf(told, "ensemble"), QStringList("3|112|1,5|36|4 %|inconnu"));
    EXPECT_EQ(rowsOf(told, "salle")[0], "Amphi|1|100|1|12|8 %|inconnu");
    EXPECT_EQ(rowsOf(told, "salle")[2], "TP 2|||0|12|0 %|");
    EXPECT_TRUE(told.notes.last().startsWith("Les étudiants inscrits ne se laissent pas lire"));
}
