#include "plan/Paging.h"

#include "plan/PlanDesk.h"
#include "support/RuntimeMatchers.h"

using runtime::ErrorNumber;
using test::PlanDesk;

namespace
{

/// 35 rooms of 30 places on pages of 10 lines; the first page is drawn.
class Pages : public testing::Test
{
protected:
    Pages() { desk.draw(); }

    /// Counts the redraws that the action brings.
    template <typename Action>
    std::uint64_t redraws(Action action)
    {
        const std::uint64_t before = desk.engine.refreshCount();
        action();
        return desk.engine.refreshCount() - before;
    }
    void next() { desk.form.Command3.press(); }
    void previous() { desk.form.Command2.press(); }
    void lastPage()
    {
        next();
        next();
        next();
    }
    void go(const QString& room)
    {
        EXPECT_NE(desk.engine.showRoom(room), engine::Engine::RoomLine::None);
    }
    [[nodiscard]] int start() const
    {
        EXPECT_EQ(desk.page.PageStart, desk.page.PageOffset);
        return desk.page.PageOffset;
    }

    PlanDesk desk{35};
    form::PlanForm& form = desk.form;
};

} // namespace

TEST_F(Pages, startOneRoomFurtherFromTheSecondOn)
{
    EXPECT_EQ(start(), 0);
    next();
    EXPECT_EQ(start(), 10);
    next();
    EXPECT_EQ(start(), 21);
    next();
    EXPECT_EQ(start(), 32);
}

TEST_F(Pages, goBackTheWayTheyCame)
{
    lastPage();
    previous();
    EXPECT_EQ(start(), 21);
    previous();
    EXPECT_EQ(start(), 10);
    EXPECT_TRUE(form.Command2.enabled);
    previous();
    EXPECT_EQ(start(), 0);
    EXPECT_FALSE(form.Command2.enabled);
    EXPECT_TRUE(form.Command3.enabled);
}

TEST_F(Pages, showTheirRooms)
{
    EXPECT_EQ(desk.drawnRooms().first(), "R01");
    EXPECT_EQ(desk.drawnRooms().last(), "R10");
    next();
    EXPECT_EQ(form.Salle[0].caption, "R11");
    EXPECT_EQ(desk.drawnRooms().first(), "R12");
    EXPECT_EQ(desk.drawnRooms().last(), "R21");
    next();
    next();
    EXPECT_EQ(desk.drawnRooms(), QStringList("R34"));
    EXPECT_EQ(desk.page.RowsShown, 1);
}

TEST_F(Pages, enableTheirButtonsAsFarAsThereArePages)
{
    EXPECT_FALSE(form.Command2.enabled);
    EXPECT_TRUE(form.Command3.enabled);
    next();
    EXPECT_TRUE(form.Command2.enabled);
    next();
    EXPECT_TRUE(form.Command3.enabled);
    next();
    EXPECT_FALSE(form.Command3.enabled);
    previous();
    EXPECT_TRUE(form.Command3.enabled);
}

TEST_F(Pages, redrawOnceForEachStep)
{
    EXPECT_EQ(redraws([this] { next(); }), 1U);
    EXPECT_EQ(redraws([this] { previous(); }), 1U);
}

TEST_F(Pages, redrawNothingWithoutAFurtherPage)
{
    EXPECT_EQ(redraws([this] { desk.form.Command2.click.raise(); }), 0U);
    lastPage();
    EXPECT_EQ(redraws([this] { desk.form.Command3.click.raise(); }), 0U);
    EXPECT_EQ(start(), 32);
}

TEST_F(Pages, showAllTheirRowsAgainAfterTheLastOne)
{
    lastPage();
    EXPECT_FALSE(form.Salle[2].visible);
    EXPECT_FALSE(form.Cap[10].visible);
    previous();
    for (std::size_t row = 0; row <= 10; ++row) {
        EXPECT_TRUE(form.Salle[row].visible) << row;
        EXPECT_TRUE(form.Cap[row].visible) << row;
    }
    EXPECT_FALSE(form.Salle[11].visible);
}

TEST_F(Pages, placeTheirRows)
{
    form.Salle[0].place.height = 700;
    next();
    EXPECT_EQ(form.Salle[2].place.top, 345 + 2 * 768);
}

TEST_F(Pages, countOnUntilTheLastOne)
{
    for (int room = 0; room < 35; ++room) {
        desk.meeting(room, 1);
    }
    form.Chk_Compt.setChecked(true);
    desk.draw();
    EXPECT_EQ(desk.totalsLine(), QStringList("300"));
    next();
    EXPECT_EQ(desk.totalsLine(), QStringList("600"));
    next();
    EXPECT_TRUE(desk.totals.CountingOn);
    next();
    EXPECT_EQ(desk.totalsLine(), QStringList("930")); // 31 rooms were drawn
    EXPECT_FALSE(desk.totals.CountingOn);
}

