#include "appearance/PaletteFile.h"

#include <QStringBuilder>
#include <gtest/gtest.h>
#include <vector>

using appearance::PaletteFile;
using appearance::parsePalette;
using form::Colour;

namespace
{

/// The values of the entries, which read better in a failure than colours.
std::vector<std::uint32_t> valuesOf(const QByteArray& bytes)
{
    std::vector<std::uint32_t> values;
    for (const Colour color : parsePalette(bytes).entries) {
        values.push_back(color.value);
    }
    return values;
}

using Values = std::vector<std::uint32_t>;

/// One good line of a Components file, so that the lines after it are read as such.
const QByteArray kFirstLine = "0\ta\t1\t2\t3\r\n";
constexpr std::uint32_t kFirstValue = 1 + 256 * 2 + 65536 * 3;

} // namespace

TEST(PaletteFile, choosesTheLayoutByTheFirstLineAlone)
{
    EXPECT_EQ(parsePalette("5\r\n0\ta\t1\t2\t3\r\n").layout, PaletteFile::Layout::Numbers);
    EXPECT_EQ(parsePalette("\t\r\n5\r\n").layout, PaletteFile::Layout::Components);
    EXPECT_EQ(parsePalette("").layout, PaletteFile::Layout::Numbers);
}

TEST(PaletteFile, readsTheNumberAtTheStartOfALine)
{
    EXPECT_EQ(valuesOf("16711680\r\n  255 ; rouge\r\n12abc\r\n1e3\r\n"),
              (Values{16711680, 255, 12, 1000}));
}

TEST(PaletteFile, skipsATabBeforeANumberOfALaterLine)
{
    EXPECT_EQ(valuesOf("5\r\n\t7\r\n"), (Values{5, 7}));
}

TEST(PaletteFile, takesALineWithoutANumberForBlack)
{
    EXPECT_EQ(valuesOf("1\r\nrouge\r\n\r\n"), (Values{1, 0, 0}));
}

TEST(PaletteFile, roundsHalvesToTheEvenNumber)
{
    EXPECT_EQ(valuesOf("0.5\r\n1.5\r\n2.5\r\n2.51\r\n"), (Values{0, 2, 2, 3}));
}

TEST(PaletteFile, keepsTheThirtyTwoBitsOfANumber)
{
    EXPECT_EQ(valuesOf("-1\r\n2147483647\r\n-2147483648\r\n"),
              (Values{0xffffffff, 0x7fffffff, 0x80000000}));
}

TEST(PaletteFile, endsAtANumberBeyondThirtyTwoBits)
{
    EXPECT_EQ(valuesOf("1\r\n2147483648\r\n3\r\n"), Values{1});
    EXPECT_EQ(valuesOf("1\r\n1e999\r\n3\r\n"), Values{1});
}

TEST(PaletteFile, combinesRedGreenAndBlue)
{
    EXPECT_EQ(valuesOf("free\tfree too\t10\t20\t30\r\n\t\t255\t255\t255"),
              (Values{10 + 256 * 20 + 65536 * 30, 0xffffff}));
}

TEST(PaletteFile, roundsComponentsAndSkipsTheirBlanks)
{
    EXPECT_EQ(valuesOf("\t\t 2.5 \t 3.5\t0 \r\n"), Values{2 + 256 * 4});
}

TEST(PaletteFile, letsComponentsOutOfRangeRunOver)
{
    EXPECT_EQ(valuesOf("\t\t300\t0\t0\r\n"), Values{300});
    EXPECT_EQ(valuesOf("\t\t-1\t0\t0\r\n"), Values{0xffffffff});
    EXPECT_EQ(valuesOf("\t\t0\t0\t-32768\r\n"), Values{0x80000000});
    // 65536 * 32767 + 256 * 255 + 255 is the largest value of 32 bits.
    EXPECT_EQ(valuesOf("\t\t255\t255\t32767\r\n"), Values{0x7fffffff});
}

TEST(PaletteFile, endsAtAComponentThatDoesNotFit)
{
    EXPECT_EQ(valuesOf(kFirstLine + "\t\t32768\t0\t0\r\n"), Values{kFirstValue});
    EXPECT_EQ(valuesOf(kFirstLine + "\t\t256\t255\t32767\r\n"), Values{kFirstValue});
}

TEST(PaletteFile, endsAtAComponentThatIsNoNumber)
{
    for (const char* line : {"1\tb\trouge\t2\t3", "1\tb\t\t2\t3", "1\tb\t1\t2\t", "1\tb\t1\t2x\t3",
                             "1\tb\tinf\t2\t3", "1\tb\t1\t2\t3\t4", ""}) {
        EXPECT_EQ(valuesOf(kFirstLine + line + "\r\n" + kFirstLine), Values{kFirstValue}) << line;
    }
}

