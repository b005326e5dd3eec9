#pragma once

#include "demo/Schema.h"

#include <QDate>
#include <functional>
#include <variant>

namespace demo
{

/// One value of a row; nothing stands for null, numbers also for flags.
using Field = std::variant<std::monostate, int, QString, QDate>;

/// Takes SQL statements, one at a time and without a semicolon, in the order in which they are to
/// be run.
using StatementSink = std::function<void(const QString&)>;

/// Turns rows into insert statements of many rows each.
class Inserts
{
public:
    Inserts(Flavour flavour, StatementSink sink);

    /// Adds a row to a table of `tables()`. Requires: one field per column.
    void add(const QString& table, const std::vector<Field>& row);
    /// Sends what has been collected. To be called at the end.
    void flush();

private:
    void begin(const QString& table);

    Flavour m_flavour;
    StatementSink m_sink;
    QString m_table;
    QString m_statement; // empty when nothing is collected
};

} // namespace demo
