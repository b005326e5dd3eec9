#include "files/IcsLines.h"

namespace files
{
namespace
{

constexpr qsizetype kLongestLine = 75; // bytes, without CR LF

bool continuesCharacter(char byte)
{
    constexpr unsigned topBits = 0xC0;
    constexpr unsigned continuation = 0x80;
    return (static_cast<unsigned char>(byte) & topBits) == continuation;
}

} // namespace

void IcsLines::add(const QString& property, const QString& value)
{
    const QByteArray line = (property + u':' + value).toUtf8();
    qsizetype start = 0;
    qsizetype room = kLongestLine;
    while (line.size() - start > room) {
        qsizetype end = start + room;
        while (continuesCharacter(line.at(end))) {
            --end;
        }
        m_bytes += line.mid(start, end - start) + "\r\n ";
        start = end;
        room = kLongestLine - 1; // the blank that continues a line counts
    }
    m_bytes += line.mid(start) + "\r\n";
}

QString IcsLines::escaped(const QString& text)
{
    QString lines = text;
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    QString value;
    for (const QChar character : lines) {
        if (character == u'\n' || character == u'\r') {
            value += QStringLiteral("\\n");
        } else if (character == u'\\' || character == u';' || character == u',') {
            value += u'\\';
            value += character;
        } else if (character == u'\t' || character.category() != QChar::Other_Control) {
            value += character;
        }
    }
    return value;
}

} // namespace files
