#include "files/AnswerWeekHtml.h"

#include "files/AnswerFormat.h"
#include "files/WeekDocument.h"
#include "support/RuntimeMatchers.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

using namespace test;
using namespace timetable;

namespace
{

const answers::AskedWeek november{Week::Every, QDate(2026, 11, 23)};

/// The page of a document, which is well-formed.
QString pageOf(const files::AnswerDocument& document)
{
    const QString page = QString::fromUtf8(files::weekAsHtml(document));
    QXmlStreamReader reader(page);
    while (!reader.atEnd()) {
        reader.readNext();
    }
    EXPECT_FALSE(reader.hasError())
        << reader.errorString().toStdString() << " in line " << reader.lineNumber();
    return page;
}

/// The rows of the page's table without their tags, cells with a "|" before each, and with a "/"
/// where a line, a box or all boxes of a cell end.
QStringList rowsOf(const QString& page)
{
    static const QRegularExpression tag("<[^>]*>");
    QStringList rows;
    for (QString row : page.section("<table>", 1).section("</table>", 0, 0).split("</tr>")) {
        row = row.section("<tr", 1);
        row.replace("<th", "|<th").replace("<td", "|<td").replace("</div>", "/</div>");
        row = row.section('>', 1).remove(tag).trimmed();
        if (!row.isEmpty()) {
            rows << row;
        }
    }
    return rows;
}

} // namespace

TEST(AWeekAsHtml, isOnePageInFrenchThatNeedsNothingElse)
{
    const QString page = pageOf(weekDocument(firstRoom()));
    EXPECT_TRUE(page.startsWith("<!DOCTYPE html>\n<html lang=\"fr\">"));
    EXPECT_TRUE(page.contains("<title>Salle R1</title>"));
    EXPECT_TRUE(page.contains("<h1>Salle R1</h1>"));
    EXPECT_TRUE(page.contains("<div class=\"about\">Période Semestre 1</div>"));
    for (const char* foreign : {"<script", "<link", "<img", "http:", "https:", "url(", "@import"}) {
        EXPECT_FALSE(page.contains(foreign)) << foreign;
    }
}

TEST(AWeekAsHtml, isATableOfSlotsAndDays)
{
    const QStringList rows = rowsOf(pageOf(weekDocument(firstRoom())));
    ASSERT_EQ(rows.size(), 4);
    EXPECT_EQ(rows[0], "|Séance|Lundi|Mardi|Mercredi|Jeudi|Vendredi|Samedi");
    EXPECT_EQ(rows[1], "|8h00–9h30|L1 &amp; co, L2/Algèbre/Durand///|||8h00–11h00/L3///||");
    EXPECT_EQ(rows[2], "|9h30–11h00|||L1 &amp; co/Petit/Semaine A///|8h00–11h00/L3///||");
    EXPECT_EQ(rows[3], "|18h00–19h00|||||L3///|"); // outside the slots
}

TEST(AWeekAsHtml, namesItsRowsAndColumns)
{
    const QString page = pageOf(weekDocument(firstRoom()));
    EXPECT_EQ(page.count("<th scope=\"col\">"), 7);
    EXPECT_EQ(page.count("<th scope=\"row\">"), 3);
    EXPECT_EQ(page.count("<caption>"), 1);
}

TEST(AWeekAsHtml, tellsWhatHasNoKnownTime)
{
    const QString page = pageOf(weekDocument(firstRoom()));
    EXPECT_TRUE(page.contains("<h2>Heure inconnue</h2>"));
    EXPECT_TRUE(page.contains("<li>Samedi : L4 (Samedi9) : ni heure de début"));
}

TEST(AWeekAsHtml, saysInWordsWhatHatchingSays)
{
    const QString page = pageOf(weekDocument(firstRoom(), november));
    EXPECT_TRUE(page.contains("<th scope=\"col\">Mardi 24/11</th>"));
    EXPECT_TRUE(page.contains("<div class=\"box makeup\" style=\"--fill:#fae678;--ink:#000000\">"
                              "<div class=\"main\">L5</div>"
                              "<div class=\"remark\">Rattrapage</div></div>"));
}

TEST(AWeekAsHtml, ofAllRoomsIsATableOfRoomsAndDays)
{
    const QString page = pageOf(weekDocument({}));
    const QStringList rows = rowsOf(page);
    ASSERT_EQ(rows.size(), 3);
    EXPECT_EQ(rows[0], "|Salle|Lundi|Mardi|Mercredi|Jeudi|Vendredi|Samedi");
    EXPECT_TRUE(rows[1].startsWith("|R130 places/|8h00–9h30/L1 &amp; co, L2/Algèbre/Durand///||"))
        << rows[1].toStdString();
    EXPECT_TRUE(rows[1].contains("|? heure inconnue : L4 (Samedi9)"));
    EXPECT_EQ(rows[2], "|R2 &lt;&amp;&gt;||||||");
    EXPECT_EQ(page.count("<th scope=\"row\""), 2);
}

TEST(AWeekAsHtml, saysThatThereIsNothing)
{
    const std::optional<answers::Subject> secondRoom = RoomId(1);
    const QString page = pageOf(weekDocument(secondRoom));
    EXPECT_TRUE(page.contains("<p>Rien cette semaine.</p>"));
    EXPECT_FALSE(page.contains("<table>"));
}

TEST(AWeekAsHtml, isWhatAFileOfThatEndingHolds)
{
    const files::AnswerFormat* format =
        files::answerFormatOf(files::AnswerKind::Week, "semaine.HTML");
    ASSERT_NE(format, nullptr);
    const files::AnswerDocument document = weekDocument(firstRoom());
    EXPECT_EQ(format->write(document), files::weekAsHtml(document));
}
