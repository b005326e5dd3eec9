// "Occupation" in a user's hands.

#include "app/asking/RoomUseWindow.h"

#include "app/asking/AskingDesk.h"

#include <QTableWidget>

using namespace test;

namespace
{

class TheUse : public TheAnswers
{
protected:
    app::RoomUseWindow* asked()
    {
        open();
        control<QAction>("AskRoomUse")->trigger();
        app::RoomUseWindow* found = nullptr;
        EXPECT_TRUE(until([&] {
            found = window().findChild<app::RoomUseWindow*>("RoomUseWindow");
            return found != nullptr && found->isVisible() && grid()->rowCount() > 0;
        }));
        return found;
    }
    QTableWidget* grid() { return control<QTableWidget>("UseBySlot"); }
};

} // namespace

TEST_F(TheUse, showsAllOfADayAndItsMeanAtOnce)
{
    QStringList statements{"delete from seances"};
    for (int slot = 1; slot <= 9; ++slot) {
        statements << QStringLiteral("insert into seances (Seance, Horaire1, Horaire2) values "
                                     "('Lundi%1', '%2h00', '%2h50')")
                          .arg(slot)
                          .arg(7 + slot);
    }
    database.execute(statements);
    ASSERT_NE(asked(), nullptr);
    const int last = grid()->rowCount() - 1;
    EXPECT_EQ(last, 9);
    EXPECT_EQ(grid()->verticalHeaderItem(last)->text(), "Moyenne");
    EXPECT_TRUE(until([&] {
        const QRect mean = grid()->visualItemRect(grid()->item(last, 0));
        return mean.bottom() < grid()->viewport()->height() &&
               mean.height() >= grid()->fontMetrics().height();
    })) << grid()->visualItemRect(grid()->item(last, 0)).bottom()
        << " of " << grid()->viewport()->height();
}

TEST_F(TheUse, isOfTheRoomsThatAreChosen)
{
    const app::RoomUseWindow* answers = asked();
    ASSERT_NE(answers, nullptr);
    EXPECT_TRUE(status(*answers).contains("des créneaux tenus")) << status(*answers).toStdString();
    EXPECT_EQ(rows("Use_salle").size(), 5);
    answers->findChild<QComboBox*>("AskedZone")->setCurrentIndex(2);   // zone 2
    EXPECT_TRUE(until([&] { return rows("Use_salle").size() == 2; })); // B1, B2
}
