#include "db/DialectDate.h"

#include <QRegularExpression>

namespace db
{

std::optional<QDate> dialectDate(const QString& text, int firstYear)
{
    static const QRegularExpression form(
        QStringLiteral("^ *(?:(?<m>[0-9]{1,2})/(?<d>[0-9]{1,2})/(?<y>[0-9]{4}|[0-9]{2})|"
                       "(?<y2>[0-9]{4})([-/])(?<m2>[0-9]{1,2})\\5(?<d2>[0-9]{1,2})) *\\z"));
    constexpr int century = 100;
    const QRegularExpressionMatch match = form.match(text);
    const bool yearFirst = !match.captured(QStringLiteral("y2")).isEmpty();
    const auto number = [&](const char* name) {
        return match.captured(QLatin1String(name)).toInt();
    };
    int year = yearFirst ? number("y2") : number("y");
    if (!yearFirst && year < century) {
        year += firstYear - firstYear % century;
        year += year < firstYear ? century : 0;
    }
    const QDate date(year, yearFirst ? number("m2") : number("m"),
                     yearFirst ? number("d2") : number("d"));
    return match.hasMatch() && date.isValid() ? std::optional(date) : std::nullopt;
}

} // namespace db
