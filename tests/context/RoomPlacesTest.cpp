#include "context/RoomPlaces.h"

#include "support/RuntimeMatchers.h"

using context::RoomPlaces;
using runtime::ErrorNumber;
using test::errorNumberOf;

namespace
{

/// Rooms named "A" with these places, in this order.
db::Recordset rooms(const std::vector<db::Value>& places)
{
    const auto columns = std::make_shared<const db::Columns>(QStringList{"Nom", "places"});
    std::vector<db::Row> rows;
    for (const db::Value& each : places) {
        rows.emplace_back(columns, std::vector<db::Value>{db::Value(QString("A")), each});
    }
    return {columns, std::move(rows)};
}

db::Value number(std::int64_t value)
{
    return db::Value(value);
}

} // namespace

TEST(RoomPlaces, areKnownByThePositionOfTheRoom)
{
    RoomPlaces places;
    places.read(rooms({number(30), number(40)}));
    EXPECT_EQ(places.at(0), 30);
    EXPECT_EQ(places.at(1), 40);
    EXPECT_EQ(places.at(2), 0);
}

TEST(RoomPlaces, areNoneWhereTheTableHasNone)
{
    RoomPlaces places;
    places.read(rooms({number(30)}));
    places.read(rooms({db::Value()}));
    EXPECT_EQ(places.at(0), 0);
}

TEST(RoomPlaces, are256AtMost)
{
    RoomPlaces places;
    places.read(rooms(std::vector<db::Value>(256, number(7))));
    EXPECT_EQ(places.at(255), 7);
    const runtime::RunTimeError error =
        test::errorOf([&] { places.read(rooms(std::vector<db::Value>(257, number(7)))); });
    EXPECT_EQ(error.number(), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(error.activity(), "Lecture des places de 257 salles (256 au plus)");
    for (const int index : {-1, 256}) {
        EXPECT_EQ(errorNumberOf([&] { static_cast<void>(places.at(index)); }),
                  ErrorNumber::SubscriptOutOfRange);
    }
}

TEST(RoomPlaces, nameTheRoomWhosePlacesAreNoNumber)
{
    RoomPlaces places;
    const runtime::RunTimeError error =
        test::errorOf([&] { places.read(rooms({db::Value(QString("beaucoup"))})); });
    EXPECT_EQ(error.number(), ErrorNumber::TypeMismatch);
    EXPECT_EQ(error.activity(), "Lecture des places de la salle « A » (valeur « beaucoup »)");
}
