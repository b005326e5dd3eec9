#include "files/HtmlText.h"

#include "support/RuntimeMatchers.h"

#include <QXmlStreamReader>

using namespace files;

TEST(HtmlText, isEscapedForTagsAndAttributes)
{
    EXPECT_EQ(escaped("<L1> & \"L2\""), "&lt;L1&gt; &amp; &quot;L2&quot;");
    EXPECT_EQ(escaped("Été à 8h"), "Été à 8h");
    EXPECT_EQ(escaped(""), "");
}

TEST(HtmlText, hasABlankForWhatAPageMayNotHold)
{
    EXPECT_EQ(escaped(QString("a") + QChar(1) + "b\tc" + QChar(0x7f) + QChar(0xfffe) + "d"),
              "a b c  d");
}

TEST(HtmlText, writesColoursAsTwoDigitsEach)
{
    EXPECT_EQ(colorText(form::Colour::fromRgb(1, 171, 255)), "#01abff");
    EXPECT_EQ(colorText(form::Colour::fromRgb(0, 0, 0)), "#000000");
}

TEST(HtmlDocument, isAWholePageAroundABody)
{
    const QString page = htmlDocument("Salles & <zones>", "<p id=\"x\">Bonjour</p>");
    EXPECT_TRUE(page.startsWith("<!DOCTYPE html>\n<html lang=\"fr\">"));
    EXPECT_TRUE(page.contains("<meta charset=\"utf-8\"/>"));
    EXPECT_TRUE(page.contains("<title>Salles &amp; &lt;zones&gt;</title>"));
    EXPECT_EQ(page.count("<p id=\"x\">Bonjour</p>"), 1);
    EXPECT_LT(page.indexOf("</style>"), page.indexOf("<body>"));
    EXPECT_LT(page.indexOf("<body>"), page.indexOf("<p id"));
    QXmlStreamReader reader(page);
    while (!reader.atEnd()) {
        reader.readNext();
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
}

TEST(HtmlDocument, takesAnyStyleInThePlansPlace)
{
    const QString page = htmlDocument("Titre", "<p>Bonjour</p>", "p { margin: 0; }");
    EXPECT_TRUE(page.contains("<style>p { margin: 0; }</style>"));
    EXPECT_EQ(page.count("<style>"), 1);
}
