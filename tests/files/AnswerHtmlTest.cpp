#include "files/AnswerHtml.h"

#include "files/AnswerSamples.h"

#include <QXmlStreamReader>
#include <gtest/gtest.h>

using namespace files;
using namespace test;
using timetable::column::kClasse;
using timetable::column::kEnseignant1;
using timetable::column::kSalle;
using timetable::column::kSeance;

namespace
{

/// Fails with the parser's complaint when the page is not well-formed.
void expectWellFormed(const QString& html)
{
    QXmlStreamReader reader(html);
    while (!reader.atEnd()) {
        reader.readNext();
    }
    EXPECT_FALSE(reader.hasError())
        << reader.errorString().toStdString() << " in line " << reader.lineNumber();
}

/// The page of an answer, which every test wants well-formed.
QString pageOf(const AnswerDocument& document)
{
    const QString page = QString::fromUtf8(answerAsHtml(document));
    expectWellFormed(page);
    return page;
}

class AnswerHtml : public testing::Test
{
protected:
    AnswerSamples school;
};

} // namespace

TEST_F(AnswerHtml, isOnePageInFrenchThatNeedsNothingElse)
{
    for (const QString& page : {pageOf(school.freeRooms()), pageOf(school.find("a")),
                                pageOf(school.clashes()), pageOf(school.roomUse())}) {
        EXPECT_TRUE(page.startsWith("<!DOCTYPE html>\n<html lang=\"fr\">"));
        for (const char* foreign :
             {"<script", "<link", "<img", "http:", "https:", "url(", "@import"}) {
            EXPECT_FALSE(page.contains(foreign)) << foreign;
        }
    }
}

TEST_F(AnswerHtml, givesEveryTableACaptionAndEveryCellItsHeadings)
{
    const QString page = pageOf(school.freeRooms());
    EXPECT_TRUE(page.contains("<h1>Salles libres</h1>\n<p>Toute semaine</p>\n<p>Période 1</p>"));
    EXPECT_EQ(page.count("<table"), 3);
    EXPECT_EQ(page.count("<caption>"), 3);
    EXPECT_TRUE(page.contains("<caption>Salles occupées (1)</caption>"));
    EXPECT_EQ(page.count("<th scope=\"col\""), 6 + 3 + 3);
    EXPECT_EQ(page.count("<th scope=\"row\""), 3);
    EXPECT_TRUE(page.contains("<tr><th scope=\"row\">TP 1</th><td class=\"number\">12</td>"
                              "<td>2</td><td>INFO</td><td>8h00</td><td>9h30</td></tr>"));
    EXPECT_TRUE(page.contains("<li>Les salles qui ont juste assez de places viennent d’abord."));
}

TEST_F(AnswerHtml, saysWhatIsNotThere)
{
    const QString page = pageOf(school.find("zzz"));
    EXPECT_EQ(page.count("<table"), 0);
    EXPECT_TRUE(page.contains("<h2>Trouvés (0)</h2>\n<p>Aucun nom ne contient ce texte.</p>"));
}

TEST_F(AnswerHtml, shadesTheSlotsAndTellsThemInPercent)
{
    const QString page = pageOf(school.roomUse());
    // A third of the way from white to 4a86d0: 255 - 181 / 3, 255 - 121 / 3, 255 - 47 / 3.
    EXPECT_TRUE(
        page.contains(u"<td class=\"shade\" style=\"background:#c3d7ef;color:#000000\">33\u202f%"));
    EXPECT_TRUE(
        page.contains(u"<td class=\"shade\" style=\"background:#ffffff;color:#000000\">0\u202f%"));
    EXPECT_EQ(page.count("<td class=\"shade\""), 3 * 7);
}

TEST_F(AnswerHtml, drawsBarsForTheEyeBesideThePercentages)
{
    const QString page = pageOf(school.roomUse());
    EXPECT_TRUE(page.contains(u"<span class=\"value\">8\u202f%</span><span class=\"frame\" "
                              "aria-hidden=\"true\"><span class=\"length\" style=\"width:8.3%\">"));
    // The whole, and two zones and rooms with both shares; one each without places.
    EXPECT_EQ(page.count("class=\"length\""), 2 + 2 * (2 + 2 + 1));
    EXPECT_TRUE(page.contains("<tr><td class=\"number\">3</td>")); // a figure names no row
}

TEST_F(AnswerHtml, escapesEveryText)
{
    const QString evil = "<script>alert(\"x\")</script>&'";
    school.draft().builder().addRoom({evil, 1, evil, 10});
    school.draft().course(
        {{kSeance, "Lundi2"}, {kSalle, evil}, {kClasse, evil}, {kEnseignant1, evil}});
    AnswerDocument free = school.freeRooms();
    free.title = evil;
    free.about = {evil};
    for (const QString& page :
         {pageOf(free), pageOf(school.find("script")), pageOf(school.roomUse())}) {
        EXPECT_FALSE(page.contains("<script"));
        EXPECT_TRUE(page.contains("&lt;script&gt;alert(&quot;x&quot;)&lt;/script&gt;&amp;'"));
    }
}
