#include "plan/WatchedAbsences.h"

namespace plan
{

void WatchedAbsences::prepare(const AbsenceQuestions& questions)
{
    runtime::skipOnError([&] { m_reads.ask({}, [&] { m_source.prepare(questions); }); });
}

bool WatchedAbsences::Existe_AbsClasse(const Marqueur& marker, const QString& className)
{
    return m_reads.ask({className, marker.Debut},
                       [&] { return m_source.Existe_AbsClasse(marker, className); });
}

bool WatchedAbsences::Existe_AbsEtud(const Marqueur& marker, const QString& className,
                                     const QString& name)
{
    return m_reads.ask({className, name, marker.Debut},
                       [&] { return m_source.Existe_AbsEtud(marker, className, name); });
}

} // namespace plan
