// How many statements an answer about the timetable takes, from the question to the file. Where
// rooms, rows or names were asked for one by one the answer would stay the same and only become
// slower: the number tells.

#include "shell/Answers.h"
#include "shell/ShellDesk.h"

#include <QFile>
#include <QTemporaryDir>

using namespace test;

namespace
{

class StatementsOfAnAnswer : public OnBothDatabases
{
protected:
    void SetUp() override { createTinyFaculty(database()); }

    /// Statements that the question takes, whose file is the first option's value.
    [[nodiscard]] long long of(const QString& option, const QStringList& arguments)
    {
        ShellDesk desk(database());
        desk.load();
        const engine::Engine& engine = desk.shell().engine();
        const auto line =
            shell::CommandLine::parse(QStringList{"tempora", option, file} + arguments);
        QFile::remove(file);
        const long long before = engine.statementCount();
        shell::writeAnswer(desk.shell(), line);
        EXPECT_TRUE(QFile::exists(file));
        return engine.statementCount() - before;
    }

    QTemporaryDir folder{processFolder() + "/statements-XXXXXX"};
    QString file = folder.filePath("answer.json");
};

TEMPORA_ON_BOTH_DATABASES(StatementsOfAnAnswer);

// Rooms, slots, period, exam weeks, courses, make-ups, exams, students, sizes of classes, and one
// for which names are equal.
constexpr long long kReading = 10;

// What may be sent in all.
constexpr long long kMost = 12;

} // namespace

TEST_P(StatementsOfAnAnswer, areThoseOfReadingForFreeRooms)
{
    const QStringList times{"--from", "8h30", "--to", "10h00"};
    EXPECT_EQ(of("--free", QStringList{"--day", "0"} + times), kReading);
    EXPECT_EQ(of("--free", QStringList{"--date", "2025-03-17", "--weeks-running", "12", "--places",
                                       "20", "--zone", "1", "--department", "INFO"} +
                               times),
              kReading);
}

TEST_P(StatementsOfAnAnswer, areThoseOfReadingForAWeek)
{
    EXPECT_EQ(of("--week-of", {"--room", "A2"}), kReading);
    EXPECT_EQ(of("--week-of", {"--teacher", "Roux", "--date", "2025-03-17"}), kReading);
    EXPECT_EQ(of("--week-of", {"--class", "G1", "--week", "A"}), kReading);
    EXPECT_EQ(of("--week-of", {"--matter", "Analyse"}), kReading);
}

TEST_P(StatementsOfAnAnswer, areThoseOfReadingForAllElse)
{
    EXPECT_EQ(of("--find", {"--text", "a"}), kReading);
    EXPECT_EQ(of("--clashes", {}), kReading);
    EXPECT_EQ(of("--use", {}), kReading);
}

TEST_P(StatementsOfAnAnswer, areNoMoreForMoreRoomsAndRows)
{
    QStringList statements;
    for (int number = 0; number < 40; ++number) {
        statements
            << QStringLiteral("insert into salle (Nom, places) values ('R%1', 10)").arg(number)
            << QStringLiteral("insert into emplois (Tranche, Seance, Salle, Classe, "
                              "Enseignant1, Debut) values (1, 'Lundi%1', 'r%2', 'C%2', "
                              "'T%2', '8h30')")
                   .arg(number % 4 + 1)
                   .arg(number);
    }
    database().execute(statements);
    EXPECT_EQ(of("--free", {"--day", "0", "--from", "8h30", "--to", "10h00"}), kReading);
    EXPECT_EQ(of("--clashes", {}), kReading);
    EXPECT_EQ(of("--find", {"--text", "r1"}), kReading);
}

TEST_P(StatementsOfAnAnswer, areFewWhereThePeriodIsChosenAndColumnsAreMissing)
{
    // The make-ups and the exams do not come packed.
    database().execute(QStringList{"alter table ratrap drop column `XMatièreB`",
                                   "alter table examen drop column Enseignant3"});
    EXPECT_LE(of("--free", {"--tranche", "Printemps", "--date", "2025-03-17", "--from", "8h30",
                            "--to", "10h00"}),
              kMost);
    EXPECT_LE(of("--clashes", {"--tranche", "Printemps"}), kMost);
}
