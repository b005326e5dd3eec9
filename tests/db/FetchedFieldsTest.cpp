#include "db/FetchedFields.h"

#include <array>
#include <gtest/gtest.h>

using namespace db;

namespace
{

FetchedFields fieldsOf(const std::vector<FieldForm>& forms)
{
    QStringList names;
    for (std::size_t column = 0; column < forms.size(); ++column) {
        names << QString::number(column);
    }
    return FetchedFields(std::make_shared<const Columns>(names), forms);
}

void add(FetchedFields& fields, QByteArrayView bytes)
{
    fields.append(bytes.data(), static_cast<std::size_t>(bytes.size()));
    fields.end();
}

/// The value of one field, given as UTF-8, in a column of the type.
Value read(SQLSMALLINT type, QByteArrayView bytes)
{
    FetchedFields fields = fieldsOf({{type, SQL_C_CHAR}});
    add(fields, bytes);
    return fields.value(0, 0);
}

Value text(const char* value)
{
    return Value(QString::fromUtf8(value));
}

} // namespace

TEST(FetchedFields, stayInTheirRowsAndColumns)
{
    FetchedFields fields = fieldsOf({{SQL_VARCHAR, SQL_C_CHAR}, {SQL_INTEGER, SQL_C_CHAR}});
    add(fields, "B é");
    add(fields, "90");
    fields.endNull();
    add(fields, "");
    EXPECT_EQ(fields.value(0, 0), text("B é"));
    EXPECT_EQ(fields.value(0, 1), Value(std::int64_t{90}));
    EXPECT_TRUE(fields.value(1, 0).isNull());
    EXPECT_EQ(fields.value(1, 1), text("")); // no number
}

TEST(FetchedFields, areOneFieldWhateverThePiecesTheyCameIn)
{
    FetchedFields fields = fieldsOf({{SQL_VARCHAR, SQL_C_CHAR}});
    const QByteArray bytes = QStringLiteral("été").toUtf8();
    fields.append(bytes.data(), 1); // half a character
    fields.append(bytes.data() + 1, static_cast<std::size_t>(bytes.size() - 1));
    fields.end();
    EXPECT_EQ(fields.value(0, 0), text("été"));
}

TEST(FetchedFields, mayComeAsUtf16AndAsBits)
{
    FetchedFields fields = fieldsOf({{SQL_VARCHAR, SQL_C_WCHAR}, {SQL_BIT, SQL_C_BIT}});
    const QString wide = QStringLiteral("Ω 😀");
    fields.append("x", 0); // nothing
    fields.append(reinterpret_cast<const char*>(wide.utf16()),
                  static_cast<std::size_t>(wide.size()) * sizeof(char16_t));
    fields.end();
    add(fields, QByteArrayView("\x01", 1));
    add(fields, QByteArrayView());
    add(fields, QByteArrayView("\x00", 1));
    EXPECT_EQ(fields.value(0, 0), Value(wide));
    EXPECT_EQ(fields.value(0, 1), Value(true));
    EXPECT_EQ(fields.value(1, 0), text(""));
    EXPECT_EQ(fields.value(1, 1), Value(false));
}

TEST(FetchedFields, areEmptyTextsWhereNothingCame)
{
    for (const SQLSMALLINT cType :
         std::array<SQLSMALLINT, 3>{SQL_C_CHAR, SQL_C_BINARY, SQL_C_WCHAR}) {
        FetchedFields fields = fieldsOf({{SQL_VARCHAR, cType}});
        fields.end();
        EXPECT_EQ(fields.value(0, 0), text(""));
    }
    FetchedFields bit = fieldsOf({{SQL_BIT, SQL_C_BIT}});
    bit.end();
    EXPECT_EQ(bit.value(0, 0), Value(false));
}

TEST(FetchedFields, leaveHalfACharacterOut)
{
    FetchedFields fields = fieldsOf({{SQL_VARCHAR, SQL_C_WCHAR}});
    const QString wide = QStringLiteral("éx");
    for (const std::size_t bytes : {3U, 1U}) {
        fields.append(reinterpret_cast<const char*>(wide.utf16()), bytes);
        fields.end();
    }
    const QString one = fields.value(0, 0).toText();
    EXPECT_EQ(one, QStringLiteral("é"));
    EXPECT_EQ(one.utf16()[1], 0); // nothing was written behind the text
    EXPECT_EQ(fields.value(1, 0), text(""));
}

TEST(FetchedFields, keepAByteOrderMark)
{
    const QString name = QChar(QChar::ByteOrderMark) + QStringLiteral("A101");
    EXPECT_EQ(read(SQL_VARCHAR, "\xef\xbb\xbf"
                                "A101"),
              Value(name));
    EXPECT_EQ(read(SQL_VARCHAR, "\xef\xbb\xbf"), Value(name.first(1)));
}

TEST(FetchedFields, areNumbersAndDatesWhereTheyReadAsSuch)
{
    EXPECT_EQ(read(SQL_BIGINT, "9000000000"), Value(std::int64_t{9000000000}));
    EXPECT_EQ(read(SQL_INTEGER, "1.5"), Value(1.5));
    EXPECT_EQ(read(SQL_INTEGER, "douze"), text("douze"));
    EXPECT_EQ(read(SQL_DOUBLE, "2"), Value(2.0));
    EXPECT_EQ(read(SQL_BIT, "-1"), Value(true));
    EXPECT_EQ(read(SQL_BIT, "oui"), text("oui"));
    EXPECT_EQ(read(SQL_TYPE_DATE, "2007-03-15"), Value(QDate(2007, 3, 15)));
    EXPECT_EQ(read(SQL_TYPE_TIMESTAMP, "2007-03-15 00:00:00"), Value(QDate(2007, 3, 15)));
    EXPECT_EQ(read(SQL_TYPE_TIMESTAMP, "2007-03-15 08:30:00"), text("2007-03-15 08:30:00"));
    EXPECT_EQ(read(SQL_VARCHAR, "90"), text("90"));
}

TEST(AFieldForm, knowsWhatEndsItsTexts)
{
    EXPECT_EQ((FieldForm{SQL_VARCHAR, SQL_C_CHAR}.terminator()), 1U);
    EXPECT_EQ((FieldForm{SQL_VARCHAR, SQL_C_WCHAR}.terminator()), 2U);
    EXPECT_EQ((FieldForm{SQL_VARCHAR, SQL_C_BINARY}.terminator()), 0U);
}
