// The page that is printed and exported: the window's, looked up anew.

#include "shell/ShellDesk.h"

#include "support/RuntimeMatchers.h"

using namespace test;

namespace
{

class ShownPage : public OnBothDatabases
{
protected:
    void SetUp() override { createTinyFaculty(database()); }

    /// The boxes of a page, "room slot", with a "!" behind a make-up.
    [[nodiscard]] QStringList boxes()
    {
        QStringList found;
        for (const plan::PlanRow& row : desk.shell().engine().shownPage().content.rows) {
            for (const plan::PlanBox& box : row.boxes) {
                found.append(row.room + ' ' + QString::number(box.slot) + (box.makeUp ? "!" : ""));
            }
        }
        return found;
    }

    ShellDesk desk{database()};
};

TEMPORA_ON_BOTH_DATABASES(ShownPage);

} // namespace

TEST_P(ShownPage, hasTheMakeUpsOnceDateIsTicked)
{
    desk.play({"--date", "2025-03-17"});
    EXPECT_EQ(boxes(), QStringList({"A2 1", "B1 3", "B2 2", "C1 1"}));
    desk.form().Check2.setChecked(true); // which by itself redraws nothing
    EXPECT_EQ(boxes(), QStringList({"A2 1", "A2 2!", "B1 3", "B2 2", "C1 1"}));
}

TEST_P(ShownPage, hasAllSubjectsOnceTheFilterIsOff)
{
    desk.play({"--date", "2025-03-17", "--subject", "Algèbre"});
    EXPECT_EQ(boxes(), QStringList({"A2 1"}));
    desk.form().Check1.setChecked(false); // which by itself redraws nothing
    EXPECT_EQ(boxes(), QStringList({"A2 1", "B1 3", "B2 2", "C1 1"}));
}

TEST_P(ShownPage, hasTheColoursOfTheWindow)
{
    for (const bool colored : {true, false}) {
        desk.play({"--day", "0"});
        desk.form().Colorer.setChecked(colored);
        desk.form().OptA().select(); // a second drawing: each row has the colour of another entry
        const auto& shown = desk.shell().engine().content().rows;
        const plan::PlanPage page = desk.shell().engine().shownPage();
        ASSERT_EQ(page.content.rows.size(), shown.size());
        for (std::size_t row = 0; row < shown.size(); ++row) {
            EXPECT_EQ(page.content.rows[row].color, shown[row].color);
            EXPECT_EQ(page.state.form.Salle[row + 1].backColor, shown[row].color);
            EXPECT_EQ(page.state.form.Cap[row + 1].backColor, shown[row].color);
        }
    }
}

TEST_P(ShownPage, hasTheTotalsOfTheWindow)
{
    // A2's 40 places; then row 1 of the page that starts at 2, which counts the places of room
    // 3, 20.
    desk.play({"--rooms-per-page", "2", "--day", "0", "--counting", "--page", "2"});
    ASSERT_EQ(totals(desk.plan()).at(0), "60");
    const plan::PlanPage page = desk.shell().engine().shownPage();
    EXPECT_EQ(page.state.form.Tot[0].caption, "60");
    EXPECT_TRUE(page.state.form.Tot[0].visible);
    EXPECT_EQ(page.content.rows.front().room, desk.shell().engine().content().rows.front().room);
}

TEST_P(ShownPage, leavesTheWindowAsItIs)
{
    desk.play({"--rooms-per-page", "2", "--day", "0", "--counting", "--page", "2"});
    const QJsonObject before = desk.plan();
    const std::uint64_t refreshes = desk.shell().engine().refreshCount();
    desk.form().Check2.setChecked(true);
    const QJsonObject ticked = desk.plan();
    EXPECT_FALSE(boxes().isEmpty());
    EXPECT_EQ(desk.plan(), ticked);
    EXPECT_EQ(desk.plan()["rows"], before["rows"]);
    EXPECT_EQ(desk.shell().engine().refreshCount(), refreshes);
}

TEST_P(ShownPage, isNotNumbered)
{
    desk.play({"--day", "0"});
    EXPECT_EQ(desk.shell().engine().shownPage().number, 0);
    EXPECT_EQ(desk.shell().engine().allPages().at(0).number, 1);
    EXPECT_EQ(desk.shell().engine().allPages().at(0).count, 1);
}
