#include "MarkedPlan.h"
#include "support/CuttingProxy.h"
#include "support/MariaDbServer.h"
#include "support/RuntimeMatchers.h"

#include <atomic>
#include <csignal>

using namespace test;
using absences::AsyncKeyState;
using runtime::ErrorNumber;
using Verdict = CuttingProxy::Verdict;

namespace
{

/// One of the two gestures and what it leaves.
struct Gesture {
    std::int16_t shift = 0;
    std::int16_t ctrl = 0;
    QString query;   ///< for the rows of its table
    QStringList row; ///< what it writes for class A
    QByteArray insert;
    QByteArray removal;
};

Gesture classGesture()
{
    return {AsyncKeyState::kDownAndPressed, 0,
            classAbsencesQuery(),           classAbsence(classA),
            "INSERT INTO `abscence`",       "DELETE FROM abscence"};
}

Gesture studentGesture()
{
    return {0,
            AsyncKeyState::kDownAndPressed,
            studentAbsencesQuery(),
            studentAbsence(classA),
            "INSERT INTO `etud_abs`",
            "DELETE FROM etud_abs"};
}

/// Finds the moment at which the gesture's record is on its way to the server.
class InsertionWatch
{
public:
    explicit InsertionWatch(QByteArray insert) : m_insert(std::move(insert)) {}

    /// Whether the command carries the record itself; its statement came just before.
    [[nodiscard]] bool isSent(const QByteArray& command)
    {
        const bool sent = m_prepared && command.front() == CuttingProxy::kExecute;
        m_prepared = isPrepared(command);
        return sent;
    }
    /// Whether the command announces the statement, with no value yet.
    [[nodiscard]] bool isPrepared(const QByteArray& command) const
    {
        return command.front() == CuttingProxy::kPrepare && command.contains(m_insert);
    }

private:
    QByteArray m_insert;
    bool m_prepared = false;
};

class AServerFault : public testing::TestWithParam<Gesture>
{
protected:
    void SetUp() override { createAbsenceTables(m_database); }

    [[nodiscard]] TestDatabase& database() { return m_database; }
    [[nodiscard]] QList<QStringList> rows() const { return m_database.read(GetParam().query); }
    [[nodiscard]] static QList<QStringList> wholeRow() { return {GetParam().row}; }

    static void click(MarkedPlan& plan) { plan.click(1, GetParam().shift, GetParam().ctrl); }

    /// The error of a gesture over a connection that is cut as the judge says.
    [[nodiscard]] runtime::RunTimeError errorThrough(const CuttingProxy::Judge& judge)
    {
        const CuttingProxy proxy(MariaDbServer::shared().port(), judge);
        MarkedPlan plan(true, proxy.through(m_database.connectString()), {{classA}});
        return errorOf([&] { click(plan); });
    }

    /// Every fault of the connection reads so, whatever was on its way.
    static void expectLostConnection(const runtime::RunTimeError& error, const char* activity)
    {
        EXPECT_EQ(error.number(), ErrorNumber::DatabaseFailure);
        EXPECT_FALSE(error.text().isEmpty());
        EXPECT_TRUE(error.activity().startsWith(QString::fromUtf8(activity))) << error.what();
        EXPECT_TRUE(error.activity().contains(QStringLiteral("« L1-A »")));
        EXPECT_FALSE(error.message().contains(QStringLiteral("mot-de-passe")));
    }

private:
    TestDatabase m_database{DatabaseKind::MariaDb};
};

std::string gestureName(const testing::TestParamInfo<Gesture>& info)
{
    return info.index == 0 ? "ofTheClass" : "ofStudents";
}

} // namespace

TEST_P(AServerFault, beforeTheSearchArrivesWritesNothing)
{
    std::atomic<bool> clicking = false;
    const CuttingProxy proxy(MariaDbServer::shared().port(), [&](const QByteArray&) {
        return clicking ? Verdict::Cut : Verdict::Pass;
    });
    MarkedPlan plan(true, proxy.through(database().connectString()), {{classA}});
    clicking = true;
    expectLostConnection(errorOf([&] { click(plan); }), "Recherche de l’absence");
    EXPECT_TRUE(rows().isEmpty());
}

TEST_P(AServerFault, betweenSearchAndInsertWritesNothing)
{
    InsertionWatch insertion(GetParam().insert);
    expectLostConnection(errorThrough([&](const QByteArray& command) {
                             return insertion.isPrepared(command) ? Verdict::Cut : Verdict::Pass;
                         }),
                         "Enregistrement de l’absence");
    EXPECT_TRUE(rows().isEmpty());
}

TEST_P(AServerFault, beforeTheInsertArrivesWritesNothing)
{
    InsertionWatch insertion(GetParam().insert);
    expectLostConnection(errorThrough([&](const QByteArray& command) {
                             return insertion.isSent(command) ? Verdict::Cut : Verdict::Pass;
                         }),
                         "Enregistrement de l’absence");
    EXPECT_TRUE(rows().isEmpty());
}

TEST_P(AServerFault, thatSwallowsTheAnswerToTheInsertLeavesTheWholeRow)
{
    InsertionWatch insertion(GetParam().insert);
    expectLostConnection(errorThrough([&](const QByteArray& command) {
                             return insertion.isSent(command) ? Verdict::CutAnswer : Verdict::Pass;
                         }),
                         "Enregistrement de l’absence");
    EXPECT_EQ(rows(), wholeRow());
}

