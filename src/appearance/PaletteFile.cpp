#include "appearance/PaletteFile.h"

#include "plan/RowColors.h"
#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"

#include <QByteArrayView>
#include <QString>
#include <algorithm>

namespace appearance
{
namespace
{

constexpr std::size_t kEntries = plan::RowColors::kColors;
constexpr char16_t kFieldEnd = u'\t';

/// Takes the first line off `rest`. A line end at the very end of the file begins no further line.
QString takeLine(QByteArrayView& rest)
{
    const auto end = std::find_if(rest.begin(), rest.end(),
                                  [](char byte) { return byte == '\r' || byte == '\n'; });
    const qsizetype length = end - rest.begin();
    qsizetype next = std::min(length + 1, rest.size());
    if (length + 1 < rest.size() && rest[length] == '\r' && rest[length + 1] == '\n') {
        ++next;
    }
    // One character per byte: what counts is ASCII, and the free fields may be in any encoding.
    QString line = QString::fromLatin1(rest.first(length));
    rest = rest.sliced(next);
    return line;
}

/// The colour whose value is the nearest integer. Error: Overflow outside the 32-bit range.
form::Colour colorOf(double value)
{
    return {static_cast<std::uint32_t>(runtime::nearestInteger(value))};
}

form::Colour numberColor(const QString& line)
{
    return colorOf(runtime::leadingNumber(line));
}

/// Components above 255 or below 0 are no fault: they run over into their neighbours.
/// Errors: TypeMismatch, also for a line of fewer than five fields, and Overflow.
form::Colour componentColor(const QString& line)
{
    const double red = runtime::toInt16(line.section(kFieldEnd, 2, 2));
    const double green = runtime::toInt16(line.section(kFieldEnd, 3, 3));
    const double blue = runtime::toInt16(line.section(kFieldEnd, 4)); // all the rest of the line
    return colorOf(red + 256 * green + 65536 * blue);
}

} // namespace

bool PaletteFile::isUsable() const
{
    return layout == Layout::Components || entries.size() == kEntries;
}

PaletteFile parsePalette(const QByteArray& bytes)
{
    PaletteFile palette;
    QByteArrayView rest = bytes;
    QByteArrayView beginning = bytes;
    if (takeLine(beginning).contains(kFieldEnd)) {
        palette.layout = PaletteFile::Layout::Components;
    }
    const auto colorOfLine =
        palette.layout == PaletteFile::Layout::Components ? componentColor : numberColor;
    std::vector<form::Colour>& entries = palette.entries;
    const auto readEntry = [&] { entries.push_back(colorOfLine(takeLine(rest))); };
    while (entries.size() < kEntries && !rest.isEmpty() && runtime::skipOnError(readEntry)) {
        if (palette.repeatFrom == 0 && entries.size() > 1 && entries.back() == entries.front()) {
            palette.repeatFrom = static_cast<int>(entries.size()) - 1;
        }
    }
    if (palette.layout == PaletteFile::Layout::Components && entries.size() < kEntries - 1) {
        palette.repeatFrom = static_cast<int>(entries.size());
    }
    return palette;
}

} // namespace appearance
