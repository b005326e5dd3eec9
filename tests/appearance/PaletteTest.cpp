#include "appearance/Palette.h"

#include "appearance/PaletteFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <random>
#include <set>

using appearance::Palette;
using form::Colour;

namespace
{

constexpr int kEntries = plan::RowColors::kColors;

/// Counts the redraws of the plan.
class CountedPlan : public context::PlanActions
{
public:
    void RefreshPlan() override { ++refreshes; }
    void PlaceRoomRows() override {}
    void Command2_Click() override {}
    void Command3_Click() override {}

    int refreshes = 0;
};

/// The colour that entry `index` has before any file is loaded: no file below holds it.
Colour untouched(int index)
{
    return {0x40000000U + static_cast<std::uint32_t>(index)};
}

class PaletteTest : public testing::Test
{
protected:
    PaletteTest()
    {
        for (int entry = 0; entry < kEntries; ++entry) {
            colors.set(entry, untouched(entry));
        }
    }

    QString write(const QByteArray& bytes, const QString& name = QStringLiteral("Bleu.mpl")) const
    {
        QString path = folder.filePath(name);
        QFile::remove(path); // some file systems wait for the disk when a file is overwritten
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
        return path;
    }

    void load(const QByteArray& bytes) { palette.Charger_Palette(write(bytes)); }

    std::uint32_t value(int entry) const { return colors.at(entry).value; }

    void expectUntouched(int first, int last) const
    {
        for (int entry = first; entry <= last; ++entry) {
            EXPECT_EQ(colors.at(entry), untouched(entry)) << "entry " << entry;
        }
    }

    void expectNoPalette() const
    {
        EXPECT_TRUE(colors.PaletteName.isEmpty());
        EXPECT_EQ(form.Label5.caption, QStringLiteral("Défaut"));
    }

    void expectPalette(const QString& name) const
    {
        EXPECT_EQ(QDir::fromNativeSeparators(colors.PaletteName),
                  folder.filePath(name + QStringLiteral(".mpl")));
        EXPECT_EQ(form.Label5.caption, name);
    }

    QTemporaryDir folder;
    runtime::RandomSource random{1};
    plan::RowColors colors{random};
    form::PlanForm form;
    CountedPlan plan;
    QString answer; ///< what the user chooses in the dialog; empty: Cancel
    QString askedFolder;
    QString askedFilter;
    Palette palette{colors, form, plan, folder.path(),
                    [this](const QString& startFolder, const QString& filter) {
                        askedFolder = startFolder;
                        askedFilter = filter;
                        return answer;
                    }};
};

/// A Components file whose line k gives the value 10 + k.
QByteArray componentLines(int count)
{
    QByteArray lines;
    for (int line = 0; line < count; ++line) {
        lines +=
            QByteArray::number(line) + "\tnom\t" + QByteArray::number(10 + line) + "\t0\t0\r\n";
    }
    return lines;
}

/// A Numbers file whose line k gives the value 1000 + k.
QByteArray numberLines(int first, int last)
{
    QByteArray lines;
    for (int line = first; line <= last; ++line) {
        lines += QByteArray::number(1000 + line) + "\r\n";
    }
    return lines;
}

} // namespace

TEST_F(PaletteTest, repeatsTenComponentLinesFromTheThirdOn)
{
    load(componentLines(10));
    for (int entry = 0; entry < 10; ++entry) {
        EXPECT_EQ(value(entry), 10 + entry);
    }
    // Entries 2 to 9 hold 12 to 19; eight colours come again and again.
    EXPECT_EQ(value(10), 12U);
    EXPECT_EQ(value(17), 19U);
    EXPECT_EQ(value(18), 12U);
    EXPECT_EQ(value(255), 17U); // 255 - 10 = 245 = 30 * 8 + 5
    expectPalette(QStringLiteral("Bleu"));
}

TEST_F(PaletteTest, repeatsNumbersFromTheMarkerLineOn)
{
    load(numberLines(0, 5) + numberLines(0, 0) + numberLines(7, 255)); // line 6 equals line 0
    for (int entry = 0; entry <= 5; ++entry) {
        EXPECT_EQ(value(entry), 1000 + entry);
    }
    EXPECT_EQ(value(6), 1002U) << "the marker itself is overwritten";
    EXPECT_EQ(value(9), 1005U);
    EXPECT_EQ(value(10), 1002U);
    EXPECT_EQ(value(255), 1003U); // 255 - 6 = 249 = 62 * 4 + 1
    expectPalette(QStringLiteral("Bleu"));
}

