#include "app/asking/RoomChoice.h"

#include "support/RuntimeMatchers.h"
#include "timetable/Draft.h"

#include <QComboBox>
#include <gtest/gtest.h>

using namespace test;

namespace
{

using Rooms = std::vector<std::pair<std::optional<int>, std::optional<QString>>>;

/// A school whose rooms have these zones and departments.
timetable::Timetable school(const Rooms& rooms)
{
    Draft draft;
    int number = 0;
    for (const auto& [zone, department] : rooms) {
        draft.builder().addRoom({QStringLiteral("R%1").arg(++number), zone, department, 30});
    }
    return draft.build(Draft::ignoringCase);
}

class TheChoice : public testing::Test
{
protected:
    [[nodiscard]] QComboBox* list(const char* name) const
    {
        return rooms.findChild<QComboBox*>(QLatin1String(name));
    }
    [[nodiscard]] QStringList offered(const char* name) const
    {
        QStringList texts;
        for (int index = 0; index < list(name)->count(); ++index) {
            texts << list(name)->itemText(index);
        }
        return texts;
    }

    int changes = 0;
    app::RoomChoice rooms{[this] { ++changes; }};
};

} // namespace

TEST_F(TheChoice, offersWhatRoomsHaveInOrder)
{
    rooms.offer(school({{3, "MATH"}, {{}, {}}, {1, "INFO"}, {3, ""}, {10, "INFO"}}));
    EXPECT_EQ(offered("AskedZone"), QStringList({"Toutes", "1", "3", "10"}));
    EXPECT_EQ(offered("AskedDepartment"), QStringList({"Tous", "INFO", "MATH"}));
    EXPECT_EQ(changes, 0);
}

TEST_F(TheChoice, isAboutAllRoomsUntilSomebodyChooses)
{
    rooms.offer(school({{3, "MATH"}}));
    EXPECT_FALSE(rooms.filter().zone || rooms.filter().department);
    list("AskedZone")->setCurrentIndex(1);
    list("AskedDepartment")->setCurrentIndex(1);
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(rooms.filter().zone, 3);
    EXPECT_EQ(rooms.filter().department, "MATH");
}

TEST_F(TheChoice, offersADepartmentOnceHoweverItIsSpelt)
{
    rooms.offer(school({{1, "Info"}, {1, "INFO"}}));
    EXPECT_EQ(offered("AskedDepartment"), QStringList({"Tous", "Info"}));
    list("AskedDepartment")->setCurrentIndex(1);
    EXPECT_TRUE(rooms.filter().holds({"R2", 1, "INFO", 30}));
    EXPECT_FALSE(rooms.filter().holds({"R3", 1, "MATH", 30}));
}

TEST_F(TheChoice, keepsWhatWasChosenWhereItCan)
{
    rooms.offer(school({{1, "INFO"}, {2, "MATH"}}));
    list("AskedZone")->setCurrentIndex(2);
    list("AskedDepartment")->setCurrentIndex(2);
    changes = 0;
    rooms.offer(school({{1, "CHIMIE"}, {2, "MATH"}, {3, {}}}));
    EXPECT_EQ(rooms.filter().zone, 2);
    EXPECT_EQ(rooms.filter().department, "MATH");
    rooms.offer(school({{1, "CHIMIE"}}));
    EXPECT_FALSE(rooms.filter().zone || rooms.filter().department);
    EXPECT_EQ(changes, 0);
}

TEST_F(TheChoice, choosesAZoneByItsNumber)
{
    rooms.offer(school({{1, {}}, {4, {}}}));
    EXPECT_TRUE(rooms.chooseZone(4));
    EXPECT_EQ(rooms.filter().zone, 4);
    EXPECT_FALSE(rooms.chooseZone(7));
    EXPECT_FALSE(rooms.filter().zone);
    EXPECT_TRUE(rooms.chooseZone(0));
}
