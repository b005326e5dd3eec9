// Palette files: what their bytes mean, and the table of colours after one was loaded.
#include "appearance/Palette.h"

#include "appearance/PaletteFile.h"
#include "fuzz/Input.h"
#include "fuzz/MemoryFile.h"
#include "fuzz/Require.h"

#include <algorithm>

using appearance::PaletteFile;
using fuzz::require;

namespace
{

constexpr int kColors = plan::RowColors::kColors;

class NoPlan : public context::PlanActions
{
public:
    void RefreshPlan() override {}
    void PlaceRoomRows() override {}
    void Command2_Click() override {}
    void Command3_Click() override {}
};

/// The line that a palette of this layout has for the colour.
QByteArray lineOf(form::Colour color, PaletteFile::Layout layout)
{
    const auto value = static_cast<std::int32_t>(color.value);
    if (layout == PaletteFile::Layout::Numbers) {
        return QByteArray::number(value);
    }
    // What is left of red and green lies between 0 and 255, blue takes the sign.
    constexpr int step = 256;
    const int blue = (value - color.red() - step * color.green()) / (step * step);
    return "a\tb\t" + QByteArray::number(color.red()) + '\t' + QByteArray::number(color.green()) +
           '\t' + QByteArray::number(blue);
}

/// What was read, written the plain way, is read again.
void checkReadAgain(const PaletteFile& palette, const char* lineEnd)
{
    QByteArray bytes;
    for (const form::Colour color : palette.entries) {
        bytes += lineOf(color, palette.layout) + lineEnd;
    }
    const PaletteFile again = appearance::parsePalette(bytes);
    require(again.entries == palette.entries, "entries are read again", QString::fromLatin1(bytes));
    require(again.entries.empty() ||
                (again.layout == palette.layout && again.repeatFrom == palette.repeatFrom),
            "a palette is read again as what it was", QString::fromLatin1(bytes));
}

void checkBounds(const PaletteFile& palette)
{
    const auto count = static_cast<int>(palette.entries.size());
    require(count <= kColors, "a palette has no more entries than the table");
    require(palette.repeatFrom >= 0 && palette.repeatFrom <= count,
            "what is repeated was read before");
    require(palette.isUsable() || count < kColors, "a whole palette is usable");
}

void checkTable(const PaletteFile& palette, const plan::RowColors& colors)
{
    const auto count = static_cast<int>(palette.entries.size());
    const bool repeats = palette.isUsable() && palette.repeatFrom > 0;
    const int own = repeats ? std::min(count, palette.repeatFrom) : count;
    for (int entry = 0; entry < own; ++entry) {
        require(colors.at(entry) == palette.entries[static_cast<std::size_t>(entry)],
                "entries stand in the table");
    }
    // From 1 on each is taken from behind itself, up to the fault at the table's end.
    for (int entry = palette.repeatFrom; repeats && palette.repeatFrom > 1 && entry < kColors;
         ++entry) {
        require(colors.at(entry) == colors.at(2 + entry - palette.repeatFrom),
                "entries come again");
    }
}

void checkName(const QString& path)
{
    constexpr qsizetype extension = 4;
    const QString name = appearance::Palette::Nom_Palette(path);
    require(path.contains(name), "a palette's name is part of its path", path, name);
    require(name == path || !(name.contains(u'/') || name.contains(u'\\')),
            "a palette's name is no path", path, name);
    require(name == path || name.size() <= path.size() - extension, "the extension is left out");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static fuzz::MemoryFile file;
    static form::PlanForm form;
    static NoPlan plan;
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const PaletteFile read = appearance::parsePalette(bytes);
    checkBounds(read);
    constexpr std::array lineEnds{"\r\n", "\n", "\r"};
    checkReadAgain(read, lineEnds.at(size % lineEnds.size()));
    checkName(QString::fromUtf8(bytes));

    // Loading a file makes room for a megabyte: too slow for every input.
    constexpr std::size_t loaded = 16;
    if (size % loaded != 0) {
        return 0;
    }
    plan::RowColors colors;
    appearance::Palette palette(colors, form, plan, QString(),
                                [](const QString&, const QString&) { return QString(); });
    file.write(bytes);
    palette.Charger_Palette(file.path());
    require(colors.PaletteName.isEmpty() == (form.Label5.caption == QStringLiteral("Défaut")),
            "the label tells whether a palette is in use", form.Label5.caption);
    require(colors.PaletteName.isEmpty() || read.isUsable(), "only a usable palette is in use");
    checkTable(read, colors);
    return 0;
}
