#include "context/Events.h"

#include "context/ContextDesk.h"

using namespace test;

namespace
{

/// A visible form whose events are tied, over one room and one period.
class TheContextsEvents : public testing::Test
{
protected:
    TheContextsEvents()
    {
        Timetable timetable(m_database, {"tranche", "dat_exam", "salle"});
        timetable.row("tranche", {{"ident", 1},
                                  {"Tranche", "S1"},
                                  {"DateDebut", QDate(2026, 9, 7)},
                                  {"DateFin", QDate(2027, 1, 29)}});
        timetable.row("salle", {{"Zone", 1}, {"Nom", "A1"}, {"places", 30}});
        timetable.load();
        desk = std::make_unique<ContextDesk>(m_database);
        desk->form.CbTranche.design({"S1"}, 0);
        desk->form.Combo1.design({"GC"}, 0);
        desk->periods.showCurrentWeek();
        desk->form.visible = true;
    }

    /// How often the plan is redrawn when the control is used.
    qsizetype redrawsOf(const std::function<void(form::PlanForm&)>& use)
    {
        desk->plan.calls.clear();
        use(desk->form);
        return desk->plan.redraws();
    }

private:
    TestDatabase m_database{DatabaseKind::Sqlite};

protected:
    std::unique_ptr<ContextDesk> desk;
};

} // namespace

TEST_F(TheContextsEvents, redrawForDayPeriodAndMode)
{
    EXPECT_EQ(redrawsOf([](form::PlanForm& form) { form.CbTranche.setListIndex(0); }), 1);
    EXPECT_EQ(redrawsOf([](form::PlanForm& form) { form.CbJour.setListIndex(2); }), 1);
    EXPECT_EQ(redrawsOf([](form::PlanForm& form) { form.OpExam().select(); }), 1);
    EXPECT_EQ(redrawsOf([](form::PlanForm& form) { form.Combo10.setListIndex(1); }), 1);
    EXPECT_EQ(redrawsOf([](form::PlanForm& form) { form.OpEns().select(); }), 1);
    EXPECT_EQ(redrawsOf([](form::PlanForm& form) { form.Check2.setChecked(true); }), 0);
    EXPECT_EQ(redrawsOf([](form::PlanForm& form) { form.DTPicker1.setValue(QDate(2026, 10, 22)); }),
              1);
    EXPECT_EQ(desk->form.CbJour.text(), "Jeudi");
}

TEST_F(TheContextsEvents, redrawForTheRooms)
{
    EXPECT_EQ(redrawsOf([](form::PlanForm& form) { form.cb_Locaux.setListIndex(1); }), 1);
    EXPECT_EQ(redrawsOf([](form::PlanForm& form) { form.ElemDep.setChecked(true); }), 1);
    EXPECT_EQ(redrawsOf([](form::PlanForm& form) { form.Combo1.setListIndex(0); }), 1);
    EXPECT_EQ(redrawsOf([](form::PlanForm& form) { form.Chk_Neutre.setChecked(true); }), 1);
}

TEST_F(TheContextsEvents, stayWithTheFormThatTheyAreTiedTo)
{
    form::PlanForm copy = desk->form;
    EXPECT_EQ(redrawsOf([&](form::PlanForm&) { copy.CbJour.setListIndex(3); }), 0);
    context::tieEvents(copy, desk->periods, desk->rooms);
    EXPECT_EQ(redrawsOf([&](form::PlanForm&) { copy.CbJour.setListIndex(3); }), 1);
}
