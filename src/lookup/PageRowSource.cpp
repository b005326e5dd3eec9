#include "lookup/PageRowSource.h"

#include "lookup/ClassStatements.h"
#include "runtime/RunTimeError.h"
#include "timetable/MeetingColumns.h"
#include "timetable/SchoolColumns.h"

#include <QSet>
#include <memory>
#include <optional>

namespace lookup
{

namespace column = timetable::column;
namespace table = timetable::table;

namespace
{

using Counts = std::vector<std::vector<db::TextCount>>;

// What is asked about classes.

db::CountQuestion studentsQuestion()
{
    return {table::kEtudiant, column::kClasseOfStudent, {}};
}

db::CountQuestion classesQuestion()
{
    return {table::kClasseTable, column::kNom, column::kCapacite};
}

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

/// A class's rows, as far as they are asked about: none, or one that says what all of them say.
db::Recordset rowsOf(const db::TextCount& count)
{
    static const auto columns =
        std::make_shared<const db::Columns>(QStringList{QString(column::kCapacite)});
    return count.rows == 0 ? db::Recordset()
                           : db::Recordset(columns, {db::Row(columns, {count.value})});
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
    fetchClassFacts(m_database.dialect().askable(allClasses()));
    return facts();
}

void PageRowSource::fetchTimetable()
{
    const QStringList rooms = m_database.dialect().askable(m_questions.rooms);
    const QStringList keys = m_database.dialect().askable(m_questions.seanceKeys);
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

/// Students and capacities, by one statement. What it cannot bring is asked for in the plain
/// statements' own words, joined; what that cannot bring is left to the plain source.
void PageRowSource::fetchClassFacts(const QStringList& classNames)
{
    const bool atOnce = db::skipWhenRefused([&] {
        const Counts counts =
            m_database.Db().countTexts({studentsQuestion(), classesQuestion()}, classNames);
        keepStudents(classNames, counts[0]);
        keepClasses(classNames, counts[1]);
    });
    if (!atOnce) {
        fetchStudents(classNames);
        fetchClasses(classNames);
    }
    fetchClassesThatDiffer(unanswered(classNames, m_classRows));
}

void PageRowSource::fetchStudents(const QStringList& classNames)
{
    const auto inPlainWords = [&] {
        QStringList statements;
        for (const QString& name : classNames) {
            statements << QStringLiteral("count(*) as n") +
                              fromStudentsOf(name, m_database.dialect());
        }
        const std::vector<db::Recordset> found = m_database.Db().openJoined(statements);
        for (qsizetype index = 0; index < classNames.size(); ++index) {
            m_studentRows.insert(classNames[index],
                                 found[static_cast<std::size_t>(index)].first().field(1).toInt32());
        }
    };
    const auto byOneQuestion = [&] {
        keepStudents(classNames, m_database.Db().countTexts({studentsQuestion()}, classNames)[0]);
    };
    if (!db::skipWhenRefused(byOneQuestion) && !db::skipWhenRefused(inPlainWords)) {
        m_studentRows.clear();
        m_students.suspect();
    }
}

void PageRowSource::fetchClasses(const QStringList& classNames)
{
    db::skipWhenRefused([&] {
        keepClasses(classNames, m_database.Db().countTexts({classesQuestion()}, classNames)[0]);
    });
}

/// Classes whose rows differ: the plain question takes the first.
void PageRowSource::fetchClassesThatDiffer(const QStringList& classNames)
{
    QStringList statements;
    for (const QString& name : classNames) {
        statements << table::kClasseTable + QStringLiteral(".*") +
                          fromClass(name, m_database.dialect());
    }
    const bool fetched = db::skipWhenRefused([&] {
        const std::vector<db::Recordset> found = m_database.Db().openJoined(statements);
        const bool inOrder = m_database.Db().joinedRowOrder() == db::RowOrder::Same;
        for (std::size_t index = 0; index < found.size(); ++index) {
            if (inOrder || haveOneCapacity(found[index])) {
                m_classRows.insert(classNames[static_cast<qsizetype>(index)], found[index]);
            }
        }
    });
    if (!fetched) {
        m_classes.suspect();
    }
}

void PageRowSource::keepStudents(const QStringList& classNames,
                                 const std::vector<db::TextCount>& counts)
{
    for (std::size_t index = 0; index < counts.size(); ++index) {
        m_studentRows.insert(classNames[static_cast<qsizetype>(index)], counts[index].rows);
    }
}

void PageRowSource::keepClasses(const QStringList& classNames,
                                const std::vector<db::TextCount>& counts)
{
    for (std::size_t index = 0; index < counts.size(); ++index) {
        if (!counts[index].rowsDiffer) {
            m_classRows.insert(classNames[static_cast<qsizetype>(index)], rowsOf(counts[index]));
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
    if (question.room.isEmpty()) { // asks about `Salle` alone, whatever column refuses the others
        return m_plain.timetableRows(question);
    }
    const db::SqlDialect dialect = m_database.dialect();
    return m_tables[question.table].ask({{question.room, question.seanceKey},
                                         question.sql(dialect),
                                         {question.tranche, question.examWeek}},
                                        dialect, [&] { return m_plain.timetableRows(question); });
}

int PageRowSource::studentRows(const QString& className)
{
    const auto rows = m_studentRows.constFind(className);
    if (rows != m_studentRows.constEnd()) {
        return *rows;
    }
    const db::SqlDialect dialect = m_database.dialect();
    return m_students.ask({{className}, studentsSql(className, dialect), {}}, dialect,
                          [&] { return m_plain.studentRows(className); });
}

db::Recordset PageRowSource::classRows(const QString& className)
{
    const auto rows = m_classRows.constFind(className);
    if (rows != m_classRows.constEnd()) {
        return *rows;
    }
    const db::SqlDialect dialect = m_database.dialect();
    return m_classes.ask({{className}, classSql(className, dialect), {}}, dialect,
                         [&] { return m_plain.classRows(className); });
}

} // namespace lookup
