#include "app/asking/AnswerDesk.h"

#include "shell/ShellDesk.h"

#include <gtest/gtest.h>
#include <vector>

using namespace test;

namespace
{

/// The tiny faculty and a program whose user's actions wait until they are let go.
class TheDesk : public OnBothDatabases
{
protected:
    void SetUp() override
    {
        createTinyFaculty(database());
        program.emplace(database());
        desk.emplace(program->start(),
                     [this](const std::function<void()>& action) { waiting.push_back(action); });
    }
    void letGo()
    {
        const auto actions = std::exchange(waiting, {});
        for (const auto& action : actions) {
            action();
        }
    }
    void ask()
    {
        desk->ask([this] { ++answers; });
    }
    [[nodiscard]] long long statements() { return program->shell().engine().statementCount(); }

    std::optional<ShellDesk> program;
    std::vector<std::function<void()>> waiting;
    std::optional<app::AnswerDesk> desk;
    int answers = 0;
};

TEMPORA_ON_BOTH_DATABASES(TheDesk);

} // namespace

TEST_P(TheDesk, readsWhenItIsFirstAskedAndInItsTurn)
{
    EXPECT_TRUE(desk->isOld());
    EXPECT_EQ(desk->inquiry(), nullptr);
    ask();
    EXPECT_EQ(answers, 0); // another action may be under way
    letGo();
    EXPECT_EQ(answers, 1);
    ASSERT_NE(desk->inquiry(), nullptr);
    EXPECT_EQ(desk->inquiry()->period(), "Printemps");
    EXPECT_FALSE(desk->isOld());
}

TEST_P(TheDesk, readsNothingAnewUntilThePlanIsDrawnAgain)
{
    ask();
    letGo();
    const long long before = statements();
    ask();
    EXPECT_EQ(answers, 2); // at once
    EXPECT_TRUE(waiting.empty());
    EXPECT_EQ(statements(), before);
    program->shell().form().CbJour.setListIndex(1);
    EXPECT_TRUE(desk->isOld());
}

TEST_P(TheDesk, readsOnceForAllWhoWait)
{
    ask();
    ask();
    const long long before = statements();
    letGo();
    EXPECT_EQ(answers, 2);
    EXPECT_EQ(statements() - before, 10);
}

TEST_P(TheDesk, namesTheColumnThatIsMissing)
{
    database().execute("alter table emplois drop column newnature");
    ask();
    letGo();
    EXPECT_EQ(desk->fault(),
              "L’emploi du temps n’a pas pu être lu : la colonne « newnature » manque dans la "
              "table « emplois ». Rien n’est connu, et rien n’est dit libre.");
}

TEST_P(TheDesk, tellsWhatCannotBeReadAndForgetsWhatItKnew)
{
    ask();
    letGo();
    database().execute(QStringList("drop table emplois"));
    program->shell().form().CbJour.setListIndex(1);
    ask();
    letGo();
    EXPECT_EQ(answers, 2);
    EXPECT_EQ(desk->inquiry(), nullptr);
    EXPECT_TRUE(desk->fault().startsWith("L’emploi du temps n’a pas pu être lu : "))
        << desk->fault().toStdString();
    EXPECT_TRUE(desk->fault().endsWith("rien n’est dit libre."));
    EXPECT_TRUE(desk->isOld()); // so that it is tried again
}
