#include "app/WrappingBand.h"

#include <QWidget>
#include <gtest/gtest.h>

namespace
{

/// A panel of a fixed size.
class Panel : public QWidget
{
public:
    Panel(int width, int height) : m_size(width, height) {}
    [[nodiscard]] QSize sizeHint() const override { return m_size; }
    [[nodiscard]] QSize minimumSizeHint() const override { return m_size; }

private:
    QSize m_size;
};

/// Three panels, 100, 200 and 150 pixels wide, 10 apart, 5 from the edges.
class TheBand : public testing::Test
{
protected:
    TheBand()
    {
        m_band->setContentsMargins(5, 5, 5, 5);
        m_band->setSpacing(10);
        for (QWidget* panel : m_panels) {
            m_band->addWidget(panel);
        }
    }
    /// Where the panels lie in a band that wide.
    std::vector<QRect> places(int width)
    {
        m_band->setGeometry({0, 0, width, m_band->heightForWidth(width)});
        std::vector<QRect> all;
        for (const QWidget* panel : m_panels) {
            all.push_back(panel->geometry());
        }
        return all;
    }
    app::WrappingBand& band() { return *m_band; }
    QWidget& panel(std::size_t index) { return *m_panels.at(index); }

private:
    QWidget m_ground;
    app::WrappingBand* m_band = new app::WrappingBand(&m_ground);
    std::vector<QWidget*> m_panels{new Panel(100, 40), new Panel(200, 50), new Panel(150, 30)};
};

} // namespace

TEST_F(TheBand, isOneRowWhereAllFit)
{
    EXPECT_EQ(band().sizeHint(), QSize(480, 60)); // 450 + 2 * 10 + 2 * 5
    EXPECT_EQ(band().heightForWidth(480), 60);
    EXPECT_EQ(places(480),
              (std::vector<QRect>{{5, 5, 100, 50}, {115, 5, 200, 50}, {325, 5, 150, 50}}));
}

TEST_F(TheBand, doesNotStretchItsPanels)
{
    EXPECT_EQ(places(1000), places(480));
}

TEST_F(TheBand, wrapsWhereTheyDoNotFit)
{
    EXPECT_EQ(band().heightForWidth(469), 100); // 50 and 30, 10 between them
    EXPECT_EQ(places(469),
              (std::vector<QRect>{{5, 5, 100, 50}, {115, 5, 200, 50}, {5, 65, 150, 30}}));
    EXPECT_EQ(band().heightForWidth(260), 150); // 40, 50 and 30 below one another
}

TEST_F(TheBand, standsCloserWhereThatSavesARow)
{
    EXPECT_EQ(band().heightForWidth(479), 60);
    EXPECT_EQ(band().heightForWidth(470), 60); // 450 + 2 * 5 + 2 * 5
    EXPECT_EQ(places(470),
              (std::vector<QRect>{{5, 5, 100, 50}, {110, 5, 200, 50}, {315, 5, 150, 50}}));
}

TEST_F(TheBand, isAsWideAsItsWidestPanelAtLeast)
{
    EXPECT_EQ(band().minimumSize(), QSize(210, 60));
}

TEST_F(TheBand, leavesNoRoomForWhatIsHidden)
{
    panel(1).hide();
    EXPECT_EQ(band().sizeHint(), QSize(270, 50));
    EXPECT_EQ(places(270)[2], QRect(115, 5, 150, 40));
}
