#include "plan/PageRowSource.h"

#include "db/MatchMasks.h"
#include "runtime/RunTimeError.h"

#include <QSet>

namespace plan
{
namespace
{

QStringList plainLiterals(const QStringList& texts)
{
    QStringList plain;
    for (const QString& text : texts) {
        if (db::isPlainLiteral(text) && !plain.contains(text)) {
            plain << text;
        }
    }
    return plain;
}

QStringList equalities(const QString& column, const QStringList& texts)
{
    QStringList conditions;
    for (const QString& text : texts) {
        conditions << column + u'=' + u'\'' + text + u'\'';
    }
    return conditions;
}

db::Recordset joined(const db::Recordset& all, std::vector<db::Row> rows)
{
    return {all.columns(), std::move(rows)};
}

/// The distinct texts of a column; a table without the column has none.
void collect(const db::Recordset& rows, const QString& column, QSet<QString>& texts)
{
    for (const db::Row& row : rows.rows()) {
        runtime::skipOnError([&] { texts.insert(row.field(column).toText()); });
    }
}

} // namespace

PageFacts PageRowSource::prepare(const PageQuestions& questions)
{
    m_questions = questions;
    m_cells.clear();
    m_studentRows.clear();
    m_classRows.clear();
    fetchTimetable(questions, questions.table);
    if (questions.makeUps) {
        fetchTimetable(questions, RoomQuestion::Table::ratrap);
    }
    const PageFacts found = facts();
    fetchStudents(found.classNames);
    fetchClasses(found.classNames);
    return found;
}

void PageRowSource::fetchTimetable(const PageQuestions& questions, RoomQuestion::Table table)
{
    const QStringList rooms = plainLiterals(questions.rooms);
    const QStringList keys = plainLiterals(questions.seanceKeys);
    if (rooms.isEmpty() || keys.isEmpty()) {
        return;
    }
    QStringList roomConditions;
    for (const QString& room : rooms) {
        roomConditions << questions.question(table, room, {}).roomCondition();
    }
    const db::MatchMasks ofRooms(roomConditions);
    const db::MatchMasks ofSlots(equalities(QStringLiteral("Seance"), keys));
    const RoomQuestion page = questions.question(table, {}, {});
    runtime::skipOnError([&] {
        const db::Recordset found = m_database.Db().open(
            QStringLiteral("Select ") + ofRooms.selectList() + QStringLiteral(", ") +
            ofSlots.selectList() + QStringLiteral(", ") + page.tableName() +
            QStringLiteral(".* from ") + page.tableName() + QStringLiteral(" WHERE ") +
            ofRooms.anyOf() + QStringLiteral(" and ") + ofSlots.anyOf() +
            page.periodCondition(m_database.dialect()));
        QHash<Cell, std::vector<db::Row>> rowsOf;
        for (const db::Row& row : found.rows()) {
            for (const int room : ofRooms.matches(row, 0)) {
                for (const int key : ofSlots.matches(row, ofRooms.columnCount())) {
                    rowsOf[{rooms[room], keys[key]}].push_back(row);
                }
            }
        }
        Cells cells;
        std::vector<RoomQuestion> ordered;
        for (const QString& room : rooms) {
            for (const QString& key : keys) {
                std::vector<db::Row> rows = rowsOf.take({room, key});
                if (rows.size() > 1) {
                    ordered.push_back(questions.question(table, room, key));
                }
                cells.insert({room, key}, joined(found, std::move(rows)));
            }
        }
        fetchInOrder(ordered, cells);
        m_cells[table] = std::move(cells);
    });
}

/// Puts the questions again as one statement, each in the words of the plain one: so their rows
/// come in the plain statement's order.
void PageRowSource::fetchInOrder(const std::vector<RoomQuestion>& questions, Cells& cells)
{
    if (questions.empty()) {
        return;
    }
    QStringList parts;
    for (std::size_t index = 0; index < questions.size(); ++index) {
        const RoomQuestion& question = questions[index];
        parts << QStringLiteral("Select ") + QString::number(index) + QStringLiteral(", ") +
                     question.tableName() + QStringLiteral(".* from ") + question.tableName() +
                     QStringLiteral(" WHERE") + question.condition(m_database.dialect());
    }
    const db::Recordset found = m_database.Db().open(parts.join(QStringLiteral(" union all ")));
    std::vector<std::vector<db::Row>> rowsOf(questions.size());
    for (const db::Row& row : found.rows()) {
        rowsOf.at(static_cast<std::size_t>(row.field(0).toInt32())).push_back(row);
    }
    for (std::size_t index = 0; index < questions.size(); ++index) {
        cells.insert({questions[index].room, questions[index].seanceKey},
                     joined(found, std::move(rowsOf[index])));
    }
}

void PageRowSource::fetchStudents(const QStringList& classNames)
{
    const QStringList names = plainLiterals(classNames);
    if (names.isEmpty()) {
        return;
    }
    // Counted per spelling first: then only a few counts are compared with the names, not every
    // student.
    const db::MatchMasks of(equalities(QStringLiteral("v"), names));
    const db::MatchMasks wanted(equalities(QStringLiteral("classe"), names));
    runtime::skipOnError([&] {
        const db::Recordset counts = m_database.Db().open(
            QStringLiteral("Select ") + of.selectList() +
            QStringLiteral(", n from (Select classe as v, count(*) as n from etudiant WHERE ") +
            wanted.anyOf() + QStringLiteral(" group by classe) t"));
        QHash<QString, int> rows;
        for (const QString& name : names) {
            rows.insert(name, 0);
        }
        for (const db::Row& count : counts.rows()) {
            for (const int name : of.matches(count, 0)) {
                rows[names[name]] += count.field(of.columnCount()).toInt32();
            }
        }
        m_studentRows = std::move(rows);
    });
}

void PageRowSource::fetchClasses(const QStringList& classNames)
{
    const QStringList names = plainLiterals(classNames);
    if (names.isEmpty()) {
        return;
    }
    const db::MatchMasks of(equalities(QStringLiteral("Nom"), names));
    runtime::skipOnError([&] {
        const db::Recordset found =
            m_database.Db().open(QStringLiteral("select ") + of.selectList() +
                                 QStringLiteral(", classe.* from classe Where ") + of.anyOf());
        QHash<QString, std::vector<db::Row>> rowsOf;
        for (const db::Row& row : found.rows()) {
            for (const int name : of.matches(row, 0)) {
                rowsOf[names[name]].push_back(row);
            }
        }
        for (const QString& name : names) {
            std::vector<db::Row> rows = rowsOf.take(name);
            if (rows.size() <= 1) { // the order of several is the plain statement's to tell
                m_classRows.insert(name, joined(found, std::move(rows)));
            }
        }
    });
}

PageFacts PageRowSource::facts() const
{
    QSet<QString> classNames;
    QSet<QString> starts;
    for (const auto& [table, cells] : m_cells) {
        for (const db::Recordset& rows : cells) {
            collect(rows, QStringLiteral("Classe"), classNames);
            collect(rows, QStringLiteral("Debut"), starts);
        }
    }
    PageFacts facts{classNames.values(), starts.values()};
    facts.classNames.sort(); // the same page makes the same statements
    facts.starts.sort();
    return facts;
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
