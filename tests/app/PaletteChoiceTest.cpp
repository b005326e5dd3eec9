// "Changer de Palette" in a user's hands.

#include "app/PaletteChoice.h"

#include "app/PaletteGallery.h"
#include "app/WindowDesk.h"
#include "support/TestFolder.h"

#include <QDir>
#include <QFileDialog>
#include <QListWidget>
#include <QTimer>

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
        writeFile(m_styles + "/Court.mpl", "65535\r\n255\r\n"); // Numbers that end too early
        writeFile(m_styles + "/notes.txt", "no palette");
        writeFile(setup.path("Ailleurs/Vert.mpl"), lines.replace("\t10\t20", "\t99\t20"));
    }

    /// Presses the button and lets the user answer the gallery, and what opens over it.
    void chooseWith(const std::function<void(QListWidget&)>& answer,
                    const std::function<void(QFileDialog&)>& answerFiles = {})
    {
        const std::uint64_t before = redraws();
        const DialogAnswer answers([&](QDialog& dialog) {
            ASSERT_TRUE(until(
                [&] { return dialog.windowHandle()->isExposed() && dialog.isActiveWindow(); }));
            if (auto* files = qobject_cast<QFileDialog*>(&dialog)) {
                answerFiles(*files);
                return;
            }
            auto* list = dialog.findChild<QListWidget*>("Palettes");
            ASSERT_NE(list, nullptr);
            ASSERT_TRUE(until([&] { return list->hasFocus(); }));
            answer(*list);
        });
        hands.click(control<QPushButton>("Command4"));
        // The plan is redrawn whatever the answer.
        ASSERT_TRUE(until([&] { return redraws() > before; }));
    }
    void chooseBleu()
    {
        chooseWith([this](QListWidget&) { hands.press({"Right", "Return"}); });
        ASSERT_TRUE(until([&] { return palette() == "Bleu"; }));
    }
    void cancel()
    {
        chooseWith([this](QListWidget&) { hands.press({"Escape"}); });
    }
    [[nodiscard]] QString palette() { return control<QLabel>("Label5")->text(); }

    const QString m_styles = setup.path("Styles");
};

const QStringList fileColours{"#030a14", "#040a14", "#050a14", "#060a14"};

} // namespace

TEST_F(PaletteChoice, offersTheDefaultAndEveryPaletteOfTheFolder)
{
    open();
    QStringList names;
    QStringList spoken;
    bool haveSamples = true;
    chooseWith([&](QListWidget& list) {
        for (int row = 0; row < list.count(); ++row) {
            names << list.item(row)->text();
            spoken << list.item(row)->data(Qt::AccessibleTextRole).toString();
            haveSamples = haveSamples && !list.item(row)->icon().isNull();
        }
        EXPECT_EQ(list.currentRow(), 0);
        hands.press({"Escape"});
    });
    EXPECT_EQ(names, QStringList({"Défaut (actuelle)", "Bleu"}));
    EXPECT_EQ(spoken, QStringList({"Palette Défaut, actuelle", "Palette Bleu"}));
    EXPECT_TRUE(haveSamples);
}

TEST_F(PaletteChoice, staysWithTheColoursOfItsOwnAfterCancel)
{
    open();
    cancel();
    EXPECT_EQ(palette(), "Défaut");
    for (const QString& colour : rowColors(plan())) {
        EXPECT_FALSE(fileColours.contains(colour));
    }
    EXPECT_FALSE(window().failed());
}

TEST_F(PaletteChoice, showsTheColoursAndTheNameOfThePaletteThatTheKeysChose)
{
    open();
    chooseBleu();
    EXPECT_TRUE(until([&] { return rowColors(plan()) == fileColours; }));
    // Cancel keeps them: the file chosen before is read again.
    cancel();
    EXPECT_EQ(rowColors(plan()), fileColours);
    EXPECT_EQ(palette(), "Bleu");
}

TEST_F(PaletteChoice, worksWithTheMouse)
{
    open();
    chooseWith([this](QListWidget& list) {
        hands.click(list.viewport()->mapToGlobal(list.visualItemRect(list.item(1)).center()));
        ASSERT_TRUE(until([&] { return list.currentRow() == 1; }));
        hands.click(list.window()->findChild<QPushButton*>("ChoosePalette"));
    });
    EXPECT_TRUE(until([&] { return rowColors(plan()) == fileColours; }));
}

TEST_F(PaletteChoice, returnsToTheDefaultAndForgetsThePalette)
{
    setup.set("Palette", m_styles + "/Bleu.mpl");
    open();
    ASSERT_EQ(palette(), "Bleu");
    chooseWith([this](QListWidget& list) {
        EXPECT_EQ(list.currentItem()->text(), "Bleu (actuelle)");
        hands.press({"Left", "Return"});
    });
    ASSERT_TRUE(until([&] { return palette() == "Défaut"; }));
    for (const QString& colour : rowColors(plan())) {
        EXPECT_FALSE(fileColours.contains(colour));
    }
    cancel();
    EXPECT_EQ(palette(), "Défaut");
    window().close();
    EXPECT_EQ(setup.saved("Palette"), "");
}

TEST_F(PaletteChoice, opensAnyOtherFileBehindAutre)
{
    open();
    QString folder;
    QStringList filters;
    chooseWith(
        [this](QListWidget& list) {
            hands.click(list.window()->findChild<QPushButton*>("OtherPalette"));
        },
        [&](QFileDialog& files) {
            folder = files.directory().absolutePath();
            filters = files.nameFilters();
            hands.type(setup.path("Ailleurs/Vert.mpl")); // the field for the name has the focus
            hands.press({"Return"});
        });
    EXPECT_EQ(folder, QDir(m_styles).absolutePath());
    EXPECT_EQ(filters, QStringList({"Palettes (*.mpl)"}));
    EXPECT_TRUE(until([&] { return palette() == "Vert"; }));
    EXPECT_EQ(rowColors(plan()), QStringList({"#036314", "#046314", "#056314", "#066314"}));
    // Which is among those that are offered from then on.
    chooseWith([&](QListWidget& list) {
        EXPECT_EQ(list.count(), 3);
        EXPECT_EQ(list.currentItem()->text(), "Vert (actuelle)");
        hands.press({"Escape"});
    });
}

TEST_F(PaletteChoice, staysInTheGalleryWhenTheFileIsCancelled)
{
    open();
    QDialog* gallery = nullptr;
    bool stays = false;
    chooseWith(
        [&](QListWidget& list) {
            gallery = dynamic_cast<QDialog*>(list.window());
            hands.click(gallery->findChild<QPushButton*>("OtherPalette"));
        },
        [&](QFileDialog& files) {
            QObject::connect(&files, &QDialog::finished, gallery, [&] {
                QTimer::singleShot(0, gallery, [&] {
                    stays = gallery->isVisible();
                    gallery->reject();
                });
            });
            hands.press({"Escape"});
        });
    EXPECT_TRUE(stays);
    EXPECT_EQ(palette(), "Défaut");
}
