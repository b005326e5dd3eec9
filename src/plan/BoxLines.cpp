#include "plan/BoxLines.h"

namespace plan
{

QString SanitizeCellText(const QString& text)
{
    QString sanitized = text;
    for (const char16_t character : {u'[', u']', u'&'}) {
        sanitized.replace(character, u' ');
    }
    return sanitized;
}

QStringList writtenLines(const QString& text)
{
    QString unified = text;
    unified.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    QStringList lines;
    for (const QString& line : unified.split(u'\n')) {
        const QString simplified = line.simplified();
        if (!simplified.isEmpty()) {
            lines.append(simplified);
        }
    }
    return lines;
}

} // namespace plan
