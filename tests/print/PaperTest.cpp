#include "print/Paper.h"

#include "support/RuntimeMatchers.h"

#include <QBuffer>
#include <QPdfWriter>

using namespace print;
using runtime::ErrorNumber;
using test::errorNumberOf;

namespace
{

QPageLayout lyingAcross(QPageSize::PageSizeId size)
{
    return {QPageSize(size), QPageLayout::Landscape, QMarginsF()};
}

} // namespace

TEST(Paper, hasAtLeastSixMillimetresAtEveryEdge)
{
    QBuffer buffer;
    QPdfWriter writer(&buffer);
    ASSERT_TRUE(layPaper(writer));
    EXPECT_EQ(writer.pageLayout().orientation(), QPageLayout::Landscape);
    // 6 mm are 17.01 points.
    EXPECT_EQ(writer.pageLayout().margins(QPageLayout::Point), QMarginsF(18, 18, 18, 18));
}

TEST(Paper, isMeasuredByA4LyingAcross)
{
    // Sizes in points: A4 842 by 595, A3 1191 by 842, A5 595 by 420, Letter 792 by 612.
    EXPECT_DOUBLE_EQ(designScale(lyingAcross(QPageSize::A4)), 1);
    EXPECT_DOUBLE_EQ(designScale(lyingAcross(QPageSize::A3)), 1191.0 / 842);
    EXPECT_DOUBLE_EQ(designScale(lyingAcross(QPageSize::A5)), 420.0 / 595);
    EXPECT_DOUBLE_EQ(designScale(lyingAcross(QPageSize::Letter)), 792.0 / 842);
}

TEST(Paper, thatTheDeviceRefusesIsAnErrorOfThePrinter)
{
    EXPECT_NO_THROW(requirePaper(true));
    EXPECT_EQ(errorNumberOf([] { requirePaper(false); }), ErrorNumber::PrinterError);
}
