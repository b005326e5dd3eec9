#include "paint/RowTexts.h"

#include "paint/Inks.h"
#include "plan/CellLayout.h"
#include "support/RuntimeMatchers.h"

using namespace paint;

namespace
{

const TextRuler& ruler()
{
    static const TextRuler ruler(planFont(13));
    return ruler;
}

/// The sizes of texts that have areas so many pixels wide and 16 high.
QString sizesOf(const std::vector<std::pair<QString, double>>& texts)
{
    std::vector<RowText> row;
    for (const auto& [text, width] : texts) {
        row.push_back({QRectF(0, 0, width, 16), text});
    }
    QStringList sizes;
    for (const TextSetting& setting : fitRowTexts(row, plan::CellLayout::kCentredLines, ruler())) {
        sizes << QString::number(setting.pixels);
    }
    return sizes.join(' ');
}

const QString text = "Mécanique des milieux";
/// As wide as the text is in so many pixels of size.
double widthIn(int pixels)
{
    return ruler().width(text) * pixels / 13 + 0.5;
}

} // namespace

TEST(RowTexts, haveTheirOwnSizeWhereAllFit)
{
    EXPECT_EQ(sizesOf({{text, 400}, {text, widthIn(13)}}), "13 13");
    EXPECT_EQ(sizesOf({}), "");
}

TEST(RowTexts, haveTheSizeOfTheSmallestInAllOfTheRow)
{
    EXPECT_EQ(sizesOf({{text, 400}, {text, widthIn(12)}, {text, 300}}), "12 12 12");
    EXPECT_EQ(sizesOf({{text, widthIn(11)}, {text, widthIn(12)}, {text, 300}}), "11 11 11");
}

TEST(RowTexts, doNotShrinkForOneThatNobodyCouldReadThen)
{
    EXPECT_EQ(sizesOf({{text, 400}, {text, widthIn(9)}, {text, 300}}), "11 9 11");
    EXPECT_EQ(sizesOf({{text, 400}, {"", 10}, {text, 300}}), "13 0 13");
}

TEST(RowTexts, standCloserBeforeTheyShrink)
{
    const QRectF area(0, 0, 400, 32);
    const QString three = "un\ndeux\ntrois";
    const int format = plan::CellLayout::kCentredLines;
    const TextSetting close = fitRowTexts({{area, three}}, format, ruler()).front();
    const TextSetting wide = fitBoxText(area, three, format, ruler(), 13);
    EXPECT_GT(close.pixels, wide.pixels);
    EXPECT_TRUE(close.fits);
    EXPECT_EQ(close.lines.size(), 3);
}

TEST(RowTexts, goOnInOneLineWhereThereIsNoRoomForAnother)
{
    const RowText low{QRectF(0, 0, 142, 22), "L1 PHYS A\nMessaoudi K.\nTopologie"};
    const int format = plan::CellLayout::kCentredLines;
    const TextSetting setting = fitRowTexts({low}, format, ruler()).front();
    EXPECT_TRUE(setting.fits);
    EXPECT_EQ(setting.lines, QStringList({"L1 PHYS A Messaoudi K.", "Topologie"}));
    const RowText narrow{QRectF(0, 0, 30, 22), low.text}; // too narrow in any way
    EXPECT_EQ(fitRowTexts({narrow}, format, ruler()).front().lines.size(), 3);
}
