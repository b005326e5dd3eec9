#include "files/FileFormat.h"

#include "files/CsvExport.h"
#include "files/HtmlExport.h"
#include "files/JsonExport.h"
#include "files/PdfExport.h"
#include "files/PictureExport.h"
#include "support/RuntimeMatchers.h"

using namespace files;

TEST(FileFormat, isChosenByTheEndingOfTheFilesName)
{
    const std::vector<std::pair<QString, QByteArray (*)(const PlanDocument&)>> writers = {
        {"plan.json", planAsJson},
        {"a.b/plan.png", planAsPng},
        {"Plan.PDF", planAsPdf},
        {"plan.2026.Csv", planAsCsv},
        {"plan.html", planAsHtml}};
    for (const auto& [name, write] : writers) {
        const FileFormat* format = formatOf(name);
        ASSERT_NE(format, nullptr) << name.toStdString();
        EXPECT_EQ(format->write, write) << name.toStdString();
    }
}

TEST(FileFormat, isNoneForAnotherEnding)
{
    for (const char* name : {"plan", "plan.txt", "plan.json.gz", "json", "plan.", ".", ""}) {
        EXPECT_EQ(formatOf(name), nullptr) << name;
    }
}

TEST(FileFormat, holdsPagesWherePaperWould)
{
    for (const char* name : {"plan.pdf", "plan.csv", "plan.html"}) {
        EXPECT_TRUE(formatOf(name)->holdsPages) << name;
    }
    for (const char* name : {"plan.json", "plan.png"}) {
        EXPECT_FALSE(formatOf(name)->holdsPages) << name;
    }
}

TEST(FileFormat, loadsItselfAgainAsAWebPageAlone)
{
    EXPECT_TRUE(formatOf("hall.html")->refreshes);
    for (const char* name : {"plan.pdf", "plan.csv", "plan.json", "plan.png"}) {
        EXPECT_FALSE(formatOf(name)->refreshes) << name;
    }
}

TEST(FileFormat, hasOneEndingEach)
{
    EXPECT_EQ(fileEndings(), QStringList({"json", "png", "pdf", "csv", "html"}));
}