TEST_F(Pages, countFromZeroOnTheWayBack)
{
    for (int room = 0; room < 35; ++room) {
        desk.meeting(room, 1);
    }
    form.Chk_Compt.setChecked(true);
    desk.draw();
    next();
    previous();
    EXPECT_EQ(desk.totalsLine(), QStringList("300"));
}

TEST_F(Pages, stopCountingWhenTheNextOneIsAskedForOnTheLast)
{
    lastPage();
    form.Chk_Compt.setChecked(true);
    desk.totals.CountingOn = true;
    desk.form.Command3.click.raise();
    EXPECT_FALSE(desk.totals.CountingOn);
    EXPECT_TRUE(form.Chk_Compt.isChecked());
    EXPECT_FALSE(form.Command3.enabled);
}

TEST_F(Pages, areWorkedOutAgainForOtherLines)
{
    next();
    form.Total_L_P.setText("15");
    EXPECT_EQ(start(), 10); // forth to 26 and back
    EXPECT_EQ(desk.page.RowsShown, 15);
    EXPECT_EQ(desk.drawnRooms().size(), 15);
    next();
    EXPECT_EQ(start(), 26);
}

TEST_F(Pages, stepForthAndBackForOtherLines)
{
    desk.rows.asked.clear();
    const int before = desk.yields;
    EXPECT_EQ(redraws([this] { form.Total_L_P.setText("5"); }), 2U);
    QStringList asked;
    for (const lookup::RoomQuestion& question : desk.rows.asked) {
        if (asked.isEmpty() || asked.last() != question.room) {
            asked.append(question.room);
        }
    }
    // The page that starts at 5, then the one that starts at 0.
    EXPECT_EQ(asked, QString("R07 R08 R09 R10 R11 R01 R02 R03 R04 R05").split(' '));
    EXPECT_EQ(desk.yields, before + 5); // nobody sees the page in between
    EXPECT_EQ(desk.drawnRooms().size(), 5);
}

TEST_F(Pages, redrawOnceWhenAllRoomsFitOne)
{
    PlanDesk small(20);
    const std::uint64_t before = small.engine.refreshCount();
    small.form.Total_L_P.setText("25");
    EXPECT_EQ(small.engine.refreshCount() - before, 1U);
    EXPECT_EQ(small.drawnRooms().size(), 19);
    EXPECT_FALSE(small.form.Command2.enabled);
    EXPECT_FALSE(small.form.Command3.enabled);
}

TEST_F(Pages, takeNewRandomColoursForOtherLines)
{
    EXPECT_TRUE(desk.colors.RedrawMode);
    desk.colors.set(5, {});
    form.Total_L_P.setText("5");
    // Row 5 takes the 13th to the 15th number of seed 7: 0.5013, 0.0875 and 0.0690 of 255.
    EXPECT_EQ(desk.colors.at(5), form::Colour::fromRgb(128, 22, 18));
}

TEST_F(Pages, startTheRandomNumbersAnewForOtherLines)
{
    // With a fixed seed a new start gives the first numbers again: what row 1 got at the start.
    const form::Colour first = desk.colors.at(1);
    form.Total_L_P.setText("5");
    EXPECT_EQ(desk.colors.at(1), first);
}

TEST_F(Pages, keepTheColoursOfAPaletteForOtherLines)
{
    desk.colors.PaletteName = "/Styles/Bleu.mpl";
    desk.colors.set(5, {});
    form.Total_L_P.setText("5");
    EXPECT_EQ(desk.colors.at(5), form::Colour{});
}

TEST_F(Pages, refuseLinesThatAreNoNumber)
{
    for (const char* text : {"x", "", "5 lignes"}) {
        const runtime::RunTimeError error = test::errorOf([&] { form.Total_L_P.setText(text); });
        EXPECT_EQ(error.number(), ErrorNumber::TypeMismatch) << text;
        EXPECT_EQ(error.activity(),
                  QString("Lecture du nombre de lignes par page (valeur « %1 »)").arg(text));
    }
    EXPECT_EQ(test::errorNumberOf([&] { form.Total_L_P.setText("32768"); }), ErrorNumber::Overflow);
}

