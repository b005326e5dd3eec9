// "Changer de Palette" in a user's hands.

#include "app/WindowDesk.h"

#include "support/TestFolder.h"

#include <QDir>
#include <QFileDialog>

using namespace test;

namespace
{

class PaletteChoice : public TheWindow
{
protected:
    PaletteChoice()
    {
        // Row i takes entry i + 2: rows 1 to 4 the colours of the lines 3 to 6.
        QString lines;
        for (int entry = 0; entry < 12; ++entry) {
            lines += QString("%1\tcouleur\t%1\t10\t20\r\n").arg(entry);
        }
        writeFile(m_styles + "/Bleu.mpl", lines);
        writeFile(m_styles + "/notes.txt", "no palette");
        open();
    }

    /// Presses the button and lets the user answer the dialog.
    void chooseWith(const std::function<void(QFileDialog&)>& answer)
    {
        const std::uint64_t before = redraws();
        const DialogAnswer answers([&](QDialog& dialog) {
            auto& files = dynamic_cast<QFileDialog&>(dialog);
            ASSERT_TRUE(
                until([&] { return files.windowHandle()->isExposed() && files.isActiveWindow(); }));
            folder = files.directory().absolutePath();
            filters = files.nameFilters();
            answer(files);
        });
        hands.click(control<QPushButton>("Command4"));
        // The plan is redrawn whatever the answer.
        ASSERT_TRUE(until([&] { return redraws() > before; }));
        ASSERT_EQ(answers.count(), 1);
    }

    const QString m_styles = setup.path("Styles");
    QString folder;
    QStringList filters;
};

const QStringList fileColours{"#030a14", "#040a14", "#050a14", "#060a14"};

} // namespace

TEST_F(PaletteChoice, beginsInTheFolderOfThePalettes)
{
    chooseWith([this](QFileDialog&) { hands.press({"Escape"}); });
    EXPECT_EQ(folder, QDir(m_styles).absolutePath());
    EXPECT_EQ(filters, QStringList({"Palettes (*.mpl)"}));
}

TEST_F(PaletteChoice, staysWithTheColoursOfItsOwnAfterCancel)
{
    chooseWith([this](QFileDialog&) { hands.press({"Escape"}); });
    EXPECT_EQ(control<QLabel>("Label5")->text(), "Défaut");
    for (const QString& colour : rowColors(plan())) {
        EXPECT_FALSE(fileColours.contains(colour));
    }
    EXPECT_FALSE(window().failed());
}

TEST_F(PaletteChoice, showsTheColoursAndTheNameOfTheChosenFile)
{
    chooseWith([this](QFileDialog&) {
        hands.type("Bleu.mpl"); // the field for the name has the focus
        hands.press({"Return"});
    });
    EXPECT_TRUE(until([&] { return rowColors(plan()) == fileColours; }));
    EXPECT_EQ(control<QLabel>("Label5")->text(), "Bleu");
    // Cancel keeps them: the file chosen before is read again.
    chooseWith([this](QFileDialog&) { hands.press({"Escape"}); });
    EXPECT_EQ(rowColors(plan()), fileColours);
    EXPECT_EQ(control<QLabel>("Label5")->text(), "Bleu");
}
