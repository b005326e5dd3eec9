#include "fuzz/Input.h"

#include "fuzz/Texts.h"

#include <algorithm>

namespace fuzz
{

Input::Input(const std::uint8_t* data, std::size_t size)
    : m_rest(data, static_cast<qsizetype>(size)), m_isAtEnd(size == 0)
{
}

QByteArray Input::bytes()
{
    const qsizetype end = m_rest.indexOf('\xff');
    m_isAtEnd = end < 0;
    QByteArray field = m_rest.first(m_isAtEnd ? m_rest.size() : end).toByteArray();
    m_rest = m_rest.sliced(m_isAtEnd ? m_rest.size() : end + 1);
    return field;
}

QString Input::text()
{
    constexpr char16_t firstStandIn = 0xe000;
    constexpr char16_t lastStandIn = 0xe7ff;
    constexpr char16_t firstHalf = 0xd800;
    QString text = textOfUtf8(bytes());
    for (QChar& character : text) {
        if (character >= firstStandIn && character <= lastStandIn) {
            character =
                QChar(static_cast<char16_t>(character.unicode() - firstStandIn + firstHalf));
        }
    }
    return text;
}

int Input::number(int least, int most)
{
    bool ok = false;
    const int number = bytes().toInt(&ok);
    return ok ? std::clamp(number, least, most) : least;
}

} // namespace fuzz
