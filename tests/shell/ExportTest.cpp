#include "shell/Export.h"

#include "files/FileFormat.h"
#include "files/PictureExport.h"
#include "files/WholeFile.h"
#include "shell/ShellDesk.h"
#include "support/TestFolder.h"

#include <QDir>
#include <QFile>
#include <QImage>

using namespace test;

namespace
{

/// A folder of its own, empty at first.
QString emptyFolder()
{
    static int counter = 0;
    const QString path = processFolder() + QString("/export%1").arg(++counter);
    QDir().mkpath(path);
    return path;
}

/// The line that an export which cannot be written is answered with.
QString failure(const std::function<void()>& write)
{
    try {
        write();
    } catch (const files::ExportError& error) {
        return QString::fromUtf8(error.what());
    }
    ADD_FAILURE() << "the file is written";
    return {};
}

class Export : public OnBothDatabases
{
protected:
    void SetUp() override
    {
        createTinyFaculty(database());
        desk.start();
    }

    ShellDesk desk{database()};
};

TEMPORA_ON_BOTH_DATABASES(Export);

} // namespace

TEST_P(Export, writesTheFormThatTheEndingNames)
{
    const QString folder = emptyFolder();
    shell::exportPlan(desk.shell(), folder + "/plan.json");
    shell::exportPlan(desk.shell(), folder + "/Plan.PNG");
    EXPECT_EQ(bytesOf(folder + "/plan.json"), files::planAsJson(desk.drawn()));
    EXPECT_EQ(bytesOf(folder + "/Plan.PNG"), files::planAsPng(desk.drawn()));
}

TEST_P(Export, writesEveryPageWhenAskedTo)
{
    const QString folder = emptyFolder();
    desk.form().Total_L_P.setText("2");
    for (const char* name : {"plan.pdf", "plan.csv", "plan.html"}) {
        shell::exportPlan(desk.shell(), folder + "/one-" + name);
        shell::exportPlan(desk.shell(), folder + "/all-" + name, {true, false});
        EXPECT_GT(bytesOf(folder + "/all-" + name).size(), bytesOf(folder + "/one-" + name).size());
    }
    EXPECT_TRUE(bytesOf(folder + "/all-plan.pdf").startsWith("%PDF-"));
}

TEST_P(Export, writesTheSameBytesInEveryWeek)
{
    const QString folder = emptyFolder();
    for (const char* name : {"plan.pdf", "plan.csv", "plan.html"}) {
        desk.today = QDate(2025, 3, 26);
        desk.play({"--day", "0"});
        shell::exportPlan(desk.shell(), folder + "/march-" + name);
        desk.today = QDate(2025, 5, 8);
        desk.play({"--day", "0"});
        shell::exportPlan(desk.shell(), folder + "/may-" + name);
        EXPECT_EQ(bytesOf(folder + "/may-" + name), bytesOf(folder + "/march-" + name)) << name;
    }
}

TEST_P(Export, writesAPageThatLoadsItselfAgainWithItsTime)
{
    const QString path = emptyFolder() + "/hall.html";
    const QDateTime before = QDateTime::currentDateTime();
    shell::exportPlan(desk.shell(), path, {true, false, 60});
    const QDateTime after = QDateTime::currentDateTime();
    const QString page = QString::fromUtf8(bytesOf(path));
    EXPECT_TRUE(page.contains("http-equiv=\"refresh\" content=\"60\""));
    const QString word = "<time datetime=\"";
    const QDateTime told =
        QDateTime::fromString(page.mid(page.indexOf(word) + word.size(), 19), Qt::ISODate);
    EXPECT_GE(told, before.addSecs(-1)); // told to the second
    EXPECT_LE(told, after);
}

TEST_P(Export, replacesWhatWasThere)
{
    const QString path = emptyFolder() + "/plan.json";
    writeFile(path, QString(100000, 'x'));
    shell::exportPlan(desk.shell(), path);
    EXPECT_EQ(bytesOf(path), files::planAsJson(desk.drawn()));
}

TEST_P(Export, drawsThePlanWithItsBoxes)
{
    const QImage picture = QImage::fromData(files::planAsPng(desk.drawn()), "PNG");
    // The axis ends with 19h00, 660 × 2400 / 90 = 17600 twips behind its beginning, with the places
    // behind it; a pixel is 15 twips.
    const int end = (desk.form().Label1[0].place.left + 17600) / 15;
    EXPECT_GT(picture.width(), end);
    EXPECT_LT(picture.width(), end + 150);
    EXPECT_GT(picture.height(), 200);
    // The middle of A2's box in slot 1, above its text, has the row's colour, as the room's label.
    const form::Colour color = desk.shell().engine().content().rows[0].color;
    int found = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) == qRgb(color.red(), color.green(), color.blue())) {
                ++found;
            }
        }
    }
    EXPECT_GT(found, 160 * 20); // the box alone is 160 pixels wide
}

TEST_P(Export, drawsTheSamePictureForTheSamePlan)
{
    const QByteArray first = files::planAsPng(desk.drawn());
    desk.start();
    EXPECT_EQ(files::planAsPng(desk.drawn()), first);
}

TEST(ExportFile, isNamedWhenItsFolderDoesNotExist)
{
    const QString path = emptyFolder() + "/missing/plan.json";
    const QString answer = failure([&] { files::writeWholeFile(path, "{}"); });
    EXPECT_TRUE(answer.startsWith("Impossible d’écrire « " + path + " » : "))
        << answer.toStdString();
    EXPECT_FALSE(answer.contains('\n'));
}

TEST(ExportFile, isRefusedWhereThereIsAFolder)
{
    const QString path = emptyFolder() + "/plan.json";
    QDir().mkpath(path);
    EXPECT_TRUE(failure([&] { files::writeWholeFile(path, "{}"); }).contains(path));
    EXPECT_TRUE(QDir(path).isEmpty());
}

TEST(ExportFile, leavesNothingElseBehind)
{
    const QString folder = emptyFolder();
    files::writeWholeFile(folder + "/plan.json", "{}");
    EXPECT_EQ(QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList({"plan.json"}));
}