TEST_F(PaletteTest, takesNumbersWithoutAMarkerAsTheyAre)
{
    load(numberLines(0, 299));
    EXPECT_EQ(value(0), 1000U);
    EXPECT_EQ(value(255), 1255U);
    expectPalette(QStringLiteral("Bleu"));
}

TEST_F(PaletteTest, keepsWhatWasReadOfAnIncompleteNumbersFile)
{
    load(numberLines(0, 99));
    EXPECT_EQ(value(0), 1000U);
    EXPECT_EQ(value(99), 1099U);
    expectUntouched(100, 255);
    expectNoPalette();
}

TEST_F(PaletteTest, doesNotRepeatAnIncompleteNumbersFileWithAMarker)
{
    load(numberLines(0, 5) + numberLines(0, 0));
    EXPECT_EQ(value(6), 1000U);
    expectUntouched(7, 255);
    expectNoPalette();
}

TEST_F(PaletteTest, endsNumbersAtAValueBeyondThirtyTwoBits)
{
    load(numberLines(0, 9) + "9999999999\r\n" + numberLines(11, 255));
    EXPECT_EQ(value(9), 1009U);
    expectUntouched(10, 255);
    expectNoPalette();
}

TEST_F(PaletteTest, endsComponentsAtABadLineAndRepeatsTheOnesBefore)
{
    load(componentLines(4) + "4\tnom\trouge\t0\t0\r\n" + componentLines(9));
    EXPECT_EQ(value(3), 13U);
    EXPECT_EQ(value(4), 12U);
    EXPECT_EQ(value(5), 13U);
    EXPECT_EQ(value(255), 13U); // 255 - 4 = 251, the second of two colours
    expectPalette(QStringLiteral("Bleu"));
}

TEST_F(PaletteTest, leavesTheTableToABadFirstComponentLine)
{
    load("Num\tNom\tRouge\tVert\tBleu\r\n" + componentLines(9));
    expectUntouched(0, 255);
    expectPalette(QStringLiteral("Bleu"));
}

TEST_F(PaletteTest, repeatsNothingFromTwoComponentLines)
{
    load(componentLines(2));
    EXPECT_EQ(value(1), 11U);
    expectUntouched(2, 255);
    expectPalette(QStringLiteral("Bleu"));
}

TEST_F(PaletteTest, endsARepetitionThatRunsOffTheTableAtItsEnd)
{
    load(componentLines(1)); // repeats from entry 1: entry 255 would be entry 256
    EXPECT_EQ(value(0), 10U);
    for (int entry = 1; entry <= 254; ++entry) {
        EXPECT_EQ(colors.at(entry), untouched(entry + 1));
    }
    expectUntouched(255, 255);
    expectPalette(QStringLiteral("Bleu"));
}

TEST_F(PaletteTest, endsCompleteComponentsWithAMarkerInTheSecondLineTheSameWay)
{
    load(componentLines(1) + componentLines(255)); // lines 0 and 1 are equal, line 255 gives 264
    EXPECT_EQ(value(1), 11U);
    EXPECT_EQ(value(254), 264U);
    EXPECT_EQ(value(255), 264U);
    expectPalette(QStringLiteral("Bleu"));
}

TEST_F(PaletteTest, refusesNumbersWithAMarkerInTheSecondLine)
{
    load(numberLines(0, 0) + numberLines(0, 254));
    expectNoPalette();
    EXPECT_EQ(value(0), 1000U);
    EXPECT_EQ(value(255), 1254U);
}

TEST_F(PaletteTest, keepsTheLastEntryWhenComponentsLackOneLine)
{
    load(componentLines(255));
    EXPECT_EQ(value(254), 264U);
    expectUntouched(255, 255);
    expectPalette(QStringLiteral("Bleu"));
}

TEST_F(PaletteTest, fillsTheLastEntryFromTwoHundredAndFiftyFourComponentLines)
{
    load(componentLines(254));
    EXPECT_EQ(value(253), 263U);
    EXPECT_EQ(value(254), 12U);
    EXPECT_EQ(value(255), 13U);
}

