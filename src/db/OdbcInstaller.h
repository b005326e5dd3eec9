#pragma once

#include <QString>
#include <QStringList>

// The manager's own functions about drivers and data sources, in the texts of each system.
namespace db
{

[[nodiscard]] QStringList driversOfManager();
[[nodiscard]] QString profileOfManager(const QString& section, const QString& word);
/// An empty value takes the word away. False where it could not be written.
[[nodiscard]] bool writeProfile(const QString& section, const QString& word, const QString& value);
/// Makes the data source known to the user alone, with its driver. False where it could not be.
[[nodiscard]] bool registerSource(const QString& name, const QString& driver);
/// What the manager says of the last failure.
[[nodiscard]] QString installerFault();
/// The file in which the manager keeps the user's data sources; empty where that is none.
[[nodiscard]] QString usersFile();
/// Leaves a copy of what holds the user's data sources, where that is a file that has none so far,
/// and makes it its owner's alone: a password may come to stand in it.
void prepareUsersFile();

} // namespace db
