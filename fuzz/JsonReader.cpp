#include "fuzz/JsonReader.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QStringDecoder>
#include <algorithm>

namespace fuzz
{
namespace
{

/// What is read so far; a reading that fails returns nothing all the way up.
class Reader
{
public:
    explicit Reader(QStringView text) : m_rest(text) {}

    std::optional<QJsonValue> whole()
    {
        const std::optional<QJsonValue> read = value();
        return read && m_rest.isEmpty() ? read : std::nullopt;
    }

private:
    void skipBlanks()
    {
        const auto* const end = std::find_if_not(m_rest.begin(), m_rest.end(), [](QChar character) {
            return character == u' ' || character == u'\t' || character == u'\r' ||
                   character == u'\n';
        });
        m_rest = m_rest.mid(end - m_rest.begin());
    }
    /// Takes these characters. False where others stand.
    bool take(QStringView characters)
    {
        if (!m_rest.startsWith(characters)) {
            return false;
        }
        m_rest = m_rest.mid(characters.size());
        return true;
    }

    /// With the blanks around it.
    std::optional<QJsonValue> value()
    {
        skipBlanks();
        std::optional<QJsonValue> read;
        if (take(u"{")) {
            read = object();
        } else if (take(u"[")) {
            read = array();
        } else if (take(u"\"")) {
            read = string();
        } else {
            read = word();
        }
        skipBlanks();
        return read;
    }

    std::optional<QJsonValue> object()
    {
        QJsonObject members;
        skipBlanks();
        if (take(u"}")) {
            return members;
        }
        do {
            skipBlanks();
            const std::optional<QJsonValue> name = take(u"\"") ? string() : std::nullopt;
            skipBlanks();
            const std::optional<QJsonValue> member = name && take(u":") ? value() : std::nullopt;
            if (!member || members.contains(name->toString())) {
                return std::nullopt;
            }
            members.insert(name->toString(), *member);
        } while (take(u","));
        return take(u"}") ? std::optional<QJsonValue>(members) : std::nullopt;
    }

    std::optional<QJsonValue> array()
    {
        QJsonArray elements;
        skipBlanks();
        if (take(u"]")) {
            return elements;
        }
        do {
            const std::optional<QJsonValue> element = value();
            if (!element) {
                return std::nullopt;
            }
            elements.append(*element);
        } while (take(u","));
        return take(u"]") ? std::optional<QJsonValue>(elements) : std::nullopt;
    }

    /// Behind its opening quote.
    std::optional<QJsonValue> string()
    {
        QString text;
        for (;;) {
            const auto* const end = std::find_if(m_rest.begin(), m_rest.end(), [](QChar character) {
                return character == u'"' || character == u'\\' || character < u' ';
            });
            text += m_rest.left(end - m_rest.begin());
            m_rest = m_rest.mid(end - m_rest.begin());
            if (take(u"\"")) {
                return text;
            }
            const std::optional<QChar> meant = take(u"\\") ? escaped() : std::nullopt;
            if (!meant) {
                return std::nullopt;
            }
            text += *meant;
        }
    }

    /// Behind its backslash.
    std::optional<QChar> escaped()
    {
        constexpr QStringView letters = u"\"\\/bfnrt";
        constexpr QStringView meanings = u"\"\\/\b\f\n\r\t";
        if (take(u"u")) {
            bool isNumber = false;
            const QStringView digits = m_rest.left(4);
            const ushort code = digits.toUShort(&isNumber, 16);
            m_rest = m_rest.mid(digits.size());
            const bool areDigits =
                digits.size() == 4 && std::all_of(digits.begin(), digits.end(), [](QChar digit) {
                    return QStringView(u"0123456789abcdefABCDEF").contains(digit);
                });
            return isNumber && areDigits ? std::optional<QChar>(code) : std::nullopt;
        }
        const qsizetype letter = m_rest.isEmpty() ? -1 : letters.indexOf(m_rest.front());
        if (letter < 0) {
            return std::nullopt;
        }
        m_rest = m_rest.mid(1);
        return meanings[letter];
    }

    /// true, false, null or a number.
    std::optional<QJsonValue> word()
    {
        if (take(u"true")) {
            return QJsonValue(true);
        }
        if (take(u"false")) {
            return QJsonValue(false);
        }
        if (take(u"null")) {
            return QJsonValue();
        }
        const auto end = std::find_if(m_rest.begin(), m_rest.end(), [](QChar character) {
            return !QStringView(u"0123456789+-.eE").contains(character);
        });
        const QStringView digits = m_rest.left(end - m_rest.begin());
        bool isNumber = false;
        const double number = digits.toDouble(&isNumber);
        if (!isNumber || digits.startsWith(u'+') || digits.endsWith(u'.')) {
            return std::nullopt;
        }
        m_rest = m_rest.mid(digits.size());
        return QJsonValue(number);
    }

    QStringView m_rest;
};

} // namespace

std::optional<QJsonValue> readJson(const QByteArray& text)
{
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    const QString characters = decode(text);
    return decode.hasError() ? std::nullopt : Reader(characters).whole();
}

} // namespace fuzz
