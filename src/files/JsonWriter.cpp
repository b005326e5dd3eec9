#include "files/JsonWriter.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>
#include <algorithm>
#include <utility>

namespace files
{
namespace
{

/// Whether a character means something to JSON, or is half of one.
bool isOdd(QChar character)
{
    return character < u' ' || character == u'"' || character == u'\\' || character.isSurrogate();
}

/// In UTF-8, of one to three bytes. Requires: none that is odd.
void append(QByteArray& bytes, char16_t character)
{
    constexpr char16_t ascii = 0x80;
    constexpr char16_t twoBytes = 0x800;
    constexpr int sixBits = 6;
    constexpr int lowSix = 0x3f;
    const auto following = [](int bits) { return static_cast<char>(0x80 | (bits & lowSix)); };
    if (character < ascii) {
        bytes += static_cast<char>(character);
    } else if (character < twoBytes) {
        bytes += static_cast<char>(0xc0 | (character >> sixBits));
        bytes += following(character);
    } else {
        bytes += static_cast<char>(0xe0 | (character >> (sixBits + sixBits)));
        bytes += following(character >> sixBits);
        bytes += following(character);
    }
}

} // namespace

void JsonWriter::indent()
{
    constexpr int spaces = 4;
    m_bytes.append(qsizetype{m_depth} * spaces, ' ');
}

/// Of a key, or of a value in an array.
void JsonWriter::beginLine()
{
    if (!m_isFirst) {
        m_bytes += ",\n";
    }
    m_isFirst = false;
    indent();
}

void JsonWriter::beginValue()
{
    if (!std::exchange(m_hasKey, false) && m_depth > 0) {
        beginLine();
    }
}

void JsonWriter::begin(char bracket)
{
    beginValue();
    m_bytes += bracket;
    m_bytes += '\n';
    ++m_depth;
    m_isFirst = true;
}

void JsonWriter::end(char bracket)
{
    if (!m_isFirst) {
        m_bytes += '\n';
    }
    --m_depth;
    indent();
    m_bytes += bracket;
    m_isFirst = false;
}

void JsonWriter::key(const char* name)
{
    beginLine();
    m_bytes += '"';
    m_bytes += name;
    m_bytes += "\": ";
    m_hasKey = true;
}

/// Texts with odd characters, which are few, are written by Qt.
void JsonWriter::text(QStringView text)
{
    beginValue();
    if (std::any_of(text.begin(), text.end(), isOdd)) {
        const QByteArray array =
            QJsonDocument(QJsonArray{text.toString()}).toJson(QJsonDocument::Compact);
        m_bytes += array.sliced(1, array.size() - 2); // between its brackets
        return;
    }
    m_bytes += '"';
    for (const QChar character : text) {
        append(m_bytes, character.unicode());
    }
    m_bytes += '"';
}

void JsonWriter::number(int number)
{
    beginValue();
    m_bytes += QByteArray::number(number);
}

void JsonWriter::number(double number)
{
    beginValue();
    m_bytes += QByteArray::number(number, 'g', QLocale::FloatingPointShortest);
}

void JsonWriter::null()
{
    beginValue();
    m_bytes += "null";
}

void JsonWriter::repeatElement(qsizetype begin, qsizetype end)
{
    if (!m_isFirst) {
        m_bytes += ",\n";
    }
    m_isFirst = false;
    const qsizetype to = m_bytes.size();
    m_bytes.resize(to + end - begin);
    std::copy(m_bytes.constData() + begin, m_bytes.constData() + end, m_bytes.data() + to);
}

QByteArray JsonWriter::take()
{
    m_bytes += '\n';
    return std::move(m_bytes);
}

} // namespace files
