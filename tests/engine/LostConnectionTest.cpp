// A connection that breaks while the window is open, before a real server.

#include "EngineDesk.h"

#include "absences/HeldKey.h"
#include "support/CuttingProxy.h"
#include "support/FileHolder.h"
#include "support/MariaDbServer.h"

#include <atomic>

using namespace test;

namespace
{

class ALostConnection : public testing::Test
{
protected:
    ALostConnection() { createTinyFaculty(database); }

    /// What each room shows on Monday: boxes and unknown cells.
    [[nodiscard]] static QStringList shown(const EngineDesk& desk)
    {
        QStringList rows;
        for (const plan::PlanRow& row : desk.engine.content().rows) {
            rows << QStringLiteral("%1: %2 + %3 ?")
                        .arg(row.room)
                        .arg(row.boxes.size())
                        .arg(row.unknown.size());
        }
        return rows;
    }
    static void kill(EngineDesk& desk)
    {
        const QString id =
            desk.connection->Db().open("select connection_id()").first().field(0).toText();
        MariaDbServer::shared().runScript(QStringLiteral("kill %1;").arg(id));
    }

    TestDatabase database{DatabaseKind::MariaDb};
    const QStringList whole{"A2: 1 + 0 ?", "B1: 1 + 0 ?", "B2: 1 + 0 ?", "C1: 1 + 0 ?"};
    const QStringList unknown{"A2: 0 + 4 ?", "B1: 0 + 4 ?", "B2: 0 + 4 ?", "C1: 0 + 4 ?"};
};

} // namespace

TEST_F(ALostConnection, isOpenedAnewByTheNextRefresh)
{
    for (const bool plain : {false, true}) {
        EngineDesk desk(database, plain);
        ASSERT_EQ(shown(desk), whole);
        kill(desk);
        desk.form.OptA().select();
        EXPECT_EQ(shown(desk), whole);
        EXPECT_TRUE(desk.engine.content().faults.empty());
    }
}

TEST_F(ALostConnection, isOpenedAnewByTheNextPageAndPeriod)
{
    EngineDesk desk(database);
    desk.form.Total_L_P.setText("2");
    kill(desk);
    desk.form.Command3.press();
    EXPECT_EQ(shown(desk), QStringList({"C1: 1 + 0 ?"}));
    kill(desk);
    desk.form.CbTranche.setListIndex(1);
    EXPECT_EQ(desk.engine.state().period.TrancheIdent, 2);
}

TEST_F(ALostConnection, loosesNoGestureAndDoublesNone)
{
    EngineDesk desk(database);
    kill(desk);
    absences::HeldKey shift(absences::VirtualKey::Shift);
    const int marker = desk.engine.content().rows[1].boxes[0].marker; // B1: G2 and G3
    desk.engine.clickMarker(marker, shift);
    EXPECT_EQ(database.read("select Classe from abscence where Salle = 'B1' order by Classe"),
              QList<QStringList>({{"G2"}, {"G3"}}));
}

TEST_F(ALostConnection, leavesThePlanUnknownAsLongAsNobodyAnswers)
{
    std::atomic<bool> isCut = false;
    CuttingProxy proxy(MariaDbServer::shared().port(), [&isCut](const QByteArray& /*command*/) {
        return isCut ? CuttingProxy::Verdict::Cut : CuttingProxy::Verdict::Pass;
    });
    EngineDesk desk(database, false, proxy.through(database.connectString()));
    ASSERT_EQ(shown(desk), whole);
    isCut = true;
    desk.form.OptA().select();
    EXPECT_EQ(shown(desk), unknown);
    EXPECT_TRUE(lookup::isIncomplete(desk.engine.content().faults));
    const auto since = desk.engine.content().failingSince;
    ASSERT_TRUE(since);
    EXPECT_EQ(desk.engine.shownPage().content.failingSince, since);
    desk.form.OptB().select();
    EXPECT_EQ(shown(desk), unknown);
    EXPECT_EQ(desk.engine.content().failingSince, since);
    isCut = false;
    desk.form.OptFixe().select();
    EXPECT_EQ(shown(desk), whole);
    EXPECT_TRUE(desk.engine.content().faults.empty());
}

