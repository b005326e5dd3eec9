#pragma once

#include "app/ErrorReport.h"
#include "runtime/RunTimeError.h"

#include <QString>
#include <optional>

namespace app
{

/// The program that chooses the database (tempora-setup), offered where the one that is set cannot
/// be opened.
class SetupOffer
{
public:
    /// `applicationFolder` holds that program; `settingsFile` is the one in place of the user's
    /// settings, or empty.
    SetupOffer(QString applicationFolder, QString settingsFile);

    /// A way out of a fault at start: starts the program and leaves it running. Nothing where it
    /// does not lie there, and for a fault that another database would not mend.
    [[nodiscard]] std::optional<WayOut> wayOutOf(const runtime::RunTimeError& fault) const;

private:
    QString m_program;
    QString m_settingsFile;
};

} // namespace app
