#include "files/HtmlExport.h"

#include "files/HtmlText.h"
#include "plan/BoxWords.h"
#include "shell/ShellDesk.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

using namespace test;

namespace
{

/// The page without its tags, each cell on a line of its own.
QString wordsOf(QString html)
{
    static const QRegularExpression head("<head>.*</head>",
                                         QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression tag("<[^>]*>");
    html.remove(head);
    html.replace("</td>", "\n").replace("</th>", "\n").replace("</div>", " ");
    return html.remove(tag);
}

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

class HtmlExport : public OnBothDatabases
{
protected:
    void SetUp() override { createTinyFaculty(database()); }

    QString pageAfter(const QStringList& arguments, bool all = false)
    {
        desk.play(arguments);
        return QString::fromUtf8(files::planAsHtml(desk.document(all)));
    }

    ShellDesk desk{database()};
};

TEMPORA_ON_BOTH_DATABASES(HtmlExport);

} // namespace

TEST_P(HtmlExport, isOneWellFormedPageInFrenchThatNeedsNothingElse)
{
    const QString page = pageAfter({"--makeup", "--date", "2025-03-17", "--counting"});
    expectWellFormed(page);
    EXPECT_TRUE(page.startsWith("<!DOCTYPE html>\n<html lang=\"fr\">"));
    EXPECT_TRUE(page.contains("<meta charset=\"utf-8\"/>"));
    for (const char* foreign : {"<script", "<link", "<img", "http:", "https:", "url(", "@import"}) {
        EXPECT_FALSE(page.contains(foreign)) << foreign;
    }
}

TEST_P(HtmlExport, isATableOfRoomsAndSlots)
{
    const QString page = pageAfter({"--date", "2025-03-17"});
    EXPECT_EQ(page.count("<table>"), 1);
    EXPECT_EQ(page.count("<caption>"), 1);
    // "Salle", "Places" and the four slots of the day; the four drawn rooms.
    EXPECT_EQ(page.count("<th scope=\"col\">"), 2 + 4);
    EXPECT_EQ(page.count("<th scope=\"row\">"), 4);
    EXPECT_TRUE(page.contains("<th scope=\"col\">8h30–10h00</th>"));
    EXPECT_TRUE(page.contains("<th scope=\"row\">A2</th><td class=\"places\">40</td>"));
}

TEST_P(HtmlExport, showsTheTextsOfTheBoxes)
{
    const QString words = wordsOf(pageAfter({"--date", "2025-03-17"}));
    EXPECT_TRUE(words.contains("Occupation des Salles du Lundi"));
    EXPECT_TRUE(words.contains("Printemps"));
    EXPECT_TRUE(words.contains("A2\n40\nG1 Dupont/Durand Algèbre"));
}

TEST_P(HtmlExport, letsALongSeanceReachIntoTheNextSlot)
{
    // 14h00 to 17h00 in B1: slot 4 begins at 15h45.
    const QString page = pageAfter({"--date", "2025-03-17"});
    EXPECT_TRUE(page.contains("<td class=\"box\" colspan=\"2\"><div class=\"note\">14h00–17h00"));
}

TEST_P(HtmlExport, saysInWordsWhatColoursSay)
{
    const QString words = wordsOf(pageAfter({"--makeup", "--date", "2025-03-17", "--week", "A"}));
    EXPECT_TRUE(words.contains("Rattrapage"));
    EXPECT_TRUE(words.contains("Classe absente")); // G1 at 8h30
    EXPECT_TRUE(words.contains("Dépassement 45/20"));
    EXPECT_TRUE(words.contains("2 groupes : G2, G3"));
    EXPECT_TRUE(words.contains("Semaine A"));
}

TEST_P(HtmlExport, keepsTheNameOfAClassInAGroupOnOneLine)
{
    database().execute(QStringList{"update emplois set Classe='L1 GM A' where Classe='G2'"});
    const QString words = wordsOf(pageAfter({"--day", "0"}));
    EXPECT_TRUE(words.contains("2 groupes : L1\u00a0GM\u00a0A, G3"));
}

TEST_P(HtmlExport, hidesTheCountersThatTheScreenHides)
{
    desk.start();
    desk.form().Check3.setChecked(false);
    const QString page = QString::fromUtf8(files::planAsHtml(desk.document()));
    EXPECT_FALSE(page.contains("groupes"));
    EXPECT_FALSE(page.contains("Dépassement"));
}

TEST_P(HtmlExport, countsThePlacesWhileTheyAreCounted)
{
    EXPECT_FALSE(pageAfter({"--date", "2025-03-17"}).contains("<tfoot>"));
    // A2 holds 40 places in slot 1, C1 12; the others begin later.
    const QString words = wordsOf(pageAfter({"--counting", "--date", "2025-03-17"}));
    EXPECT_TRUE(words.contains("Places occupées\n52\n")) << words.toStdString();
}

TEST_P(HtmlExport, holdsAllRoomsOfAllPages)
{
    // Two rooms a page: A2 and B1; from the third room on C1 alone, for B2 is in its row 0.
    const QString page = pageAfter({"--rooms-per-page", "2", "--date", "2025-03-17"}, true);
    expectWellFormed(page);
    EXPECT_EQ(page.count("<table>"), 1);
    EXPECT_TRUE(page.contains("<th scope=\"row\">A2</th>"));
    EXPECT_TRUE(page.contains("<th scope=\"row\">B1</th>"));
    EXPECT_TRUE(page.contains("<th scope=\"row\">C1</th>"));
}

TEST_P(HtmlExport, saysThatThereIsNoRoom)
{
    const QString page = pageAfter({"--zone", "9"});
    expectWellFormed(page);
    EXPECT_TRUE(page.contains("Aucune salle à montrer."));
}

TEST_P(HtmlExport, loadsItselfAgainWhenAskedToAndTellsItsTime)
{
    const QString still = pageAfter({"--day", "0"});
    files::PlanDocument document = desk.document();
    document.refresh = {60, QDateTime(QDate(2025, 3, 19), QTime(10, 5, 59))};
    QString page = QString::fromUtf8(files::planAsHtml(document));
    expectWellFormed(page);
    EXPECT_TRUE(page.contains("<meta http-equiv=\"refresh\" content=\"60\"/>"));
    EXPECT_TRUE(wordsOf(page).contains("Page écrite le 19/03/2025 à 10:05"));
    // All else is the page that stands still.
    EXPECT_FALSE(still.contains("refresh"));
    static const QRegularExpression added("<meta http-equiv=[^>]*>\n|<footer>.*</footer>\n|"
                                          "\\.past [^}]*}\n|thead \\.now [^}]*}\n");
    EXPECT_EQ(page.remove(added), still);
}

TEST_P(HtmlExport, tellsWhatHasEndedOnTheDayThatItShows)
{
    desk.play({"--date", "2025-03-17"});
    files::PlanDocument document = desk.document();
    document.date = QDate(2025, 3, 17);
    const auto count = [&](QTime time, const char* piece) {
        document.refresh = {60, QDateTime(QDate(2025, 3, 17), time)};
        return QString::fromUtf8(files::planAsHtml(document)).count(QLatin1String(piece));
    };
    // Boxes: two from 8h30 to 10h00, one from 10h15 to 11h45, one from 14h00 to 17h00.
    EXPECT_EQ(count({8, 29}, " past\""), 0);
    EXPECT_EQ(count({9, 59}, " past\""), 0);
    EXPECT_EQ(count({10, 0}, " past\""), 2);
    EXPECT_EQ(count({11, 45}, " past\""), 3);
    EXPECT_EQ(count({17, 0}, " past\""), 4);
    EXPECT_EQ(count({8, 29}, "<th scope=\"col\" class=\"now\">"), 0);
    EXPECT_EQ(count({8, 30}, "<th scope=\"col\" class=\"now\">8h30"), 1);
    EXPECT_EQ(count({10, 0}, "<th scope=\"col\" class=\"past\">8h30"), 1);
    document.date = QDate(2025, 3, 24);
    EXPECT_EQ(count({10, 0}, " past\""), 0); // of another day nothing is said
}

TEST_P(HtmlExport, tellsInAHallWhatIsHeldInOneWeekAlone)
{
    desk.play({"--day", "0"});
    files::PlanDocument document = desk.document();
    plan::PlanBox& box = document.pages.front().content.rows.front().boxes.front();
    ASSERT_EQ(plan::weekLetter(box), "");
    box.cell.week = timetable::Week::B;
    const auto page = [&] { return QString::fromUtf8(files::planAsHtml(document)); };
    EXPECT_EQ(page().count("Semaine B"), 0); // whoever chose the plan chose the week
    document.refresh = {60, QDateTime(QDate(2025, 3, 19), QTime(10, 5))};
    EXPECT_EQ(page().count("<div class=\"remark\">Semaine B</div>"), 1);
}

TEST_P(HtmlExport, escapesEveryText)
{
    const QString evil = "<script>alert(\"x\")</script>&'";
    desk.play({"--date", "2025-03-17"});
    files::PlanDocument document = desk.document();
    plan::PlanRow& row = document.pages.front().content.rows.front();
    row.room = evil;
    row.places = evil;
    lookup::RoomCell& cell = row.boxes.front().cell;
    cell.CellText = evil;
    cell.CellStart = evil;
    cell.CellClassList = evil;
    cell.CellRowCount = 2;
    row.boxes.front().group = plan::GroupCounter{evil, evil, evil, true, false};
    form::PlanForm& form = document.pages.front().state.form;
    form.XSalle.caption = evil;
    document.pages.front().state.establishment.EstablishmentName = evil;
    form.CbTranche.design({evil}, 0);
    const QString html = QString::fromUtf8(files::planAsHtml(document));
    expectWellFormed(html);
    EXPECT_FALSE(html.contains("<script"));
    EXPECT_GE(html.count("&lt;script&gt;alert(&quot;x&quot;)&lt;/script&gt;&amp;'"), 8);
}

TEST(HtmlText, isFreeOfControlCharacters)
{
    EXPECT_EQ(files::escaped(QString("a\x01\tb\n<")), "a  b &lt;");
}

TEST(HtmlText, writesColoursInSixDigits)
{
    EXPECT_EQ(files::colorText(form::Colour::fromRgb(1, 171, 255)), "#01abff");
}