TEST_F(ALostConnection, isNoticedInTheMiddleOfAPage)
{
    // The sizes of a page's classes are its last question but one.
    std::atomic<int> cuts = 0;
    CuttingProxy proxy(MariaDbServer::shared().port(), [&cuts](const QByteArray& command) {
        const bool isAsked = command.contains("from classe where");
        return isAsked && cuts-- > 0 ? CuttingProxy::Verdict::Cut : CuttingProxy::Verdict::Pass;
    });
    EngineDesk desk(database, false, proxy.through(database.connectString()));
    const plan::PlanContent before = desk.engine.content();
    cuts = 1;
    desk.form.OptB().select();
    ASSERT_EQ(shown(desk), whole);
    EXPECT_EQ(desk.engine.content().rows[1].boxes[0].cell, before.rows[1].boxes[0].cell);
    cuts = 2; // on the other connection, too
    desk.form.OptA().select();
    EXPECT_TRUE(lookup::isIncomplete(desk.engine.content().faults));
}

TEST_F(ALostConnection, isNoReasonToSendAWriteTwice)
{
    for (const auto verdict : {CuttingProxy::Verdict::Cut, CuttingProxy::Verdict::CutAnswer}) {
        std::atomic<int> inserts = 0;
        CuttingProxy proxy(MariaDbServer::shared().port(), [&](const QByteArray& command) {
            return command.contains("INSERT INTO") && ++inserts == 1 ? verdict
                                                                     : CuttingProxy::Verdict::Pass;
        });
        EngineDesk desk(database, false, proxy.through(database.connectString()));
        absences::HeldKey ctrl(absences::VirtualKey::Ctrl);
        const int marker = desk.engine.content().rows[0].boxes[0].marker; // A2: G1
        EXPECT_EQ(errorNumberOf([&] { desk.engine.clickMarker(marker, ctrl); }),
                  runtime::ErrorNumber::DatabaseFailure);
        EXPECT_EQ(inserts, 1);
        database.execute("delete from etud_abs");
    }
}

TEST_F(ALostConnection, isNotOpenedAnewOnceTheDatabaseIsClosed)
{
    EngineDesk desk(database);
    desk.engine.closeDatabase();
    desk.engine.refreshPlan();
    EXPECT_EQ(shown(desk), unknown);
}

TEST(ALockedFile, isWaitedForOnceAPage)
{
    TestDatabase database(DatabaseKind::Sqlite);
    createTinyFaculty(database);
    EngineDesk desk(database);
    std::optional<FileHolder> other(std::in_place, database.file(), "begin exclusive;");
    const long long statements = desk.statementsOf([&] { desk.engine.refreshPlan(); });
    EXPECT_EQ(statements, 1);
    EXPECT_EQ(desk.engine.content().faults.size(), 1U);
    EXPECT_EQ(desk.engine.content().faults[0].failure, db::Failure::Locked);
    other->letGo();
    desk.engine.refreshPlan();
    EXPECT_TRUE(desk.engine.content().faults.empty());
}

TEST(ATableThatIsMissing, isAskedOnceMoreAndNotForEachCell)
{
    for (const DatabaseKind kind : {DatabaseKind::Sqlite, DatabaseKind::MariaDb}) {
        TestDatabase database(kind);
        createTinyFaculty(database);
        database.execute("drop table emplois");
        EngineDesk desk(database);
        EXPECT_EQ(desk.statementsOf([&] { desk.engine.refreshPlan(); }), 2);
        for (const plan::PlanRow& row : desk.engine.content().rows) {
            EXPECT_EQ(row.unknown.size(), 4U);
        }
        EXPECT_EQ(desk.engine.content().faults[0].failure, db::Failure::TableMissing);
    }
}

TEST(ARoomWithAnApostrophe, isUnknownAndNotFree)
{
    for (const bool plain : {false, true}) {
        for (const DatabaseKind kind : {DatabaseKind::Sqlite, DatabaseKind::MariaDb}) {
            TestDatabase database(kind);
            createTinyFaculty(database);
            database.execute({"update salle set Nom = 'Salle d''info' where Nom = 'B2'",
                              "update emplois set Salle = 'Salle d''info' where Salle = 'B2'"});
            EngineDesk desk(database, plain);
            const plan::PlanContent& content = desk.engine.content();
            ASSERT_EQ(content.rows.size(), 4U);
            EXPECT_EQ(content.rows[3].room, "Salle d'info");
            EXPECT_EQ(content.rows[3].unknown.size(), 4U);
            EXPECT_TRUE(content.rows[0].unknown.empty());
            EXPECT_FALSE(lookup::isIncomplete(content.faults));
            ASSERT_EQ(content.faults.size(), 1U);
            EXPECT_EQ(content.faults[0].name, "Salle d'info");
        }
    }
}
