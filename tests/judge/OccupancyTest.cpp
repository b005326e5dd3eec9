// The model of the timetable against the plan's own lookup, over random databases: what the plan
// shows is held and not called free, and where the plan's query finds nothing at all, nothing is
// held. Where several rows meet they may differ: the plan composes its text from the first row, the
// model looks at all.

#include "timetable/Occupancy.h"
#include "answers/FreeRooms.h"
#include "db/Database.h"
#include "judge/JudgedCells.h"
#include "judge/RandomTimetable.h"
#include "lookup/OccupancyLookup.h"
#include "lookup/PlainRowSource.h"
#include "runtime/RunTimeError.h"
#include "timetable/MeetingColumns.h"
#include "timetable/ReadTimes.h"
#include "timetable/TimetableReader.h"

#include <algorithm>
#include <memory>
#include <optional>

using namespace test;
using timetable::Holding;
using timetable::MeetingKind;
using timetable::RoomId;
using timetable::Week;
using timetable::When;

namespace
{

/// One question to both.
struct Question {
    QString room;
    int day = timetable::kMonday;
    int slot = 1;
    Week week = Week::Every;
    MeetingKind kind = MeetingKind::Course;
    int examWeek = 1;
};

lookup::View viewOf(const Question& question)
{
    lookup::View view;
    view.day.exam = view.options.exam = question.kind == MeetingKind::Exam;
    view.day.examWeek = question.examWeek;
    view.day.date = RandomTimetable::date();
    view.options.showClass = view.options.showTeachers = view.options.showSubject = true;
    // An empty text would pass for a free room.
    view.options.separator = QStringLiteral("|");
    view.options.everyWeek = question.week == Week::Every;
    view.options.showsWeekA = question.week == Week::A;
    view.options.showsWeekB = question.week == Week::B;
    return view;
}

QString fieldOf(const db::Row& row, const QString& column)
{
    QString text;
    runtime::skipOnError([&] { text = row.field(column).toJoinedText(); });
    return text;
}

/// The plan and the model on the same database and period.
class BothWays
{
public:
    BothWays(const TestDatabase& tables, int period)
        : m_database(tables.usesMySql()), m_rows(m_database), m_period(QString::number(period))
    {
        m_database.open(tables.connectString());
        m_occupancy.emplace(std::make_shared<const timetable::Timetable>(
            timetable::readTimetable(m_database.Db(), period)));
    }

    /// The rows that the plan's query finds; nothing where the database refuses it.
    [[nodiscard]] std::optional<db::Recordset> rows(const Question& question)
    {
        lookup::RoomQuestion asked;
        asked.table = question.kind == MeetingKind::Exam     ? lookup::RoomQuestion::Table::examen
                      : question.kind == MeetingKind::MakeUp ? lookup::RoomQuestion::Table::ratrap
                                                             : lookup::RoomQuestion::Table::emplois;
        asked.room = question.room;
        asked.seanceKey = keyOf(question);
        asked.tranche = m_period;
        asked.examWeek = QString::number(question.examWeek);
        asked.date = RandomTimetable::date();
        std::optional<db::Recordset> found;
        runtime::skipOnError([&] { found = m_rows.timetableRows(asked); });
        return found;
    }
    /// The text of the plan's box.
    [[nodiscard]] QString box(const Question& question)
    {
        lookup::OccupancyLookup lookup(m_rows, viewOf(question));
        return lookup
            .RoomOccupancy(question.room, keyOf(question), m_period,
                           question.kind == MeetingKind::MakeUp)
            .value()
            .CellText;
    }
    /// The model's holdings of the room by rows of that kind and slot, in any week.
    [[nodiscard]] std::vector<Holding> holdings(const Question& question) const
    {
        std::vector<Holding> found;
        for (const timetable::HoldingId id : m_occupancy->everyHolder(roomOf(question.room))) {
            const Holding& holding = m_occupancy->holding(id);
            const timetable::Meeting& meeting = m_occupancy->meetingOf(holding);
            const bool isOfItsWeek =
                question.kind != MeetingKind::Exam || meeting.examWeek == question.examWeek;
            const bool isOfItsDate =
                question.kind != MeetingKind::MakeUp || meeting.date == RandomTimetable::date();
            if (meeting.kind == question.kind && meeting.slot.day == question.day &&
                meeting.slot.number == question.slot && isOfItsWeek && isOfItsDate) {
                found.push_back(holding);
            }
        }
        return found;
    }
    /// Whether the model has this row among those that hold the room when the question asks.
    [[nodiscard]] bool names(const Question& question, const db::Row& row) const
    {
        const std::vector<Holding> all = holdings(question);
        return std::any_of(all.begin(), all.end(), [&](const Holding& holding) {
            return m_occupancy->isOn(holding, whenOf(question)) && isRow(holding, row);
        });
    }
    /// Whether the room is called free at the time of a row that the plan shows in it.
    [[nodiscard]] bool isCalledFree(const Question& question, const db::Row& row) const
    {
        const When when = whenOf(question);
        auto start = timetable::readTime(fieldOf(row, timetable::column::kDebut));
        if (!start) {
            const timetable::DaySlot* slot =
                m_occupancy->timetable().slot(when.day(), question.slot);
            start = slot == nullptr ? std::nullopt : slot->start;
        }
        const auto length = timetable::readLength(fieldOf(row, timetable::column::kDuree));
        if (!start) {
            return false; // nobody knows when
        }
        const answers::FreeRooms free = answers::freeRooms(
            *m_occupancy, {{when}, {*start, length.value_or(timetable::kUsualLength)}, 0, {}});
        return std::any_of(free.rooms.begin(), free.rooms.end(),
                           [room = roomOf(question.room)](const answers::FreeRoom& each) {
                               return each.room == room;
                           });
    }
    [[nodiscard]] bool holds(const QString& room) const { return m_database.dialect().holds(room); }
    [[nodiscard]] bool knows(const QString& room) const { return !roomOf(room).isNone(); }

private:
    [[nodiscard]] static QString keyOf(const Question& question)
    {
        const QString day = question.day == timetable::kMonday ? "Lundi" : "Mardi";
        return day + QString::number(question.slot);
    }
    [[nodiscard]] When whenOf(const Question& question) const
    {
        switch (question.kind) {
        case MeetingKind::Course:
            return When::weekday(question.day, question.week);
        case MeetingKind::MakeUp:
            return When::date(RandomTimetable::date(), question.week);
        case MeetingKind::Exam:
            break;
        }
        return When::date(
            RandomTimetable::date().addDays(56 + 7 * question.examWeek + question.day));
    }
    [[nodiscard]] RoomId roomOf(const QString& name) const
    {
        const auto rooms = m_occupancy->timetable().rooms();
        const auto found = std::find_if(rooms.begin(), rooms.end(),
                                        [&](const auto& room) { return room.name == name; });
        return found == rooms.end() ? RoomId() : RoomId(static_cast<int>(found - rooms.begin()));
    }
    [[nodiscard]] bool isRow(const Holding& holding, const db::Row& row) const
    {
        namespace column = timetable::column;
        const timetable::Timetable& timetable = m_occupancy->timetable();
        const timetable::Meeting& meeting = m_occupancy->meetingOf(holding);
        return timetable.classes().text(meeting.className) == fieldOf(row, column::kClasse) &&
               timetable.text(meeting.slotText) == fieldOf(row, column::kSeance) &&
               timetable.text(meeting.startText) == fieldOf(row, column::kDebut) &&
               timetable.text(meeting.lengthText) == fieldOf(row, column::kDuree);
    }

