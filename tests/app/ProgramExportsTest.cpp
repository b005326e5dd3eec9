// The files that the executable exports for other programs and for people.

#include "app/TemporaProcess.h"
#include "print/Pdf.h"
#include "support/RuntimeMatchers.h"
#include "support/TestFolder.h"
#include "support/TinyFaculty.h"

#include <QDir>
#include <QFile>

using namespace test;

namespace
{

class ProgramExports : public OnBothDatabases
{
protected:
    void SetUp() override { createTinyFaculty(database()); }

    QByteArray exported(const QString& name, const QStringList& arguments = {})
    {
        const QString file = setup.path(name);
        EXPECT_EQ(program.run(QStringList{"--export", file, "--date", "2025-03-17", "--makeup",
                                          "--seed", "3"} +
                              arguments),
                  0);
        EXPECT_EQ(program.errors(), "");
        return bytesOf(file);
    }

    ProgramSetup setup{database()};
    TemporaProcess program{setup};
};

TEMPORA_ON_BOTH_DATABASES(ProgramExports);

} // namespace

TEST_P(ProgramExports, areTheSameBytesInEveryRunAndTimeZone)
{
    for (const char* name : {"plan.pdf", "plan.csv", "plan.html", "plan.json"}) {
        program.environment.insert("TZ", "UTC");
        const QByteArray first = exported(name);
        EXPECT_FALSE(first.isEmpty());
        for (const char* zone : {"Asia/Tokyo", "America/St_Johns", "UTC"}) {
            program.environment.insert("TZ", zone);
            EXPECT_EQ(exported(name), first) << name << " in " << zone;
        }
    }
}

TEST_P(ProgramExports, holdAllPagesInOneDocument)
{
    const Pdf one(exported("one.pdf", {"--rooms-per-page", "2"}));
    const Pdf all(exported("all.pdf", {"--rooms-per-page", "2", "--all-pages"}));
    EXPECT_EQ(one.pageCount(), 1);
    EXPECT_EQ(all.pageCount(), 2);
    EXPECT_TRUE(all.text(1).contains("Occupation des Salles du 17/03/25"));
    EXPECT_TRUE(all.text(1).contains("rattrapage"));
    EXPECT_TRUE(all.text(2).contains("Page 2 / 2"));
}

TEST_P(ProgramExports, areForAHallWhereAPageLoadsItselfAgain)
{
    const QString plan = QString::fromUtf8(exported("plan.html"));
    EXPECT_FALSE(plan.contains(">A1</th>")); // on the greyed line
    EXPECT_TRUE(plan.contains("Classe absente"));
    const QString file = setup.path("hall.html");
    EXPECT_EQ(program.run({"--export", file, "--date", "2025-03-17", "--refresh", "60"}), 0);
    const QString hall = QString::fromUtf8(bytesOf(file));
    for (const char* room : {"A1", "A2", "B1", "B2", "C1"}) {
        EXPECT_TRUE(hall.contains(QString(">%1</th>").arg(room))) << room;
    }
    EXPECT_TRUE(hall.contains("class=\"box makeup\""));
    EXPECT_FALSE(hall.contains("Classe absente"));
}

TEST_P(ProgramExports, neverLeaveHalfAFile)
{
    for (const char* name : {"plan.pdf", "plan.html", "plan.csv"}) {
        const QByteArray before = exported(name);
        program.largestFile = 100;
        EXPECT_EQ(program.run({"--export", setup.path(name), "--day", "1"}), 1);
        const QString answer = program.errors();
        EXPECT_TRUE(answer.startsWith("Impossible d’écrire « " + setup.path(name) + " »"))
            << answer.toStdString();
        EXPECT_EQ(answer.count('\n'), 1);
        program.largestFile = 0;
        EXPECT_EQ(bytesOf(setup.path(name)), before);
    }
}
