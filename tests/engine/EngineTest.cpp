#include "engine/Engine.h"

#include "EngineDesk.h"
#include "absences/HeldKey.h"
#include "plan/PlanDesk.h"

using namespace test;

namespace
{

class TheEngine : public OnTheTinyFaculty
{
};

TEMPORA_ON_BOTH_DATABASES(TheEngine);

} // namespace

TEST_P(TheEngine, drawsThePlanOfItsDatabase)
{
    EngineDesk desk(database());
    EXPECT_EQ(desk.drawn(), QStringList({"A2:1", "B1:1", "B2:1", "C1:1"}));
    EXPECT_EQ(desk.engine.refreshCount(), 1U);
    EXPECT_EQ(desk.engine.state().establishment.EstablishmentName, "Faculté Témoin");
    EXPECT_EQ(desk.form.Label4[1].caption, "03/FÉVRIER/2025");
    EXPECT_TRUE(desk.engine.content().rows[0].boxes[0].classAbsent); // G1 at 8h30
}

TEST_P(TheEngine, drawsTheSamePlanInThePlainWay)
{
    EngineDesk ahead(database());
    EngineDesk plain(database(), true);
    ASSERT_EQ(plain.drawn(), ahead.drawn());
    for (std::size_t row = 0; row < ahead.engine.content().rows.size(); ++row) {
        const auto& boxes = ahead.engine.content().rows[row].boxes;
        for (std::size_t box = 0; box < boxes.size(); ++box) {
            const plan::PlanBox& other = plain.engine.content().rows[row].boxes[box];
            EXPECT_EQ(other.cell, boxes[box].cell);
            EXPECT_EQ(other.classAbsent, boxes[box].classAbsent);
        }
    }
}

TEST_P(TheEngine, showsWhichKindOfDatabaseItHas)
{
    EngineDesk desk(database());
    EXPECT_EQ(desk.form.ImgSql.visible, database().usesMySql());
    EXPECT_EQ(desk.form.ImgAccess.visible, !database().usesMySql());
}

TEST_P(TheEngine, togglesAnAbsenceFromTheMarkerThatIsClicked)
{
    EngineDesk desk(database());
    absences::HeldKey shift(absences::VirtualKey::Shift);
    const auto absences = [&] { return database().read("SELECT Classe FROM abscence").size(); };
    EXPECT_EQ(absences(), 1);
    desk.engine.clickMarker(1, shift); // A2's box: G1 is absent
    EXPECT_EQ(absences(), 0);
    EXPECT_FALSE(desk.engine.content().rows[0].boxes[0].classAbsent);
    desk.engine.clickMarker(1, shift);
    EXPECT_EQ(absences(), 1);
    EXPECT_TRUE(desk.engine.content().rows[0].boxes[0].classAbsent);
}

TEST_P(TheEngine, tellsTheClassesBehindACounter)
{
    EngineDesk desk(database());
    const plan::PlanBox& shared = desk.engine.content().rows[1].boxes[0]; // B1: G2 and G3
    ASSERT_TRUE(shared.group);
    desk.engine.Label2_Click(*shared.group);
    EXPECT_EQ(desk.messages, QStringList({"Salles Occupées: G2\tMartin\r\nG3\tMartin"}));
}

TEST_P(TheEngine, turnsToTheFirstPage)
{
    EngineDesk desk(database());
    desk.form.Total_L_P.setText("2");
    desk.form.Command3.press();
    ASSERT_EQ(desk.engine.state().page.PageStart, 2);
    desk.engine.showFirstPage();
    EXPECT_EQ(desk.engine.state().page.PageStart, 0);
    EXPECT_EQ(desk.drawn(), QStringList({"A2:1", "B1:1"}));
}

TEST_P(TheEngine, hasNoConnectionOnceItIsClosed)
{
    EngineDesk desk(database());
    desk.engine.closeDatabase();
    EXPECT_EQ(errorNumberOf([&] { static_cast<void>(desk.connection->Db()); }),
              runtime::ErrorNumber::DatabaseFailure);
}

TEST(AnEngineWithStandIns, asksThemInThePlaceOfTheDatabase)
{
    PlanDesk desk(2);
    desk.meeting(1, 1);
    desk.absences.classes = {"GC1"};
    const long long before = desk.engine.statementCount();
    desk.draw();
    EXPECT_EQ(desk.engine.statementCount(), before);
    EXPECT_FALSE(desk.rows.asked.empty());
    EXPECT_TRUE(desk.box(1).classAbsent);
    // Pages on copies ask them, too.
    desk.rows.asked.clear();
    static_cast<void>(desk.engine.shownPage());
    EXPECT_FALSE(desk.rows.asked.empty());
    EXPECT_EQ(desk.engine.statementCount(), before);
}
