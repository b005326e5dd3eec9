#pragma once

#include "support/TestDatabase.h"

#include <QDate>
#include <QHash>
#include <QString>
#include <QStringList>
#include <array>
#include <optional>
#include <vector>

namespace test
{

/// A day of a question: of the teaching weeks, or a date.
struct AskedDay {
    int day = 0;     ///< 0 to 6; a date's own
    QDate date;      ///< no valid date for the teaching weeks
    char week = '*'; ///< 'A', 'B', or '*' for both
};

/// "Which rooms are free then?"
struct AskedRooms {
    std::vector<AskedDay> days;
    int from = 0; ///< minutes since midnight
    int to = 0;
    int places = 0;
    std::optional<int> zone;
    std::optional<QString> department;
};

/// A row's part as it holds a room.
struct BookedPart {
    QString kind; ///< course, makeup or exam
    int row = 0;
    QString part; ///< A, A2, B or B2
    char week = '*';
    int day = -1;
    QDate date; ///< of what is no course
    std::optional<int> start;
    int minutes = 0;
};

/// Free rooms by the minute: the rows as the database's own client reads them, the rooms that they
/// name as the database joins them, and for each room and question every minute of the day either
/// held or not. Shares nothing with the program.
class MinuteBook
{
public:
    MinuteBook(const TestDatabase& database, int period);

    /// A room in one line: "free R1 480-570", "taken R1 by course A 480+90 *; ...", "unknown R1".
    /// Sorted.
    [[nodiscard]] QStringList answer(const AskedRooms& asked) const;

    /// Rooms by the database's order have rising ranks; equal names have one.
    [[nodiscard]] int rank(const QString& room) const { return m_rooms.at(place(room)).rank; }
    [[nodiscard]] int places(const QString& room) const { return m_rooms.at(place(room)).places; }
    /// The names of all rooms.
    [[nodiscard]] QStringList rooms() const;
    /// Whether a room can meet what is asked, places aside.
    [[nodiscard]] bool hasRooms(const AskedRooms& asked) const;
    /// Whether the period has a course at all.
    [[nodiscard]] bool hasCourses() const { return m_hasCourses; }

    /// Whether the date lies in the period.
    [[nodiscard]] bool teaches(QDate date) const { return date >= m_firstDay && date <= m_lastDay; }
    /// When the slot of a day begins; nothing where nobody knows.
    [[nodiscard]] std::optional<int> slotStart(int day, int number) const;
    /// The first day of an exam week, 1 to 3.
    [[nodiscard]] QDate examMonday(int week) const;

    // What texts mean; nothing for what cannot be read.
    [[nodiscard]] static std::optional<int> timeOf(const QString& text);
    /// 90 for what cannot be read.
    [[nodiscard]] static int lengthOf(const QString& text);

    /// A line of an answer.
    [[nodiscard]] static QString freeLine(const QString& room, int from, int to);
    [[nodiscard]] static QString takenLine(const QString& room, QStringList holders);
    [[nodiscard]] static QString unknownLine(const QString& room);
    [[nodiscard]] static QString holderWords(const QString& kind, const QString& part, int start,
                                             int minutes, char week);

private:
    struct BookedRoom {
        QString name;
        int places = 0;
        std::optional<int> zone;
        std::optional<QString> department;
        int rank = 0;
        std::vector<BookedPart> parts;
    };
    struct BookedSlot {
        int number = 0;
        std::optional<int> start;
        std::optional<int> end;
    };
    struct Key {
        int day = -1;
        int number = 0;
    };

    [[nodiscard]] QList<QStringList> readIfThere(const QString& query) const;
    void readRooms();
    void readSlots();
    void readCalendar(int period);
    void readMeetings(const QString& table, const QString& kind, int period);
    void nameRooms(const QString& table, const QString& column, int period,
                   const QHash<int, BookedPart>& rows);
    [[nodiscard]] Key keyOf(const QString& text) const;
    [[nodiscard]] std::size_t place(const QString& room) const;
    [[nodiscard]] const std::vector<BookedSlot>& slotsOf(int day) const;
    [[nodiscard]] bool meets(const BookedRoom& room, const AskedRooms& asked) const;
    [[nodiscard]] bool isOn(const BookedPart& part, const AskedDay& day) const;
    [[nodiscard]] QString line(const BookedRoom& room, const AskedRooms& asked) const;

    const TestDatabase& m_database;
    std::vector<BookedRoom> m_rooms;
    QHash<int, std::size_t> m_roomOfRow; ///< by the row of the room table
    QHash<QString, std::size_t> m_placeOfName;
    std::array<std::vector<BookedSlot>, 7> m_slots;
    QDate m_firstDay;
    QDate m_lastDay;
    std::array<QDate, 3> m_examMondays;
    QHash<int, bool> m_alternates; ///< by the row of `emplois`
    bool m_hasCourses = false;
};

} // namespace test
