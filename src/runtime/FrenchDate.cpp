#include "runtime/FrenchDate.h"

#include <QLocale>
#include <QRegularExpression>

namespace runtime
{
namespace
{

const std::array<QString, 12>& upperMonthNames()
{
    static const std::array<QString, 12> names = {
        QStringLiteral("JANVIER"), QStringLiteral("FÉVRIER"),  QStringLiteral("MARS"),
        QStringLiteral("AVRIL"),   QStringLiteral("MAI"),      QStringLiteral("JUIN"),
        QStringLiteral("JUILLET"), QStringLiteral("AOÛT"),     QStringLiteral("SEPTEMBRE"),
        QStringLiteral("OCTOBRE"), QStringLiteral("NOVEMBRE"), QStringLiteral("DÉCEMBRE")};
    return names;
}

} // namespace

const std::array<QString, 6>& frenchDayNames()
{
    static const std::array<QString, 6> names = {
        QStringLiteral("Lundi"), QStringLiteral("Mardi"),    QStringLiteral("Mercredi"),
        QStringLiteral("Jeudi"), QStringLiteral("Vendredi"), QStringLiteral("Samedi")};
    return names;
}

QString frenchLongDate(QDate date)
{
    if (!date.isValid()) {
        return {};
    }
    return QStringLiteral("%1/%2/%3")
        .arg(date.day(), 2, 10, QLatin1Char('0'))
        .arg(upperMonthNames().at(static_cast<std::size_t>(date.month() - 1)))
        .arg(date.year(), 4, 10, QLatin1Char('0'));
}

QString frenchDayAndDate(QDate date)
{
    return QLocale(QLocale::French, QLocale::France)
        .toString(date, QStringLiteral("dddd dd/MM/yyyy"));
}

bool isDateSeparator(QChar character)
{
    return QStringLiteral("/.- ").contains(character);
}

QDate fromTypedDate(const QString& text, QDate shown)
{
    static const QRegularExpression joined(
        QStringLiteral(R"(^(\d{2})(?:(\d{2})(\d{4}|\d{2})?)?$)"));
    static const QRegularExpression separated(
        QStringLiteral(R"(^(\d{1,2})(?:[/.\- ](\d{1,2})(?:[/.\- ](\d{4}|\d{2}))?)?$)"));
    QRegularExpressionMatch match = joined.match(text);
    if (!match.hasMatch()) {
        match = separated.match(text);
    }
    if (!match.hasMatch()) {
        return {};
    }
    const QString month = match.captured(2);
    const QString year = match.captured(3);
    const int century = year.size() == 2 ? 2000 : 0;
    return {year.isEmpty() ? shown.year() : century + year.toInt(),
            month.isEmpty() ? shown.month() : month.toInt(), match.captured(1).toInt()};
}

} // namespace runtime
