#pragma once

#include "lookup/RowSource.h"

#include <QString>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace test
{

/// A row of `emplois`, `ratrap` or `examen` as the database would give it. Every column is there
/// and null unless it is set.
class Meeting
{
public:
    /// Class GC1 with Dupont in algebra, every week, from 8h00 on for 90 minutes.
    Meeting(const QString& room, const QString& seance);

    Meeting& set(const QString& column, const char* text)
    {
        return set(column, db::Value(QString::fromUtf8(text)));
    }
    Meeting& set(const QString& column, int number)
    {
        return set(column, db::Value(std::int64_t{number}));
    }
    Meeting& set(const QString& column, db::Value value);
    Meeting& null(const QString& column) { return set(column, db::Value()); }
    /// The table lacks the column.
    Meeting& without(const QString& column);

    [[nodiscard]] bool holds(const QString& column, const QString& text) const;
    [[nodiscard]] db::Row row() const;
    [[nodiscard]] db::Recordset recordset() const { return db::Recordset(columns(), {row()}); }

private:
    [[nodiscard]] std::shared_ptr<const db::Columns> columns() const;

    std::map<QString, db::Value> m_fields;
};

/// The timetable of a test, asked like a database, with exact comparisons. Records the questions.
class FakeRows : public lookup::RowSource
{
public:
    Meeting& emplois(const QString& room, const QString& seance)
    {
        return m_emplois.emplace_back(room, seance);
    }
    Meeting& ratrap(const QString& room, const QString& seance)
    {
        return m_ratrap.emplace_back(room, seance);
    }
    /// An exam of the week with this number.
    Meeting& examen(const QString& room, const QString& seance, const char* week)
    {
        return m_examen.emplace_back(room, seance).set("Semaine", week);
    }

    db::Recordset timetableRows(const lookup::RoomQuestion& question) override;
    int studentRows(const QString& className) override;
    db::Recordset classRows(const QString& className) override;
    void noteUnreadable(const runtime::RunTimeError& error) override { unreadable = error; }

    std::map<QString, int> students;
    std::map<QString, db::Value> capacities;
    /// What was asked about rooms, in order.
    std::vector<lookup::RoomQuestion> asked;
    /// Questions about timetable rows, or about classes, end in a database error.
    bool timetableFails = false;
    /// Runs before a question about timetable rows is answered; what it throws is the answer.
    std::function<void(const lookup::RoomQuestion&)> beforeAnswer;
    bool classesFail = false;
    /// What the lookup has told last of a row that does not say what its box shows.
    std::optional<runtime::RunTimeError> unreadable;

private:
    std::deque<Meeting> m_emplois; // references stay valid while it grows
    std::deque<Meeting> m_ratrap;
    std::deque<Meeting> m_examen;
};

} // namespace test
