#pragma once

#include "setup/Findings.h"
#include "setup/Source.h"
#include "shell/Settings.h"

#include <QString>
#include <vector>

namespace setup
{

/// A setting that serves most schools better than its default, for somebody to accept or not.
struct Recommendation {
    QString key;
    QString value;    ///< where it is accepted
    QString refused;  ///< where it is not: the default, or what has been set before
    QString label;    ///< in French
    QString sentence; ///< why, in French
    bool isProposed = true;
};

/// What is proposed for a database with these findings. `styles`: the folder of the palettes that
/// ship with the program. Apostrophes are proposed where names have them, or where they have been
/// accepted before. What has been set otherwise before is proposed no more, and stays where
/// the proposal is not accepted.
[[nodiscard]] std::vector<Recommendation> recommendationsFor(const Findings& findings,
                                                             const QString& styles,
                                                             const shell::Settings& settings);

/// Whether two values of a setting mean the same: "1" and "True" do.
[[nodiscard]] bool meanTheSame(const QString& one, const QString& other);

} // namespace setup
