#include "lookup/PageRowSource.h"

#include "db/MatchMasks.h"
#include "lookup/ClassStatements.h"
#include "runtime/RunTimeError.h"
#include "timetable/MeetingColumns.h"
#include "timetable/SchoolColumns.h"

#include <QSet>
#include <optional>

namespace lookup
{

namespace column = timetable::column;
namespace table = timetable::table;

namespace
{

/// Texts in the order in which they came, each once: the same page makes the same statements.
class DistinctTexts
{
public:
    /// Adds the text of a row's column; a table without the column, or a null, adds nothing.
    void collect(const db::Row& row, const QString& column)
    {
        runtime::skipOnError([&] {
            const QString text = row.field(column).toText();
            const qsizetype known = m_known.size();
            m_known.insert(text);
            if (m_known.size() > known) {
                m_texts << text;
            }
        });
    }

    [[nodiscard]] const QStringList& texts() const { return m_texts; }

private:
    QSet<QString> m_known;
    QStringList m_texts;
};

/// Names that several groups bear: not every type of column groups by what its values look like.
QSet<QString> namesOfSeveral(const db::Recordset& groups)
{
    QSet<QString> known;
    QSet<QString> several;
    for (const db::Row& group : groups.rows()) {
        const QString name = group.field(0).toText();
        (known.contains(name) ? several : known).insert(name);
    }
    return several;
}

/// Whether it does not matter which of the rows comes first.
bool haveOneCapacity(const db::Recordset& rows)
{
    bool same = true;
    runtime::skipOnError([&] { // without the column there is none at all
        for (const db::Row& row : rows.rows()) {
            same = same && row.field(column::kCapacite) == rows.first().field(column::kCapacite);
        }
    });
    return same;
}

/// The wanted names that are not among the answers so far.
template <typename Answers>
QStringList unanswered(QStringList wanted, const Answers& answers)
{
    wanted.removeIf([&answers](const QString& name) { return answers.contains(name); });
    return wanted;
}

} // namespace

PageFacts PageRowSource::prepare(const PageQuestions& questions)
{
    m_questions = questions;
    m_cells.clear();
    m_studentRows.clear();
    m_classRows.clear();
    m_tables.clear();
    m_students = {};
    m_classes = {};
    fetchTimetable();
    const QStringList classNames = m_database.dialect().held(allClasses());
    if (!classNames.isEmpty()) {
        if (!db::skipWhenRefused([&] { fetchStudents(classNames); })) {
            m_students.suspect();
        }
        if (!db::skipWhenRefused([&] { fetchClasses(classNames); })) {
            m_classes.suspect();
        }
    }
    return facts();
}

void PageRowSource::fetchTimetable()
{
    const QStringList rooms = m_database.dialect().held(m_questions.rooms);
    const QStringList keys = m_database.dialect().held(m_questions.seanceKeys);
    if (rooms.isEmpty() || keys.isEmpty()) {
        return;
    }
    std::vector<RoomQuestion> pages{m_questions.question(m_questions.table, {}, {})};
    if (m_questions.makeUps) {
        pages.push_back(m_questions.question(RoomQuestion::Table::ratrap, {}, {}));
    }
    m_cells = fetchPageCells(m_database, pages, rooms, keys);
    for (const RoomQuestion& page : pages) {
        if (!m_cells.contains(page.table)) {
            m_tables[page.table].suspect();
        }
    }
}

void PageRowSource::fetchStudents(const QStringList& classNames)
{
    // The database groups the spellings that it takes for equal. A name that comes back as it is
    // spelt here equals that group and no other.
    const db::Recordset groups = m_database.Db().open(
        QStringLiteral("Select ") + column::kClasseOfStudent +
        QStringLiteral(" as v, count(*) as n from ") + table::kEtudiant +
        QStringLiteral(" WHERE ") +
        db::MatchMasks(column::kClasseOfStudent, classNames, m_database.dialect()).anyOf() +
        QStringLiteral(" group by ") + column::kClasseOfStudent);
    QHash<QString, int> rows;
    rows.reserve(classNames.size());
    for (const db::Row& group : groups.rows()) {
        rows.insert(group.field(0).toText(), group.field(1).toInt32());
    }
    for (const QString& name : namesOfSeveral(groups)) {
        rows.remove(name);
    }
    const QStringList others = unanswered(classNames, rows);
    QStringList statements;
    for (const QString& name : others) {
        statements << QStringLiteral("count(*) as n") + fromStudentsOf(name, m_database.dialect());
    }
    const std::vector<db::Recordset> counts = m_database.Db().openJoined(statements);
    for (std::size_t index = 0; index < counts.size(); ++index) {
        rows.insert(others[static_cast<qsizetype>(index)],
                    counts[index].first().field(1).toInt32());
    }
    m_studentRows = std::move(rows);
}

void PageRowSource::fetchClasses(const QStringList& classNames)
{
    // A group of one row has that row's capacity for its least one.
    const db::Recordset groups = m_database.Db().open(
        QStringLiteral("select ") + column::kNom + QStringLiteral(" as v, count(*) as n, min(") +
        column::kCapacite + QStringLiteral(") as ") + column::kCapacite + QStringLiteral(" from ") +
        table::kClasseTable + QStringLiteral(" Where ") +
        db::MatchMasks(column::kNom, classNames, m_database.dialect()).anyOf() +
        QStringLiteral(" group by ") + column::kNom);
    m_classRows.reserve(classNames.size());
    for (const db::Row& group : groups.rows()) {
        if (group.field(1).toInt32() == 1) {
            m_classRows.insert(group.field(0).toText(), db::Recordset(groups.columns(), {group}));
        }
    }
    for (const QString& name : namesOfSeveral(groups)) {
        m_classRows.remove(name);
    }
    const QStringList others = unanswered(classNames, m_classRows);
    QStringList statements;
    for (const QString& name : others) {
        statements << table::kClasseTable + QStringLiteral(".*") +
                          fromClass(name, m_database.dialect());
    }
    const std::vector<db::Recordset> found = m_database.Db().openJoined(statements);
    const bool inOrder = m_database.Db().joinedRowOrder() == db::RowOrder::Same;
    for (std::size_t index = 0; index < found.size(); ++index) {
        if (inOrder || haveOneCapacity(found[index])) {
            m_classRows.insert(others[static_cast<qsizetype>(index)], found[index]);
        }
    }
}

QStringList PageRowSource::allClasses() const
{
    DistinctTexts names;
    for (const auto& [table, cells] : m_cells) {
        cells.forTaken([&names](const db::Recordset& rows) {
            for (const db::Row& row : rows.rows()) {
                names.collect(row, column::kClasse);
            }
        });
    }
    return names.texts();
}

/// A box's markers are about the first class of its list: that of the first row or, when the box
/// lists neither classes nor teachers, of the last.
PageFacts PageRowSource::facts() const
{
    DistinctTexts names;
    DistinctTexts starts;
    for (const auto& [table, cells] : m_cells) {
        cells.forTaken([&](const db::Recordset& rows) {
            names.collect(m_questions.listsOccupants ? rows.first() : rows.rows().back(),
                          column::kClasse);
            starts.collect(rows.first(), column::kDebut);
        });
    }
    return {names.texts(), starts.texts()};
}

db::Recordset PageRowSource::timetableRows(const RoomQuestion& question)
{
    const auto cells = m_cells.find(question.table);
    const bool prepared =
        cells != m_cells.end() &&
        question == m_questions.question(question.table, question.room, question.seanceKey);
    if (prepared) {
        const std::optional<db::Recordset> rows =
            cells->second.find(question.room, question.seanceKey);
        if (rows) {
            return *rows;
        }
    }
    return m_tables[question.table].ask(m_database.dialect().holds(question.room),
                                        [&] { return m_plain.timetableRows(question); });
}

int PageRowSource::studentRows(const QString& className)
{
    const auto rows = m_studentRows.constFind(className);
    if (rows != m_studentRows.constEnd()) {
        return *rows;
    }
    return m_students.ask(m_database.dialect().holds(className),
                          [&] { return m_plain.studentRows(className); });
}

db::Recordset PageRowSource::classRows(const QString& className)
{
    const auto rows = m_classRows.constFind(className);
    if (rows != m_classRows.constEnd()) {
        return *rows;
    }
    return m_classes.ask(m_database.dialect().holds(className),
                         [&] { return m_plain.classRows(className); });
}

} // namespace lookup
