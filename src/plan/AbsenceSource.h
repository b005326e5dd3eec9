#pragma once

#include "plan/Marqueur.h"

#include <QDate>
#include <QString>
#include <QStringList>

namespace plan
{

/// Which absences a refresh is about to ask about: any of the classes at any of the times.
struct AbsenceQuestions {
    QDate date;
    QStringList classNames;
    QStringList starts;
};

/// Who knows what absences are recorded of the séance behind a box.
class AbsenceSource
{
public:
    virtual ~AbsenceSource() = default;

    /// Told of all questions of a page before the first is asked.
    /// Errors: those that concern all reads (db::concernsAllReads); nothing more need be asked.
    virtual void prepare(const AbsenceQuestions& /*questions*/) {}

    /// Whether a class absence is recorded for the class, the date and the start time.
    /// Error: any database error.
    [[nodiscard]] virtual bool Existe_AbsClasse(const Marqueur& marker,
                                                const QString& className) = 0;
    /// Whether a student absence is recorded for the class, the name, the date and the start time.
    /// Error: any database error.
    [[nodiscard]] virtual bool Existe_AbsEtud(const Marqueur& marker, const QString& className,
                                              const QString& name) = 0;
};

} // namespace plan
