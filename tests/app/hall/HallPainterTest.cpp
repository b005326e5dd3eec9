#include "app/hall/HallPainter.h"

#include "app/hall/HallDesk.h"
#include "paint/Inks.h"
#include "plan/BoxWords.h"
#include "support/TinyFaculty.h"

#include <QImage>

using namespace test;
using app::HallHours;
using app::HallLayout;
using app::HallMoment;
using app::HallPast;

namespace
{

const QDate kPaintedDay(2025, 3, 17);
constexpr QSize kScreen(1920, 1080);

class HallPainter : public testing::Test
{
protected:
    HallPainter() { createTinyFaculty(m_database); }

    [[nodiscard]] app::HallPlan read(const shell::CommandLine& choices = {},
                                     QDate day = kPaintedDay) const
    {
        return hallReader(m_setup, choices).read(hallTime(day, 7, 0), 18);
    }
    [[nodiscard]] static QImage drawn(const app::HallPlan& plan, const HallMoment& moment,
                                      const QString& remark = {})
    {
        QImage image(kScreen, QImage::Format_RGB32);
        QPainter surface(&image);
        app::HallPainter(surface, kScreen, plan, moment, remark).paint();
        return image;
    }
    [[nodiscard]] static HallMoment today(int minute)
    {
        return {kPaintedDay, minute, 0, HallPast::UntilClock, minute};
    }
    /// Where in row `row` of five (from 0) a minute of the day is drawn. The day goes from 8h30 to
    /// 17h15, the end of slot 4.
    [[nodiscard]] static QPoint spot(int row, double minute)
    {
        const HallLayout layout(kScreen, 5, false);
        const double across = (minute - 510) / (1035 - 510) * layout.boxes.width();
        return (QPointF(layout.boxes.left() + across,
                        layout.boxes.top() + (row + 0.12) * layout.rowHeight) *
                layout.scale)
            .toPoint();
    }
    [[nodiscard]] static bool isRed(const QColor& color)
    {
        return color.red() > 180 && color.green() < 60 && color.blue() < 80;
    }

private:
    TestDatabase m_database{DatabaseKind::Sqlite};
    ProgramSetup m_setup{m_database};
};

} // namespace

TEST_F(HallPainter, drawsTheBoxesFromTheEarliestSlotToTheEndOfTheLatest)
{
    const app::HallPlan plan = read();
    const HallHours hours = app::hallHoursOf(plan.pages);
    // 8h00 stands at 2040 twips, 90 minutes are 2400: 8h30 is 30 minutes behind, 17h15 is 555.
    EXPECT_EQ(hours, (HallHours{2840, 16840}));
    const QImage image = drawn(plan, {kPaintedDay, 420, 0, HallPast::UntilClock, 420});
    const form::Colour color = plan.pages[0].content.rows[1].color;
    const QColor inA2(color.red(), color.green(), color.blue());
    EXPECT_EQ(image.pixelColor(spot(1, 514)), inA2); // slot 1
    EXPECT_NE(image.pixelColor(spot(1, 608)), inA2); // the pause behind it
    EXPECT_NE(image.pixelColor(spot(0, 514)), inA2); // A1 is free
}

TEST_F(HallPainter, saysInWhichWeekABoxIsHeld)
{
    app::HallPlan plan = read();
    plan::PlanBox& inA2 = plan.pages[0].content.rows[1].boxes[0];
    ASSERT_EQ(plan::weekLetter(inA2), "");
    const QPoint corner = spot(1, 511.5); // four pixels from the box's left side
    const QImage always = drawn(plan, today(509));
    EXPECT_NE(always.pixelColor(corner), paint::kHeaderInk);
    inA2.cell.week = timetable::Week::A;
    EXPECT_EQ(drawn(plan, today(509)).pixelColor(corner), paint::kHeaderInk);
}

TEST_F(HallPainter, palesWhatHasEnded)
{
    const app::HallPlan plan = read();
    const QImage early = drawn(plan, today(509));
    const QImage noon = drawn(plan, today(720));
    // A2 in slot 1 is over; B1 in slot 3, from 14h00 on, is still to come.
    EXPECT_GT(qGray(noon.pixel(spot(1, 514))), qGray(early.pixel(spot(1, 514))));
    EXPECT_EQ(noon.pixel(spot(2, 845)), early.pixel(spot(2, 845)));
    // At 9h00 it was going on.
    const QImage nine = drawn(plan, today(540));
    EXPECT_EQ(nine.pixel(spot(1, 514)), early.pixel(spot(1, 514)));
    const QImage ended = drawn(plan, {kPaintedDay.addDays(1), 5, 0, HallPast::All, std::nullopt});
    EXPECT_GT(qGray(ended.pixel(spot(2, 845))), qGray(early.pixel(spot(2, 845))));
}

