#include "db/PackedRow.h"

#include "support/RuntimeMatchers.h"

#include <gtest/gtest.h>

using namespace db;

namespace
{

/// The fields of a row as texts, a null as "<null>"; "<refused>" where it does not come apart.
QStringList fieldsOf(Packing packing, std::size_t count, const QString& row)
{
    PackedRow packed(packing, count);
    if (!packed.unpack(row)) {
        return {"<refused>"};
    }
    QStringList fields;
    for (const QStringView field : packed.fields()) {
        fields << (field.isNull() ? QStringLiteral("<null>") : field.toString());
    }
    return fields;
}

QString separated(const QStringList& fields)
{
    return fields.join(QChar(u'\x1f'));
}

} // namespace

TEST(PackedRow, asksSqliteForAnArray)
{
    EXPECT_EQ(packed(Packing::Json, {{"Salle", "Durée"}}),
              QStringLiteral("json_array(Salle,Durée)"));
}

TEST(PackedRow, asksAServerForSeparatedFields)
{
    EXPECT_EQ(packed(Packing::Separated, {{"Salle", "Durée"}}),
              QStringLiteral("concat_ws('\u001f',ifnull(Salle,'\u001e'),ifnull(Durée,'\u001e'))"));
}

TEST(PackedRow, asksForTheUsualColumnsAloneWhereTheOthersAreNull)
{
    EXPECT_EQ(packed(Packing::Json, {{"a", "b", "c"}, 1}),
              QStringLiteral("case when b is null and c is null then json_array(a) else "
                             "json_array(a,b,c) end"));
    EXPECT_EQ(packed(Packing::Separated, {{"a", "b"}, 1}),
              QStringLiteral("case when b is null then concat_ws('\u001f',ifnull(a,'\u001e')) else "
                             "concat_ws('\u001f',ifnull(a,'\u001e'),ifnull(b,'\u001e')) end"));
}

TEST(PackedRow, takesARowOfTheUsualFieldsForOneWithNulls)
{
    for (const Packing packing : {Packing::Json, Packing::Separated}) {
        const bool isJson = packing == Packing::Json;
        PackedRow packed(packing, 4, 2);
        const auto fields = [&](const QString& json, const QString& texts) {
            return packed.unpack(isJson ? json : texts);
        };
        ASSERT_TRUE(fields(R"(["a","b","c","d"])", separated({"a", "b", "c", "d"})));
        EXPECT_EQ(packed.fields()[3], QStringView(u"d"));
        ASSERT_TRUE(fields(R"(["e","f"])", separated({"e", "f"})));
        EXPECT_EQ(packed.fields()[0], QStringView(u"e"));
        EXPECT_EQ(packed.fields()[1], QStringView(u"f"));
        EXPECT_TRUE(packed.fields()[2].isNull()); // not the row's before
        EXPECT_TRUE(packed.fields()[3].isNull());
        EXPECT_FALSE(fields(R"(["a","b","c"])", separated({"a", "b", "c"})));
        EXPECT_FALSE(fields(R"(["a"])", separated({"a"})));
        EXPECT_FALSE(fields(R"(["a","b","c","d","e"])", separated({"a", "b", "c", "d", "e"})));
    }
}

TEST(PackedRow, takesAnArrayApart)
{
    EXPECT_EQ(fieldsOf(Packing::Json, 5, R"(["A101",null,"",12,1.5])"),
              (QStringList{"A101", "<null>", "", "12", "1.5"}));
    EXPECT_EQ(fieldsOf(Packing::Json, 1, R"(["Amphi [B], 1"])"), QStringList{"Amphi [B], 1"});
}

TEST(PackedRow, undoesTheEscapesOfAnArray)
{
    EXPECT_EQ(fieldsOf(Packing::Json, 3, R"(["B\\2 \"x\"","a\u00e9\tb\n","\b\f\r\/"])"),
              (QStringList{"B\\2 \"x\"", "aé\tb\n", "\b\f\r/"}));
}

TEST(PackedRow, keepsAnEmptyTextOfARowWithEscapes)
{
    EXPECT_EQ(fieldsOf(Packing::Json, 3, R"(["",null,"\t"])"), (QStringList{"", "<null>", "\t"}));
}

TEST(PackedRow, tellsTheWordNullFromANull)
{
    EXPECT_EQ(fieldsOf(Packing::Json, 2, R"(["null",null])"), (QStringList{"null", "<null>"}));
}

TEST(PackedRow, refusesAnArrayOfAnotherLength)
{
    const QStringList refused{"<refused>"};
    EXPECT_EQ(fieldsOf(Packing::Json, 2, R"(["a"])"), refused);
    EXPECT_EQ(fieldsOf(Packing::Json, 2, R"(["a","b","c"])"), refused);
    EXPECT_EQ(fieldsOf(Packing::Json, 1, R"(["a)"), refused);
    EXPECT_EQ(fieldsOf(Packing::Json, 1, ""), refused);
    EXPECT_EQ(fieldsOf(Packing::Json, 1, "[\"a\\"), refused);
}

TEST(PackedRow, takesSeparatedFieldsApart)
{
    EXPECT_EQ(fieldsOf(Packing::Separated, 4, separated({"A101", "\x1e", "", "90"})),
              (QStringList{"A101", "<null>", "", "90"}));
    EXPECT_EQ(fieldsOf(Packing::Separated, 2, separated({"", ""})), (QStringList{"", ""}));
    EXPECT_EQ(fieldsOf(Packing::Separated, 1, ""), QStringList{""});
    EXPECT_EQ(fieldsOf(Packing::Separated, 1, QString()), QStringList{""});
}

TEST(PackedRow, refusesAnotherNumberOfSeparatedFields)
{
    const QStringList refused{"<refused>"};
    EXPECT_EQ(fieldsOf(Packing::Separated, 2, "A101"), refused);
    EXPECT_EQ(fieldsOf(Packing::Separated, 2, separated({"a", "b", "c"})), refused);
}

TEST(PackedRow, takesRowAfterRow)
{
    PackedRow packed(Packing::Json, 1);
    ASSERT_TRUE(packed.unpack(R"(["a\tb"])"));
    const QString second = R"(["c\td"])";
    ASSERT_TRUE(packed.unpack(second));
    EXPECT_EQ(packed.fields().front(), u"c\td");
}