TEST_F(PaletteTest, goesBackToNoPaletteWhenTheFileIsMissing)
{
    load(componentLines(10));
    palette.Charger_Palette(folder.filePath(QStringLiteral("Absente.mpl")));
    expectNoPalette();
    EXPECT_EQ(value(255), 17U) << "the colours stay";
}

TEST_F(PaletteTest, goesBackToNoPaletteWhenTheSettingsNameAMissingFile)
{
    colors.PaletteName = folder.filePath(QStringLiteral("Absente.mpl"));
    palette.Charger_Palette(colors.PaletteName);
    expectNoPalette();
    expectUntouched(0, 255);
}

TEST_F(PaletteTest, hasNoPaletteForAFolderAnEmptyPathOrAnEmptyFile)
{
    const QString empty = write({}, QStringLiteral("Vide.mpl"));
    for (const QString& path : {folder.path(), QString(), empty}) {
        colors.PaletteName = QStringLiteral("before");
        palette.Charger_Palette(path);
        expectNoPalette();
    }
    expectUntouched(0, 255);
}

#ifdef Q_OS_UNIX
TEST_F(PaletteTest, hasNoPaletteForADeviceThatNeverEnds)
{
    palette.Charger_Palette(QStringLiteral("/dev/zero"));
    expectNoPalette();
    expectUntouched(0, 255);
}

TEST_F(PaletteTest, hasNoPaletteForAFileThatCannotBeRead)
{
    const QString path = write(componentLines(10));
    ASSERT_TRUE(QFile::setPermissions(path, QFileDevice::Permissions()));
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        GTEST_SKIP() << "this account may read every file";
    }
    palette.Charger_Palette(path);
    expectNoPalette();
    expectUntouched(0, 255);
}
#endif

TEST(PaletteName, isTheFileNameWithoutFolderAndExtension)
{
    EXPECT_EQ(Palette::Nom_Palette(QStringLiteral("C:\\Styles\\Bleu.mpl")), QStringLiteral("Bleu"));
    EXPECT_EQ(Palette::Nom_Palette(QStringLiteral("/opt/Styles/Bleu.mpl")), QStringLiteral("Bleu"));
    EXPECT_EQ(Palette::Nom_Palette(QStringLiteral("C:/a.b\\Bleu nuit.mpl")),
              QStringLiteral("Bleu nuit"));
    EXPECT_EQ(Palette::Nom_Palette(QStringLiteral("Bleu.mpl")), QStringLiteral("Bleu"));
}

TEST(PaletteName, takesFourCharactersForTheExtensionWhateverTheyAre)
{
    EXPECT_EQ(Palette::Nom_Palette(QStringLiteral("/Styles/Bleu.palette")),
              QStringLiteral("Bleu.pal"));
    EXPECT_EQ(Palette::Nom_Palette(QStringLiteral("/Styles/.mpl")), QString());
}

TEST(PaletteName, isTheWholePathWhenTheNameIsTooShort)
{
    for (const QString& path : {QStringLiteral("C:\\Styles\\abc"), QStringLiteral("/Styles/abc"),
                                QStringLiteral("/Styles/"), QStringLiteral("abc"), QString()}) {
        EXPECT_EQ(Palette::Nom_Palette(path), path);
    }
}

TEST_F(PaletteTest, showsTheWholePathOfAFileWithATooShortName)
{
    const QString path = write(componentLines(10), QStringLiteral("abc"));
    palette.Charger_Palette(path);
    EXPECT_EQ(form.Label5.caption, path);
}

TEST_F(PaletteTest, asksInTheStylesFolderForPaletteFiles)
{
    palette.Choisir_Palette();
    EXPECT_EQ(askedFolder, QDir::toNativeSeparators(folder.filePath(QStringLiteral("Styles"))));
    EXPECT_EQ(askedFilter, QStringLiteral("*.mpl|*.mpl"));
}

TEST_F(PaletteTest, loadsTheChosenFileAndRedrawsThePlan)
{
    answer = write(componentLines(10));
    palette.Choisir_Palette();
    expectPalette(QStringLiteral("Bleu"));
    EXPECT_EQ(value(2), 12U);
    EXPECT_EQ(plan.refreshes, 1);
}

