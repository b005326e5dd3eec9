#include "files/IcsLines.h"

#include <gtest/gtest.h>

using files::IcsLines;

namespace
{

QByteArray lines(const QString& property, const QString& value)
{
    IcsLines collected;
    collected.add(property, value);
    return collected.bytes();
}

} // namespace

TEST(IcsLines, endWithCarriageReturnAndLineFeed)
{
    IcsLines collected;
    collected.add("BEGIN", "VEVENT");
    collected.addText("SUMMARY", "Algèbre, L1");
    EXPECT_EQ(collected.bytes(), "BEGIN:VEVENT\r\nSUMMARY:Algèbre\\, L1\r\n");
}

TEST(IcsLines, areFoldedBehind75Bytes)
{
    // "X:" and 73 letters are 75 bytes.
    EXPECT_EQ(lines("X", QString(73, 'a')), "X:" + QByteArray(73, 'a') + "\r\n");
    EXPECT_EQ(lines("X", QString(74, 'a')), "X:" + QByteArray(73, 'a') + "\r\n a\r\n");
    // A further line has its blank and 74 letters.
    EXPECT_EQ(lines("X", QString(73 + 74, 'a')),
              "X:" + QByteArray(73, 'a') + "\r\n " + QByteArray(74, 'a') + "\r\n");
    EXPECT_EQ(lines("X", QString(73 + 75, 'a')),
              "X:" + QByteArray(73, 'a') + "\r\n " + QByteArray(74, 'a') + "\r\n a\r\n");
}

TEST(IcsLines, areNeverFoldedWithinACharacter)
{
    // The two bytes of the accent would be the 75th and the 76th.
    EXPECT_EQ(lines("X", QString(72, 'a') + "éb"), "X:" + QByteArray(72, 'a') + "\r\n éb\r\n");
    EXPECT_EQ(lines("X", QString(71, 'a') + "éb"), "X:" + QByteArray(71, 'a') + "é\r\n b\r\n");
    // Four bytes, the 73rd to the 76th.
    EXPECT_EQ(lines("X", QString(70, 'a') + "🏫b"), "X:" + QByteArray(70, 'a') + "\r\n 🏫b\r\n");
}

TEST(IcsLines, escapeWhatHasAMeaning)
{
    EXPECT_EQ(IcsLines::escaped("a;b,c\\d:e\"f"), "a\\;b\\,c\\\\d:e\"f");
    EXPECT_EQ(IcsLines::escaped("a\nb\r\nc\rd"), "a\\nb\\nc\\nd");
    EXPECT_EQ(IcsLines::escaped("\\n"), "\\\\n"); // two characters, no line break
    EXPECT_EQ(IcsLines::escaped(QString("a\tb") + QChar(7) + QChar(0x85) + 'c'), "a\tbc");
}
