#pragma once

#include "db/Database.h"
#include "judge/MinuteBook.h"
#include "lookup/PlainRowSource.h"
#include "lookup/RoomCell.h"
#include "lookup/RoomQuestion.h"

#include <QHash>
#include <QString>
#include <vector>

namespace test
{

/// What the plan's own lookup shows in rooms, as hours of a day: a box from its start, or else its
/// slot's, for its length, or else 90 minutes. Each slot of a day is asked once, in the plain way.
class ShownHours
{
public:
    /// The book tells when slots begin and exam weeks are; it must outlive this.
    ShownHours(const TestDatabase& tables, int period, const MinuteBook& book);

    /// The text of a box that stands in the room at that time, or at nobody knows what time of the
    /// day; empty where there is none. With a date its make-ups and exams count as well. Empty,
    /// too, for a room without a name and for one that a plain statement cannot ask about.
    [[nodiscard]] QString textAt(const QString& room, const AskedDay& day, int from, int to);

    /// How many boxes were found.
    [[nodiscard]] long long count() const { return m_count; }

private:
    struct Box {
        QString text;
        std::optional<int> start;
        int minutes = 0;
    };
    using Boxes = std::vector<Box>;

    [[nodiscard]] const Boxes& boxes(const QString& room, const AskedDay& day);
    void add(Boxes& boxes, lookup::RoomQuestion::Table table, const QString& room,
             const AskedDay& day, int slot, int examWeek);
    void addExams(Boxes& boxes, const QString& room, const AskedDay& day, int slot);

    db::Database m_database;
    lookup::PlainRowSource m_rows;
    QString m_period;
    const MinuteBook& m_book;
    QHash<QString, Boxes> m_boxes;
    long long m_count = 0;
};

} // namespace test
