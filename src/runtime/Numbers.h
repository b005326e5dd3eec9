#pragma once

#include <QString>
#include <cstdint>

/// The legacy rules by which texts and numbers turn into one another.
namespace runtime
{

/// The nearest integer, halves to the even one: 0.5 is 0, 1.5 is 2, 2.5 is 2.
/// Error: Overflow outside the 32-bit range, or for a value that is no number.
[[nodiscard]] std::int32_t nearestInteger(double value);

/// The nearest integer, halves to even, in 16 bits. Error: Overflow.
[[nodiscard]] std::int16_t nearestInt16(double value);

/// The value of the text's leading numeric part: blanks are skipped, reading stops at the first
/// character that cannot belong to the number, and 0 is the value of a text without one.
/// The decimal sign is the point, whatever the system's language.
[[nodiscard]] double leadingNumber(const QString& text);

/// The whole text as a number, outer blanks aside; comma and point both separate decimals.
/// Error: TypeMismatch when it is no number, the empty text included.
[[nodiscard]] double toNumber(const QString& text);

/// The whole text as a 16-bit integer, halves to even. Errors: TypeMismatch, Overflow.
[[nodiscard]] std::int16_t toInt16(const QString& text);

/// The whole text as a 32-bit integer, halves to even. Errors: TypeMismatch, Overflow.
[[nodiscard]] std::int32_t toInt32(const QString& text);

/// "True", "Vrai", "False", "Faux" in any case, or a number, where only 0 is false.
/// Error: TypeMismatch.
[[nodiscard]] bool toBoolean(const QString& text);

/// Sum in 16 bits. Error: Overflow.
[[nodiscard]] std::int16_t addInt16(std::int16_t left, std::int16_t right);

/// The text without outer blanks. Only the blank itself counts: tabs and line ends stay.
[[nodiscard]] QString trimBlanks(const QString& text);

} // namespace runtime
