#pragma once

#include "db/Database.h"
#include "plan/RowSource.h"

#include <QHash>
#include <QPair>
#include <map>

namespace plan
{

/// Fetches what a page is going to ask with a few statements whose number depends neither on the
/// rooms, nor the slots, nor the boxes, and answers from what came back. Made for servers that are
/// far away: there every statement costs a journey.
///
/// No answer differs from the plain source's. The database itself says which row answers which
/// question, by the very conditions that the plain statements have. Where several rows answer one
/// question their order matters; these questions are put once more, each in the plain statement's
/// own words, all joined into one. What cannot be fetched is left to the plain source.
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
    using Cell = QPair<QString, QString>; ///< room, slot key
    using Cells = QHash<Cell, db::Recordset>;

    void fetchTimetable(const PageQuestions& questions, RoomQuestion::Table table);
    void fetchInOrder(const std::vector<RoomQuestion>& questions, Cells& cells);
    void fetchStudents(const QStringList& classNames);
    void fetchClasses(const QStringList& classNames);
    [[nodiscard]] PageFacts facts() const;

    db::Database& m_database;
    RowSource& m_plain;
    PageQuestions m_questions;
    std::map<RoomQuestion::Table, Cells> m_cells;
    QHash<QString, int> m_studentRows;
    QHash<QString, db::Recordset> m_classRows;
};

} // namespace plan
