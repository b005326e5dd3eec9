#include "context/TimeAxis.h"

#include "support/RuntimeMatchers.h"

using context::TimeAxis;
using runtime::ErrorNumber;

namespace
{

// The screen's axis: 8h00 stands 1000 twips from the window's left edge.
const TimeAxis screen{"8h00", 1000, 2400};

} // namespace

TEST(TimeAxis, putsTheOriginTimeAtTheOrigin)
{
    EXPECT_EQ(screen.TimeToX("8h00"), 1000);
}

TEST(TimeAxis, readsEveryWayOfWritingATime)
{
    // 30 minutes are 30 * 2400 / 90 = 800 twips.
    for (const char* text : {"8h30", "8H30", "8:30", "08:30", " 8h30 ", "8:30:00"}) {
        EXPECT_EQ(screen.TimeToX(text), 1800) << text;
    }
}

TEST(TimeAxis, goesLeftOfTheOriginForEarlierTimes)
{
    EXPECT_EQ(screen.TimeToX("7h30"), 200);
}

TEST(TimeAxis, takesItsOriginFromACaptionInAnyForm)
{
    EXPECT_EQ((TimeAxis{"8:30", 1000, 2400}.TimeToX("10h00")), 3400);
}

TEST(TimeAxis, roundsToTheNearestTwip)
{
    EXPECT_EQ(screen.TimeToX("8h01"), 1027); // 26.67
    EXPECT_EQ(screen.TimeToX("8h02"), 1053); // 53.33
    EXPECT_EQ(screen.TimeToX("7h59"), 973);  // -26.67
}

TEST(TimeAxis, roundsHalvesToTheEvenTwip)
{
    const TimeAxis halves{"8h00", 0, 45}; // half a twip a minute
    EXPECT_EQ(halves.TimeToX("8h01"), 0);
    EXPECT_EQ(halves.TimeToX("8h03"), 2);
    EXPECT_EQ(halves.TimeToX("8h05"), 2);
}

TEST(TimeAxis, makesNinetyMinutesASlotWide)
{
    EXPECT_DOUBLE_EQ(screen.widthOf(90), 2400);
    EXPECT_DOUBLE_EQ(screen.widthOf(45), 1200);
    const TimeAxis printer{"8h00", 1000, TimeAxis::kPrinterSlotWidth};
    EXPECT_DOUBLE_EQ(printer.widthOf(90), 1700);
    EXPECT_EQ(printer.TimeToX("9h30"), 2700);
}

TEST(TimeAxis, refusesATextThatIsNoTime)
{
    for (const char* text : {"", "matin", "8", "25h00", "8h75"}) {
        EXPECT_EQ(test::errorNumberOf([&] { static_cast<void>(screen.TimeToX(text)); }),
                  ErrorNumber::TypeMismatch)
            << text;
    }
}

TEST(TimeAxis, namesTheTextThatIsNoTime)
{
    const runtime::RunTimeError error =
        test::errorOf([] { static_cast<void>(screen.TimeToX("matin")); });
    EXPECT_EQ(error.activity(), "Lecture de l’heure « matin »");
}
