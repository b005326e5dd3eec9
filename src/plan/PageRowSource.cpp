#include "plan/PageRowSource.h"

#include "db/MatchMasks.h"
#include "plan/JoinedQueries.h"
#include "runtime/RunTimeError.h"

#include <QSet>
#include <algorithm>

namespace plan
{
namespace
{

/// Adds the text of a row's column; a table without the column, or a null, adds nothing.
void collect(const db::Row& row, const QString& column, QSet<QString>& texts)
{
    runtime::skipOnError([&] { texts.insert(row.field(column).toText()); });
}

/// In a fixed order: the same page makes the same statements.
QStringList sorted(const QSet<QString>& texts)
{
    QStringList list = texts.values();
    list.sort();
    return list;
}

} // namespace

PageFacts PageRowSource::prepare(const PageQuestions& questions)
{
    m_questions = questions;
    m_cells.clear();
    m_studentRows.clear();
    m_classRows.clear();
    fetchTimetable(questions.table);
    if (questions.makeUps) {
        fetchTimetable(RoomQuestion::Table::ratrap);
    }
    const QStringList classNames = allClasses();
    if (!classNames.isEmpty()) {
        runtime::skipOnError([&] { fetchStudents(classNames); });
        runtime::skipOnError([&] { fetchClasses(classNames); });
    }
    return facts();
}

void PageRowSource::fetchTimetable(RoomQuestion::Table table)
{
    const QStringList rooms = db::plainLiterals(m_questions.rooms);
    const QStringList keys = db::plainLiterals(m_questions.seanceKeys);
    if (!rooms.isEmpty() && !keys.isEmpty()) {
        runtime::skipOnError([&] {
            m_cells[table] =
                fetchPageCells(m_database, m_questions.question(table, {}, {}), rooms, keys);
        });
    }
}

void PageRowSource::fetchStudents(const QStringList& classNames)
{
    // The database groups the spellings that it takes for equal. A name that comes back as it is
    // spelt here equals that group and no other.
    const db::MatchMasks wanted(QStringLiteral("classe"), db::plainLiterals(classNames));
    const db::Recordset groups = m_database.Db().open(
        QStringLiteral("Select classe as v, count(*) as n from etudiant WHERE ") + wanted.anyOf() +
        QStringLiteral(" group by classe"));
    QHash<QString, int> rows;
    for (const db::Row& group : groups.rows()) {
        rows.insert(group.field(0).toText(), group.field(1).toInt32());
    }
    QStringList others = wanted.texts();
    others.removeIf([&rows](const QString& name) { return rows.contains(name); });
    QStringList statements;
    for (const QString& name : others) {
        statements << QStringLiteral("count(*) as n from etudiant WHERE classe='") + name + u'\'';
    }
    const std::vector<db::Recordset> counts = openJoined(m_database.Db(), statements);
    for (std::size_t index = 0; index < counts.size(); ++index) {
        rows.insert(others[static_cast<qsizetype>(index)],
                    counts[index].first().field(1).toInt32());
    }
    for (const QString& name : wanted.texts()) {
        if (rows.contains(name)) {
            m_studentRows.insert(name, rows.value(name));
        }
    }
}

void PageRowSource::fetchClasses(const QStringList& classNames)
{
    const db::MatchMasks wanted(QStringLiteral("Nom"), db::plainLiterals(classNames));
    // A group of one row has that row's capacity for its least one.
    const db::Recordset groups = m_database.Db().open(
        QStringLiteral("select Nom as v, count(*) as n, min(Capacite) as Capacite from classe "
                       "Where ") +
        wanted.anyOf() + QStringLiteral(" group by Nom"));
    for (const db::Row& group : groups.rows()) {
        if (group.field(1).toInt32() == 1) {
            m_classRows.insert(group.field(0).toText(), db::Recordset(groups.columns(), {group}));
        }
    }
    QStringList others = wanted.texts();
    others.removeIf([this](const QString& name) { return m_classRows.contains(name); });
    QStringList statements;
    for (const QString& name : others) {
        statements << QStringLiteral("classe.* from classe Where Nom='") + name + u'\'';
    }
    const std::vector<db::Recordset> found = openJoined(m_database.Db(), statements);
    for (std::size_t index = 0; index < found.size(); ++index) {
        m_classRows.insert(others[static_cast<qsizetype>(index)], found[index]);
    }
}

QStringList PageRowSource::allClasses() const
{
    QSet<QString> names;
    for (const auto& [table, cells] : m_cells) {
        for (const db::Recordset& rows : cells) {
            for (const db::Row& row : rows.rows()) {
                collect(row, QStringLiteral("Classe"), names);
            }
        }
    }
    return sorted(names);
}

/// A box's markers are about the first class of its list: that of the first row or, when the box
/// lists neither classes nor teachers, of the last.
PageFacts PageRowSource::facts() const
{
    QSet<QString> names;
    QSet<QString> starts;
    for (const auto& [table, cells] : m_cells) {
        for (const db::Recordset& rows : cells) {
            if (!rows.isEmpty()) {
                collect(m_questions.listsOccupants ? rows.first() : rows.rows().back(),
                        QStringLiteral("Classe"), names);
                collect(rows.first(), QStringLiteral("Debut"), starts);
            }
        }
    }
    return {sorted(names), sorted(starts)};
}

db::Recordset PageRowSource::timetableRows(const RoomQuestion& question)
{
    const auto cells = m_cells.find(question.table);
    const bool prepared =
        cells != m_cells.end() &&
        question == m_questions.question(question.table, question.room, question.seanceKey);
    if (prepared) {
        const auto rows = cells->second.constFind({question.room, question.seanceKey});
        if (rows != cells->second.constEnd()) {
            return *rows;
        }
    }
    return m_plain.timetableRows(question);
}

int PageRowSource::studentRows(const QString& className)
{
    const auto rows = m_studentRows.constFind(className);
    return rows != m_studentRows.constEnd() ? *rows : m_plain.studentRows(className);
}

db::Recordset PageRowSource::classRows(const QString& className)
{
    const auto rows = m_classRows.constFind(className);
    return rows != m_classRows.constEnd() ? *rows : m_plain.classRows(className);
}

} // namespace plan
