// The search in the help, by the keys of somebody who reads it.

#include "app/HelpSearch.h"

#include "app/HelpWindow.h"
#include "app/WindowDesk.h"
#include "support/TestFolder.h"

#include <QLineEdit>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolButton>

using namespace test;

namespace
{

/// Three places with "palette": in the lines 1, 3 and 5 of the text.
class TheHelpSearch : public TheWindow
{
protected:
    TheHelpSearch()
    {
        writeFile(setup.path("docs/guide.md"),
                  "# Palettes\n\nUne ligne.\n\nUne palette.\n\nLa Matière.\n\nDes PALETTES.\n");
    }

    void openHelp()
    {
        open();
        hands.press({"F1"});
        ASSERT_TRUE(until([this] {
            auto* found = window().findChild<app::HelpWindow*>("HelpWindow");
            return found != nullptr && found->isActiveWindow() &&
                   found->windowHandle()->isExposed();
        }));
    }
    [[nodiscard]] QString count() { return control<QLabel>("HelpCount")->text(); }
    void expectCount(const QString& text)
    {
        static_cast<void>(until([&] { return count() == text; }));
        EXPECT_EQ(count(), text);
    }
    [[nodiscard]] QString line()
    {
        return control<QTextBrowser>("Guide")->textCursor().block().text();
    }
    void search(const QString& wanted)
    {
        hands.press({"ctrl+f"});
        ASSERT_TRUE(until([this] { return control<QLineEdit>("HelpWanted")->hasFocus(); }));
        hands.type(wanted);
    }
};

} // namespace

TEST_F(TheHelpSearch, goesFromPlaceToPlaceAndAround)
{
    openHelp();
    search("palette");
    expectCount("1 sur 3");
    EXPECT_EQ(line(), "Palettes");
    hands.press({"Return"});
    expectCount("2 sur 3");
    EXPECT_EQ(line(), "Une palette.");
    hands.press({"F3"});
    expectCount("3 sur 3");
    EXPECT_EQ(line(), "Des PALETTES.");
    hands.press({"Return"});
    expectCount("1 sur 3");
    hands.press({"shift+F3"});
    expectCount("3 sur 3");
    hands.press({"shift+Return"});
    expectCount("2 sur 3");
    EXPECT_EQ(control<QTextBrowser>("Guide")->extraSelections().size(), 3);
}

TEST_F(TheHelpSearch, isReachedByItsKeyWhereverTheFocusIsAndAsksNothingElse)
{
    openHelp();
    for (const char* name : {"Guide", "Chapters", "HelpNews"}) {
        control<QWidget>(name)->setFocus();
        hands.press({"ctrl+f"});
        EXPECT_TRUE(until([this] { return control<QLineEdit>("HelpWanted")->hasFocus(); })) << name;
    }
    EXPECT_EQ(window().findChild<QWidget*>("FindWindow"), nullptr);
}

TEST_F(TheHelpSearch, worksWithTheButtons)
{
    openHelp();
    search("palette");
    expectCount("1 sur 3");
    hands.click(control<QToolButton>("HelpNext"));
    expectCount("2 sur 3");
    hands.click(control<QToolButton>("HelpPrevious"));
    expectCount("1 sur 3");
}

TEST_F(TheHelpSearch, saysThatNothingWasFound)
{
    openHelp();
    search("zzz");
    expectCount("Rien trouvé");
    EXPECT_FALSE(control<QToolButton>("HelpNext")->isEnabled());
    EXPECT_TRUE(control<QTextBrowser>("Guide")->extraSelections().isEmpty());
    hands.press({"ctrl+a"});
    hands.type("matiere");
    expectCount("1 sur 1");
}

TEST_F(TheHelpSearch, endsWithEscapeBeforeTheWindowDoes)
{
    openHelp();
    search("palette");
    expectCount("1 sur 3");
    hands.press({"Escape"});
    expectCount({});
    EXPECT_TRUE(control<app::HelpWindow>("HelpWindow")->isVisible());
    EXPECT_TRUE(until([this] { return control<QTextBrowser>("Guide")->hasFocus(); }));
    hands.press({"Escape"});
    EXPECT_TRUE(until([this] { return !control<app::HelpWindow>("HelpWindow")->isVisible(); }));
}
