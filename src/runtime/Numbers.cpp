#include "runtime/Numbers.h"

#include "runtime/RunTimeError.h"

#include <QLocale>
#include <cmath>
#include <limits>

namespace runtime
{
namespace
{

/// Halves go to the even neighbour whatever rounding mode the process runs in.
double roundHalfToEven(double value)
{
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest < 0.5 || (rest == 0.5 && std::fmod(below, 2.0) == 0.0)) {
        return below;
    }
    return below + 1.0;
}

template <typename Integer>
Integer nearestWithin(double value)
{
    const double rounded = roundHalfToEven(value);
    // Written so that a value that is no number fails as well.
    if (!(rounded >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
          rounded <= static_cast<double>(std::numeric_limits<Integer>::max()))) {
        throw RunTimeError(ErrorNumber::Overflow);
    }
    return static_cast<Integer>(rounded);
}

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

qsizetype skipDigits(const QString& text, qsizetype position)
{
    while (position < text.size() && isDigit(text[position])) {
        ++position;
    }
    return position;
}

/// Length of the exponent that starts at `position`, 0 when there is none.
qsizetype exponentLength(const QString& text, qsizetype position)
{
    if (position >= text.size() || text[position].toLower() != u'e') {
        return 0;
    }
    qsizetype digits = position + 1;
    if (digits < text.size() && (text[digits] == u'+' || text[digits] == u'-')) {
        ++digits;
    }
    const qsizetype end = skipDigits(text, digits);
    return end == digits ? 0 : end - position;
}

} // namespace

std::int32_t nearestInteger(double value)
{
    return nearestWithin<std::int32_t>(value);
}

std::int16_t nearestInt16(double value)
{
    return nearestWithin<std::int16_t>(value);
}

double leadingNumber(const QString& text)
{
    qsizetype start = 0;
    while (start < text.size() && (text[start] == u' ' || text[start] == u'\t')) {
        ++start;
    }
    qsizetype end = start;
    if (end < text.size() && (text[end] == u'+' || text[end] == u'-')) {
        ++end;
    }
    const qsizetype digitsStart = end;
    end = skipDigits(text, end);
    qsizetype digits = end - digitsStart;
    if (end < text.size() && text[end] == u'.') {
        const qsizetype fractionEnd = skipDigits(text, end + 1);
        digits += fractionEnd - end - 1;
        end = fractionEnd;
    }
    if (digits == 0) {
        return 0.0;
    }
    end += exponentLength(text, end);
    return QLocale::c().toDouble(text.mid(start, end - start));
}

double toNumber(const QString& text)
{
    QString number = trimBlanks(text);
    number.replace(u',', u'.');
    bool ok = false;
    const double value = number.contains(u'n', Qt::CaseInsensitive) // "inf", "nan" are no numbers
                             ? 0.0
                             : QLocale::c().toDouble(number, &ok);
    if (!ok) {
        throw RunTimeError(ErrorNumber::TypeMismatch);
    }
    return value;
}

std::int16_t toInt16(const QString& text)
{
    return nearestInt16(toNumber(text));
}

std::int32_t toInt32(const QString& text)
{
    return nearestInteger(toNumber(text));
}

bool toBoolean(const QString& text)
{
    const QString word = trimBlanks(text).toLower();
    if (word == u"true" || word == u"vrai") {
        return true;
    }
    if (word == u"false" || word == u"faux") {
        return false;
    }
    return toNumber(word) != 0.0;
}

std::int16_t addInt16(std::int16_t left, std::int16_t right)
{
    return nearestInt16(static_cast<double>(left) + static_cast<double>(right));
}

QString trimBlanks(const QString& text)
{
    qsizetype start = 0;
    qsizetype end = text.size();
    while (start < end && text[start] == u' ') {
        ++start;
    }
    while (end > start && text[end - 1] == u' ') {
        --end;
    }
    return text.mid(start, end - start);
}

} // namespace runtime
