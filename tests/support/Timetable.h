#pragma once

#include "support/TestDatabase.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <cstddef>
#include <vector>

namespace test
{

/// One field of a row that a test writes: its column and its value.
struct Field {
    Field(QString name, const char* text) : Field(std::move(name), QString::fromUtf8(text)) {}
    Field(QString name, const QString& text);
    Field(QString name, int number);
    Field(QString name, bool flag) : Field(std::move(name), flag ? 1 : 0) {}
    Field(QString name, QDate date);
    Field(QString name, std::nullptr_t);

    QString column;
    QString literal; ///< the value as both databases read it in a statement
};

using Fields = std::vector<Field>;

/// Tables of the timetable database as the demo faculty has them, filled by a test. Fields that a
/// row does not name are null.
class Timetable
{
public:
    /// Creates these tables, all that the demo faculty has when none is named.
    explicit Timetable(TestDatabase& database, const QStringList& tables = {});

    /// A row to be written by the next `load`.
    Timetable& row(const QString& table, const Fields& fields);
    /// Any other statement, run in its turn.
    Timetable& statement(const QString& sql);
    /// Writes what has been asked for since the last call.
    void load();

private:
    TestDatabase& m_database;
    QStringList m_statements;
};

} // namespace test
