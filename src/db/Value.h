#pragma once

#include <QDate>
#include <QString>
#include <cstdint>
#include <variant>

namespace db
{

/// One field of a row, as the database gave it. Null is a value of its own: asked for a text, a
/// number or a date it raises "Invalid use of Null", as the legacy platform does.
class Value
{
public:
    Value() = default; ///< Null
    explicit Value(bool value) : m_value(value) {}
    explicit Value(std::int64_t value) : m_value(value) {}
    explicit Value(double value) : m_value(value) {}
    explicit Value(QString value) : m_value(std::move(value)) {}
    explicit Value(QDate value) : m_value(value) {}

    [[nodiscard]] bool isNull() const { return std::holds_alternative<std::monostate>(m_value); }

    /// The value as text: numbers without grouping, True/False, dates as yyyy-mm-dd.
    /// Error: InvalidUseOfNull.
    [[nodiscard]] QString toText() const;
    /// `toText`, but a null adds nothing: the rule for joined texts.
    [[nodiscard]] QString toJoinedText() const;
    /// Errors: InvalidUseOfNull, TypeMismatch, Overflow.
    [[nodiscard]] std::int16_t toInt16() const;
    /// Errors: InvalidUseOfNull, TypeMismatch, Overflow.
    [[nodiscard]] std::int32_t toInt32() const;
    /// Errors: InvalidUseOfNull, TypeMismatch.
    [[nodiscard]] bool toBoolean() const;
    /// A date, or a text that begins with yyyy-mm-dd or yyyy/mm/dd.
    /// Errors: InvalidUseOfNull, TypeMismatch.
    [[nodiscard]] QDate toDate() const;

    friend bool operator==(const Value&, const Value&) = default;

private:
    std::variant<std::monostate, bool, std::int64_t, double, QString, QDate> m_value;
};

} // namespace db
