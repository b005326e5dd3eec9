#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

namespace db
{

/// How dates and texts are written into SQL for the database kind in use.
class SqlDialect
{
public:
    /// What is done with the quotes within a text.
    enum class Quotes {
        AsTheyStand, ///< nothing: a name with an apostrophe cannot be asked about
        Doubled,     ///< every text means itself, and none can change a statement
    };

    /// That of MySQL, else that of Access; the setting "Mysql" chooses, as long as no driver has
    /// told which product it leads to.
    explicit SqlDialect(bool useMySql, Quotes quotes = Quotes::AsTheyStand)
        : m_useMySql(useMySql), m_backslashEscapes(useMySql), m_quotes(quotes)
    {
    }
    /// That of MySQL, with the same treatment of quotes. `backslashEscapes`: whether the server
    /// takes a backslash within a literal for the beginning of another character.
    [[nodiscard]] SqlDialect ofMySql(bool backslashEscapes) const;
    /// That of a product without such backslashes.
    [[nodiscard]] SqlDialect withoutBackslashes() const;

    /// "#" for Access, "'" for MySQL.
    [[nodiscard]] QString SqlDateDelimiter() const;
    /// "mm/dd/yy" for Access, "yyyy/mm/dd" for MySQL.
    [[nodiscard]] QString SqlDateFormat() const;
    /// The date as text in `SqlDateFormat`, without delimiters: 03/15/07 or 2007/03/15.
    [[nodiscard]] QString dateText(QDate date) const;
    /// The date between its delimiters: #03/15/07# or '2007/03/15'.
    [[nodiscard]] QString dateLiteral(QDate date) const;

    /// The text between its quotes: 'L1', and 'l''oral' where quotes are doubled.
    [[nodiscard]] QString literal(const QString& text) const;
    /// Whether the literal means the text: no quote ends it, no backslash hides one, no null
    /// character cuts it off.
    [[nodiscard]] bool holds(const QString& text) const;
    /// Whether the literal is one literal, whatever it means: quotes within it stand in pairs, and
    /// no backslash hides the last one.
    [[nodiscard]] bool isOneLiteral(const QString& text) const;
    /// The texts whose literals are one literal, each once, in their order.
    [[nodiscard]] QStringList askable(const QStringList& texts) const;
    /// Whether whatever compares a column with the literal is certain to be refused: a quote ends
    /// it early, and what follows is a word that continues no condition on any product, as in
    /// "Salle d'informatique".
    [[nodiscard]] bool isRefused(const QString& text) const;

private:
    [[nodiscard]] qsizetype endOfLiteral(const QString& text) const;

    bool m_useMySql;
    bool m_backslashEscapes;
    Quotes m_quotes;
};

} // namespace db
