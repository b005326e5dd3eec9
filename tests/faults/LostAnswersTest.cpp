// A server that goes away before, during and after every statement of a start and of a plan.

#include "engine/EngineDesk.h"
#include "faults/ShownCells.h"
#include "plan/FaultWords.h"
#include "support/CuttingProxy.h"
#include "support/MariaDbServer.h"

#include <atomic>
#include <chrono>
#include <future>

using namespace test;
using Verdict = CuttingProxy::Verdict;

namespace
{

/// How the plan asks, and what happens to a command.
struct Loss {
    const char* name;
    bool plain;
    Verdict verdict;
    int step =
        1; ///< from one lost command to the next; the plain way asks the same again and again
};

constexpr int kAll = 100'000;

/// A plan over a server that can be lost at any command.
class ALostAnswer : public testing::TestWithParam<Loss>
{
protected:
    ALostAnswer() { createTinyFaculty(database); }

    /// Loses what comes after so many commands: `more` of them, then none.
    void loseAfter(int passes, int more)
    {
        losses = more;
        passing = passes;
    }
    /// Refreshes and tells how many commands it took.
    int commandsOf(EngineDesk& desk)
    {
        loseAfter(kAll, 0);
        desk.engine.refreshPlan();
        return kAll - passing;
    }

    /// A plan over that server which connects anew whenever it has to. The program waits two
    /// seconds after an attempt that has taken long, as any may on a busy machine.
    [[nodiscard]] EngineDesk deskThroughTheProxy()
    {
        db::Database::Patience patience;
        patience.failed = std::chrono::milliseconds(-1);
        return EngineDesk(database, GetParam().plain, proxy.through(database.connectString()),
                          patience);
    }

    /// A start that loses nothing.
    struct Starts {
        int connecting = 0; ///< commands until the connection is open
        int commands = 0;   ///< until the plan is drawn
        ShownCells whole;
        QStringList header;
    };
    Starts countStarts()
    {
        Starts starts;
        const QString connectString = proxy.through(database.connectString());
        loseAfter(kAll, 0);
        db::Database connection(true);
        connection.open(connectString);
        starts.connecting = kAll - passing;
        connection.close();
        loseAfter(kAll, 0);
        const EngineDesk desk(database, GetParam().plain, connectString);
        starts.commands = kAll - passing;
        starts.whole = shownCells(desk.engine.content());
        starts.header = shownHeader(desk);
        EXPECT_GT(starts.commands, starts.connecting + 8);
        return starts;
    }
    /// What start-up has read beside the plan.
    static QStringList shownHeader(const EngineDesk& desk)
    {
        const form::PlanForm& form = desk.engine.form();
        return QStringList{desk.engine.state().establishment.EstablishmentName,
                           form.Label4.at(1).caption, form.Label4.at(3).caption} +
               form.CbTranche.items() + form.cb_Locaux.items() + form.Combo1.items();
    }

    TestDatabase database{DatabaseKind::MariaDb};
    std::atomic<int> passing = kAll;
    std::atomic<int> losses = 0;
    CuttingProxy proxy{
        MariaDbServer::shared().port(), [this](const QByteArray& command) {
            if (command[0] == CuttingProxy::kQuit || command[0] == CuttingProxy::kCloseStatement) {
                return Verdict::Pass; // it could be lost a refresh too late
            }
            const Verdict lost = GetParam().verdict;
            if (passing > 0 || (lost == Verdict::CutRows && command[0] != CuttingProxy::kExecute)) {
                --passing;
                return Verdict::Pass;
            }
            return losses-- > 0 ? lost : Verdict::Pass;
        }};
};

std::string lossName(const testing::TestParamInfo<Loss>& info)
{
    return info.param.name;
}

} // namespace

TEST_P(ALostAnswer, atAnyCommandOfThePlanShowsNoRoomAsFree)
{
    EngineDesk desk = deskThroughTheProxy();
    desk.form.Check2.setChecked(true); // make-ups, too
    const int commands = commandsOf(desk);
    const ShownCells whole = shownCells(desk.engine.content());
    ASSERT_GT(commands, 8);
    ASSERT_EQ(unknownCells(whole), 0);
    for (int cut = 0; cut < commands; cut += GetParam().step) {
        const QString which = QString("command %1 of %2").arg(cut).arg(commands);
        loseAfter(cut, kAll);
        desk.engine.refreshPlan();
        expectNothingFreed(whole, desk.engine.content(), which);
        loseAfter(kAll, 0);
        desk.engine.refreshPlan();
        EXPECT_EQ(shownCells(desk.engine.content()), whole)
            << which.toStdString() << ": "
            << plan::faultDetails(desk.engine.content()).toStdString();
    }
}

TEST_P(ALostAnswer, onceIsNoticedByNobody)
{
    EngineDesk desk = deskThroughTheProxy();
    const ShownCells whole = shownCells(desk.engine.content());
    const int commands = commandsOf(desk);
    for (int cut = 0; cut < commands; cut += GetParam().step) {
        loseAfter(cut, 1);
        desk.engine.refreshPlan();
        EXPECT_EQ(shownCells(desk.engine.content()), whole) << cut;
        EXPECT_TRUE(desk.engine.content().faults.empty()) << cut;
    }
}

TEST_P(ALostAnswer, onceAtTheStartIsNoticedByNobody)
{
    const Starts starts = countStarts();
    for (int cut = starts.connecting; cut < starts.commands; cut += GetParam().step) {
        loseAfter(cut, 1);
        const EngineDesk desk = deskThroughTheProxy();
        EXPECT_EQ(shownCells(desk.engine.content()), starts.whole) << cut;
        EXPECT_TRUE(desk.engine.content().faults.empty()) << cut;
        EXPECT_EQ(shownHeader(desk), starts.header) << cut;
    }
}

TEST_P(ALostAnswer, forGoodAtTheStartEndsItOrShowsNoRoomAsFree)
{
    const Starts starts = countStarts();
    int ended = 0;
    for (int cut = 0; cut < starts.commands; cut += GetParam().step) {
        loseAfter(cut, kAll);
        std::optional<EngineDesk> desk;
        try {
            desk.emplace(database, GetParam().plain, proxy.through(database.connectString()));
        } catch (const runtime::RunTimeError& error) {
            EXPECT_EQ(error.number(), runtime::ErrorNumber::DatabaseFailure) << cut;
            ++ended;
            continue;
        }
        expectNothingFreed(starts.whole, desk->engine.content(), QString::number(cut));
        const bool isWhole = shownCells(desk->engine.content()) == starts.whole;
        EXPECT_TRUE(isWhole || !desk->engine.content().faults.empty()) << cut;
    }
    EXPECT_GT(ended, 0);
}

INSTANTIATE_TEST_SUITE_P(Over, ALostAnswer,
                         testing::Values(Loss{"theConnectionBefore", false, Verdict::Cut},
                                         Loss{"theConnectionAfter", false, Verdict::CutAnswer},
                                         Loss{"theConnectionWithin", false, Verdict::CutRows},
                                         Loss{"theConnectionBeforePlain", true, Verdict::Cut, 7},
                                         Loss{"theConnectionAfterPlain", true, Verdict::CutAnswer,
                                              7}),
                         lossName);
