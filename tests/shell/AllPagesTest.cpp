#include "shell/ShellDesk.h"

#include "support/RuntimeMatchers.h"

using namespace test;

namespace
{

/// Rooms R00 to R34 and a séance of class G1 in each, in slot 1 of Monday.
void createManyRooms(TestDatabase& database)
{
    createTinyFaculty(database);
    QStringList statements{"delete from salle", "delete from emplois"};
    for (int room = 0; room < 35; ++room) {
        const QString name = QString("R%1").arg(room, 2, 10, QChar('0'));
        statements
            << QString("insert into salle (Zone, Nom, places) values (1, '%1', 10)").arg(name)
            << QString("insert into emplois (Salle, Seance, Tranche, newnature, Classe, "
                       "Debut, `Durée`) values ('%1', 'Lundi1', 1, '00', 'G1', '8h30', 90)")
                   .arg(name);
    }
    database.execute(statements);
}

QStringList roomsOf(const plan::PlanPage& page)
{
    QStringList rooms;
    for (const plan::PlanRow& row : page.content.rows) {
        rooms.append(row.room);
    }
    return rooms;
}

class AllPages : public OnBothDatabases
{
protected:
    void SetUp() override { createManyRooms(database()); }

    ShellDesk desk{database()};
};

TEMPORA_ON_BOTH_DATABASES(AllPages);

} // namespace

TEST_P(AllPages, startWhereThePageButtonsDo)
{
    // Starts 0, 10, 21 and 32 of 35 rooms. Row 0 of a page is not drawn: it is room 0, 11, 22, 33.
    desk.play({"--rooms-per-page", "10", "--day", "0"});
    const auto pages = desk.shell().engine().allPages();
    ASSERT_EQ(pages.size(), 4);
    EXPECT_EQ(roomsOf(pages[0]).constFirst(), "R01");
    EXPECT_EQ(roomsOf(pages[0]).size(), 10);
    EXPECT_EQ(roomsOf(pages[1]).constFirst(), "R12");
    EXPECT_EQ(roomsOf(pages[2]).constFirst(), "R23");
    EXPECT_EQ(roomsOf(pages[3]), QStringList({"R34"}));
}

TEST_P(AllPages, areThoseThatTheUserSteppedThrough)
{
    desk.play({"--rooms-per-page", "10", "--day", "0"});
    const auto pages = desk.shell().engine().allPages();
    for (const plan::PlanPage& page : pages) {
        QStringList shown;
        for (const plan::PlanRow& row : desk.shell().engine().content().rows) {
            shown.append(row.room + '=' + row.boxes.at(0).cell.CellText);
        }
        QStringList walked;
        for (const plan::PlanRow& row : page.content.rows) {
            walked.append(row.room + '=' + row.boxes.at(0).cell.CellText);
        }
        EXPECT_EQ(walked, shown);
        desk.form().Command3.press();
    }
}

TEST_P(AllPages, leaveTheWindowWhereItIs)
{
    desk.play({"--rooms-per-page", "10", "--day", "0", "--counting", "--page", "2"});
    const QJsonObject before = desk.plan();
    const int refreshes = static_cast<int>(desk.shell().engine().refreshCount());
    EXPECT_EQ(desk.shell().engine().allPages().size(), 4);
    EXPECT_EQ(desk.plan(), before);
    EXPECT_EQ(static_cast<int>(desk.shell().engine().refreshCount()), refreshes);
    desk.form().Command2.press(); // and the window pages on from there
    EXPECT_EQ(desk.shell().engine().state().page.PageOffset, 0);
}

TEST_P(AllPages, countOnFromPageToPage)
{
    desk.play({"--rooms-per-page", "10", "--day", "0", "--counting"});
    const auto pages = desk.shell().engine().allPages();
    // Ten places in each of 10, 10, 10 and 1 rooms.
    EXPECT_EQ(pages[0].state.form.Tot[0].caption, "100");
    EXPECT_EQ(pages[1].state.form.Tot[0].caption, "200");
    EXPECT_EQ(pages[3].state.form.Tot[0].caption, "310");
}

TEST_P(AllPages, areOneWhereAllRoomsFit)
{
    desk.play({"--rooms-per-page", "29", "--zone", "2"}); // no room
    EXPECT_EQ(desk.shell().engine().allPages().size(), 1);
    desk.play({"--rooms-per-page", "29"});
    EXPECT_EQ(desk.shell().engine().allPages().size(), 2); // 29, and from room 31 on
}

TEST_P(AllPages, holdEveryRoomOnceWhereNoneIsLeftOut)
{
    desk.play({"--rooms-per-page", "10", "--day", "0", "--every-room", "--counting"});
    const auto pages = desk.shell().engine().allPages();
    QStringList first;
    for (const plan::PlanPage& page : pages) {
        first << roomsOf(page).constFirst();
    }
    EXPECT_EQ(first, QStringList({"R00", "R10", "R20", "R30"}));
    EXPECT_EQ(pages[3].state.form.Tot[0].caption, "350"); // ten places in each of 35 rooms
}
