#pragma once

#include "db/OdbcHandles.h"
#include "db/Value.h"

#include <deque>

namespace db
{

/// The values of a statement's parameters, kept where the driver finds them until the statement
/// has run: bind them all, then execute, and only then let the set go.
class ParameterSet
{
public:
    explicit ParameterSet(StatementHandle& statement) : m_statement(statement) {}
    ParameterSet(const ParameterSet&) = delete;
    ParameterSet& operator=(const ParameterSet&) = delete;

    /// Binds the value to the next parameter; a date as its midnight (see Product::dateToWrite).
    void bind(const Value& value);

private:
    /// One parameter's memory: only the member of its type is used.
    struct Slot {
        QByteArray bytes;
        QString text;
        SQL_TIMESTAMP_STRUCT timestamp{};
        SQLINTEGER narrow = 0;
        std::int64_t integer = 0;
        double real = 0;
        unsigned char bit = 0;
        SQLLEN length = 0;
    };

    void bindNull(Slot& slot);
    void bindText(Slot& slot, const QString& text);
    void bindInteger(Slot& slot, std::int64_t integer);
    void bindDate(Slot& slot, QDate date);
    void bindRaw(Slot& slot, SQLSMALLINT cType, SQLSMALLINT sqlType, SQLULEN size,
                 SQLPOINTER memory);

    StatementHandle& m_statement;
    std::deque<Slot> m_slots; // growing moves none of them
};

} // namespace db
