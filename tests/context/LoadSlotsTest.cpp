#include "context/LoadSlots.h"

#include "context/ContextDesk.h"
#include "support/RuntimeMatchers.h"

#include <optional>

using namespace test;
using runtime::ErrorNumber;

namespace
{

/// Slots and rooms of the database. The time axis starts at 8h00, 1000 twips from the left.
class TheSlots : public OnBothDatabases
{
protected:
    void SetUp() override { m_timetable.emplace(database(), QStringList{"seances", "salle"}); }

    void addSlot(const char* key, const char* start, const char* end)
    {
        m_timetable->row("seances", {{"Seance", key}, {"Horaire1", start}, {"Horaire2", end}});
    }
    void addRoom(int zone, const QString& name, int places)
    {
        m_timetable->row("salle", {{"Zone", zone}, {"Nom", name}, {"places", places}});
    }
    /// Four slots of 90 minutes, 8h00 to 15h30 with a gap from 11h00 to 12h30.
    void addFourSlots()
    {
        addSlot("Lundi1", "8h00", "9h30");
        addSlot("Lundi2", "9h30", "11h00");
        addSlot("Lundi3", "12h30", "14h00");
        addSlot("Lundi4", "14h00", "15h30");
        addSlot("Mardi5", "15h30", "17h00"); // only Monday's slots count
    }
    void load()
    {
        m_timetable->load();
        desk.emplace(database());
        desk->loadSlots();
    }
    [[nodiscard]] const form::Label& total(std::size_t index) const
    {
        return desk->form.Tot.at(index);
    }

    std::optional<ContextDesk> desk;

private:
    std::optional<Timetable> m_timetable;
};

} // namespace

TEST_P(TheSlots, areAsManyAsMondayHas)
{
    addFourSlots();
    load();
    EXPECT_EQ(desk->slots.SlotCount(), 4);
    EXPECT_TRUE(desk->slots.slot(4));
    EXPECT_FALSE(desk->slots.slot(5));
}

TEST_P(TheSlots, stayAsManyWhenTheyAreReadAgain)
{
    addFourSlots();
    load();
    desk->loadSlots();
    EXPECT_EQ(desk->slots.SlotCount(), 4);
}

TEST_P(TheSlots, placeTheirTotalsAlongTheAxis)
{
    addFourSlots();
    load();
    EXPECT_EQ(total(0).place.left, 1000); // the origin itself
    EXPECT_EQ(total(1).place.left, 3400); // 90 minutes further
    EXPECT_EQ(total(2).place.left, 8200); // 270
    EXPECT_EQ(total(3).place.left, 10600);
    for (std::size_t slot = 0; slot < 4; ++slot) {
        EXPECT_EQ(total(slot).place.width, 2400) << slot;
        EXPECT_FALSE(total(slot).visible) << slot;
    }
}

TEST_P(TheSlots, makeFortyFiveMinutesHalfAsWide)
{
    addSlot("Lundi1", "8h00", "8h45");
    addSlot("Lundi2", "8h45", "9h35");
    load();
    EXPECT_EQ(total(0).place.width, 1200);
    EXPECT_EQ(total(1).place.width, 1333); // 50 minutes: 1333.33
}

TEST_P(TheSlots, putAllElevenTotalsAtTheFootOfTheWindow)
{
    addFourSlots();
    load();
    for (const form::Label& label : desk->form.Tot) {
        EXPECT_EQ(label.place.top, 10000 - label.place.height - 450);
    }
}

TEST_P(TheSlots, hideAndEmptyTheTotalOfAMissingSlot)
{
    addFourSlots();
    load();
    EXPECT_EQ(total(4).caption, "");
    EXPECT_FALSE(total(4).visible);
}

TEST_P(TheSlots, readTheEleventhSlot)
{
    addSlot("Lundi11", "17h30", "19h00");
    load();
    EXPECT_EQ(desk->slots.SlotCount(), 1);
    EXPECT_EQ(total(10).place.left, 1000 + 15200); // 570 minutes
}

TEST_P(TheSlots, placeTheHourTicks)
{
    load();
    for (int hour = 0; hour < 12; ++hour) {
        // 60 minutes are 1600 twips.
        EXPECT_EQ(desk->form.Label1.at(static_cast<std::size_t>(hour)).place.left,
                  1000 + 1600 * hour);
    }
}

