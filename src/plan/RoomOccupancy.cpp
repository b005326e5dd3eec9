#include "plan/RoomOccupancy.h"

#include "plan/ClassSizes.h"
#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"

#include <optional>

namespace plan
{
namespace
{

using runtime::skipOnError;

constexpr QLatin1String kLineEnd("\r\n");

void keepText(QString& text, const db::Row& row, const QString& column)
{
    skipOnError([&] { text = row.field(column).toText(); });
}

} // namespace

OccupancyLookup::OccupancyLookup(const form::PlanForm& form, RowSource& source,
                                 const CellLayout& layout, const SeanceTypeShortNames& typeNames)
    : m_form(form), m_source(source), m_layout(layout), m_typeNames(typeNames)
{
}

PageFacts OccupancyLookup::prepare(const QStringList& rooms, const QStringList& seanceKeys,
                                   const QString& tranche)
{
    PageQuestions questions;
    questions.rooms = rooms;
    questions.seanceKeys = seanceKeys;
    questions.tranche = tranche;
    questions.listsOccupants = m_form.XOpCl.isChecked() || m_form.XOpEns.isChecked();
    if (m_form.OpEns.isSelected()) {
        questions.makeUps = m_form.Check2.isChecked();
        questions.date = m_form.DTPicker1.value();
    } else {
        questions.table = RoomQuestion::Table::examen;
        questions.examWeek = m_form.Semn.caption;
    }
    return m_source.prepare(questions);
}

QString OccupancyLookup::RoomOccupancy(const QString& Room, const QString& SeanceKey,
                                       const QString& Tranche, bool MakeUp)
{
    if (MakeUp && m_form.OpExam.isSelected()) {
        return {}; // there are no make-up exams; what the last lookup left stays
    }
    m_cell = RoomCell();
    const db::Recordset rows = findRows(Room, SeanceKey, Tranche, MakeUp);
    if (rows.isEmpty()) {
        return {};
    }
    m_cell.CellDuration = QStringLiteral("90");
    skipOnError([&] {
        const std::int16_t index = SlotIndex(SeanceKey);
        if (index >= 0 && index < form::PlanForm::kTicks) {
            m_cell.CellStart = m_form.Label1[static_cast<std::size_t>(index)].caption;
        }
    });
    m_cell.CellText = composeCellText(
        rows.first(), Room, DisplayOptions::from(m_form, m_layout.CellSeparator), m_typeNames);
    keepFacts(rows, Room);
    if (rows.recordCount() == 1) {
        keepOneClass(rows.first());
    } else {
        keepClasses(rows);
    }
    filterBySubject();
    return m_cell.CellText;
}

db::Recordset OccupancyLookup::findRows(const QString& room, const QString& seanceKey,
                                        const QString& tranche, bool makeUp)
{
    RoomQuestion question;
    question.room = room;
    question.seanceKey = seanceKey;
    question.tranche = tranche;
    if (!m_form.OpEns.isSelected()) {
        question.table = RoomQuestion::Table::examen;
        question.examWeek = m_form.Semn.caption;
    } else if (makeUp) {
        question.table = RoomQuestion::Table::ratrap;
        question.date = m_form.DTPicker1.value();
    }
    db::Recordset rows;
    skipOnError([&] { rows = m_source.timetableRows(question); });
    return rows;
}

void OccupancyLookup::keepFacts(const db::Recordset& rows, const QString& room)
{
    const db::Row& row = rows.first();
    skipOnError([&] { m_cell.CellRowCount = runtime::nearestInt16(rows.recordCount()); });
    keepText(m_cell.CellStart, row, QStringLiteral("Debut"));
    keepText(m_cell.CellDuration, row, QStringLiteral("Durée"));
    keepText(m_cell.CellTeacher, row,
             m_form.OpEns.isSelected() ? QStringLiteral("Enseignant1") : QStringLiteral("Resp1"));
    keepText(m_cell.CellSubject, row, QStringLiteral("matière"));
    skipOnError([&] { m_cell.CellCommon = row.field(QStringLiteral("Commune")).toBoolean(); });
    keepText(m_cell.CellTypeA, row, QStringLiteral("TypeS1"));
    // The third B type is the one that an absence record carries on.
    keepText(m_cell.CellTypeB, row, QStringLiteral("TypeS3B"));
    keepText(m_cell.CellSeance, row, QStringLiteral("Seance"));
    m_cell.CellRoom = room;
    keepText(m_cell.CellWeekNature, row, QStringLiteral("newnature"));
}

void OccupancyLookup::keepOneClass(const db::Row& row)
{
    skipOnError([&] {
        const db::Value className = row.field(QStringLiteral("Classe"));
        // A single class ends with a line break where several are only joined by one: the
        // counter's details then open with a line of their own.
        m_cell.CellClasses = className.toJoinedText() + kLineEnd;
        m_cell.CellClassList = className.toJoinedText();
    });
    addSizes(row);
}

void OccupancyLookup::keepClasses(const db::Recordset& rows)
{
    for (const db::Row& row : rows.rows()) {
        QString className;
        keepText(className, row, QStringLiteral("Classe"));
        QString line = m_form.XOpCl.isChecked() ? className : QString();
        if (m_form.XOpEns.isChecked()) {
            skipOnError([&] {
                const QString teacher = row.field(QStringLiteral("Enseignant1")).toJoinedText();
                if (!line.isEmpty()) {
                    line += u'\t';
                }
                line += teacher;
            });
        }
        if (m_cell.CellClasses.isEmpty()) {
            m_cell.CellClasses = line;
            m_cell.CellClassList = className;
        } else {
            m_cell.CellClasses += kLineEnd;
            m_cell.CellClasses += line;
            m_cell.CellClassList += u'\t';
            m_cell.CellClassList += className;
        }
        addSizes(row);
    }
}

void OccupancyLookup::addSizes(const db::Row& row)
{
    std::optional<QString> className; // a class without a name counts, a null does not
    skipOnError([&] { className = row.field(QStringLiteral("Classe")).toText(); });
    if (!className) {
        return;
    }
    skipOnError([&] {
        m_cell.CellStudents =
            runtime::addInt16(m_cell.CellStudents, StudentCount(m_source, *className));
    });
    skipOnError([&] {
        m_cell.CellCapacity =
            runtime::addInt16(m_cell.CellCapacity, ClassCapacity(m_source, *className));
    });
}

void OccupancyLookup::filterBySubject()
{
    if (!m_form.Check1.isChecked()) {
        return;
    }
    QString& text = m_cell.CellText;
    if (text.isEmpty() || !text.contains(m_form.Cb_Mat.text())) {
        m_cell.CellRowCount = 1;
        text.clear();
        m_cell.CellStart.clear();
        m_cell.CellDuration.clear();
        m_cell.CellClasses.clear();
        return;
    }
    const qsizetype opening = text.indexOf(u'[');
    const qsizetype closing = text.indexOf(u']');
    if (opening >= 0 && closing >= 0) {
        text = text.left(opening) + text.mid(closing + 1);
    }
}

} // namespace plan
