// The word and the link that follow a file which the plan's window has saved.

#include "app/SavedLink.h"

#include "app/StatusNews.h"
#include "app/WindowDesk.h"

#include <QDir>
#include <QLineEdit>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QTemporaryDir>
#include <QToolButton>

using namespace test;

namespace
{

class TheSavedSheet : public TheWindow
{
protected:
    [[nodiscard]] QString said()
    {
        return dynamic_cast<app::StatusNews*>(control<QFrame>("StatusNews"))->sentence();
    }
    [[nodiscard]] QToolButton* link()
    {
        return control<QFrame>("StatusNews")->findChild<QToolButton*>("OpenSaved");
    }

    QTemporaryDir m_folder;
    const QString path = m_folder.filePath("plan.pdf");
};

} // namespace

TEST_F(TheSavedSheet, isToldInTheStatusBarAndOpenedByItsLink)
{
    open();
    const DialogAnswer answers([&](QDialog& dialog) {
        auto* name = dialog.findChild<QLineEdit*>("filename"); // of "Print to File (PDF)"
        ASSERT_NE(name, nullptr);
        name->setText(path);
        dialog.accept();
    });
    hands.click(control<QPushButton>("Command1"));
    ASSERT_TRUE(until([&] { return said() == "Enregistré : " + QDir::toNativeSeparators(path); }));
    EXPECT_TRUE(fileText(path).startsWith("%PDF"));
    EXPECT_EQ(link()->toolTip(), "Ouvrir « " + QDir::toNativeSeparators(path) + " »");
    EXPECT_EQ(opened, QStringList());
    hands.click(link());
    EXPECT_TRUE(until([&] { return opened == QStringList({path}); }));
}

TEST_F(TheSavedSheet, isNotToldWhereNothingWasPrinted)
{
    open();
    const DialogAnswer answers([](QDialog& dialog) { dialog.reject(); });
    hands.click(control<QPushButton>("Command1"));
    ASSERT_TRUE(until([&] { return answers.count() == 1; }));
    EXPECT_EQ(said(), QString());
}

TEST_F(TheSavedSheet, isSeenBeforehandWithAllOthers)
{
    setup.set("Total_L_P", "2"); // two pages with a room of their own
    open();
    int pages = 0;
    const DialogAnswer answers([&](QDialog& dialog) {
        auto* preview = dialog.findChild<QPrintPreviewWidget*>();
        ASSERT_NE(preview, nullptr);
        ASSERT_TRUE(until([&] { return preview->pageCount() > 1; }));
        pages = preview->pageCount();
        dialog.reject();
    });
    hands.click(control<QPushButton>("PreviewAllPages"));
    ASSERT_TRUE(until([&] { return pages > 0; }));
    EXPECT_EQ(pages, 2);
    EXPECT_EQ(shownRooms(plan()), QStringList({"A2", "B1"})); // the window stays where it was
}
