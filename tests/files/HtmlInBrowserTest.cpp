// The web page as a browser reads it, where there is one.

#include "shell/Export.h"
#include "shell/ShellDesk.h"
#include "support/ChildProgram.h"

#include <QRegularExpression>

using namespace test;

namespace
{

QString browser()
{
    for (const char* name : {"chromium", "chromium-browser", "google-chrome"}) {
        const QString found = findProgram(name);
        if (!found.isEmpty()) {
            return found;
        }
    }
    return {};
}

/// The page as the browser holds it after reading the file.
QString readByBrowser(const QString& file)
{
    return QString::fromUtf8(
        runProgram(browser(), {"--headless", "--no-sandbox", "--disable-gpu", "--no-first-run",
                               "--disable-background-networking", "--disable-dev-shm-usage",
                               "--user-data-dir=" + processFolder() + "/browser", "--dump-dom",
                               "file://" + file}));
}

/// The texts of all elements that begin so, in their order.
QStringList texts(const QString& page, const QString& tag)
{
    const QRegularExpression element(tag + "[^>]*>([^<]*)<");
    QStringList found;
    for (auto match = element.globalMatch(page); match.hasNext();) {
        found.append(match.next().captured(1));
    }
    return found;
}

} // namespace

TEST(HtmlInBrowser, isATableOfTheRoomsThatNeedsNothingFromOutside)
{
    if (browser().isEmpty()) {
        GTEST_SKIP() << "no Chromium on this machine";
    }
    TestDatabase database(DatabaseKind::Sqlite);
    createTinyFaculty(database);
    ShellDesk desk(database);
    desk.play({"--date", "2025-03-17", "--makeup"});
    const QString file = desk.setup.path("plan.html");
    shell::exportPlan(desk.shell(), file);
    const QString page = readByBrowser(file);
    EXPECT_EQ(texts(page, "<h1"), QStringList({"Occupation des Salles du 17/03/25"}));
    EXPECT_EQ(texts(page, "<th scope=\"row\""), QStringList({"A2", "B1", "B2", "C1"}));
    EXPECT_EQ(texts(page, "<th scope=\"col\"").mid(0, 3),
              QStringList({"Salle", "Places", "8h30–10h00"}));
    EXPECT_EQ(page.count("</tr>"), 1 + 4);
    EXPECT_EQ(page.count("class=\"box"), 5);
    // The browser has found nothing to mend, and nothing to fetch.
    static const QRegularExpression fetched("src=|href=|url\\(|@import|<script|<link|<img|<iframe");
    EXPECT_FALSE(page.contains(fetched)) << fetched.match(page).captured().toStdString();
}
