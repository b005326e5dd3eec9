#include "db/Value.h"

#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"

#include <QRegularExpression>

namespace db
{
namespace
{

using runtime::ErrorNumber;
using runtime::RunTimeError;

/// One function object made of several lambdas, so that a conversion reads as a table of types.
template <typename... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};
template <typename... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

[[noreturn]] void raise(ErrorNumber number)
{
    throw RunTimeError(number);
}

/// As many digits as the legacy platform writes, so that 0.1 stays "0.1".
constexpr int kSignificantDigits = 15;

QDate leadingDate(const QString& text)
{
    static const QRegularExpression form(
        QStringLiteral("^([0-9]{4})([-/])([0-9]{1,2})\\2([0-9]{1,2})(?![0-9])"));
    const QRegularExpressionMatch match = form.match(text);
    const QDate date(match.captured(1).toInt(), match.captured(3).toInt(),
                     match.captured(4).toInt());
    if (!match.hasMatch() || !date.isValid()) {
        raise(ErrorNumber::TypeMismatch);
    }
    return date;
}

} // namespace

QString Value::toText() const
{
    return std::visit(
        Overloaded{
            [](std::monostate) -> QString { raise(ErrorNumber::InvalidUseOfNull); },
            [](bool value) { return value ? QStringLiteral("True") : QStringLiteral("False"); },
            [](std::int64_t value) { return QString::number(value); },
            [](double value) { return QString::number(value, 'g', kSignificantDigits); },
            [](const QString& value) { return value; },
            [](QDate value) { return value.toString(Qt::ISODate); }},
        m_value);
}

QString Value::toJoinedText() const
{
    return isNull() ? QString() : toText();
}

double Value::toNumber() const
{
    return std::visit(
        Overloaded{[](std::monostate) -> double { raise(ErrorNumber::InvalidUseOfNull); },
                   // True is -1 for the legacy platform: all bits set.
                   [](bool value) { return value ? -1.0 : 0.0; },
                   [](std::int64_t value) { return static_cast<double>(value); },
                   [](double value) { return value; },
                   [](const QString& value) { return runtime::toNumber(value); },
                   [](QDate) -> double { raise(ErrorNumber::TypeMismatch); }},
        m_value);
}

std::int16_t Value::toInt16() const
{
    return runtime::nearestInt16(toNumber());
}

std::int32_t Value::toInt32() const
{
    return runtime::nearestInteger(toNumber());
}

bool Value::toBoolean() const
{
    if (const auto* text = std::get_if<QString>(&m_value)) {
        return runtime::toBoolean(*text);
    }
    return toNumber() != 0.0;
}

QDate Value::toDate() const
{
    return std::visit(
        Overloaded{[](std::monostate) -> QDate { raise(ErrorNumber::InvalidUseOfNull); },
                   [](const QString& value) { return leadingDate(value); },
                   [](QDate value) { return value; },
                   [](auto) -> QDate { raise(ErrorNumber::TypeMismatch); }},
        m_value);
}

} // namespace db
