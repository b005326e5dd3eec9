#include "MarkedPlan.h"
#include "support/MariaDbServer.h"
#include "support/RuntimeMatchers.h"

using namespace test;
using absences::AsyncKeyState;
using runtime::ErrorNumber;

namespace
{

const QString password = QStringLiteral("mot-de-passe");

/// Accounts with fewer rights than the administrator's.
class AnAccount : public testing::Test
{
protected:
    void SetUp() override { createAbsenceTables(m_database); }

    /// What connects with an account that has exactly these rights; "%1" stands for the database.
    [[nodiscard]] QString connectStringWith(const QString& grants)
    {
        const QString name = QStringLiteral("droits_") + m_database.baseName();
        MariaDbServer::shared().createAccount(name, password, grants.arg(m_database.baseName()));
        return MariaDbServer::shared().connectString(m_database.baseName(), name, password);
    }
    [[nodiscard]] TestDatabase& database() { return m_database; }

    static void expectRefusal(const std::function<void()>& gesture)
    {
        const runtime::RunTimeError error = errorOf(gesture);
        EXPECT_EQ(error.number(), ErrorNumber::StatementRefused);
        EXPECT_TRUE(error.text().contains(QStringLiteral("command denied"))) << error.what();
        EXPECT_FALSE(error.message().contains(password));
    }

private:
    TestDatabase m_database{DatabaseKind::MariaDb};
};

} // namespace

TEST_F(AnAccount, thatMayAddAndDeleteInTheTwoTablesMarksAbsences)
{
    MarkedPlan plan(true,
                    connectStringWith(QStringLiteral("SELECT ON %1.*;"
                                                     "INSERT, DELETE ON %1.abscence;"
                                                     "INSERT, DELETE ON %1.etud_abs")),
                    {{classA}});
    plan.click(1, pressed, pressed);
    EXPECT_EQ(classAbsences(database()), QList<QStringList>{classAbsence(classA)});
    EXPECT_EQ(studentAbsences(database()), QList<QStringList>{studentAbsence(classA)});
    plan.refresh();
    EXPECT_TRUE(plan.box(1).classAbsent);
    EXPECT_TRUE(plan.box(1).studentAbsent);
    plan.click(1, pressed, pressed);
    EXPECT_TRUE(classAbsences(database()).isEmpty());
    EXPECT_TRUE(studentAbsences(database()).isEmpty());
}

TEST_F(AnAccount, thatMayAddButNotDeleteMarksAbsencesAndCannotTakeThemBack)
{
    MarkedPlan plan(true,
                    connectStringWith(QStringLiteral("SELECT ON %1.*;"
                                                     "INSERT ON %1.abscence;"
                                                     "INSERT ON %1.etud_abs")),
                    {{classA}});
    plan.click(1, pressed, pressed);
    expectRefusal([&] { plan.shiftClick(1); });
    expectRefusal([&] { plan.ctrlClick(1); });
    EXPECT_EQ(classAbsences(database()), QList<QStringList>{classAbsence(classA)});
    EXPECT_EQ(studentAbsences(database()), QList<QStringList>{studentAbsence(classA)});
}

TEST_F(AnAccount, thatMayOnlyReadSeesThePlanAndCannotMark)
{
    MarkedPlan(database(), {{classA}}).click(1, pressed, pressed);
    MarkedPlan plan(true, connectStringWith(QStringLiteral("SELECT ON %1.*")),
                    {{classA}, {QStringLiteral("L1-B")}});
    ASSERT_EQ(plan.engine().markers().MarkerCount(), 2);
    EXPECT_TRUE(plan.box(1).classAbsent);
    EXPECT_TRUE(plan.box(1).studentAbsent);
    EXPECT_FALSE(plan.box(2).classAbsent);
    expectRefusal([&] { plan.shiftClick(1); });
    expectRefusal([&] { plan.shiftClick(2); });
    expectRefusal([&] { plan.ctrlClick(1); });
    expectRefusal([&] { plan.ctrlClick(2); });
    EXPECT_EQ(classAbsences(database()), QList<QStringList>{classAbsence(classA)});
    EXPECT_EQ(studentAbsences(database()), QList<QStringList>{studentAbsence(classA)});
    plan.refresh(); // the plan itself works on
    EXPECT_EQ(plan.engine().markers().MarkerCount(), 2);
}
