#include "appearance/IdlePlan.h"
#include "appearance/Palette.h"
#include "appearance/PaletteFile.h"
#include "paint/CellBox.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <vector>

using appearance::PaletteFile;
using form::Colour;

// The palettes as they lie beside the program, made for reading a plan on the screen all day.

namespace
{

/// The table of row colours after the load of one palette.
struct LoadedPalette {
    explicit LoadedPalette(const QString& path)
    {
        test::IdlePlan plan;
        const auto cancel = [](const QString&, const QString&) { return QString(); };
        appearance::Palette(colors, form, plan, QString(), cancel).Charger_Palette(path);
    }

    runtime::RandomSource random{1};
    plan::RowColors colors{random};
    form::PlanForm form;
};

QFileInfoList shippedFiles()
{
    const QDir styles(QCoreApplication::applicationDirPath() + QStringLiteral("/Styles"));
    return styles.entryInfoList({QStringLiteral("*.mpl")}, QDir::Files, QDir::Name);
}

QString shipped(const QString& name)
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/Styles/") + name;
}

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

struct Lab {
    double lightness;
    double redGreen;
    double yellowBlue;
};

/// CIELAB under daylight (D65), where equal distances look about equally different.
Lab labOf(Colour color)
{
    const auto linear = [](int component) {
        const double share = component / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    const double red = linear(color.red());
    const double green = linear(color.green());
    const double blue = linear(color.blue());
    const auto bent = [](double part) {
        return part > 0.008856 ? std::cbrt(part) : 7.787 * part + 16.0 / 116;
    };
    const double x = bent((0.4124 * red + 0.3576 * green + 0.1805 * blue) / 0.9505);
    const double y = bent(0.2126 * red + 0.7152 * green + 0.0722 * blue);
    const double z = bent((0.0193 * red + 0.1192 * green + 0.9505 * blue) / 1.089);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

/// About 2 can just be told apart side by side, 10 at a glance.
double difference(Colour first, Colour second)
{
    const Lab a = labOf(first);
    const Lab b = labOf(second);
    return std::hypot(a.lightness - b.lightness, a.redGreen - b.redGreen,
                      a.yellowBlue - b.yellowBlue);
}

/// Entries that rows are drawn with: 0 and 1 are never repeated.
constexpr int kFirstRowEntry = 2;

} // namespace

TEST(ShippedPalettes, areAtLeastSixInBothLayouts)
{
    int numbers = 0;
    int components = 0;
    for (const QFileInfo& file : shippedFiles()) {
        const bool isNumbers = appearance::parsePalette(bytesOf(file.filePath())).layout ==
                               PaletteFile::Layout::Numbers;
        ++(isNumbers ? numbers : components);
    }
    EXPECT_GE(numbers + components, 6);
    EXPECT_GE(numbers, 1);
    EXPECT_GE(components, 1);
}

TEST(ShippedPalettes, loadUnderTheirNames)
{
    for (const QFileInfo& file : shippedFiles()) {
        const LoadedPalette loaded(file.filePath());
        EXPECT_EQ(loaded.form.Label5.caption, file.completeBaseName());
        EXPECT_EQ(loaded.colors.PaletteName, file.filePath());
    }
}

TEST(ShippedPalettes, haveLinesEndedAsEveryReaderExpects)
{
    for (const QFileInfo& file : shippedFiles()) {
        const QByteArray bytes = bytesOf(file.filePath());
        EXPECT_TRUE(bytes.endsWith("\r\n")) << file.fileName().toStdString();
        EXPECT_EQ(bytes.count('\n'), bytes.count("\r\n")) << file.fileName().toStdString();
        EXPECT_EQ(bytes.count('\r'), bytes.count("\r\n")) << file.fileName().toStdString();
    }
}

TEST(ShippedPalettes, sayNothingThatIsSkipped)
{
    for (const QFileInfo& file : shippedFiles()) {
        const QByteArray bytes = bytesOf(file.filePath());
        const PaletteFile palette = appearance::parsePalette(bytes);
        EXPECT_EQ(static_cast<qsizetype>(palette.entries.size()), bytes.count('\n'))
            << file.fileName().toStdString();
        EXPECT_GT(palette.repeatFrom, kFirstRowEntry) << file.fileName().toStdString();
    }
}

TEST(ShippedPalettes, keepTextReadableOnEveryColour)
{
    for (const QFileInfo& file : shippedFiles()) {
        const LoadedPalette loaded(file.filePath());
        for (int entry = 0; entry < plan::RowColors::kColors; ++entry) {
            const Colour color = loaded.colors.at(entry);
            EXPECT_LE(color.value, 0xffffffU);
            // WCAG asks for 4.5, and for 7 at its highest level: these are read all day.
            EXPECT_GE(paint::contrastRatio(color, paint::readableOn(color)), 7.0)
                << file.fileName().toStdString() << ", entry " << entry;
        }
    }
}

TEST(ShippedPalettes, tellNeighbouringRowsApart)
{
    for (const QFileInfo& file : shippedFiles()) {
        const LoadedPalette loaded(file.filePath());
        for (int entry = kFirstRowEntry; entry + 1 < plan::RowColors::kColors; ++entry) {
            EXPECT_GE(difference(loaded.colors.at(entry), loaded.colors.at(entry + 1)), 10.0)
                << file.fileName().toStdString() << ", entry " << entry;
        }
    }
}

TEST(ShippedPalettes, useOnlyTheColoursPublishedForColourBlindReaders)
{
    // Paul Tol, Colour Schemes, SRON/EPS/TN/09-002 issue 3.2 (2021), the scheme "light": for
    // labelled cells, reasonably distinct in normal and in colour-blind vision.
    const std::vector<Colour> published = {
        Colour::fromRgb(0x77, 0xAA, 0xDD), Colour::fromRgb(0x99, 0xDD, 0xFF),
        Colour::fromRgb(0x44, 0xBB, 0x99), Colour::fromRgb(0xBB, 0xCC, 0x33),
        Colour::fromRgb(0xAA, 0xAA, 0x00), Colour::fromRgb(0xEE, 0xDD, 0x88),
        Colour::fromRgb(0xEE, 0x88, 0x66), Colour::fromRgb(0xFF, 0xAA, 0xBB),
        Colour::fromRgb(0xDD, 0xDD, 0xDD)};
    const LoadedPalette loaded(shipped(QStringLiteral("Accessible.mpl")));
    for (int entry = 0; entry < plan::RowColors::kColors; ++entry) {
        EXPECT_NE(std::find(published.begin(), published.end(), loaded.colors.at(entry)),
                  published.end())
            << "entry " << entry;
    }
    for (const Colour color : published) {
        bool used = false;
        for (int entry = kFirstRowEntry; entry < plan::RowColors::kColors; ++entry) {
            used = used || loaded.colors.at(entry) == color;
        }
        EXPECT_TRUE(used) << color.value;
    }
}

TEST(ShippedPalettes, haveGreysForPrinters)
{
    const LoadedPalette loaded(shipped(QStringLiteral("Gris.mpl")));
    for (int entry = 0; entry < plan::RowColors::kColors; ++entry) {
        const Colour color = loaded.colors.at(entry);
        EXPECT_TRUE(color.red() == color.green() && color.green() == color.blue()) << entry;
        EXPECT_GE(color.red(), 0xA0) << "dark greys cost toner";
    }
}

TEST(ShippedPalettes, haveOneOfHighContrast)
{
    const LoadedPalette loaded(shipped(QStringLiteral("Contraste.mpl")));
    for (int entry = kFirstRowEntry; entry + 1 < plan::RowColors::kColors; ++entry) {
        const Colour color = loaded.colors.at(entry);
        EXPECT_GE(paint::contrastRatio(color, paint::readableOn(color)), 12.0) << entry;
        EXPECT_GE(paint::contrastRatio(color, loaded.colors.at(entry + 1)), 7.0) << entry;
    }
}
