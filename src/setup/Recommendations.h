#pragma once

#include "setup/Findings.h"
#include "setup/Source.h"

#include <QString>
#include <vector>

namespace setup
{

/// A setting that serves most schools better than its default, for somebody to accept or not.
struct Recommendation {
    QString key;
    QString value;    ///< where it is accepted
    QString refused;  ///< where it is not: the default
    QString label;    ///< in French
    QString sentence; ///< why, in French
    bool isProposed = true;
};

/// What is proposed for a database with these findings. `styles`: the folder of the palettes that
/// ship with the program.
[[nodiscard]] std::vector<Recommendation> recommendationsFor(const Findings& findings,
                                                             const QString& styles);

} // namespace setup