TEST_F(Pages, onlyNoteTheLinesWhileTheWindowIsNotVisible)
{
    form.visible = false;
    EXPECT_EQ(redraws([this] { form.Total_L_P.setText("5"); }), 0U);
    EXPECT_EQ(desk.page.RowsShown, 5);
    EXPECT_EQ(start(), 0);
}

TEST_F(Pages, surviveANegativeNumberOfLines)
{
    form.Total_L_P.setText("-5");
    EXPECT_TRUE(desk.drawn().empty());
    desk.form.Command3.click.raise();
    form.Total_L_P.setText("2");
    form.Total_L_P.setText("10");
    desk.draw();
    EXPECT_EQ(desk.drawn().size(), static_cast<std::size_t>(desk.page.RowsShown));
}

TEST_F(Pages, stayOnTheFirstForAnotherRoomFilter)
{
    EXPECT_EQ(redraws([this] { form.cb_Locaux.setListIndex(1); }), 3U); // forth, back, at the end
    EXPECT_EQ(start(), 0);
    EXPECT_FALSE(form.Command2.enabled);
    EXPECT_TRUE(form.Command3.enabled);
}

TEST_F(Pages, goOneBackForAnotherRoomFilter)
{
    next();
    next();
    EXPECT_EQ(redraws([this] { form.cb_Locaux.setListIndex(1); }), 4U);
    EXPECT_EQ(start(), 10);
}

TEST_F(Pages, takeThePulledBackStartForTheNumberOfLines)
{
    desk.page.PageOffset = desk.page.PageStart = 36;
    form.cb_Locaux.setListIndex(1);
    // 34 lines are more than a page can hold. From 34 a step back with 29 lines leads to 34 - 29
    // - 1.
    EXPECT_EQ(form.Total_L_P.text(), "29");
    EXPECT_EQ(start(), 4);
    EXPECT_EQ(desk.page.RowsShown, 29);
}

TEST_F(Pages, canBeReachedByTheRoomThatTheyHold)
{
    go("R11"); // the room before the first row of the second page
    EXPECT_EQ(start(), 10);
    EXPECT_TRUE(form.Command2.enabled);
    EXPECT_TRUE(form.Command3.enabled);
    const QString second = desk.page.room(1).name;
    go("R34"); // the last of the 35 rooms
    EXPECT_EQ(start(), 32);
    EXPECT_FALSE(form.Command3.enabled);
    go("R10"); // the last row of the first page
    EXPECT_EQ(start(), 0);
    EXPECT_FALSE(form.Command2.enabled);
    next(); // the buttons go on from there
    EXPECT_EQ(start(), 10);
    EXPECT_EQ(desk.page.room(1).name, second);
}

TEST_F(Pages, stayWhereTheRoomIsShownAlready)
{
    next();
    EXPECT_EQ(redraws([&] { go("R11"); }), 0U);
    EXPECT_EQ(redraws([&] { go("R21"); }), 0U);
    EXPECT_EQ(start(), 10);
    EXPECT_EQ(redraws([&] { go("R22"); }), 1U);
    EXPECT_EQ(start(), 21);
}

TEST_F(Pages, haveALastOneThatCanBeGoneToAtOnce)
{
    EXPECT_EQ(redraws([&] { desk.engine.showLastPage(); }), 1U);
    EXPECT_EQ(start(), 32);
    EXPECT_FALSE(form.Command3.enabled);
    EXPECT_TRUE(form.Command2.enabled);
    previous();
    EXPECT_EQ(start(), 21);
}

TEST_F(Pages, endWithTheOneThatDrawsARoom)
{
    PlanDesk twelve(12); // R11 would stand alone in the second page's row 0
    twelve.draw();
    twelve.engine.showLastPage();
    EXPECT_EQ(twelve.page.PageOffset, 0);
    EXPECT_EQ(twelve.drawnRooms().last(), "R10");
}

TEST_F(Pages, goBackToTheFirstOneFromWhereTheButtonsDoNotLead)
{
    next();
    form.Total_L_P.setText("15");
    previous(); // from 10 there is no step of 15 back
    ASSERT_EQ(start(), 10);
    ASSERT_FALSE(form.Command2.enabled);
    EXPECT_EQ(redraws([&] { desk.engine.showFirstPage(); }), 1U);
    EXPECT_EQ(start(), 0);
    EXPECT_TRUE(form.Command3.enabled);
    EXPECT_EQ(desk.drawnRooms().first(), "R01");
}

TEST_F(Pages, offerNoPageBehindAFirstOneThatIsTheOnlyOne)
{
    PlanDesk small(9);
    small.draw();
    small.engine.showFirstPage();
    EXPECT_FALSE(small.form.Command3.enabled);
}
