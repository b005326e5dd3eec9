#pragma once

#include <QByteArray>
#include <QString>
#include <QStringDecoder>

namespace fuzz
{

/// The text that the bytes are in UTF-8. A byte order mark at its beginning stays, which
/// QString::fromUtf8 leaves out; bytes that are none become U+FFFD.
inline QString textOfUtf8(const QByteArray& bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom |
                                                     QStringDecoder::Flag::Stateless);
    return decoder(bytes);
}

/// The text as it is once it has been written in UTF-8, which holds no lone half of a pair.
inline QString throughUtf8(const QString& text)
{
    return textOfUtf8(text.toUtf8());
}

} // namespace fuzz
