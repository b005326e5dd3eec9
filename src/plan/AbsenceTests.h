#pragma once

#include "plan/Marqueur.h"
#include "plan/PageQuestions.h"

namespace plan
{

/// What a refresh asks about absences of the séance behind a box.
class AbsenceTests
{
public:
    virtual ~AbsenceTests() = default;

    /// Told of all questions of a page before the first is asked. Raises no error.
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
