#include "plan/PageRowSource.h"

#include "db/MatchMasks.h"
#include "runtime/RunTimeError.h"

#include <QSet>
#include <algorithm>

namespace plan
{
namespace
{

// Statements that may be joined into one: the embedded database takes 500.
constexpr qsizetype kMostJoined = 450;

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

/// The room and the slot of every row, told by masks in front of its columns.
class CellMasks
{
public:
    CellMasks(RoomQuestion::Table table, const QStringList& rooms, const QStringList& keys)
        : m_keys(QStringLiteral("Seance"), keys)
    {
        for (const QString& column : RoomQuestion::roomColumns(table)) {
            QStringList names = rooms;
            if (column != u"Salle") {
                names.removeAll(QString()); // without a name only `Salle` is asked about
            }
            m_rooms.emplace_back(column, names);
        }
    }

    [[nodiscard]] QString selectList() const
    {
        QStringList lists{m_keys.selectList(QStringLiteral("tempora_k"))};
        for (std::size_t column = 0; column < m_rooms.size(); ++column) {
            if (m_rooms[column].columnCount() > 0) {
                lists << m_rooms[column].selectList(QStringLiteral("tempora_r%1_").arg(column));
            }
        }
        return lists.join(QStringLiteral(", "));
    }

    [[nodiscard]] QString condition() const
    {
        QStringList rooms;
        for (const db::MatchMasks& column : m_rooms) {
            rooms << column.anyOf();
        }
        return u'(' + rooms.join(QStringLiteral(" or ")) + QStringLiteral(") and ") +
               m_keys.anyOf();
    }

    /// Calls `take` for every cell that the row belongs to, once each.
    template <typename Take>
    void forCells(const db::Row& row, Take take) const
    {
        QSet<QString> rooms;
        int first = m_keys.columnCount();
        for (const db::MatchMasks& column : m_rooms) {
            for (const int room : column.matches(row, first)) {
                rooms.insert(column.texts()[room]);
            }
            first += column.columnCount();
        }
        for (const int key : m_keys.matches(row, 0)) {
            for (const QString& room : rooms) {
                take(room, m_keys.texts()[key]);
            }
        }
    }

private:
    db::MatchMasks m_keys;
    std::vector<db::MatchMasks> m_rooms;
};

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
        runtime::skipOnError([&] { m_cells[table] = fetchCells(table, rooms, keys); });
    }
}

PageRowSource::Cells PageRowSource::fetchCells(RoomQuestion::Table table, const QStringList& rooms,
                                               const QStringList& keys)
{
    const CellMasks masks(table, rooms, keys);
    const RoomQuestion page = m_questions.question(table, {}, {});
    const db::Recordset found = m_database.Db().open(
        QStringLiteral("Select ") + masks.selectList() + QStringLiteral(", ") + page.tableName() +
        QStringLiteral(".* from ") + page.tableName() + QStringLiteral(" WHERE ") +
        masks.condition() + page.periodCondition(m_database.dialect()));
    QHash<Cell, std::vector<db::Row>> rowsOf;
    for (const db::Row& row : found.rows()) {
        masks.forCells(row, [&](const QString& room, const QString& key) {
            rowsOf[{room, key}].push_back(row);
        });
    }
    Cells cells;
    std::vector<RoomQuestion> several;
    for (const QString& room : rooms) {
        for (const QString& key : keys) {
            std::vector<db::Row> rows = rowsOf.take({room, key});
            if (rows.size() > 1) {
                several.push_back(m_questions.question(table, room, key));
            } else {
                cells.insert({room, key}, db::Recordset(found.columns(), std::move(rows)));
            }
        }
    }
    fetchInOrder(several, cells);
    return cells;
}

/// Puts the questions again, each in the words of the plain statement: so their rows come in that
/// statement's order.
void PageRowSource::fetchInOrder(const std::vector<RoomQuestion>& questions, Cells& cells)
{
    QStringList statements;
    for (const RoomQuestion& question : questions) {
        statements << question.tableName() + QStringLiteral(".* from ") + question.tableName() +
                          QStringLiteral(" WHERE") + question.condition(m_database.dialect());
    }
    db::Recordset all;
    std::vector<std::vector<db::Row>> rowsOf = openJoined(statements, all);
    for (std::size_t index = 0; index < rowsOf.size(); ++index) {
        cells.insert({questions[index].room, questions[index].seanceKey},
                     db::Recordset(all.columns(), std::move(rowsOf[index])));
    }
}

/// Opens statements (without their "Select") as one; the rows of each, as far as so many can be
/// joined.
std::vector<std::vector<db::Row>> PageRowSource::openJoined(const QStringList& statements,
                                                            db::Recordset& all)
{
    const qsizetype count = std::min(statements.size(), kMostJoined);
    std::vector<std::vector<db::Row>> rowsOf(static_cast<std::size_t>(count));
    if (count == 0) {
        return rowsOf;
    }
    QStringList parts;
    for (qsizetype index = 0; index < count; ++index) {
        parts << QStringLiteral("Select ") + QString::number(index) +
                     QStringLiteral(" as tempora_i, ") + statements[index];
    }
    all = m_database.Db().open(parts.join(QStringLiteral(" union all ")));
    for (const db::Row& row : all.rows()) {
        rowsOf.at(static_cast<std::size_t>(row.field(0).toInt32())).push_back(row);
    }
    return rowsOf;
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
    db::Recordset all;
    const auto countOf = openJoined(statements, all);
    for (std::size_t index = 0; index < countOf.size(); ++index) {
        rows.insert(others[static_cast<qsizetype>(index)],
                    countOf[index].front().field(1).toInt32());
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
    db::Recordset all;
    std::vector<std::vector<db::Row>> rowsOf = openJoined(statements, all);
    for (std::size_t index = 0; index < rowsOf.size(); ++index) {
        m_classRows.insert(others[static_cast<qsizetype>(index)],
                           db::Recordset(all.columns(), std::move(rowsOf[index])));
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
                collect(rows.first(), QStringLiteral("Classe"), names);
                collect(rows.rows().back(), QStringLiteral("Classe"), names);
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
