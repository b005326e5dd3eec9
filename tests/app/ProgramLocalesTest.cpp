// The executable in the languages of its users' systems: whatever the system writes numbers, dates
// and capitals like, the program writes them in its own way.

#include "app/TemporaProcess.h"
#include "support/ChildProgram.h"
#include "support/RuntimeMatchers.h"
#include "support/TestFolder.h"
#include "support/TinyFaculty.h"

#include <QDir>
#include <QFile>
#include <iostream>

using namespace test;

namespace
{

/// A folder with locales of our own: a machine need not have any installed.
QString localeFolder()
{
    return madeOnce("locales", [](const QString& path) {
        QDir().mkpath(path);
        for (const char* name : {"fr_FR", "tr_TR", "ar_EG"}) {
            try {
                runProgram("localedef", {"-i", name, "-f", "UTF-8", path + '/' + name + ".UTF-8"});
            } catch (const std::runtime_error& error) {
                // The program still learns the language from the environment; the C library's own
                // rules are those of C then.
                std::cout << "without the C library's locale " << name << ": " << error.what()
                          << std::endl;
            }
        }
    });
}

class ProgramLocales : public OnBothDatabases
{
protected:
    void SetUp() override
    {
        createTinyFaculty(database());
        // A number with a fraction is where languages differ first.
        database().execute("UPDATE emplois SET `Durée` = '67.5' WHERE Salle = 'B2'");
    }

    void speak(const QString& locale)
    {
        program.environment.insert("LOCPATH", localeFolder());
        program.environment.remove("LC_ALL");
        for (const char* variable : {"LANG", "LANGUAGE", "LC_ALL"}) {
            program.environment.insert(variable, locale);
        }
    }

    ProgramSetup setup{database()};
    TemporaProcess program{setup};
};

TEMPORA_ON_BOTH_DATABASES(ProgramLocales);

const QStringList& locales()
{
    static const QStringList names = {"C", "C.UTF-8", "fr_FR.UTF-8", "tr_TR.UTF-8", "ar_EG.UTF-8"};
    return names;
}

} // namespace

TEST_P(ProgramLocales, giveTheSamePlan)
{
    QString first;
    for (const QString& locale : locales()) {
        speak(locale);
        const QString file = setup.path("plan.json");
        ASSERT_EQ(program.run({"--export", file, "--date", "2025-03-17", "--makeup", "--seed", "1",
                               "--counting", "--subject", "Physique"}),
                  0)
            << program.errors().toStdString();
        EXPECT_EQ(program.errors(), "") << locale.toStdString();
        const QString plan = fileText(file);
        EXPECT_TRUE(plan.contains(R"("width_twips": 1800)")); // 67.5 minutes
        first = first.isEmpty() ? plan : first;
        EXPECT_EQ(plan, first) << locale.toStdString();
    }
}

TEST_P(ProgramLocales, giveTheSameExamWeeks)
{
    QString first;
    for (const QString& locale : locales()) {
        speak(locale);
        const QString file = setup.path("plan.json");
        ASSERT_EQ(
            program.run({"--export", file, "--mode", "exam", "--exam-week", "2", "--seed", "1"}), 0)
            << program.errors().toStdString();
        const QString plan = fileText(file);
        EXPECT_TRUE(plan.contains(R"("date": "2025-06-16")")) << locale.toStdString();
        first = first.isEmpty() ? plan : first;
        EXPECT_EQ(plan, first) << locale.toStdString();
    }
}

TEST_P(ProgramLocales, giveTheSameRunTimeErrors)
{
    setup.set("Mysql", "INVALIDE");
    for (const QString& locale : locales()) {
        speak(locale);
        EXPECT_EQ(program.run({"--export", setup.path("plan.json")}), 1);
        EXPECT_EQ(program.errors(), "Run-time error '13':\n\nType mismatch\n\nLecture du paramètre "
                                    "« Mysql » (valeur « INVALIDE »)\n")
            << locale.toStdString();
    }
}

TEST_P(ProgramLocales, readTheSameSettings)
{
    setup.set("Grille_Visible", "FALSE"); // whose small i is another one in Turkish
    setup.set("Total_L_P", "2");
    for (const QString& locale : locales()) {
        speak(locale);
        EXPECT_EQ(program.run({"--export", setup.path("plan.json")}), 0) << locale.toStdString();
        EXPECT_TRUE(fileText(setup.path("plan.json")).contains(R"("rows_shown": 2)"));
    }
}
