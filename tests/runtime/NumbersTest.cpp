#include "runtime/Numbers.h"

#include "support/RuntimeMatchers.h"

#include <cfenv>
#include <limits>

using namespace runtime;
using test::errorNumberOf;

TEST(NearestInteger, takesHalvesToTheEvenNeighbour)
{
    EXPECT_EQ(nearestInteger(0.5), 0);
    EXPECT_EQ(nearestInteger(1.5), 2);
    EXPECT_EQ(nearestInteger(2.5), 2);
    EXPECT_EQ(nearestInteger(-0.5), 0);
    EXPECT_EQ(nearestInteger(-1.5), -2);
    EXPECT_EQ(nearestInteger(-2.5), -2);
}

TEST(NearestInteger, takesEverythingElseToTheNearest)
{
    EXPECT_EQ(nearestInteger(2.4999), 2);
    EXPECT_EQ(nearestInteger(2.5001), 3);
    EXPECT_EQ(nearestInteger(-2.5001), -3);
    EXPECT_EQ(nearestInteger(7.0), 7);
}

TEST(NearestInteger, doesNotDependOnTheRoundingModeOfTheProcess)
{
    const int before = std::fegetround();
    std::fesetround(FE_UPWARD);
    const auto rounded = nearestInteger(2.5);
    std::fesetround(before);
    EXPECT_EQ(rounded, 2);
}

TEST(NearestInteger, overflowsOutside32Bits)
{
    EXPECT_EQ(nearestInteger(2147483647.4), 2147483647);
    EXPECT_EQ(nearestInteger(-2147483648.5), -2147483647 - 1);
    EXPECT_EQ(errorNumberOf([] { return nearestInteger(2147483647.5); }), ErrorNumber::Overflow);
    EXPECT_EQ(errorNumberOf([] { return nearestInteger(-2147483649.0); }), ErrorNumber::Overflow);
}

TEST(NearestInteger, overflowsForAValueThatIsNoNumber)
{
    EXPECT_EQ(
        errorNumberOf([] { return nearestInteger(std::numeric_limits<double>::quiet_NaN()); }),
        ErrorNumber::Overflow);
    EXPECT_EQ(errorNumberOf([] { return nearestInteger(std::numeric_limits<double>::infinity()); }),
              ErrorNumber::Overflow);
}

TEST(NearestInt16, overflowsOutside16Bits)
{
    EXPECT_EQ(nearestInt16(32767.4), 32767);
    EXPECT_EQ(nearestInt16(-32768.5), -32768);
    EXPECT_EQ(errorNumberOf([] { return nearestInt16(32767.5); }), ErrorNumber::Overflow);
    EXPECT_EQ(errorNumberOf([] { return nearestInt16(-32769.0); }), ErrorNumber::Overflow);
}

TEST(LeadingNumber, skipsBlanksAndStopsAtTheFirstForeignCharacter)
{
    EXPECT_EQ(leadingNumber(QStringLiteral("  35/4")), 35.0);
    EXPECT_EQ(leadingNumber(QStringLiteral("12 rangées")), 12.0);
    EXPECT_EQ(leadingNumber(QStringLiteral("\t19")), 19.0);
    EXPECT_EQ(leadingNumber(QStringLiteral("-7x")), -7.0);
    EXPECT_EQ(leadingNumber(QStringLiteral("+7")), 7.0);
}

TEST(LeadingNumber, isZeroForATextWithoutOne)
{
    for (const char* text : {"", "   ", "abc", "-", "+", ".", "-.", "e5", "x12"}) {
        EXPECT_EQ(leadingNumber(QLatin1String(text)), 0.0) << text;
    }
}

TEST(LeadingNumber, readsThePointAsTheDecimalSignAndStopsAtAComma)
{
    EXPECT_EQ(leadingNumber(QStringLiteral("1.5")), 1.5);
    EXPECT_EQ(leadingNumber(QStringLiteral(".5")), 0.5);
    EXPECT_EQ(leadingNumber(QStringLiteral("5.")), 5.0);
    EXPECT_EQ(leadingNumber(QStringLiteral("1.2.3")), 1.2);
    EXPECT_EQ(leadingNumber(QStringLiteral("1,5")), 1.0);
}

