#include "support/Timetable.h"

#include "demo/Schema.h"

#include <stdexcept>
#include <utility>

namespace test
{

Field::Field(QString name, const QString& text)
    : column(std::move(name)), literal(u'\'' + QString(text).replace("'", "''") + u'\'')
{
}

Field::Field(QString name, int number) : column(std::move(name)), literal(QString::number(number))
{
}

Field::Field(QString name, QDate date) : Field(std::move(name), date.toString(Qt::ISODate)) {}

Field::Field(QString name, std::nullptr_t) : column(std::move(name)), literal("NULL") {}

Timetable::Timetable(TestDatabase& database, const QStringList& tables) : m_database(database)
{
    if (!database.usesMySql()) {
        m_statements.append("PRAGMA synchronous=OFF"); // nothing that a test writes must last
    }
    const auto flavour = database.usesMySql() ? demo::Flavour::MariaDb : demo::Flavour::Sqlite;
    const QStringList creations = demo::schemaStatements(flavour);
    qsizetype found = 0;
    for (std::size_t index = 0; index < demo::tables().size(); ++index) {
        if (tables.isEmpty() || tables.contains(demo::tables()[index].name)) {
            m_statements.append(creations[static_cast<qsizetype>(index)]);
            ++found;
        }
    }
    if (!tables.isEmpty() && found != tables.size()) {
        throw std::logic_error("a test asks for a table that there is none of");
    }
}

Timetable& Timetable::row(const QString& table, const Fields& fields)
{
    QStringList columns;
    QStringList literals;
    for (const Field& field : fields) {
        columns.append(u'`' + field.column + u'`');
        literals.append(field.literal);
    }
    return statement("INSERT INTO `" + table + "` (" + columns.join(", ") + ") VALUES (" +
                     literals.join(", ") + ")");
}

Timetable& Timetable::statement(const QString& sql)
{
    m_statements.append(sql);
    return *this;
}

void Timetable::load()
{
    m_database.execute(std::exchange(m_statements, {}));
}

} // namespace test
