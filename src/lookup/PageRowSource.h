#pragma once

#include "db/Database.h"
#include "db/RefusedTable.h"
#include "lookup/PageCells.h"
#include "lookup/RowSource.h"

#include <QHash>
#include <map>

namespace lookup
{

/// Fetches what a page is going to ask with a few statements whose number depends neither on the
/// rooms, nor the slots, nor the boxes, and answers from what came back. Made for servers that are
/// far away: there every statement costs a journey.
///
/// No answer differs from the plain source's: the database itself says which row answers which
/// question, and how many students and places equal which class. What it does not say is asked for
/// once more, each in the plain statement's own words, all joined into one. What cannot be fetched
/// is left to the plain source; a table that refuses the page and then the first plain question,
/// too, is not asked any more, nor is a name whose statement is certain to be refused.
class PageRowSource : public RowSource
{
public:
    /// Both outlive this source.
    PageRowSource(db::Database& database, RowSource& plain) : m_database(database), m_plain(plain)
    {
    }

    PageFacts prepare(const PageQuestions& questions) override;
    [[nodiscard]] db::Recordset timetableRows(const RoomQuestion& question) override;
    [[nodiscard]] int studentRows(const QString& className) override;
    [[nodiscard]] db::Recordset classRows(const QString& className) override;

private:
    void fetchTimetable();
    void fetchClassFacts(const QStringList& classNames);
    void fetchStudents(const QStringList& classNames);
    void fetchClasses(const QStringList& classNames);
    void fetchClassesThatDiffer(const QStringList& classNames);
    void keepStudents(const QStringList& classNames, const std::vector<db::TextCount>& counts);
    void keepClasses(const QStringList& classNames, const std::vector<db::TextCount>& counts);
    [[nodiscard]] QStringList allClasses() const;
    [[nodiscard]] PageFacts facts() const;

    db::Database& m_database;
    RowSource& m_plain;
    PageQuestions m_questions;
    std::map<RoomQuestion::Table, PageCells> m_cells;
    QHash<QString, int> m_studentRows;
    QHash<QString, db::Recordset> m_classRows;
    /// Of the tables: whether they refuse whatever is asked.
    std::map<RoomQuestion::Table, db::RefusedTable> m_tables;
    db::RefusedTable m_students;
    db::RefusedTable m_classes;
};

} // namespace lookup
