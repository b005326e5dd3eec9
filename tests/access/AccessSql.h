#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

namespace test
{

/// What the documentation of Access says of its SQL, as far as a text can be held to it.
class AccessSql
{
public:
    /// `names`: the tables and columns that there are.
    explicit AccessSql(const QStringList& names);

    /// What Access would not take in the statement, each with the piece concerned; empty where
    /// nothing is found. Looked for: a semicolon; comments; a date that is no literal like
    /// #03/15/07#; a text between double quotes, or with a backslash for a sign of its own; an
    /// operator that Access has another word for; brackets around a name that needs none, or none
    /// around one that does; a word that is neither Access's nor a name.
    [[nodiscard]] QStringList faultsOf(const QString& statement) const;

private:
    [[nodiscard]] QString faultOf(const QString& piece) const;
    [[nodiscard]] QString faultOfWord(const QString& word) const;
    [[nodiscard]] QString faultOfBracketed(const QString& name) const;

    QSet<QString> m_names; ///< in lower case
};

} // namespace test
