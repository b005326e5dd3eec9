#include "lookup/OccupancyLookup.h"

#include "lookup/ClassSizes.h"
#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"
#include "timetable/MeetingColumns.h"
#include "timetable/ReadTimes.h"

#include <optional>
#include <utility>

namespace lookup
{
namespace
{

namespace column = timetable::column;

using runtime::skipOnError;

constexpr QLatin1String kLineEnd("\r\n");

void keepText(QString& text, const db::Row& row, const QString& column)
{
    skipOnError([&] { text = row.field(column).toText(); });
}

} // namespace

OccupancyLookup::OccupancyLookup(RowSource& source, View view)
    : m_source(source), m_view(std::move(view))
{
}

PageFacts OccupancyLookup::prepare(const QStringList& rooms, const QStringList& seanceKeys,
                                   const QString& tranche)
{
    PageQuestions questions;
    questions.rooms = rooms;
    questions.seanceKeys = seanceKeys;
    questions.tranche = tranche;
    questions.listsOccupants = m_view.options.showClass || m_view.options.showTeachers;
    if (m_view.day.exam) {
        questions.table = RoomQuestion::Table::examen;
        questions.examWeek = QString::number(m_view.day.examWeek);
    } else {
        questions.makeUps = m_view.day.makeUps;
        questions.date = m_view.day.date;
    }
    return m_source.prepare(questions);
}

std::optional<RoomCell> OccupancyLookup::RoomOccupancy(const QString& Room,
                                                       const QString& SeanceKey,
                                                       const QString& Tranche, bool MakeUp)
{
    if (MakeUp && m_view.day.exam) {
        return std::nullopt;
    }
    const std::optional<db::Recordset> rows = findRows(Room, SeanceKey, Tranche, MakeUp);
    if (!rows || rows->isEmpty()) {
        RoomCell cell;
        cell.isUnknown = !rows;
        return cell;
    }
    return cellOf(*rows, Room, SeanceKey);
}

std::optional<db::Recordset> OccupancyLookup::findRows(const QString& room,
                                                       const QString& seanceKey,
                                                       const QString& tranche, bool makeUp)
{
    RoomQuestion question;
    question.room = room;
    question.seanceKey = seanceKey;
    question.tranche = tranche;
    if (m_view.day.exam) {
        question.table = RoomQuestion::Table::examen;
        question.examWeek = QString::number(m_view.day.examWeek);
    } else if (makeUp) {
        question.table = RoomQuestion::Table::ratrap;
        question.date = m_view.day.date;
    }
    std::optional<db::Recordset> rows;
    skipOnError([&] { rows = m_source.timetableRows(question); });
    return rows;
}

/// The cell that at least one row tells of.
RoomCell OccupancyLookup::cellOf(const db::Recordset& rows, const QString& room,
                                 const QString& seanceKey)
{
    RoomCell cell;
    cell.CellDuration = QString::number(timetable::kUsualLength.value);
    skipOnError([&] { cell.CellStart = m_view.tickTimes.value(SlotIndex(seanceKey)); });
    std::optional<MissingStep> missing;
    const ComposedText composed =
        composeCellText(rows.first(), room, m_view.options, m_view.typeNames, missing);
    cell.CellText = composed.text;
    cell.week = composed.week;
    const bool hadText = !cell.CellText.isEmpty();
    keepFacts(cell, rows, room);
    if (rows.recordCount() == 1) {
        keepOneClass(cell, rows.first());
    } else {
        keepClasses(cell, rows);
    }
    filterBySubject(cell);
    // The room looks free: because of what is there, or because of what could not be read?
    if (cell.CellText.isEmpty() && missing && (!hadText || missing->isSubject)) {
        cell.isUnknown = true;
        m_source.noteUnreadable(
            {missing->error.number(),
             missing->error.text() + QStringLiteral(" (") + missing->column + u')'});
    }
    return cell;
}

void OccupancyLookup::keepFacts(RoomCell& cell, const db::Recordset& rows,
                                const QString& room) const
{
    const db::Row& row = rows.first();
    skipOnError([&] { cell.CellRowCount = runtime::nearestInt16(rows.recordCount()); });
    keepText(cell.CellStart, row, column::kDebut);
    keepText(cell.CellDuration, row, column::kDuree);
    keepText(cell.CellTeacher, row, m_view.day.exam ? column::kResp1 : column::kEnseignant1);
    keepText(cell.CellSubject, row, column::kMatiere);
    skipOnError([&] { cell.CellCommon = row.field(column::kCommune).toBoolean(); });
    keepText(cell.CellTypeA, row, column::kTypeS1);
    // The third B type is the one that an absence record carries on.
    keepText(cell.CellTypeB, row, column::kTypeS3B);
    keepText(cell.CellSeance, row, column::kSeance);
    cell.CellRoom = room;
    keepText(cell.CellWeekNature, row, column::kNewNature);
}

void OccupancyLookup::keepOneClass(RoomCell& cell, const db::Row& row)
{
    skipOnError([&] {
        const db::Value className = row.field(column::kClasse);
        // A single class ends with a line break where several are only joined by one: the
        // counter's details then open with a line of their own.
        cell.CellClasses = className.toJoinedText() + kLineEnd;
        cell.CellClassList = className.toJoinedText();
    });
    addSizes(cell, row);
}

void OccupancyLookup::keepClasses(RoomCell& cell, const db::Recordset& rows)
{
    for (const db::Row& row : rows.rows()) {
        QString className;
        keepText(className, row, column::kClasse);
        QString line = m_view.options.showClass ? className : QString();
        if (m_view.options.showTeachers) {
            skipOnError([&] {
                const QString teacher = row.field(column::kEnseignant1).toJoinedText();
                if (!line.isEmpty()) {
                    line += u'\t';
                }
                line += teacher;
            });
        }
        if (cell.CellClasses.isEmpty()) {
            cell.CellClasses = line;
            cell.CellClassList = className;
        } else {
            cell.CellClasses += kLineEnd;
            cell.CellClasses += line;
            cell.CellClassList += u'\t';
            cell.CellClassList += className;
        }
        addSizes(cell, row);
        keepTime(cell, row);
    }
}

void OccupancyLookup::keepTime(RoomCell& cell, const db::Row& row)
{
    CellTime time;
    keepText(time.start, row, column::kDebut);
    keepText(time.duration, row, column::kDuree);
    if (time != CellTime{cell.CellStart, cell.CellDuration}) {
        cell.otherTimes.push_back(time);
    }
}

void OccupancyLookup::addSizes(RoomCell& cell, const db::Row& row)
{
    std::optional<QString> className; // a class without a name counts, a null does not
    skipOnError([&] { className = row.field(column::kClasse).toText(); });
    if (!className) {
        return;
    }
    skipOnError([&] {
        cell.CellStudents =
            runtime::addInt16(cell.CellStudents, StudentCount(m_source, *className));
    });
    skipOnError([&] {
        cell.CellCapacity =
            runtime::addInt16(cell.CellCapacity, ClassCapacity(m_source, *className));
    });
}

void OccupancyLookup::filterBySubject(RoomCell& cell) const
{
    if (!m_view.subject) {
        return;
    }
    QString& text = cell.CellText;
    if (text.isEmpty() || !text.contains(*m_view.subject)) {
        cell.CellRowCount = 1;
        text.clear();
        cell.CellStart.clear();
        cell.CellDuration.clear();
        cell.CellClasses.clear();
        return;
    }
    const qsizetype opening = text.indexOf(u'[');
    const qsizetype closing = text.indexOf(u']');
    if (opening >= 0 && closing >= 0) {
        text = text.left(opening) + text.mid(closing + 1);
    }
}

} // namespace lookup
