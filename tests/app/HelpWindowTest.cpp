#include "app/HelpWindow.h"

#include "support/TestFolder.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <gtest/gtest.h>

using app::HelpWindow;

namespace
{

const QString shippedGuide = QStringLiteral(TEMPORA_GUIDE);

/// A guide of two chapters, each longer than the window is high.
QString longGuide()
{
    const QString paragraphs = QStringLiteral("Une ligne.\n\n").repeated(100);
    QString path = test::processFolder() + QStringLiteral("/guide.md");
    test::writeFile(path, "# Guide\n\n## Lire\n\n### En détail\n\n" + paragraphs +
                              "## Imprimer\n\n" + paragraphs);
    return path;
}

QListWidget& chaptersOf(const HelpWindow& window)
{
    return *window.findChild<QListWidget*>(QStringLiteral("Chapters"));
}

QTextBrowser& textOf(const HelpWindow& window)
{
    return *window.findChild<QTextBrowser*>(QStringLiteral("Guide"));
}

QString firstVisibleLine(const HelpWindow& window)
{
    return textOf(window).cursorForPosition({0, 1}).block().text();
}

} // namespace

TEST(HelpWindow, listsTheChaptersAlone)
{
    const HelpWindow window(longGuide(), nullptr);
    const QListWidget& chapters = chaptersOf(window);
    ASSERT_EQ(chapters.count(), 2);
    EXPECT_EQ(chapters.item(0)->text(), "Lire");
    EXPECT_EQ(chapters.item(1)->text(), "Imprimer");
}

TEST(HelpWindow, opensAtTheBeginning)
{
    HelpWindow window(longGuide(), nullptr);
    window.show();
    EXPECT_EQ(textOf(window).verticalScrollBar()->value(), 0);
    EXPECT_EQ(chaptersOf(window).currentRow(), -1);
}

TEST(HelpWindow, showsTheChosenChapterAtTheTop)
{
    HelpWindow window(longGuide(), nullptr);
    window.show();
    chaptersOf(window).setCurrentRow(1);
    EXPECT_EQ(firstVisibleLine(window), "Imprimer");
}

TEST(HelpWindow, returnsToAChapterThatIsChosenAlready)
{
    HelpWindow window(longGuide(), nullptr);
    window.show();
    chaptersOf(window).setCurrentRow(1);
    textOf(window).verticalScrollBar()->setValue(0);
    Q_EMIT chaptersOf(window).itemClicked(chaptersOf(window).item(1));
    EXPECT_EQ(firstVisibleLine(window), "Imprimer");
}

TEST(HelpWindow, opensWhatIsNewAndReturns)
{
    const QString guide = longGuide();
    test::writeFile(test::processFolder() + QStringLiteral("/nouveautes.md"),
                    "# Quoi de neuf\n\n## Un plan vide\n\nIl dit pourquoi.\n");
    HelpWindow window(guide, nullptr);
    window.show();
    auto& news = *window.findChild<QPushButton*>(QStringLiteral("HelpNews"));
    EXPECT_EQ(news.text(), "&Quoi de neuf");
    news.click();
    EXPECT_EQ(textOf(window).toPlainText(), "Quoi de neuf\nUn plan vide\nIl dit pourquoi.");
    EXPECT_EQ(textOf(window).accessibleName(), "Quoi de neuf");
    ASSERT_EQ(chaptersOf(window).count(), 1);
    EXPECT_EQ(chaptersOf(window).item(0)->text(), "Un plan vide");
    EXPECT_EQ(news.text(), "Revenir au &guide");
    news.click();
    EXPECT_EQ(chaptersOf(window).count(), 2);
    EXPECT_EQ(textOf(window).accessibleName(), "Guide");
}

TEST(HelpWindow, isNoLargerThanItsScreen)
{
    const HelpWindow window(longGuide(), nullptr);
    EXPECT_LE(window.width(), window.screen()->availableSize().width() - 16);
    EXPECT_LE(window.height(), window.screen()->availableSize().height() - 48);
}

TEST(HelpWindow, saysThatTheGuideIsMissing)
{
    const QString path = test::processFolder() + QStringLiteral("/none.md");
    const HelpWindow window(path, nullptr);
    EXPECT_EQ(textOf(window).toPlainText(),
              "Le guide n’a pas été trouvé : « " + QDir::toNativeSeparators(path) + " ».");
    EXPECT_TRUE(chaptersOf(window).isHidden());
}

TEST(ShippedGuide, hasWhatIsNewBesideIt)
{
    HelpWindow window(shippedGuide, nullptr);
    window.findChild<QPushButton*>(QStringLiteral("HelpNews"))->click();
    EXPECT_TRUE(textOf(window).toPlainText().startsWith("Quoi de neuf"))
        << textOf(window).toPlainText().left(80).toStdString();
    EXPECT_GT(chaptersOf(window).count(), 2);
}

TEST(ShippedGuide, hasPicturesThatShipAndFitTheWindow)
{
    HelpWindow window(shippedGuide, nullptr);
    window.resize(1120, 680); // as it opens where the screen has room
    window.show();
    QFile file(shippedGuide);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    static const QRegularExpression picture(QStringLiteral("!\\[[^\\]]+\\]\\(([^)]+)\\)"));
    auto pictures = picture.globalMatch(QString::fromUtf8(file.readAll()));
    int count = 0;
    while (pictures.hasNext()) {
        const QString name = pictures.next().captured(1);
        const QImage image(QFileInfo(shippedGuide).dir().filePath(name));
        EXPECT_FALSE(image.isNull()) << name.toStdString();
        EXPECT_LE(image.width(), textOf(window).viewport()->width()) << name.toStdString();
        ++count;
    }
    EXPECT_GT(count, 0);
    EXPECT_EQ(textOf(window).horizontalScrollBar()->maximum(), 0);
}
