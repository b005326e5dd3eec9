#include "demo/Inserts.h"

#include <algorithm>
#include <stdexcept>

namespace demo
{
namespace
{

// Well below the megabytes that a server takes in one statement.
constexpr qsizetype statementLength = 100'000;

QString quotedText(QString text, Flavour flavour)
{
    if (flavour == Flavour::MariaDb) {
        text.replace('\\', "\\\\"); // an escape character to that server only
    }
    text.replace('\'', "''");
    return "'" + text + "'";
}

void appendLiteral(QString& statement, const Field& field, Flavour flavour)
{
    if (const int* number = std::get_if<int>(&field)) {
        statement += QString::number(*number);
    } else if (const QString* text = std::get_if<QString>(&field)) {
        statement += quotedText(*text, flavour);
    } else if (const QDate* date = std::get_if<QDate>(&field)) {
        statement += "'" + date->toString(Qt::ISODate) + "'";
    } else {
        statement += QLatin1String("NULL");
    }
}

} // namespace

Inserts::Inserts(Flavour flavour, StatementSink sink) : m_flavour(flavour), m_sink(std::move(sink))
{
}

void Inserts::begin(const QString& table)
{
    const auto found = std::find_if(tables().begin(), tables().end(),
                                    [&](const Table& one) { return one.name == table; });
    if (found == tables().end()) {
        throw std::logic_error("no such table: " + table.toStdString());
    }
    QStringList columns;
    for (const Column& column : found->columns) {
        columns.append(quotedName(column.name, m_flavour));
    }
    m_table = table;
    m_statement =
        "INSERT INTO " + quotedName(table, m_flavour) + " (" + columns.join(", ") + ") VALUES\n";
}

void Inserts::add(const QString& table, const std::vector<Field>& row)
{
    if (m_table != table || m_statement.size() > statementLength) {
        flush();
    }
    if (m_statement.isEmpty()) {
        begin(table);
        m_statement += "(";
    } else {
        m_statement += ",\n(";
    }
    bool first = true;
    for (const Field& field : row) {
        if (!first) {
            m_statement += QLatin1String(", ");
        }
        first = false;
        appendLiteral(m_statement, field, m_flavour);
    }
    m_statement += ")";
}

void Inserts::flush()
{
    if (!m_statement.isEmpty()) {
        m_sink(m_statement);
        m_statement.clear();
    }
}

} // namespace demo
