#include "appearance/Palette.h"

#include "appearance/PaletteFile.h"
#include "runtime/RunTimeError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <utility>

namespace appearance
{
namespace
{

// Far more than 256 lines need. Whatever else is given this extension is not read to its end.
constexpr qint64 kMostBytes = 1 << 20;
constexpr qsizetype kExtensionLength = 4; // the dot and three letters

/// The beginning of the file. Empty when it cannot be read, which as a palette is the same fault.
QByteArray readFile(const QString& path)
{
    // A device or a pipe might never answer.
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return file.read(kMostBytes);
}

} // namespace

Palette::Palette(plan::RowColors& colors, form::PlanForm& form, context::PlanActions& plan,
                 QString programFolder, OpenFile openFile)
    : m_colors(colors), m_form(form), m_plan(plan), m_programFolder(std::move(programFolder)),
      m_openFile(std::move(openFile))
{
}

bool Palette::fill(plan::RowColors& colors, const QString& path)
{
    const PaletteFile palette = parsePalette(readFile(path));
    for (std::size_t entry = 0; entry < palette.entries.size(); ++entry) {
        colors.set(static_cast<int>(entry), palette.entries[entry]);
    }
    if (!palette.isUsable()) {
        return false;
    }
    const bool repeated = runtime::skipOnError([&] { repeatEntries(colors, palette.repeatFrom); });
    // A palette whose entry 1 is its repetition start is at fault. Each layout answers as it does
    // to every fault: Numbers with no palette, Components by going on with the colours it has.
    return repeated || palette.layout == PaletteFile::Layout::Components;
}

void Palette::Charger_Palette(const QString& Path)
{
    if (!fill(m_colors, Path)) {
        useNoPalette();
        return;
    }
    m_colors.PaletteName = Path;
    m_form.Label5.caption = Nom_Palette(m_colors.PaletteName);
}

void Palette::useDefault()
{
    useNoPalette();
    m_chosenFile.clear();
    m_colors.fillRandomly();
    m_colors.RedrawMode = false; // the redraw to come draws its rows' colours by lot
}

void Palette::Choisir_Palette()
{
    const QString styles = QDir(m_programFolder).filePath(QStringLiteral("Styles"));
    const QString file =
        m_openFile(QDir::toNativeSeparators(styles), QStringLiteral("*.mpl|*.mpl"));
    if (!file.isEmpty()) {
        m_chosenFile = QDir::toNativeSeparators(file);
    }
    if (!m_chosenFile.isEmpty()) {
        Charger_Palette(m_chosenFile);
    }
    m_plan.RefreshPlan();
}

QString Palette::Nom_Palette(const QString& Path)
{
    // Both signs separate on every system: settings written on one are read on the other.
    const qsizetype name = std::max(Path.lastIndexOf(u'\\'), Path.lastIndexOf(u'/')) + 1;
    const qsizetype length = Path.size() - name - kExtensionLength;
    return length < 0 ? Path : Path.mid(name, length);
}

void Palette::repeatEntries(plan::RowColors& colors, int repeatFrom)
{
    if (repeatFrom == 0) {
        return;
    }
    // In increasing order on purpose: a source may be an entry that was written just before, so
    // that the entries between 2 and the start come again and again. Entries 0 and 1 never do.
    for (int step = 0; repeatFrom + step < plan::RowColors::kColors; ++step) {
        colors.set(repeatFrom + step, colors.at(2 + step));
    }
}

void Palette::useNoPalette()
{
    m_colors.PaletteName.clear();
    m_form.Label5.caption = QStringLiteral("Défaut");
}

} // namespace appearance