TEST(LeadingNumber, readsAnExponentOnlyWhenItIsComplete)
{
    EXPECT_EQ(leadingNumber(QStringLiteral("1e3")), 1000.0);
    EXPECT_EQ(leadingNumber(QStringLiteral("1E-1")), 0.1);
    EXPECT_EQ(leadingNumber(QStringLiteral("1e")), 1.0);
    EXPECT_EQ(leadingNumber(QStringLiteral("1e+")), 1.0);
    EXPECT_EQ(leadingNumber(QStringLiteral("12elèves")), 12.0);
}

TEST(ToNumber, acceptsBothDecimalSignsAndOuterBlanks)
{
    EXPECT_EQ(toNumber(QStringLiteral(" 12,5 ")), 12.5);
    EXPECT_EQ(toNumber(QStringLiteral("12.5")), 12.5);
    EXPECT_EQ(toNumber(QStringLiteral("-3")), -3.0);
}

TEST(ToNumber, mismatchesForAnythingThatIsNoNumberAsAWhole)
{
    for (const char* text : {"", "  ", "x", "12x", "1 2", "1,2,3", "inf", "nan", "0x10", "--1"}) {
        EXPECT_EQ(errorNumberOf([&] { return toNumber(QLatin1String(text)); }),
                  ErrorNumber::TypeMismatch)
            << text;
    }
}

TEST(ToInt16, roundsHalvesToEvenAndOverflows)
{
    EXPECT_EQ(toInt16(QStringLiteral("2,5")), 2);
    EXPECT_EQ(toInt16(QStringLiteral("3,5")), 4);
    EXPECT_EQ(toInt16(QStringLiteral("-32768")), -32768);
    EXPECT_EQ(errorNumberOf([] { return toInt16(QStringLiteral("32768")); }),
              ErrorNumber::Overflow);
    EXPECT_EQ(errorNumberOf([] { return toInt16(QStringLiteral("x")); }),
              ErrorNumber::TypeMismatch);
}

TEST(ToInt32, readsWhatDoesNotFitInto16Bits)
{
    EXPECT_EQ(toInt32(QStringLiteral("32768")), 32768);
    EXPECT_EQ(errorNumberOf([] { return toInt32(QStringLiteral("2147483648")); }),
              ErrorNumber::Overflow);
}

TEST(ToBoolean, readsFrenchAndEnglishWordsInAnyCase)
{
    EXPECT_TRUE(toBoolean(QStringLiteral("True")));
    EXPECT_TRUE(toBoolean(QStringLiteral(" VRAI ")));
    EXPECT_FALSE(toBoolean(QStringLiteral("false")));
    EXPECT_FALSE(toBoolean(QStringLiteral("Faux")));
}

TEST(ToBoolean, takesEveryNumberButZeroForTrue)
{
    EXPECT_TRUE(toBoolean(QStringLiteral("-1")));
    EXPECT_TRUE(toBoolean(QStringLiteral("0,5")));
    EXPECT_FALSE(toBoolean(QStringLiteral("0")));
    EXPECT_FALSE(toBoolean(QStringLiteral("0.0")));
}

TEST(ToBoolean, mismatchesForAnyOtherText)
{
    EXPECT_EQ(errorNumberOf([] { return toBoolean(QStringLiteral("abc")); }),
              ErrorNumber::TypeMismatch);
    EXPECT_EQ(errorNumberOf([] { return toBoolean(QString()); }), ErrorNumber::TypeMismatch);
}

TEST(AddInt16, overflowsInBothDirections)
{
    EXPECT_EQ(addInt16(32000, 767), 32767);
    EXPECT_EQ(addInt16(-32000, -768), -32768);
    EXPECT_EQ(errorNumberOf([] { return addInt16(32767, 1); }), ErrorNumber::Overflow);
    EXPECT_EQ(errorNumberOf([] { return addInt16(-32768, -1); }), ErrorNumber::Overflow);
}

TEST(TrimBlanks, takesAwayOuterBlanksAndNothingElse)
{
    EXPECT_EQ(trimBlanks(QStringLiteral("  a b ")), QStringLiteral("a b"));
    EXPECT_EQ(trimBlanks(QStringLiteral("\ta\n ")), QStringLiteral("\ta\n"));
    EXPECT_EQ(trimBlanks(QStringLiteral("   ")), QString());
    EXPECT_EQ(trimBlanks(QString()), QString());
}
