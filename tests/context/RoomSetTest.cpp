#include "context/RoomSet.h"

#include "context/ContextDesk.h"
#include "support/RuntimeMatchers.h"

#include <optional>

using namespace test;
using runtime::ErrorNumber;

namespace
{

/// The controls that choose the rooms, without a database.
struct Filter {
    Filter() { desk.form.Combo1.design({"GC", " MI "}, 0); }

    Filter& zone(int number)
    {
        desk.form.cb_Locaux.design(desk.form.cb_Locaux.items(), number);
        return *this;
    }
    /// Ticks a box without its reaction, which would read the database.
    static void tick(form::CheckBox& box)
    {
        box.click = nullptr;
        box.setChecked(true);
    }
    Filter& department(int index)
    {
        tick(desk.form.ElemDep);
        desk.form.Combo1.design(desk.form.Combo1.items(), index);
        return *this;
    }
    Filter& neutral()
    {
        tick(desk.form.Chk_Neutre);
        return *this;
    }
    [[nodiscard]] QString query() const { return desk.rooms.roomQuery(); }

    ContextDesk desk;
};

} // namespace

TEST(RoomQuery, asksForEveryRoom)
{
    EXPECT_EQ(Filter().query(), "select * from Salle  order by nom");
}

TEST(RoomQuery, asksForTheRoomsOfAZone)
{
    EXPECT_EQ(Filter().zone(3).query(), "select * from Salle where ( Zone=3 )   order by nom");
}

TEST(RoomQuery, addsTheRoomsOfADepartmentToTheZone)
{
    EXPECT_EQ(Filter().zone(3).department(0).query(),
              "select * from Salle where ( Zone=3 )   or (  ( Département='GC')) order by nom");
}

TEST(RoomQuery, addsTheRoomsWithoutADepartment)
{
    EXPECT_EQ(Filter().zone(3).department(0).neutral().query(),
              "select * from Salle where ( Zone=3 )   or (  ( Département='GC' or  "
              "ISNULL(Département)) ) order by nom");
}

TEST(RoomQuery, asksForTheDepartmentsRoomsAloneInEveryZone)
{
    EXPECT_EQ(Filter().department(0).query(),
              "select * from Salle  where (   ( Département='GC')) order by nom");
    EXPECT_EQ(Filter().department(0).neutral().query(),
              "select * from Salle  where (   ( Département='GC' or  ISNULL(Département)) ) "
              "order by nom");
}

TEST(RoomQuery, trimsTheDepartment)
{
    EXPECT_EQ(Filter().department(1).query(),
              "select * from Salle  where (   ( Département='MI')) order by nom");
}

TEST(RoomQuery, asksForNoNeutralRoomsWithoutADepartment)
{
    EXPECT_EQ(Filter().neutral().query(), "select * from Salle  order by nom");
}

namespace
{

/// Seven rooms in three zones; written out of order.
class TheRoomSet : public OnBothDatabases
{
protected:
    void SetUp() override
    {
        Timetable timetable(database(), {"salle"});
        const auto room = [&](int zone, const char* name, int places, const Field& department) {
            timetable.row("salle", {{"Zone", zone}, {"Nom", name}, {"places", places}, department});
        };
        room(3, "Labo 1", 16, {"Département", "GC"});
        room(1, "Amphi A", 200, {"Département", nullptr});
        room(3, "Salle 31", 30, {"Département", "MI"});
        room(2, "Salle 21", 40, {"Département", "GC"});
        room(1, "Salle 11", 35, {"Département", "MI"});
        room(2, "Amphi B", 150, {"Département", nullptr});
        room(3, "Salle 32", 32, {"Département", nullptr});
        timetable.load();
        desk.emplace(database());
        desk->form.Combo1.design({"GC", "MI"}, 0);
        desk->form.Total_L_P.setText("19");
        desk->page.RoomTotal = 7;
    }

    /// The names in the rows of the page, as far as the rows are visible.
    [[nodiscard]] QStringList rooms() const
    {
        QStringList names;
        for (const form::Label& room : desk->form.Salle) {
            if (room.visible) {
                names.append(room.caption);
            }
        }
        return names;
    }

    std::optional<ContextDesk> desk;
};

} // namespace

