#include "files/AnswerFormat.h"

#include "files/AnswerSamples.h"

#include <gtest/gtest.h>

using namespace files;

TEST(AnswerFormat, isOneOfFourAndACalendarOfAWeek)
{
    EXPECT_EQ(answerEndings(AnswerKind::Week), (QStringList{"json", "csv", "html", "pdf", "ics"}));
    for (const AnswerKind kind :
         {AnswerKind::FreeRooms, AnswerKind::Hits, AnswerKind::Clashes, AnswerKind::RoomUse}) {
        EXPECT_EQ(answerEndings(kind), (QStringList{"json", "csv", "html", "pdf"}));
    }
}

TEST(AnswerFormat, isToldByTheEndingWhateverItsCase)
{
    const AnswerFormat* format = answerFormatOf(AnswerKind::Clashes, "/tmp/a.json/Conflits.CSV");
    ASSERT_NE(format, nullptr);
    EXPECT_EQ(format->ending, QStringLiteral("csv"));
}

TEST(AnswerFormat, isNoneWhereTheAnswerHasNotThisForm)
{
    EXPECT_EQ(answerFormatOf(AnswerKind::Clashes, "Conflits.ics"), nullptr);
    EXPECT_EQ(answerFormatOf(AnswerKind::Week, "Semaine.txt"), nullptr);
    EXPECT_EQ(answerFormatOf(AnswerKind::Week, "Semaine"), nullptr);
    EXPECT_EQ(answerFormatOf(AnswerKind::Week, "pdf"), nullptr);
}

TEST(AnswerFormat, alonePutsDatesIntoACalendar)
{
    for (const AnswerFormat& format : answerFormats(AnswerKind::Week)) {
        EXPECT_EQ(format.isDated, format.ending == QStringLiteral("ics"))
            << format.ending.toStdString();
    }
}

TEST(AnswerFormat, writesWhatItsEndingSays)
{
    const auto begin = [](AnswerKind kind, const char* file, const AnswerDocument& document) {
        return answerFormatOf(kind, QString::fromLatin1(file))->write(document).trimmed();
    };
    test::AnswerSamples school;
    const AnswerDocument week = school.week();
    EXPECT_TRUE(begin(AnswerKind::Week, "w.json", week).startsWith("{\n    \"items\""));
    EXPECT_TRUE(begin(AnswerKind::Week, "w.csv", week).startsWith("\xef\xbb\xbfJour;"));
    EXPECT_TRUE(begin(AnswerKind::Week, "w.pdf", week).startsWith("%PDF-"));
    EXPECT_TRUE(begin(AnswerKind::Week, "w.html", week).startsWith("<!DOCTYPE html>"));
    // A week is drawn, all else is a list.
    const AnswerDocument clashes = school.clashes();
    EXPECT_TRUE(begin(AnswerKind::Clashes, "c.pdf", clashes).startsWith("%PDF-"));
    EXPECT_TRUE(begin(AnswerKind::Clashes, "c.html", clashes).contains("Ce qui ne va pas"));
}
