#include "app/SaveDialog.h"

#include "app/WhenOpen.h"

#include <QAbstractButton>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace test;

namespace
{

/// A user who answers the dialog that asks where to save a CSV or an HTML file.
class ASaveDialog : public testing::Test
{
protected:
    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }
    void write(const QString& name) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    [[nodiscard]] static QString ask()
    {
        return app::askWhereToSave(nullptr, "Exporter", "Salles libres", {"csv", "html"});
    }
    /// Types that name once the dialog is open, and saves.
    void type(const QString& name, const QString& filter = {}) const
    {
        whenOpen<QFileDialog>([path = path(name), filter](QFileDialog& dialog) {
            if (!filter.isEmpty()) {
                dialog.selectNameFilter(filter);
            }
            saveAs(dialog, path);
        });
    }
    /// Presses that button of the question about a file that is there.
    void press(const QString& label)
    {
        whenOpen<QMessageBox>([this, label](QMessageBox& box) {
            m_question = box.text();
            for (auto* button : box.buttons()) {
                if (button->text() == label) {
                    button->click();
                    return;
                }
            }
            ADD_FAILURE() << "no button " << label.toStdString();
            box.reject();
        });
    }
    [[nodiscard]] const QString& question() const { return m_question; }

private:
    QTemporaryDir m_folder;
    QString m_question;
};

} // namespace

TEST_F(ASaveDialog, proposesANameAndTakesAnother)
{
    QString proposed;
    whenOpen<QFileDialog>([&](QFileDialog& dialog) {
        proposed = dialog.selectedFiles().value(0);
        saveAs(dialog, path("lundi.HTML"));
    });
    EXPECT_EQ(ask(), path("lundi.HTML"));
    EXPECT_TRUE(proposed.endsWith("/Salles libres")) << proposed.toStdString();
}

TEST_F(ASaveDialog, addsTheFirstEndingToANameWithoutOne)
{
    type("lundi");
    EXPECT_EQ(ask(), path("lundi.csv"));
}

TEST_F(ASaveDialog, addsTheEndingThatIsChosen)
{
    type("lundi 5.3", "HTML (*.html)");
    EXPECT_EQ(ask(), path("lundi 5.3.html"));
}

TEST_F(ASaveDialog, asksBeforeTheFileWithTheAddedEndingIsReplaced)
{
    write("lundi.csv");
    type("lundi");
    press("Remplacer");
    EXPECT_EQ(ask(), path("lundi.csv"));
    EXPECT_TRUE(question().contains("lundi.csv")) << question().toStdString();
}

TEST_F(ASaveDialog, asksForANameAgainWhereAFileIsToStay)
{
    write("lundi.csv");
    type("lundi");
    whenOpen<QMessageBox>([&](QMessageBox& box) {
        type("mardi");
        box.reject();
    });
    EXPECT_EQ(ask(), path("mardi.csv"));
}

TEST_F(ASaveDialog, canBeTurnedDown)
{
    whenOpen<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(ask(), "");
}