TEST(PaletteFile, endsAtALineWithFewerThanFourTabs)
{
    for (const char* line : {"1", "1\tb", "1\tb\t1", "1\tb\t1\t2"}) {
        EXPECT_EQ(valuesOf(kFirstLine + line + "\r\n" + kFirstLine), Values{kFirstValue}) << line;
    }
}

TEST(PaletteFile, readsEveryKindOfLineEnd)
{
    const Values expected{1, 2, 0, 3};
    EXPECT_EQ(valuesOf("1\r\n2\r\n\r\n3\r\n"), expected);
    EXPECT_EQ(valuesOf("1\n2\n\n3"), expected);
    EXPECT_EQ(valuesOf("1\r2\r\r3\r"), expected);
    EXPECT_EQ(valuesOf("1\r\n2\n\r3"), expected);
}

TEST(PaletteFile, needsNoLineEndAfterTheLastLine)
{
    EXPECT_EQ(valuesOf("1\r\n2").size(), 2U);
    EXPECT_EQ(valuesOf("1\r\n2\r\n").size(), 2U);
    EXPECT_EQ(valuesOf("1\r\n2\r\n\r\n").size(), 3U);
}

TEST(PaletteFile, allowsLabelsInAnyEncoding)
{
    const QByteArray mark = "\xef\xbb\xbf";
    EXPECT_EQ(valuesOf(mark + "0\toc\xc3\xa9\x61n\t1\t2\t3\r\n"), Values{kFirstValue}) << "UTF-8";
    EXPECT_EQ(valuesOf("0\toc\xe9\x61n\t1\t2\t3\r\n"), Values{kFirstValue}) << "Latin-1";
}

TEST(PaletteFile, takesNumbersBehindAByteOrderMarkForText)
{
    EXPECT_EQ(valuesOf("\xef\xbb\xbf"
                       "5\r\n6\r\n"),
              (Values{0, 6}));
}

TEST(PaletteFile, readsNoMoreThanTheTable)
{
    EXPECT_EQ(valuesOf(QByteArray("7\r\n").repeated(300)).size(), 256U);
    EXPECT_EQ(valuesOf(kFirstLine.repeated(300)).size(), 256U);
}

TEST(PaletteFile, isUsableWithNumbersOnlyWhenComplete)
{
    EXPECT_TRUE(parsePalette(QByteArray("7\r\n").repeated(256)).isUsable());
    EXPECT_FALSE(parsePalette(QByteArray("7\r\n").repeated(255)).isUsable());
    EXPECT_FALSE(parsePalette("").isUsable());
}

TEST(PaletteFile, isUsableWithComponentsWhereverItEnds)
{
    EXPECT_TRUE(parsePalette(kFirstLine).isUsable());
    EXPECT_TRUE(parsePalette("Num\tNom\tR\tV\tB\r\n").isUsable());
}

TEST(PaletteFile, repeatsNumbersFromTheFirstLineThatEqualsTheFirst)
{
    EXPECT_EQ(parsePalette("9\r\n1\r\n2\r\n9\r\n4\r\n9\r\n").repeatFrom, 3);
    EXPECT_EQ(parsePalette("9\r\n1\r\n2\r\n").repeatFrom, 0);
    EXPECT_EQ(parsePalette("9\r\n9\r\n2\r\n").repeatFrom, 1);
}

TEST(PaletteFile, repeatsComponentsFromTheirLineCount)
{
    const QByteArray other = "1\tb\t4\t5\t6\r\n";
    EXPECT_EQ(parsePalette(kFirstLine + other.repeated(9)).repeatFrom, 10);
    EXPECT_EQ(parsePalette(kFirstLine + other + kFirstLine + other).repeatFrom, 4)
        << "the end of the file replaces the marker line";
    EXPECT_EQ(parsePalette(kFirstLine + other.repeated(253)).repeatFrom, 254);
    EXPECT_EQ(parsePalette("Num\tNom\tR\tV\tB\r\n" + other).repeatFrom, 0);
}

TEST(PaletteFile, repeatsLongComponentsFilesFromTheMarkerLine)
{
    const QByteArray other = "1\tb\t4\t5\t6\r\n";
    const QByteArray marked = kFirstLine + other.repeated(3) + kFirstLine;
    EXPECT_EQ(parsePalette(marked + other.repeated(250)).repeatFrom, 4) << "255 lines";
    EXPECT_EQ(parsePalette(marked + other.repeated(251)).repeatFrom, 4) << "256 lines";
    EXPECT_EQ(parsePalette(marked + other.repeated(249)).repeatFrom, 254) << "254 lines";
    EXPECT_EQ(parsePalette(kFirstLine + other.repeated(254)).repeatFrom, 0) << "no marker";
}
