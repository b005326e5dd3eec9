#pragma once

#include "absences/AbsenceRecords.h"
#include "db/Database.h"
#include "db/MatchMasks.h"
#include "db/RefusedTable.h"
#include "plan/AbsenceSource.h"

#include <QDate>
#include <QPair>
#include <QSet>
#include <QString>
#include <QStringList>
#include <map>
#include <optional>
#include <vector>

namespace absences
{

/// Answers a refresh's questions about absences from one statement for the whole page. The
/// database itself says which record is about which class and time. What it could not fetch, was
/// not told of, or fetched before the user toggled an absence in the middle of the refresh, it
/// leaves to the plain tests.
class PageAbsences : public plan::AbsenceSource
{
public:
    /// Both outlive this one.
    PageAbsences(db::Database& database, AbsenceRecords& plain)
        : m_database(database), m_plain(plain)
    {
    }

    void prepare(const plan::AbsenceQuestions& questions) override;
    [[nodiscard]] bool Existe_AbsClasse(const plan::Marqueur& marker,
                                        const QString& className) override;
    [[nodiscard]] bool Existe_AbsEtud(const plan::Marqueur& marker, const QString& className,
                                      const QString& name) override;

private:
    using Recorded = QSet<QPair<QString, QString>>; ///< class, start time

    [[nodiscard]] bool isPrepared(const plan::Marqueur& marker, const QString& className) const;
    [[nodiscard]] QString query(int kind) const;
    void fetch(const std::vector<int>& kinds);
    void keep(const db::Row& row, int kind, Recorded& recorded) const;

    db::Database& m_database;
    AbsenceRecords& m_plain;
    int m_togglesBefore = 0; ///< the plain tests' count when the answers were fetched
    QDate m_date;
    QStringList m_classNames;
    QStringList m_starts;
    QSet<QString> m_classesAsked; ///< the same names, to find one among many
    std::optional<Recorded> m_classes;
    std::optional<Recorded> m_students;
    std::map<int, db::RefusedTable> m_tables; ///< whether they refuse whatever is asked
};

} // namespace absences
