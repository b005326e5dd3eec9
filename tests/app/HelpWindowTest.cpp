#include "app/HelpWindow.h"

#include "support/TestFolder.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QListWidget>
#include <QRegularExpression>
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

TEST(HelpWindow, saysThatTheGuideIsMissing)
{
    const QString path = test::processFolder() + QStringLiteral("/none.md");
    const HelpWindow window(path, nullptr);
    EXPECT_EQ(textOf(window).toPlainText(),
              "Le guide n’a pas été trouvé : « " + QDir::toNativeSeparators(path) + " ».");
    EXPECT_TRUE(chaptersOf(window).isHidden());
}

TEST(ShippedGuide, hasPicturesThatShipAndFitTheWindow)
{
    HelpWindow window(shippedGuide, nullptr);
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
