#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <cstddef>
#include <cstdint>

namespace fuzz
{

/// The values that the bytes of one run stand for. They are fields, separated by the byte 0xff,
/// which no UTF-8 text holds: so an input can be written by hand. Behind the last field come empty
/// ones.
class Input
{
public:
    Input(const std::uint8_t* data, std::size_t size);

    [[nodiscard]] bool isAtEnd() const { return m_isAtEnd; }
    /// The bytes of the next field.
    QByteArray bytes();
    /// The next field as UTF-8. U+E000 to U+E7FF stand for lone halves of a pair, U+D800 to U+DFFF,
    /// which UTF-8 does not hold and drivers bring all the same.
    QString text();
    /// The number that the next field is, brought into the range; `least` for any other field.
    int number(int least, int most);
    /// Whether the next field holds anything.
    bool flag() { return !bytes().isEmpty(); }

private:
    QByteArrayView m_rest;
    bool m_isAtEnd;
};

} // namespace fuzz

/// One run. Returns 0; a fault ends the program.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
