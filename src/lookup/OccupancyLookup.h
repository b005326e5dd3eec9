#pragma once

#include "lookup/CellText.h"
#include "lookup/RoomCell.h"
#include "lookup/RowSource.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <optional>

namespace lookup
{

/// Which day is looked at, and in which table.
struct ViewedDay {
    bool exam = false;    ///< exam mode: the exams of `examWeek`, else the weekly timetable
    int examWeek = 1;     ///< 1 to 3
    bool makeUps = false; ///< "Date": free slots are asked about again among the make-ups
    QDate date;           ///< of the make-ups: the picked one

    friend bool operator==(const ViewedDay&, const ViewedDay&) = default;
};

/// All that a lookup depends on beside the room and the slot, as values.
struct View {
    ViewedDay day;
    DisplayOptions options;
    /// With the subject filter on: the subject; boxes that do not name it are blanked.
    std::optional<QString> subject;
    SeanceTypeShortNames typeNames;
    /// Of the hour ticks, as the database would write them: they stand in where a row has no start
    /// of its own.
    QStringList tickTimes;

    friend bool operator==(const View&, const View&) = default;
};

/// Answers what occupies a room in a slot. No error stops it and none is reported: a step that
/// fails is left out, so the plan stays up whatever one odd row holds. Where the very question got
/// no answer, or nothing is left of its answer's text, the cell is unknown.
class OccupancyLookup
{
public:
    /// `source` outlives the lookup.
    OccupancyLookup(RowSource& source, View view);

    /// Tells the source what a page is going to ask.
    PageFacts prepare(const QStringList& rooms, const QStringList& seanceKeys,
                      const QString& tranche);

    /// What is in the room; a cell without a text is free. `MakeUp` asks for the make-up classes of
    /// the viewed date. Nothing for make-ups in exam mode: exams have none, so nothing is asked.
    [[nodiscard]] std::optional<RoomCell> RoomOccupancy(const QString& Room,
                                                        const QString& SeanceKey,
                                                        const QString& Tranche, bool MakeUp);

private:
    /// Nothing where the question got no answer.
    [[nodiscard]] std::optional<db::Recordset>
    findRows(const QString& room, const QString& seanceKey, const QString& tranche, bool makeUp);
    [[nodiscard]] RoomCell cellOf(const db::Recordset& rows, const QString& room,
                                  const QString& seanceKey);
    void keepFacts(RoomCell& cell, const db::Recordset& rows, const QString& room) const;
    void keepOneClass(RoomCell& cell, const db::Row& row);
    void keepClasses(RoomCell& cell, const db::Recordset& rows);
    static void keepTime(RoomCell& cell, const db::Row& row);
    void addSizes(RoomCell& cell, const db::Row& row);
    void filterBySubject(RoomCell& cell) const;

    RowSource& m_source;
    View m_view;
};

} // namespace lookup
