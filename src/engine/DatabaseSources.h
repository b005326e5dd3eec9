#pragma once

#include "absences/AbsenceRecords.h"
#include "absences/PageAbsences.h"
#include "db/Database.h"
#include "lookup/PageRowSource.h"
#include "lookup/PlainRowSource.h"
#include "plan/PlanRefresh.h"

namespace engine
{

/// Those who answer a plan's questions from the database: one statement for each question, or a few
/// for a whole page.
class DatabaseSources
{
public:
    /// The database outlives the sources.
    explicit DatabaseSources(db::Database& database)
        : m_plainRows(database), m_pageRows(database, m_plainRows), m_records(database),
          m_pageAbsences(database, m_records)
    {
    }
    DatabaseSources(const DatabaseSources&) = delete; // its parts refer to one another
    DatabaseSources& operator=(const DatabaseSources&) = delete;

    [[nodiscard]] plan::PlanRefresh::Sources oneByOne() { return {m_plainRows, m_records}; }
    [[nodiscard]] plan::PlanRefresh::Sources ahead() { return {m_pageRows, m_pageAbsences}; }
    [[nodiscard]] absences::AbsenceRecords& records() { return m_records; }

private:
    lookup::PlainRowSource m_plainRows;
    lookup::PageRowSource m_pageRows;
    absences::AbsenceRecords m_records;
    absences::PageAbsences m_pageAbsences;
};

} // namespace engine
