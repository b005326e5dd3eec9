#pragma once

#include <QString>
#include <QStringList>

namespace app
{

/// What the command line of tempora-setup asks for.
struct SetupLine {
    bool help = false;
    bool version = false;
    QString settingsFile; ///< in the place of the user's settings; empty without one

    /// `arguments` starts with the program's name. Error: shell::UsageError.
    [[nodiscard]] static SetupLine parse(const QStringList& arguments);
    /// The text of --help.
    [[nodiscard]] static QString helpText();
};

} // namespace app
