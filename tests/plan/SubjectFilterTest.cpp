#include "plan/SubjectFilter.h"

#include "context/ContextDesk.h"
#include "support/RuntimeMatchers.h"

#include <optional>

using namespace test;
using runtime::ErrorNumber;

namespace
{

class TheSubjectFilter : public OnBothDatabases
{
protected:
    void SetUp() override
    {
        Timetable timetable(database(), {"matière"});
        for (const char* subject : {"Optique", "Analyse", "Chimie"}) {
            timetable.row("matière", {{"Nom", subject}});
        }
        timetable.load();
        desk.emplace(database());
        filter.emplace(desk->form, desk->database, desk->plan);
        desk->form.Check1.click = [this] { filter->Check1_Click(); };
        desk->form.Cb_Mat.click = [this] { filter->Cb_Mat_Click(); };
    }

    std::optional<ContextDesk> desk;
    std::optional<plan::SubjectFilter> filter;
};

} // namespace

TEST_P(TheSubjectFilter, listsTheSubjectsByNameAndChoosesTheFirst)
{
    desk->form.Check1.setChecked(true);
    EXPECT_EQ(desk->form.Cb_Mat.items(), QStringList({"Analyse", "Chimie", "Optique"}));
    EXPECT_EQ(desk->form.Cb_Mat.text(), "Analyse");
}

TEST_P(TheSubjectFilter, takesThePlaceOfThePaletteFrame)
{
    desk->form.Check1.setChecked(true);
    EXPECT_FALSE(desk->form.Frame1.visible);
    EXPECT_TRUE(desk->form.Cb_Mat.visible);
}

TEST_P(TheSubjectFilter, redrawsForTheChosenSubjectAndAtItsEnd)
{
    QStringList subjects;
    desk->plan.onRefresh = [&] { subjects.append(desk->form.Cb_Mat.text()); };
    desk->form.Check1.setChecked(true);
    EXPECT_EQ(subjects, QStringList({"Analyse", "Analyse"}));
    desk->form.Cb_Mat.setListIndex(2);
    EXPECT_EQ(subjects, QStringList({"Analyse", "Analyse", "Optique"}));
}

TEST_P(TheSubjectFilter, givesThePlaceBackWithoutARedraw)
{
    desk->form.Check1.setChecked(true);
    desk->form.Cb_Mat.setListIndex(1);
    desk->plan.calls.clear();
    desk->form.Check1.setChecked(false);
    EXPECT_TRUE(desk->form.Frame1.visible);
    EXPECT_FALSE(desk->form.Cb_Mat.visible);
    EXPECT_EQ(desk->form.Cb_Mat.text(), "Chimie"); // the list stays as it is
    EXPECT_EQ(desk->plan.redraws(), 0);
}

TEST_P(TheSubjectFilter, readsTheSubjectsAgainEachTime)
{
    desk->form.Check1.setChecked(true);
    desk->form.Check1.setChecked(false);
    database().execute("INSERT INTO `matière` (Nom) VALUES ('Algèbre')");
    desk->form.Check1.setChecked(true);
    EXPECT_EQ(desk->form.Cb_Mat.items(), QStringList({"Algèbre", "Analyse", "Chimie", "Optique"}));
    EXPECT_EQ(desk->form.Cb_Mat.listIndex(), 0);
}

TEST_P(TheSubjectFilter, choosesNothingWithoutSubjectsButRedraws)
{
    database().execute("DELETE FROM `matière`");
    desk->form.Check1.setChecked(true);
    EXPECT_TRUE(desk->form.Cb_Mat.items().isEmpty());
    EXPECT_EQ(desk->form.Cb_Mat.listIndex(), -1);
    EXPECT_EQ(desk->plan.redraws(), 1);
}

TEST_P(TheSubjectFilter, failsWithoutItsTable)
{
    database().execute("DROP TABLE `matière`");
    const runtime::RunTimeError error = errorOf([&] { desk->form.Check1.setChecked(true); });
    EXPECT_EQ(error.number(), ErrorNumber::TableMissing);
    EXPECT_EQ(error.activity(), "Lecture des matières (table « matière »)");
}

TEMPORA_ON_BOTH_DATABASES(TheSubjectFilter);
