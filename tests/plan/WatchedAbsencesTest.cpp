#include "plan/WatchedAbsences.h"

#include "lookup/ReadPage.h"
#include "plan/PlanDesk.h"

using namespace test;

namespace
{

/// Absences that are asked about in vain as often as the test wants.
class Absences : public FakeAbsences
{
public:
    void prepare(const plan::AbsenceQuestions& questions) override
    {
        prepared = questions.classNames;
        if (preparing) {
            throw faultOf(*preparing);
        }
    }

    bool Existe_AbsClasse(const plan::Marqueur& marker, const QString& className) override
    {
        refuse(className);
        return FakeAbsences::Existe_AbsClasse(marker, className);
    }
    bool Existe_AbsEtud(const plan::Marqueur& marker, const QString& className,
                        const QString& name) override
    {
        refuse(className + name);
        return FakeAbsences::Existe_AbsEtud(marker, className, name);
    }

    QStringList prepared;
    std::optional<db::Failure> preparing; ///< how telling them of the page fails

private:
    static void refuse(const QString& names)
    {
        if (names.contains('\'')) {
            throw faultOf(db::Failure::Refused);
        }
    }
};

class TheWatchedAbsences : public ThePage
{
protected:
    TheWatchedAbsences() { marker.Debut = "8h00"; }

    Absences absences;
    plan::WatchedAbsences watched{absences, reads};
    plan::Marqueur marker;
};

} // namespace

TEST_F(TheWatchedAbsences, areThoseOfTheSource)
{
    absences.classes = {"GC1"};
    absences.students = {"Zoé"};
    reads.begin();
    watched.prepare({{2026, 11, 16}, {"GC1", "GC2"}, {"8h00"}});
    EXPECT_EQ(absences.prepared, QStringList({"GC1", "GC2"}));
    EXPECT_TRUE(watched.Existe_AbsClasse(marker, "GC1"));
    EXPECT_FALSE(watched.Existe_AbsClasse(marker, "GC2"));
    EXPECT_TRUE(watched.Existe_AbsEtud(marker, "GC1", "Zoé"));
    EXPECT_FALSE(watched.Existe_AbsEtud(marker, "GC1", "GC1"));
    EXPECT_TRUE(reads.faults().empty());
}

TEST_F(TheWatchedAbsences, noteWhatFails)
{
    absences.fails = true;
    reads.begin();
    EXPECT_EQ(errorNumberOf([&] { std::ignore = watched.Existe_AbsClasse(marker, "GC1"); }),
              runtime::ErrorNumber::TableMissing);
    EXPECT_EQ(errorNumberOf([&] { std::ignore = watched.Existe_AbsEtud(marker, "GC1", "GC1"); }),
              runtime::ErrorNumber::TableMissing);
    ASSERT_EQ(reads.faults().size(), 1U); // the same fault
    EXPECT_EQ(reads.faults()[0].name, "");
}

TEST_F(TheWatchedAbsences, blameANameThatCannotBeAskedAbout)
{
    reads.begin();
    std::ignore = errorOf([&] { std::ignore = watched.Existe_AbsClasse(marker, "1re d'essai"); });
    std::ignore = errorOf([&] { std::ignore = watched.Existe_AbsEtud(marker, "GC1", "D'Or"); });
    ASSERT_EQ(reads.faults().size(), 2U);
    EXPECT_EQ(reads.faults()[0].name, "1re d'essai");
    EXPECT_EQ(reads.faults()[1].name, "D'Or");
}

TEST_F(TheWatchedAbsences, areNotAskedOnceTheDatabaseIsSilent)
{
    absences.preparing = db::Failure::NoAnswer;
    reads.begin();
    watched.prepare({{2026, 11, 16}, {"GC1"}, {"8h00"}}); // raises nothing
    EXPECT_EQ(reads.faults().size(), 1U);
    EXPECT_EQ(errorNumberOf([&] { std::ignore = watched.Existe_AbsClasse(marker, "GC1"); }),
              runtime::ErrorNumber::DatabaseFailure);
    EXPECT_EQ(absences.asked, QStringList());
}