TEST_F(HallPainter, drawsALineWhereTheClockStands)
{
    const app::HallPlan plan = read();
    EXPECT_TRUE(isRed(drawn(plan, today(720)).pixelColor(spot(0, 720))));
    EXPECT_FALSE(isRed(drawn(plan, today(780)).pixelColor(spot(0, 720))));
    HallMoment later = today(720);
    later.past = HallPast::All;
    later.line = std::nullopt;
    EXPECT_FALSE(isRed(drawn(plan, later).pixelColor(spot(0, 720))));
}

TEST_F(HallPainter, drawsThePageThatIsDue)
{
    shell::CommandLine twoRooms;
    twoRooms.roomsPerPage = 3;
    const app::HallPlan plan = read(twoRooms);
    ASSERT_EQ(plan.pageCount(), 2);
    HallMoment second = today(480);
    second.page = 1;
    EXPECT_NE(drawn(plan, second), drawn(plan, today(480)));
    EXPECT_EQ(app::HallPainter::roomsShown(plan, 0), "Salles 1 à 3 sur 5");
    EXPECT_EQ(app::HallPainter::roomsShown(plan, 1), "Salles 4 à 5 sur 5");
    EXPECT_EQ(app::HallPainter::roomsShown(plan, 2), "");
}

TEST_F(HallPainter, putsARemarkAboveThePlan)
{
    const app::HallPlan plan = read();
    const HallLayout layout(kScreen, 5, true);
    const QPoint inTheRemark =
        (layout.remark.bottomRight() * layout.scale).toPoint() - QPoint(9, 9);
    const QColor amber(255, 214, 120);
    EXPECT_EQ(drawn(plan, today(480), "Depuis 7:59").pixelColor(inTheRemark), amber);
    EXPECT_NE(drawn(plan, today(480)).pixelColor(inTheRemark), amber);
}

TEST_F(HallPainter, saysWhyThereIsNothingToSee)
{
    EXPECT_EQ(app::HallPainter::emptyWords(read()), "");
    EXPECT_EQ(app::HallPainter::emptyWords(read({}, QDate(2025, 3, 23))),
              "Dimanche : aucune séance");
    EXPECT_EQ(app::HallPainter::emptyWords(read({}, QDate(2025, 3, 19))), "Aucune séance ce jour");
    shell::CommandLine zone;
    zone.zone = 7;
    EXPECT_EQ(app::HallPainter::emptyWords(read(zone)), "Zone 7 : aucune salle à montrer");
    EXPECT_EQ(app::HallPainter::emptyWords(app::HallPlan()), "");
}

TEST(HallLayout, holdsAsManyRoomsAsCanBeReadFromAfar)
{
    // 720 pixels of its own are 70 of heading, 22 of hours, 8 of margin and 13 rows of 47.
    EXPECT_EQ(app::hallRoomsFor({1920, 1080}), 13);
    EXPECT_EQ(app::hallRoomsFor({1366, 768}), 13);
    EXPECT_EQ(app::hallRoomsFor({1080, 1920}), 18); // upright
    EXPECT_EQ(app::hallRoomsFor({900, 600}), 10);   // 500 pixels of rows
    EXPECT_EQ(app::hallRoomsFor({0, 0}), 1);
}

TEST(HallLayout, fillsTheScreen)
{
    const HallLayout full({1920, 1080}, 12, false);
    // 12 rows of 47 and 100 around them are 664 pixels of its own, 1080 of the screen.
    EXPECT_DOUBLE_EQ(full.scale, 1080.0 / 664);
    EXPECT_NEAR(full.rowHeight, 47, 0.001);
    EXPECT_NEAR((full.places.right() + 8) * full.scale, 1920, 0.01);
    // Of few rooms it is the names and the hours that keep it from growing.
    const HallLayout few({1920, 1080}, 2, false);
    EXPECT_DOUBLE_EQ(few.scale, 1920.0 / 1100);
    EXPECT_DOUBLE_EQ(few.rowHeight, 72);
    // More rows than the screen has room for get smaller, not their lines.
    const HallLayout crowded({1366, 768}, 18, true);
    EXPECT_DOUBLE_EQ(crowded.scale, 1);
    EXPECT_DOUBLE_EQ(crowded.rowHeight, (768.0 - 100 - 28) / 18);
}