TEST_P(TheRoomSet, holdsEveryRoomByName)
{
    desk->rooms.FillRoomPage();
    EXPECT_EQ(rooms(), QStringList({"Amphi A", "Amphi B", "Labo 1", "Salle 11", "Salle 21",
                                    "Salle 31", "Salle 32"}));
    EXPECT_EQ(desk->form.Cap[0].caption, "200");
    EXPECT_EQ(desk->page.RowsShown, 6);
}

TEST_P(TheRoomSet, holdsTheZonesRooms)
{
    desk->form.cb_Locaux.setListIndex(3);
    EXPECT_EQ(rooms(), QStringList({"Labo 1", "Salle 31", "Salle 32"}));
}

TEST_P(TheRoomSet, holdsTheZonesRoomsAndTheDepartments)
{
    desk->form.cb_Locaux.setListIndex(3);
    desk->form.ElemDep.setChecked(true);
    EXPECT_EQ(rooms(), QStringList({"Labo 1", "Salle 21", "Salle 31", "Salle 32"}));
}

TEST_P(TheRoomSet, holdsTheRoomsWithoutADepartmentAsWell)
{
    desk->form.cb_Locaux.setListIndex(3);
    desk->form.ElemDep.setChecked(true);
    desk->form.Chk_Neutre.setChecked(true);
    EXPECT_EQ(rooms(),
              QStringList({"Amphi A", "Amphi B", "Labo 1", "Salle 21", "Salle 31", "Salle 32"}));
}

TEST_P(TheRoomSet, holdsOnlyTheDepartmentsRoomsInEveryZone)
{
    desk->form.ElemDep.setChecked(true);
    EXPECT_EQ(rooms(), QStringList({"Labo 1", "Salle 21"}));
    desk->form.Combo1.setListIndex(1);
    EXPECT_EQ(rooms(), QStringList({"Salle 11", "Salle 31"}));
    desk->form.Chk_Neutre.setChecked(true);
    EXPECT_EQ(rooms(), QStringList({"Amphi A", "Amphi B", "Salle 11", "Salle 31", "Salle 32"}));
}

TEST_P(TheRoomSet, isEmptyForAZoneWithoutRooms)
{
    desk->rooms.FillRoomPage();
    desk->form.cb_Locaux.setListIndex(9);
    EXPECT_EQ(rooms(), QStringList());
    EXPECT_EQ(desk->page.RowsShown, -1);
}

TEST_P(TheRoomSet, writesNullsAsEmptyLabels)
{
    database().execute("UPDATE salle SET places=NULL WHERE Nom='Amphi A'");
    desk->rooms.FillRoomPage();
    EXPECT_EQ(desk->form.Cap[0].caption, "");
    EXPECT_EQ(desk->page.RowsShown, 6);
}

TEST_P(TheRoomSet, failsWithoutTheDepartmentColumn)
{
    database().execute("ALTER TABLE salle RENAME COLUMN `Département` TO Autre");
    desk->rooms.FillRoomPage(); // not asked for yet
    const runtime::RunTimeError error = errorOf([&] { desk->form.ElemDep.setChecked(true); });
    EXPECT_EQ(error.number(), ErrorNumber::StatementRefused);
    EXPECT_EQ(error.activity(), "Lecture des salles (zone 0, département « GC »)");
}

TEST_P(TheRoomSet, endsThePageAtARowThatCannotBeRead)
{
    database().execute("ALTER TABLE salle RENAME COLUMN places TO Sieges");
    desk->database.open(database().connectString()); // a fresh look at the columns
    desk->rooms.FillRoomPage();
    EXPECT_EQ(desk->page.RowsShown, -1);
}

TEST_P(TheRoomSet, failsWithoutItsTable)
{
    database().execute("DROP TABLE salle");
    desk->form.cb_Locaux.design(desk->form.cb_Locaux.items(), 3);
    const runtime::RunTimeError error = errorOf([&] { desk->rooms.FillRoomPage(); });
    EXPECT_EQ(error.number(), ErrorNumber::TableMissing);
    EXPECT_EQ(error.activity(), "Lecture des salles (zone 3)");
}

TEMPORA_ON_BOTH_DATABASES(TheRoomSet);