TEST_P(AServerFault, beforeARemovalArrivesKeepsTheWholeRow)
{
    MarkedPlan plan(database(), {{classA}});
    click(plan);
    expectLostConnection(errorThrough([&](const QByteArray& command) {
                             return command.contains(GetParam().removal) ? Verdict::Cut
                                                                         : Verdict::Pass;
                         }),
                         "Retrait de l’absence");
    EXPECT_EQ(rows(), wholeRow());
}

TEST_P(AServerFault, thatSwallowsTheAnswerToARemovalLeavesNothing)
{
    MarkedPlan plan(database(), {{classA}});
    click(plan);
    expectLostConnection(errorThrough([&](const QByteArray& command) {
                             return command.contains(GetParam().removal) ? Verdict::CutAnswer
                                                                         : Verdict::Pass;
                         }),
                         "Retrait de l’absence");
    EXPECT_TRUE(rows().isEmpty());
}

TEST_P(AServerFault, endsTheGestureButNotWhatOthersDo)
{
    MarkedPlan other(database(), {{classA}});
    const InsertionWatch insertion(GetParam().insert);
    static_cast<void>(errorThrough([&](const QByteArray& command) {
        return insertion.isPrepared(command) ? Verdict::Cut : Verdict::Pass;
    }));
    click(other);
    EXPECT_EQ(rows(), wholeRow());
}

INSTANTIATE_TEST_SUITE_P(On, AServerFault, testing::Values(classGesture(), studentGesture()),
                         gestureName);

namespace
{

/// A server that dies, with the tables of absences in its database.
class ADyingServer : public testing::TestWithParam<Gesture>
{
protected:
    void SetUp() override
    {
        m_server.runScript(QStringLiteral("CREATE DATABASE planning;\n"));
        m_server.createAccount(QStringLiteral("planning"), QStringLiteral("mot-de-passe"),
                               QStringLiteral("ALL ON planning.*"));
        m_server.runScript(
            absenceTableStatements(DatabaseKind::MariaDb).join(QStringLiteral(";\n")) +
                QStringLiteral(";\n"),
            m_base);
    }

    void kill() const { ::kill(static_cast<pid_t>(m_server.processId()), SIGKILL); }

    /// The error of a gesture while the judge watches.
    [[nodiscard]] runtime::RunTimeError errorThrough(const CuttingProxy::Judge& judge)
    {
        const CuttingProxy proxy(m_server.port(), judge);
        MarkedPlan plan(true,
                        proxy.through(m_server.connectString(m_base, QStringLiteral("planning"),
                                                             QStringLiteral("mot-de-passe"))),
                        {{classA}});
        return errorOf([&] { plan.click(1, GetParam().shift, GetParam().ctrl); });
    }

    /// The rows as the server finds them when it has come up again, a line each.
    [[nodiscard]] QString rowsAfterRestart()
    {
        m_server.restart();
        return QString::fromUtf8(m_server.runScript(GetParam().query + u';', m_base));
    }
    [[nodiscard]] static QString wholeRow() { return GetParam().row.join(u'\t') + u'\n'; }

private:
    QString m_base = QStringLiteral("planning");
    MariaDbServer m_server;
};

} // namespace

TEST_P(ADyingServer, betweenSearchAndInsertHoldsNothing)
{
    const InsertionWatch insertion(GetParam().insert);
    const runtime::RunTimeError error = errorThrough([&](const QByteArray& command) {
        if (!insertion.isPrepared(command)) {
            return Verdict::Pass;
        }
        kill();
        return Verdict::Cut;
    });
    EXPECT_EQ(error.number(), ErrorNumber::DatabaseFailure);
    EXPECT_EQ(rowsAfterRestart(), QString());
}

TEST_P(ADyingServer, withTheInsertOnItsWayHoldsTheWholeRowOrNothing)
{
    InsertionWatch insertion(GetParam().insert);
    const runtime::RunTimeError error = errorThrough([&](const QByteArray& command) {
        if (insertion.isSent(command)) {
            kill(); // no more than the first to arrive: it may still see the record
        }
        return Verdict::Pass;
    });
    EXPECT_EQ(error.number(), ErrorNumber::DatabaseFailure);
    const QString rows = rowsAfterRestart();
    EXPECT_TRUE(rows.isEmpty() || rows == wholeRow()) << rows.toStdString();
}

TEST_P(ADyingServer, afterTheInsertHoldsTheWholeRowOrNothing)
{
    InsertionWatch insertion(GetParam().insert);
    const runtime::RunTimeError error = errorThrough([&](const QByteArray& command) {
        return insertion.isSent(command) ? Verdict::CutAnswer : Verdict::Pass;
    });
    EXPECT_EQ(error.number(), ErrorNumber::DatabaseFailure);
    const QString rows = rowsAfterRestart();
    // The tests' servers do not wait for the disk, so that even a finished record may be lost.
    EXPECT_TRUE(rows.isEmpty() || rows == wholeRow()) << rows.toStdString();
}

INSTANTIATE_TEST_SUITE_P(On, ADyingServer, testing::Values(classGesture(), studentGesture()),
                         gestureName);
