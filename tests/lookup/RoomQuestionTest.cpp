#include "lookup/RoomQuestion.h"

#include "support/RuntimeMatchers.h"

using lookup::RoomQuestion;

namespace
{

const db::SqlDialect onAccess{false};
const db::SqlDialect onMySql{true};

RoomQuestion question(RoomQuestion::Table table)
{
    RoomQuestion question;
    question.table = table;
    question.room = "A1";
    question.seanceKey = "Lundi3";
    question.tranche = "2";
    question.examWeek = "3";
    question.date = QDate(2007, 3, 15);
    return question;
}

const QString sixRooms = " ( Salle = 'A1' or XSalle ='A1' or YSalle ='A1' or SalleB ='A1' or "
                         "XSalleB ='A1' or YSalleB ='A1' )";

} // namespace

TEST(RoomQuestion, asksTheTimetableForSixRooms)
{
    const QString sql =
        "Select * from emplois WHERE" + sixRooms + " and Seance = 'Lundi3' and Tranche =2";
    EXPECT_EQ(question(RoomQuestion::Table::emplois).sql(onAccess), sql);
    EXPECT_EQ(question(RoomQuestion::Table::emplois).sql(onMySql), sql);
}

TEST(RoomQuestion, asksForMakeUpsInTheDialectsDates)
{
    const QString sql =
        "Select * from ratrap WHERE" + sixRooms + " and Seance = 'Lundi3' and Tranche =2";
    EXPECT_EQ(question(RoomQuestion::Table::ratrap).sql(onAccess), sql + " and DateX =#03/15/07#");
    EXPECT_EQ(question(RoomQuestion::Table::ratrap).sql(onMySql), sql + " and DateX ='2007/03/15'");
}

TEST(RoomQuestion, asksForAnExamInItsRoomAlone)
{
    const QString sql = "Select * from examen WHERE ( Salle = 'A1' ) and Seance = 'Lundi3' and "
                        "Tranche =2 and Semaine =3";
    EXPECT_EQ(question(RoomQuestion::Table::examen).sql(onAccess), sql);
    EXPECT_EQ(question(RoomQuestion::Table::examen).sql(onMySql), sql);
}

TEST(RoomQuestion, asksForAnEmptyNameInTheShortForm)
{
    RoomQuestion empty = question(RoomQuestion::Table::emplois);
    empty.room.clear();
    EXPECT_EQ(empty.sql(onAccess),
              "Select * from emplois WHERE ( Salle = '' ) and Seance = 'Lundi3' and Tranche =2");
}

TEST(RoomQuestion, takesNamesAsTheyStand)
{
    RoomQuestion odd = question(RoomQuestion::Table::examen);
    odd.room = "L'%1 %2";
    odd.seanceKey = "%3";
    EXPECT_EQ(odd.sql(onAccess), "Select * from examen WHERE ( Salle = 'L'%1 %2' ) and Seance = "
                                 "'%3' and Tranche =2 and Semaine =3");
}
