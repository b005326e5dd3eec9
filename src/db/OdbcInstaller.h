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
/// Before the user's data source of that name gives way: leaves a copy of what is there, unless one
/// is there already. Where data sources lie in a file, of the whole file, which it makes its
/// owner's alone, as a password may come to stand in it; elsewhere of this one source, under
/// another name.
void keepUsersSource(const QString& name);

/// What the name of a copy has behind that of what was copied.
inline constexpr QLatin1String kCopyEnding(".avant-tempora");

} // namespace db
