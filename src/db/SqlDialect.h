#pragma once

#include <QDate>
#include <QString>

namespace db
{

/// How a date is written into SQL text for the database kind in use.
class SqlDialect
{
public:
    /// That of MySQL, else that of Access; the setting "Mysql" chooses, as long as no driver has
    /// told which product it leads to.
    explicit SqlDialect(bool useMySql) : m_useMySql(useMySql) {}

    /// "#" for Access, "'" for MySQL.
    [[nodiscard]] QString SqlDateDelimiter() const;
    /// "mm/dd/yy" for Access, "yyyy/mm/dd" for MySQL.
    [[nodiscard]] QString SqlDateFormat() const;
    /// The date as text in `SqlDateFormat`, without delimiters: 03/15/07 or 2007/03/15.
    [[nodiscard]] QString dateText(QDate date) const;
    /// The date between its delimiters: #03/15/07# or '2007/03/15'.
    [[nodiscard]] QString dateLiteral(QDate date) const;

private:
    bool m_useMySql;
};

} // namespace db
