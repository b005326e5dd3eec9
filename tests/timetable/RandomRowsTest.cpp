// The rows of random timetables, by room and slot: as many as the database finds when it is asked
// for each room and each slot in the plan's words.

#include "judge/RandomTimetable.h"
#include "runtime/FrenchDate.h"
#include "runtime/RunTimeError.h"
#include "support/Timetable.h"
#include "timetable/Draft.h"
#include "timetable/TimetableReader.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

using namespace test;
using namespace timetable;

namespace
{

constexpr unsigned kTimetables = 10;
constexpr int kPeriod = 1;

/// Whether the name can stand in the plan's words as it is.
bool isPlain(const QString& name)
{
    return !name.contains(u'\'') && !name.contains(u'\\');
}

/// The plan's condition that a row names the room.
QString namesRoom(const QString& room, bool exam)
{
    if (exam || room.isEmpty()) {
        return QStringLiteral("( Salle = '") + room + QStringLiteral("' )");
    }
    QStringList terms;
    for (const SqlName& column : column::kRooms) {
        terms << column + QStringLiteral(" = '") + room + u'\'';
    }
    return u'(' + terms.join(QStringLiteral(" or ")) + u')';
}

/// What is asked about one of the tables.
struct Question {
    MeetingKind kind;
    QString condition; ///< beside room, slot and period
    int examWeek = 0;
    QDate date;
};

std::vector<Question> questions()
{
    const QDate date = RandomTimetable::date();
    return {{MeetingKind::Course, {}, 0, {}},
            {MeetingKind::MakeUp,
             QStringLiteral(" and DateX = '") + date.toString(Qt::ISODate) + u'\'', 0, date},
            {MeetingKind::Exam, QStringLiteral(" and Semaine = 2"), 2, {}}};
}

class RandomRows : public OnBothDatabases
{
protected:
    /// A random timetable, with its rooms in the room table.
    [[nodiscard]] static Occupancy read(TestDatabase& database, unsigned seed)
    {
        const RandomTimetable random(database, seed);
        QStringList rooms;
        for (QString room : random.rooms()) {
            room.replace("'", "''");
            rooms << QStringLiteral("insert into salle (Nom) values ('") + room +
                         QStringLiteral("')");
        }
        database.execute(rooms);
        db::Connection connection(database.connectString());
        return Occupancy(
            std::make_shared<const timetable::Timetable>(readTimetable(connection, kPeriod)));
    }

    /// How many rows of that kind name the room in that slot, by the model.
    [[nodiscard]] static std::size_t modelled(const Occupancy& occupancy, RoomId room,
                                              const Question& question, SlotKey slot)
    {
        std::set<int> meetings;
        for (int index = 0; const Meeting& meeting : occupancy.timetable().meetings()) {
            if (meeting.kind == question.kind && meeting.slot == slot &&
                meeting.examWeek == question.examWeek && meeting.date == question.date &&
                names(occupancy.timetable(), meeting, room)) {
                meetings.insert(index);
            }
            ++index;
        }
        return meetings.size();
    }

    [[nodiscard]] static bool names(const timetable::Timetable& timetable, const Meeting& meeting,
                                    RoomId room)
    {
        for (const MeetingPart& part : meeting.parts) {
            for (const RoomNameId name : {part.room, part.otherRoom}) {
                if (!name.isNone()) {
                    const std::vector<RoomId>& rooms = timetable.roomName(name).rooms;
                    if (std::find(rooms.begin(), rooms.end(), room) != rooms.end()) {
                        return true;
                    }
                }
            }
        }
        return false;
    }

    /// Compares one timetable; counts the rows.
    void compare(db::Connection& connection, const Occupancy& occupancy)
    {
        for (int index = 0; index < static_cast<int>(occupancy.timetable().rooms().size());
             ++index) {
            const QString name = occupancy.timetable().room(RoomId(index)).name;
            if (!isPlain(name)) {
                continue;
            }
            for (const Question& question : questions()) {
                for (int slot = 0; slot < 8; ++slot) {
                    const SlotKey key{slot / 4, slot % 4 + 1};
                    compare(connection, occupancy, RoomId(index), question, key);
                }
            }
        }
    }

    void compare(db::Connection& connection, const Occupancy& occupancy, RoomId room,
                 const Question& question, SlotKey slot)
    {
        const QString name = occupancy.timetable().room(room).name;
        const QString key = runtime::frenchDayNames().at(static_cast<std::size_t>(slot.day)) +
                            QString::number(slot.number);
        const QString sql =
            QStringLiteral("select * from ") + tableOf(question.kind) + QStringLiteral(" where ") +
            namesRoom(name, question.kind == MeetingKind::Exam) +
            QStringLiteral(" and Seance = '") + key + QStringLiteral("' and Tranche = ") +
            QString::number(kPeriod) + question.condition;
        int expected = 0;
        if (!runtime::skipOnError([&] { expected = connection.recordCount(sql); })) {
            return; // the table or one of its room columns is missing
        }
        rows += expected;
        EXPECT_EQ(modelled(occupancy, room, question, slot), static_cast<std::size_t>(expected))
            << sql.toStdString();
    }

    int rows = 0;
};

} // namespace

TEST_P(RandomRows, areThoseThatThePlanAsksFor)
{
    for (unsigned seed = 1; seed <= kTimetables && !HasFailure(); ++seed) {
        SCOPED_TRACE(testing::Message() << "seed " << seed);
        TestDatabase tables(GetParam());
        const Occupancy occupancy = read(tables, seed);
        db::Connection connection(tables.connectString());
        compare(connection, occupancy);
    }
    EXPECT_GT(rows, 1000); // there was something to compare
}

TEMPORA_ON_BOTH_DATABASES(RandomRows);
