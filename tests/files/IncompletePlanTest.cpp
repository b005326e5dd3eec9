// What the files say of a plan that lacks something.

#include "files/CsvExport.h"
#include "files/HtmlExport.h"
#include "files/JsonExport.h"
#include "files/PdfExport.h"
#include "files/PictureExport.h"

#include "plan/PlanDesk.h"
#include "print/Pdf.h"
#include "support/RuntimeMatchers.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using test::PlanDesk;

namespace
{

/// Rooms R01 to R03; the second one's slots 1 and 2 are unknown.
class AnIncompletePlan : public testing::Test
{
protected:
    AnIncompletePlan()
    {
        desk.meeting(1, 1);
        desk.rows.beforeAnswer = [](const lookup::RoomQuestion& question) {
            if (question.room == "R02" && question.seanceKey <= "Lundi2" &&
                question.seanceKey != "Lundi10") {
                throw db::DatabaseError(db::Failure::Refused,
                                        runtime::ErrorNumber::StatementRefused, "said <b>no</b>");
            }
        };
        desk.draw();
    }
    [[nodiscard]] files::PlanDocument document() const
    {
        return {{desk.engine.drawnPage()}, QDate()};
    }

    PlanDesk desk{4};
};

} // namespace

TEST_F(AnIncompletePlan, namesItsUnknownCellsInJson)
{
    const QJsonObject plan = QJsonDocument::fromJson(files::planAsJson(document())).object();
    const QJsonArray rows = plan["rows"].toArray();
    EXPECT_FALSE(rows[0].toObject().contains("unknown"));
    const QJsonArray unknown = rows[1].toObject()["unknown"].toArray();
    ASSERT_EQ(unknown.size(), 2);
    EXPECT_EQ(unknown[1].toObject(), QJsonObject({{"slot", 2},
                                                  {"start", "9h30"},
                                                  {"duration", "90"},
                                                  {"x_twips", 1620 + 2400},
                                                  {"width_twips", 2400}}));
    EXPECT_EQ(plan["faults"].toArray(),
              QJsonArray({QJsonObject({{"name", ""}, {"text", "said <b>no</b>"}})}));
}

TEST_F(AnIncompletePlan, hasALineForEachUnknownCellInCsv)
{
    const QStringList lines = QString::fromUtf8(files::planAsCsv(document())).split("\r\n");
    ASSERT_EQ(lines.size(), 1 + 1 + 2 + 1); // titles, a box, two unknown cells, the end
    EXPECT_TRUE(lines[2].endsWith(";R02;30;1;8h00;90;inconnu;;;;;;;;;")) << lines[2].toStdString();
    EXPECT_EQ(lines[2].count(';'), lines[0].count(';'));
}

TEST_F(AnIncompletePlan, saysSoInHtml)
{
    const QString html = QString::fromUtf8(files::planAsHtml(document()));
    EXPECT_EQ(html.count("? inconnu</td>"), 2);
    EXPECT_TRUE(html.contains("<p role=\"alert\"><strong>Plan incomplet depuis "));
    EXPECT_TRUE(html.contains("la base de données refuse une demande. Les cases « ? "
                              "» sont inconnues, et non libres.</strong></p>"))
        << html.toStdString();
}

TEST_F(AnIncompletePlan, saysSoAtTheFootOfASheet)
{
    const QString text = test::Pdf(files::planAsPdf(document())).text();
    EXPECT_TRUE(text.contains("Plan incomplet depuis ")) << text.toStdString();
    EXPECT_EQ(text.count("?"), 2 + 1); // the two cells, and the sentence
}

TEST_F(AnIncompletePlan, isAHigherPicture)
{
    const QImage picture = QImage::fromData(files::planAsPng(document()));
    desk.rows.beforeAnswer = nullptr;
    desk.draw();
    const QImage whole = QImage::fromData(files::planAsPng(document()));
    EXPECT_EQ(picture.width(), whole.width());
    EXPECT_EQ(picture.height(), whole.height() + 40);
}

TEST_F(AnIncompletePlan, hasNoWordForGapsOnceItIsWhole)
{
    desk.rows.beforeAnswer = nullptr;
    desk.draw();
    EXPECT_FALSE(files::planAsJson(document()).contains("unknown"));
    EXPECT_FALSE(files::planAsJson(document()).contains("faults"));
    EXPECT_FALSE(files::planAsHtml(document()).contains("inconnu"));
}
