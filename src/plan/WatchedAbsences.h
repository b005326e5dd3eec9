#pragma once

#include "lookup/PageReads.h"
#include "plan/AbsenceSource.h"

namespace plan
{

/// Answers as another source of absences does, and tells the page what got no answer.
class WatchedAbsences : public AbsenceSource
{
public:
    /// Both outlive this source.
    WatchedAbsences(AbsenceSource& source, lookup::PageReads& reads)
        : m_source(source), m_reads(reads)
    {
    }

    /// Raises no error: it is noted.
    void prepare(const AbsenceQuestions& questions) override;
    [[nodiscard]] bool Existe_AbsClasse(const Marqueur& marker, const QString& className) override;
    [[nodiscard]] bool Existe_AbsEtud(const Marqueur& marker, const QString& className,
                                      const QString& name) override;

private:
    AbsenceSource& m_source;
    lookup::PageReads& m_reads;
};

} // namespace plan