TEST_P(TheSlots, refuseATimeThatIsNone)
{
    addSlot("Lundi1", "8h00", "midi");
    const runtime::RunTimeError error = errorOf([&] { load(); });
    EXPECT_EQ(error.number(), ErrorNumber::TypeMismatch);
    EXPECT_EQ(error.activity(), "Lecture de l’horaire « midi » d’une séance");
}

TEST_P(TheSlots, areReadWithAnUpperCaseHAsWell)
{
    addSlot("Lundi1", "8H00", "9:30");
    load();
    EXPECT_EQ(total(0).place.left, 1000);
    EXPECT_EQ(total(0).place.width, 2400);
}

TEST_P(TheSlots, areNeededWithTheirTableAndColumns)
{
    load();
    database().execute("ALTER TABLE seances RENAME COLUMN Horaire2 TO Fin");
    EXPECT_EQ(desk->slots.SlotCount(), 0);
    desk->loadSlots(); // without a row nothing asks for the column
    database().execute("INSERT INTO seances (Seance, Horaire1) VALUES ('Lundi1', '8h00')");
    const runtime::RunTimeError noColumn = errorOf([&] { desk->loadSlots(); });
    EXPECT_EQ(noColumn.number(), ErrorNumber::ItemNotFound);
    EXPECT_EQ(noColumn.activity(),
              "Lecture de l’horaire de la séance « Lundi1 » (table « seances »)");
    database().execute("DROP TABLE seances");
    const runtime::RunTimeError noTable = errorOf([&] { desk->loadSlots(); });
    EXPECT_EQ(noTable.number(), ErrorNumber::TableMissing);
    EXPECT_EQ(noTable.activity(), noColumn.activity());
}

TEST_P(TheSlots, refuseATimeThatIsNullAndNameItsSlot)
{
    addFourSlots();
    load();
    for (const char* column : {"Horaire2", "Horaire1"}) {
        database().execute(QString("UPDATE seances SET %1=NULL WHERE Seance='Lundi3'").arg(column));
        const runtime::RunTimeError error = errorOf([&] { desk->loadSlots(); });
        EXPECT_EQ(error.number(), ErrorNumber::InvalidUseOfNull) << column;
        EXPECT_EQ(error.activity(),
                  "Lecture de l’horaire de la séance « Lundi3 » (table « seances »)");
    }
}

TEST_P(TheSlots, giveTheRoomsPlacesByName)
{
    addRoom(2, "C1", 50);
    addRoom(1, "A1", 30);
    addRoom(2, "B1", 40);
    load();
    EXPECT_EQ(desk->places.at(0), 30);
    EXPECT_EQ(desk->places.at(1), 40);
    EXPECT_EQ(desk->places.at(2), 50);
    EXPECT_EQ(desk->places.at(3), 0);
}

TEST_P(TheSlots, giveThePlacesOfTheZonesRoomsOnly)
{
    addRoom(2, "C1", 50);
    addRoom(1, "A1", 30);
    addRoom(2, "B1", 40);
    load();
    desk->form.cb_Locaux.design({"0", "1", "2"}, 2);
    desk->loadSlots();
    EXPECT_EQ(desk->places.at(0), 40);
    EXPECT_EQ(desk->places.at(1), 50);
}

TEST_P(TheSlots, hold256RoomsAndNoMore)
{
    for (int room = 0; room < 256; ++room) {
        addRoom(1, QString("R%1").arg(room, 3, 10, QChar('0')), room);
    }
    load();
    EXPECT_EQ(desk->places.at(255), 255);
    database().execute("INSERT INTO salle (Zone, Nom, places) VALUES (1, 'R256', 1)");
    const runtime::RunTimeError error = errorOf([&] { desk->loadSlots(); });
    EXPECT_EQ(error.number(), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(error.activity(), "Lecture des places de 257 salles (256 au plus)");
}

TEST_P(TheSlots, refusePlacesBeyondSixteenBits)
{
    addRoom(1, "A1", 32768);
    const runtime::RunTimeError error = errorOf([&] { load(); });
    EXPECT_EQ(error.number(), ErrorNumber::Overflow);
    EXPECT_EQ(error.activity(), "Lecture des places de la salle « A1 » (valeur « 32768 »)");
}

TEST_P(TheSlots, takeARoomWithoutPlacesForNone)
{
    addRoom(1, "A1", 30);
    load();
    database().execute("UPDATE salle SET places=NULL");
    desk->loadSlots();
    EXPECT_EQ(desk->places.at(0), 0);
}

TEMPORA_ON_BOTH_DATABASES(TheSlots);
