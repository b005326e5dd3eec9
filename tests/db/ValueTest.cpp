#include "db/Value.h"

#include "support/RuntimeMatchers.h"

#include <functional>

using db::Value;
using runtime::ErrorNumber;
using test::errorNumberOf;

namespace
{

Value text(const char* value)
{
    return Value(QString::fromUtf8(value));
}

Value integer(std::int64_t value)
{
    return Value(value);
}

} // namespace

TEST(ANullValue, raisesInvalidUseOfNullWhateverItIsAskedFor)
{
    const Value null;
    EXPECT_TRUE(null.isNull());
    EXPECT_EQ(errorNumberOf([&] { return null.toText(); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(errorNumberOf([&] { return null.toInt16(); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(errorNumberOf([&] { return null.toInt32(); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(errorNumberOf([&] { return null.toBoolean(); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(errorNumberOf([&] { return null.toDate(); }), ErrorNumber::InvalidUseOfNull);
}

TEST(ANullValue, addsNothingToAJoinedText)
{
    EXPECT_EQ(Value().toJoinedText(), QString());
    EXPECT_EQ(text("A").toJoinedText(), QStringLiteral("A"));
}

TEST(AValue, isTextWithoutGroupingWhateverItsType)
{
    EXPECT_EQ(integer(1234567).toText(), QStringLiteral("1234567"));
    EXPECT_EQ(integer(-90).toText(), QStringLiteral("-90"));
    EXPECT_EQ(Value(0.1).toText(), QStringLiteral("0.1"));
    EXPECT_EQ(Value(35.0).toText(), QStringLiteral("35"));
    EXPECT_EQ(Value(true).toText(), QStringLiteral("True"));
    EXPECT_EQ(Value(false).toText(), QStringLiteral("False"));
    EXPECT_EQ(Value(QDate(2007, 3, 5)).toText(), QStringLiteral("2007-03-05"));
    EXPECT_EQ(text(" é ").toText(), QStringLiteral(" é "));
}

TEST(AValue, isAnIntegerByTheLegacyRules)
{
    EXPECT_EQ(text(" 12 ").toInt16(), 12);
    EXPECT_EQ(text("2,5").toInt16(), 2);
    EXPECT_EQ(Value(3.5).toInt32(), 4);
    EXPECT_EQ(Value(true).toInt16(), -1);
    EXPECT_EQ(integer(2147483647).toInt32(), 2147483647);
    EXPECT_EQ(errorNumberOf([] { return integer(32768).toInt16(); }), ErrorNumber::Overflow);
    EXPECT_EQ(errorNumberOf([] { return integer(2147483648).toInt32(); }), ErrorNumber::Overflow);
    EXPECT_EQ(errorNumberOf([] { return text("abc").toInt16(); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(errorNumberOf([] { return Value(QDate(2007, 3, 5)).toInt32(); }),
              ErrorNumber::TypeMismatch);
}

TEST(AValue, isABooleanByTheLegacyRules)
{
    EXPECT_TRUE(Value(true).toBoolean());
    EXPECT_TRUE(integer(-1).toBoolean());
    EXPECT_FALSE(integer(0).toBoolean());
    EXPECT_FALSE(Value(0.0).toBoolean());
    EXPECT_TRUE(text("Vrai").toBoolean());
    EXPECT_FALSE(text("0").toBoolean());
    EXPECT_EQ(errorNumberOf([] { return text("oui").toBoolean(); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(errorNumberOf([] { return Value(QDate(2007, 3, 5)).toBoolean(); }),
              ErrorNumber::TypeMismatch);
}

TEST(AValue, isADateWhenItBeginsWithOne)
{
    EXPECT_EQ(Value(QDate(2007, 3, 5)).toDate(), QDate(2007, 3, 5));
    EXPECT_EQ(text("2007-03-05").toDate(), QDate(2007, 3, 5));
    EXPECT_EQ(text("2007/3/5").toDate(), QDate(2007, 3, 5));
    EXPECT_EQ(text("2007-03-05 10:00:00").toDate(), QDate(2007, 3, 5));
}

TEST(AValue, isNoDateOtherwise)
{
    for (const char* value : {"", "2007", "05/03/2007", "2007-13-01", "2007-02-30", "2007-03/05",
                              "2007-03-051", "0000-00-00", " 2007-03-05"}) {
        EXPECT_EQ(errorNumberOf([&] { return text(value).toDate(); }), ErrorNumber::TypeMismatch)
            << value;
    }
    EXPECT_EQ(errorNumberOf([] { return integer(20070305).toDate(); }), ErrorNumber::TypeMismatch);
}

TEST(Values, areEqualWhenTypeAndValueAre)
{
    EXPECT_EQ(integer(1), integer(1));
    EXPECT_FALSE(integer(1) == Value(true));
    EXPECT_FALSE(text("1") == integer(1));
    EXPECT_EQ(Value(), Value());
}
