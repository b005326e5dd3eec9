#include "db/ParameterSet.h"

#include <algorithm>

namespace db
{

void ParameterSet::bind(const Value& value)
{
    Slot& slot = m_slots.emplace_back();
    const Value::Variant& variant = value.variant();
    if (const auto* text = std::get_if<QString>(&variant)) {
        bindText(slot, *text);
    } else if (const auto* date = std::get_if<QDate>(&variant);
               date != nullptr && date->isValid()) {
        bindDate(slot, *date);
    } else if (const auto* boolean = std::get_if<bool>(&variant)) {
        slot.bit = *boolean ? 1 : 0;
        bindRaw(slot, SQL_C_BIT, SQL_BIT, 1, &slot.bit);
    } else if (const auto* integer = std::get_if<std::int64_t>(&variant)) {
        bindInteger(slot, *integer);
    } else if (const auto* real = std::get_if<double>(&variant)) {
        slot.real = *real;
        bindRaw(slot, SQL_C_DOUBLE, SQL_DOUBLE, 15, &slot.real);
    } else {
        bindNull(slot);
    }
}

void ParameterSet::bindNull(Slot& slot)
{
    slot.length = SQL_NULL_DATA;
    bindRaw(slot, SQL_C_CHAR, SQL_VARCHAR, 1, nullptr);
}

void ParameterSet::bindText(Slot& slot, const QString& text)
{
    // The length is always given: a driver that measures up to the terminating zero may count it.
    if (m_statement.connection().textForm() == TextForm::Utf8) {
        slot.bytes = text.toUtf8();
        slot.length = slot.bytes.size();
        bindRaw(slot, SQL_C_CHAR, SQL_VARCHAR, static_cast<SQLULEN>(slot.bytes.size()),
                slot.bytes.data());
    } else {
        slot.text = text;
        slot.length = slot.text.size() * static_cast<SQLLEN>(sizeof(char16_t));
        bindRaw(slot, SQL_C_WCHAR, SQL_WVARCHAR, static_cast<SQLULEN>(slot.text.size()),
                slot.text.data());
    }
}

void ParameterSet::bindInteger(Slot& slot, std::int64_t integer)
{
    // Access has no integers of 64 bits and refuses the type, however small the number.
    if (const auto narrow = static_cast<SQLINTEGER>(integer); narrow == integer) {
        slot.narrow = narrow;
        bindRaw(slot, SQL_C_SLONG, SQL_INTEGER, 10, &slot.narrow);
    } else {
        slot.integer = integer;
        bindRaw(slot, SQL_C_SBIGINT, SQL_BIGINT, 20, &slot.integer);
    }
}

void ParameterSet::bindDate(Slot& slot, QDate date)
{
    // Midnight is the date alone, and the only type for dates that Access lists.
    slot.timestamp.year = static_cast<SQLSMALLINT>(date.year());
    slot.timestamp.month = static_cast<SQLUSMALLINT>(date.month());
    slot.timestamp.day = static_cast<SQLUSMALLINT>(date.day());
    bindRaw(slot, SQL_C_TYPE_TIMESTAMP, SQL_TYPE_TIMESTAMP, 19, &slot.timestamp);
}

void ParameterSet::bindRaw(Slot& slot, SQLSMALLINT cType, SQLSMALLINT sqlType, SQLULEN size,
                           SQLPOINTER memory)
{
    constexpr SQLULEN smallestSize = 1; // drivers refuse a size of 0, that of the empty text
    m_statement.check(SQLBindParameter(m_statement.get(), static_cast<SQLUSMALLINT>(m_slots.size()),
                                       SQL_PARAM_INPUT, cType, sqlType,
                                       std::max(size, smallestSize), 0, memory,
                                       std::max(slot.length, SQLLEN{0}), &slot.length));
}

} // namespace db
