#include "timetable/TimetableReader.h"

#include "runtime/RunTimeError.h"
#include "timetable/EqualNames.h"
#include "timetable/MeetingRows.h"
#include "timetable/SchoolColumns.h"
#include "timetable/TimetableBuilder.h"

#include <QStringList>

namespace timetable
{
namespace
{

using runtime::ErrorNumber;
using runtime::RunTimeError;

/// A field of a row; null where the row has no such column.
db::Value fieldOf(const db::Row& row, const QString& column)
{
    db::Value value;
    runtime::skipOnError([&] { value = row.field(column); });
    return value;
}

db::Value fieldAt(const db::Row& row, int place)
{
    db::Value value;
    runtime::skipOnError([&] { value = row.field(place); });
    return value;
}

std::optional<int> numberOf(const db::Value& value)
{
    std::optional<int> number;
    runtime::skipOnError([&] { number = value.toInt32(); });
    return number;
}

QDate dateOf(const db::Value& value)
{
    QDate date;
    if (value.isNull()) {
        return date;
    }
    runtime::skipOnError([&] { date = value.toDate(); });
    return date;
}

/// A null text has a null view, any other none.
class FieldText
{
public:
    explicit FieldText(const db::Value& value)
        : m_text(value.toJoinedText()), m_isNull(value.isNull())
    {
    }
    [[nodiscard]] QStringView view() const
    {
        return m_isNull ? QStringView() : m_text.isEmpty() ? QStringView(u"") : m_text;
    }

private:
    QString m_text;
    bool m_isNull;
};

Room roomOf(const db::Row& row)
{
    Room room;
    room.name = fieldOf(row, column::kNom).toJoinedText();
    room.zone = numberOf(fieldOf(row, column::kZone));
    const db::Value department = fieldOf(row, column::kDepartement);
    if (!department.isNull()) {
        room.department = department.toText();
    }
    room.places = numberOf(fieldOf(row, column::kPlaces)).value_or(0);
    return room;
}

/// Hands the rows of one table on to the builder.
class Forwarding : public MeetingTaker
{
public:
    Forwarding(TimetableBuilder& builder, MeetingKind kind) : m_builder(builder), m_kind(kind) {}
    void expect(std::size_t rows) override { m_builder.expectMeetings(rows); }
    void take(const MeetingTexts& texts) override { m_builder.addMeeting(m_kind, texts); }

private:
    TimetableBuilder& m_builder;
    MeetingKind m_kind;
};

/// Reads the tables one after the other into a builder.
class Reader
{
public:
    Reader(db::Connection& connection, std::int32_t period)
        : m_connection(connection), m_period(period)
    {
    }

    [[nodiscard]] Timetable read();

private:
    void readRooms();
    void readSlots();
    [[nodiscard]] std::optional<Period> readPeriod();
    [[nodiscard]] std::optional<ExamWeeks> readExamWeeks();
    void readExamDates(const std::optional<Period>& period);
    void readMeetings(MeetingKind kind);
    void readStudents();
    void readCapacities();

    /// Runs `read`; a table that the database refuses to read, or that lacks a column without which
    /// it says nothing, is noted, and told by false.
    template <typename Read>
    bool unlessRefused(SqlName table, Read read)
    {
        try {
            read();
            return true;
        } catch (const RunTimeError& error) {
            if (error.number() != ErrorNumber::TableMissing &&
                error.number() != ErrorNumber::StatementRefused &&
                error.number() != ErrorNumber::ItemNotFound) {
                throw;
            }
            m_builder.addUnread({table, error.text()});
            return false;
        }
    }

    [[nodiscard]] QString ofPeriod() const
    {
        return QStringLiteral(" where ") + column::kTranche + QStringLiteral(" =") +
               QString::number(m_period);
    }

