// How many statements a page of the plan takes. Where something is no longer fetched ahead the plan
// stays the same and only becomes slower: the number tells.

#include "EngineDesk.h"

using namespace test;

namespace
{

class StatementsOfAPage : public OnTheTinyFaculty
{
protected:
    /// Statements that drawing a day takes, 0 for Monday.
    [[nodiscard]] long long ofDay(int day, bool plain = false)
    {
        EngineDesk desk(database(), plain);
        desk.form.CbJour.click = nullptr;
        desk.form.CbJour.setListIndex(day);
        return desk.statementsOf([&] { desk.engine.refreshPlan(); });
    }
};

TEMPORA_ON_BOTH_DATABASES(StatementsOfAPage);

} // namespace

TEST_P(StatementsOfAPage, areThreeWhereNoSlotHoldsSeveralRows)
{
    // The timetable, the students and the sizes of the classes, the absences.
    EXPECT_EQ(ofDay(1), 3);
}

TEST_P(StatementsOfAPage, areOneWhereNothingIsTaken)
{
    EXPECT_EQ(ofDay(2), 1);
}

TEST_P(StatementsOfAPage, areOneMoreWhereOneDoes)
{
    // Whether B1's two rows come in the order of the plain question: that one and the page's are
    // explained.
    EXPECT_EQ(ofDay(0), 4);
}

TEST_P(StatementsOfAPage, areOneMoreWithMakeUps)
{
    EngineDesk desk(database());
    desk.form.Check2.setChecked(true);
    desk.form.CbJour.setListIndex(1);
    EXPECT_EQ(desk.statementsOf([&] { desk.engine.refreshPlan(); }), 4);
}

TEST_P(StatementsOfAPage, areNoMoreForClassesThatAStatementCannotName)
{
    // Nothing can be asked about the one class of the day.
    database().execute("update emplois set Classe = '1re année d''anglais'");
    EXPECT_EQ(ofDay(1), 1);
}

TEST_P(StatementsOfAPage, areNoMoreForRoomsThatAStatementCannotName)
{
    database().execute(
        QStringList{"update salle set Nom = 'Salle d''informatique' where Nom = 'A1'",
                    "update salle set Nom = 'L''''Annexe' where Nom = 'B1'"});
    EXPECT_EQ(ofDay(1), 1);
    EXPECT_EQ(ofDay(2), 1);
}

TEST_P(StatementsOfAPage, areNoMoreForClassesWithoutStudents)
{
    database().execute("delete from etudiant");
    EXPECT_EQ(ofDay(1), 3);
}

TEST_P(StatementsOfAPage, areOnePerQuestionInThePlainWay)
{
    // Four rooms in ten slots; then the students, the size and the two absences of one class.
    EXPECT_EQ(ofDay(2, true), 40);
    EXPECT_EQ(ofDay(1, true), 44);
}

TEST_P(StatementsOfAPage, areNoneForAPageWithoutRooms)
{
    EngineDesk desk(database());
    desk.form.cb_Locaux.setListIndex(9);
    EXPECT_EQ(desk.statementsOf([&] { desk.engine.refreshPlan(); }), 0);
}
