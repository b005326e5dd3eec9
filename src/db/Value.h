#pragma once

#include <QDate>
#include <QString>
#include <cstdint>
#include <utility>
#include <variant>

namespace db
{

/// One field of a row, as the database gave it. Null is a value of its own: asked for a text, a
/// number or a date it raises "Invalid use of Null", as the legacy platform does.
class Value
{
public:
    /// What a value can be; the first is null.
    using Variant = std::variant<std::monostate, bool, std::int64_t, double, QString, QDate>;

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
    /// The nearest integer, halves to even; True is -1.
    /// Errors: InvalidUseOfNull, TypeMismatch, Overflow.
    [[nodiscard]] std::int16_t toInt16() const;
    /// The same in 32 bits. Errors: InvalidUseOfNull, TypeMismatch, Overflow.
    [[nodiscard]] std::int32_t toInt32() const;
    /// Only 0, False and Faux are false. Errors: InvalidUseOfNull, TypeMismatch.
    [[nodiscard]] bool toBoolean() const;
    /// A date, or a text that begins with yyyy-mm-dd or yyyy/mm/dd.
    /// Errors: InvalidUseOfNull, TypeMismatch.
    [[nodiscard]] QDate toDate() const;

    /// The value with its type, for whoever must tell the types apart.
    [[nodiscard]] const Variant& variant() const { return m_value; }

    friend bool operator==(const Value&, const Value&) = default;

private:
    [[nodiscard]] double toNumber() const;

    Variant m_value;
};

} // namespace db