TEST_F(PaletteTest, redrawsThePlanWhenTheFirstChoiceIsCancelled)
{
    palette.Choisir_Palette();
    expectNoPalette();
    expectUntouched(0, 255);
    EXPECT_EQ(plan.refreshes, 1);
}

TEST_F(PaletteTest, loadsTheFirstFileAgainWhenTheSecondChoiceIsCancelled)
{
    answer = write(componentLines(10));
    palette.Choisir_Palette();
    write(componentLines(3)); // somebody edits it meanwhile
    answer.clear();
    palette.Choisir_Palette();
    expectPalette(QStringLiteral("Bleu"));
    EXPECT_EQ(value(3), 12U);
    EXPECT_EQ(plan.refreshes, 2);
}

TEST_F(PaletteTest, cancelsToTheChosenFileRatherThanTheOneOfTheSettings)
{
    palette.Charger_Palette(write(componentLines(10)));
    const QString chosen = write(componentLines(5), QStringLiteral("Vert.mpl"));
    palette.Choisir_Palette();
    expectPalette(QStringLiteral("Bleu"));
    answer = chosen;
    palette.Choisir_Palette();
    answer.clear();
    palette.Choisir_Palette();
    expectPalette(QStringLiteral("Vert"));
    EXPECT_EQ(plan.refreshes, 3);
}

TEST_F(PaletteTest, redrawsThePlanWhenTheChosenFileIsNoPalette)
{
    answer = write("no palette");
    palette.Choisir_Palette();
    expectNoPalette();
    EXPECT_EQ(plan.refreshes, 1);
}

namespace
{

/// Loads bytes over an untouched table and checks what holds for every file, however broken.
class BrokenPaletteTest : public PaletteTest
{
protected:
    void expectSoundAfter(const QByteArray& bytes)
    {
        for (int entry = 0; entry < kEntries; ++entry) {
            colors.set(entry, untouched(entry));
        }
        load(bytes);
        const appearance::PaletteFile file = appearance::parsePalette(bytes);
        if (file.isUsable() && file.repeatFrom != 1) {
            expectPalette(QStringLiteral("Bleu"));
        } else if (!file.isUsable()) {
            expectNoPalette();
        }
        expectEveryEntryKnown(file);
    }

private:
    /// Each entry holds a colour of the file or one that the table held before.
    void expectEveryEntryKnown(const appearance::PaletteFile& file) const
    {
        std::set<std::uint32_t> known;
        for (int entry = 0; entry < kEntries; ++entry) {
            known.insert(untouched(entry).value);
        }
        for (const Colour color : file.entries) {
            known.insert(color.value);
        }
        for (int entry = 0; entry < kEntries; ++entry) {
            ASSERT_TRUE(known.count(value(entry)) > 0) << "entry " << entry;
        }
        if (file.isUsable() && file.repeatFrom > 2) {
            ASSERT_NE(colors.at(kEntries - 1), untouched(kEntries - 1)) << "the table is not full";
        }
    }
};

} // namespace

TEST_F(BrokenPaletteTest, survivesAComponentsFileCutAtEveryByte)
{
    const QByteArray whole = componentLines(12);
    for (qsizetype length = 0; length <= whole.size(); ++length) {
        SCOPED_TRACE(length);
        expectSoundAfter(whole.first(length));
    }
}

TEST_F(BrokenPaletteTest, survivesANumbersFileCutAtEveryByte)
{
    const QByteArray whole = numberLines(0, 5) + numberLines(0, 0) + numberLines(7, 255);
    for (qsizetype length = 0; length <= whole.size(); ++length) {
        SCOPED_TRACE(length);
        expectSoundAfter(whole.first(length));
    }
}

TEST_F(BrokenPaletteTest, survivesRandomBytes)
{
    std::mt19937 engine(20260901);
    // Bytes that mean something come often, so that the random files get past their first line.
    const QByteArray meaningful = "0123456789\t\t\t\t\t\r\n\r\n -+.eE";
    for (int file = 0; file < 2000; ++file) {
        SCOPED_TRACE(file);
        QByteArray bytes(static_cast<qsizetype>(engine() % 3000), '\0');
        for (char& byte : bytes) {
            const auto drawn = static_cast<qsizetype>(engine());
            byte = drawn % 16 == 0 ? static_cast<char>(drawn / 16)
                                   : meaningful[drawn / 16 % meaningful.size()];
        }
        expectSoundAfter(bytes);
    }
}