    db::Connection& m_connection;
    std::int32_t m_period;
    TimetableBuilder m_builder;
    bool m_triesPacked = true;
};

Timetable Reader::read()
{
    runtime::during(QStringLiteral("Lecture des salles (table « salle »)"), [&] { readRooms(); });
    runtime::during(QStringLiteral("Lecture des séances (table « seances »)"),
                    [&] { readSlots(); });
    const std::optional<Period> period = runtime::during(
        QStringLiteral("Lecture des périodes (table « tranche »)"), [&] { return readPeriod(); });
    if (period) {
        m_builder.setPeriod(*period);
    }
    readExamDates(period);
    runtime::during(QStringLiteral("Lecture de l’emploi du temps (table « emplois »)"),
                    [&] { readMeetings(MeetingKind::Course); });
    unlessRefused(table::kRatrap, [&] { readMeetings(MeetingKind::MakeUp); });
    unlessRefused(table::kExamen, [&] { readMeetings(MeetingKind::Exam); });
    readStudents();
    readCapacities();
    return std::move(m_builder).build([this](const std::vector<NameQuestion>& questions) {
        return askEqualNames(m_connection, questions);
    });
}

void Reader::readRooms()
{
    const db::Recordset rooms = m_connection.open(QStringLiteral("select * from ") + table::kSalle +
                                                  QStringLiteral(" order by ") + column::kNom);
    for (const db::Row& row : rooms.rows()) {
        m_builder.addRoom(roomOf(row));
    }
}

void Reader::readSlots()
{
    const db::Recordset slots =
        m_connection.open(QStringLiteral("select * from ") + table::kSeances);
    for (const db::Row& row : slots.rows()) {
        m_builder.addSlot(FieldText(fieldOf(row, column::kSeance)).view(),
                          FieldText(fieldOf(row, column::kHoraire1)).view(),
                          FieldText(fieldOf(row, column::kHoraire2)).view());
    }
}

std::optional<Period> Reader::readPeriod()
{
    const db::Recordset periods =
        m_connection.open(QStringLiteral("select * from ") + table::kTrancheTable);
    for (const db::Row& row : periods.rows()) {
        if (numberOf(fieldAt(row, position::kPeriodIdent)) == m_period) {
            return Period{m_period, fieldAt(row, position::kPeriodName).toJoinedText(),
                          dateOf(fieldAt(row, position::kFirstDay)),
                          dateOf(fieldAt(row, position::kLastDay))};
        }
    }
    return std::nullopt;
}

std::optional<ExamWeeks> Reader::readExamWeeks()
{
    const db::Recordset found =
        m_connection.open(QStringLiteral("select * from ") + table::kDatExam + ofPeriod());
    if (found.isEmpty()) {
        return std::nullopt;
    }
    ExamWeeks weeks;
    int place = position::kFirstExamWeek;
    for (QDate& firstDay : weeks.firstDays) {
        firstDay = dateOf(fieldAt(found.first(), place++));
    }
    return weeks;
}

/// A period without exam weeks of its own has the usual ones; one whose exam weeks cannot be read
/// has none.
void Reader::readExamDates(const std::optional<Period>& period)
{
    unlessRefused(table::kDatExam, [&] {
        const std::optional<ExamWeeks> own = readExamWeeks();
        if (own) {
            m_builder.setExamWeeks(*own);
        } else if (period) {
            m_builder.setExamWeeks(ExamWeeks::usualOf(*period));
        }
    });
}

void Reader::readMeetings(MeetingKind kind)
{
    const std::size_t before = m_builder.meetingCount();
    Forwarding taker(m_builder, kind);
    MeetingRows rows(m_connection, m_period, kind);
    // What did not work for one table is not tried with the next: the number of statements has a
    // limit.
    m_triesPacked = m_triesPacked && rows.readPacked(taker);
    if (!m_triesPacked) {
        m_builder.keepMeetings(before);
        rows.readAll(taker);
    }
}

void Reader::readStudents()
{
    const bool isRead = unlessRefused(table::kEtudiant, [&] {
        const QString name = column::kClasseOfStudent;
        const db::Recordset groups = m_connection.open(
            QStringLiteral("select ") + name + QStringLiteral(", count(*) from ") +
            table::kEtudiant + QStringLiteral(" group by ") + name);
        for (const db::Row& group : groups.rows()) {
            if (!group.field(0).isNull()) {
                m_builder.sizes().addStudents(group.field(0).toText(), group.field(1).toInt32());
            }
        }
    });
    if (!isRead) {
        m_builder.sizes().leaveStudentsUnknown();
    }
}

void Reader::readCapacities()
{
    const bool isRead = unlessRefused(table::kClasseTable, [&] {
        const db::Recordset classes =
            m_connection.open(QStringLiteral("select * from ") + table::kClasseTable);
        for (const db::Row& row : classes.rows()) {
            const db::Value name = fieldOf(row, column::kNom);
            if (!name.isNull()) {
                m_builder.sizes().addCapacity(
                    name.toText(), numberOf(fieldOf(row, column::kCapacite)).value_or(0));
            }
        }
    });
    if (!isRead) {
        m_builder.sizes().leaveCapacitiesUnknown();
    }
}

} // namespace

Timetable readTimetable(db::Connection& connection, std::int32_t period)
{
    return Reader(connection, period).read();
}

} // namespace timetable
