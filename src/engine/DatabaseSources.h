#pragma once

#include "absences/AbsenceRecords.h"
#include "absences/PageAbsences.h"
#include "db/Database.h"
#include "lookup/PageRowSource.h"
#include "lookup/PlainRowSource.h"

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

    /// `plain`: one statement for each question.
    [[nodiscard]] lookup::RowSource& rows(bool plain)
    {
        return plain ? static_cast<lookup::RowSource&>(m_plainRows) : m_pageRows;
    }
    [[nodiscard]] plan::AbsenceSource& absences(bool plain)
    {
        return plain ? static_cast<plan::AbsenceSource&>(m_records) : m_pageAbsences;
    }
    [[nodiscard]] absences::AbsenceRecords& records() { return m_records; }

private:
    lookup::PlainRowSource m_plainRows;
    lookup::PageRowSource m_pageRows;
    absences::AbsenceRecords m_records;
    absences::PageAbsences m_pageAbsences;
};

} // namespace engine