    db::Database m_database;
    lookup::PlainRowSource m_rows;
    QString m_period;
    std::optional<timetable::Occupancy> m_occupancy;
};

class ModelAndPlan : public OnBothDatabases
{
protected:
    void compare(BothWays& ways, const Question& question)
    {
        const auto rows = ways.rows(question);
        if (!rows) {
            return; // a name that a plain statement cannot hold: the plan knows nothing of it
        }
        SCOPED_TRACE(testing::Message()
                     << "room " << question.room.toStdString() << ", day " << question.day
                     << ", slot " << question.slot << ", week " << static_cast<int>(question.week)
                     << ", kind " << static_cast<int>(question.kind));
        if (rows->isEmpty()) {
            EXPECT_TRUE(ways.holdings(question).empty()) << "the plan finds no row";
            ++free;
        } else if (!ways.box(question).isEmpty()) {
            EXPECT_TRUE(ways.names(question, rows->first())) << ways.box(question).toStdString();
            EXPECT_FALSE(ways.isCalledFree(question, rows->first()));
            ++taken;
        }
        ++cells;
    }
    void compareSlot(BothWays& ways, const QString& room, int day, int slot)
    {
        for (const Week week : {Week::Every, Week::A, Week::B}) {
            compare(ways, {room, day, slot, week, MeetingKind::Course});
            compare(ways, {room, day, slot, week, MeetingKind::MakeUp});
        }
        compare(ways, {room, day, slot, Week::Every, MeetingKind::Exam, 1});
        compare(ways, {room, day, slot, Week::Every, MeetingKind::Exam, 2});
    }
    /// All that can be asked about one period.
    void comparePeriod(BothWays& ways, const QStringList& rooms)
    {
        for (const QString& room : rooms) {
            // A plain statement may ask about another name.
            if (!ways.knows(room) || !ways.holds(room)) {
                continue;
            }
            for (const int day : {timetable::kMonday, timetable::kMonday + 1}) {
                for (int slot = 1; slot <= 5; ++slot) {
                    compareSlot(ways, room, day, slot);
                }
            }
        }
    }

    int cells = 0;
    int free = 0;
    int taken = 0;
};

} // namespace

TEST_P(ModelAndPlan, agreeOnWhatHoldsARoom)
{
    const int wanted = judgedCells() / 4; // each is asked of the plan twice, and of the model
    for (unsigned seed = 1; cells < wanted && !HasFailure(); ++seed) {
        SCOPED_TRACE(testing::Message() << "seed " << seed);
        TestDatabase tables(GetParam());
        const RandomTimetable random(tables, seed);
        for (int period = 1; period <= 2 && !HasFailure(); ++period) {
            BothWays ways(tables, period);
            comparePeriod(ways, random.rooms());
        }
    }
    // The comparison is worth something only if there is something to compare.
    EXPECT_GT(taken, cells / 20);
    EXPECT_GT(free, cells / 20);
}

TEMPORA_ON_BOTH_DATABASES(ModelAndPlan);
