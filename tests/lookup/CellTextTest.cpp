#include "lookup/CellText.h"

#include "lookup/Meetings.h"
#include "support/RuntimeMatchers.h"

#include <initializer_list>

using lookup::DisplayOptions;
using test::Meeting;

namespace
{

/// The text of room A1 with class, teachers and subject shown, "|" between the parts of an A text.
class CellText : public testing::Test
{
protected:
    CellText()
    {
        options.showClass = options.showTeachers = options.showSubject = true;
        options.everyWeek = true;
        options.separator = "|";
        types[1] = "CM";
    }

    [[nodiscard]] QString text()
    {
        return lookup::composeCellText(meeting.row(), "A1", options, types, missing).text;
    }
    void weekA()
    {
        options.everyWeek = false;
        options.showsWeekA = true;
    }
    void weekB()
    {
        options.everyWeek = false;
        options.showsWeekB = true;
    }
    /// The meeting is held in that room column alone.
    Meeting& onlyIn(const QString& column) { return meeting.null("Salle").set(column, "A1"); }
    /// A week-B course with a teacher and a subject of its own.
    Meeting& withB()
    {
        return meeting.set("SalleB", "A1").set("Enseignant1b", "Martin").set("Matièreb", "Optique");
    }
    void exam()
    {
        options.exam = true;
        meeting.set("Resp1", "Noir").set("Resp2", "Blanc");
    }

    Meeting meeting{"A1", "Lundi1"};
    DisplayOptions options;
    lookup::SeanceTypeShortNames types;
    std::optional<lookup::MissingStep> missing;
};

} // namespace

TEST_F(CellText, showsClassTeacherAndSubject)
{
    EXPECT_EQ(text(), "GC1| Dupont| [Algèbre]|");
}

TEST_F(CellText, showsOnlyWhatIsTicked)
{
    options.showTeachers = false;
    EXPECT_EQ(text(), "GC1| [Algèbre]|");
    options.showClass = false;
    EXPECT_EQ(text(), " [Algèbre]|");
    options.showSubject = false;
    EXPECT_EQ(text(), "");
    options.showTeachers = true;
    EXPECT_EQ(text(), " Dupont||"); // one behind the teachers, one behind the whole text
    options.showClass = true;
    options.showTeachers = false;
    EXPECT_EQ(text(), "GC1||");
}

TEST_F(CellText, joinsUpToThreeTeachers)
{
    meeting.set("Enseignant2", "Durand").set("Enseignant3", "Petit");
    EXPECT_EQ(text(), "GC1| Dupont/Durand/Petit| [Algèbre]|");
    meeting.set("Enseignant2", "");
    EXPECT_EQ(text(), "GC1| Dupont/Petit| [Algèbre]|");
}

TEST_F(CellText, addsNothingForANull)
{
    meeting.null("Classe").null("Enseignant1").null("matière");
    EXPECT_EQ(text(), "| | []|");
}

TEST_F(CellText, leavesOutTheStepOfAMissingColumn)
{
    meeting.without("Classe").without("Enseignant2");
    EXPECT_EQ(text(), " Dupont| [Algèbre]|");
    meeting.without("Enseignant1").without("matière");
    EXPECT_EQ(text(), "");
}

TEST_F(CellText, tellsWhichColumnIsMissing)
{
    EXPECT_EQ(text(), "GC1| Dupont| [Algèbre]|");
    EXPECT_FALSE(missing);
    meeting.without("Classe").without("Enseignant2");
    static_cast<void>(text());
    EXPECT_EQ(missing.value().column, "Classe");
    EXPECT_EQ(missing->error.number(), runtime::ErrorNumber::ItemNotFound);
    EXPECT_FALSE(missing->isSubject);
    meeting.without("matière"); // what the subject filter looks for
    static_cast<void>(text());
    EXPECT_EQ(missing->column, "matière");
    EXPECT_TRUE(missing->isSubject);
}

TEST_F(CellText, leavesOutARoomWhoseColumnIsMissing)
{
    withB().without("Salle");
    EXPECT_EQ(text(), "GC1  Martin [Optique]|");
}

TEST_F(CellText, hasNoSeparatorBehindTheTeachersWhileInvigilatorsAreShown)
{
    options.showInvigilators = true; // hidden in teaching mode, but it may be ticked
    EXPECT_EQ(text(), "GC1| Dupont [Algèbre]|");
}

TEST_F(CellText, isEmptyForAnotherRoom)
{
    EXPECT_EQ(lookup::composeCellText(meeting.row(), "A2", options, types, missing).text, "");
}

TEST_F(CellText, comparesRoomsExactly)
{
    EXPECT_EQ(lookup::composeCellText(meeting.row(), "a1", options, types, missing).text, "");
    EXPECT_EQ(lookup::composeCellText(meeting.row(), "A1 ", options, types, missing).text, "");
}

TEST_F(CellText, showsAnEveryWeekRowInEveryWeek)
{
    weekA();
    EXPECT_EQ(text(), "GC1| Dupont| [Algèbre]|");
    options.showsWeekA = false;
    weekB();
    EXPECT_EQ(text(), "GC1| Dupont| [Algèbre]|");
}

TEST_F(CellText, showsTheASideOfAnAlternatingRowInWeekA)
{
    withB().set("newnature", "10/20");
    weekA();
    EXPECT_EQ(text(), "GC1| Dupont| [Algèbre]|");
}

TEST_F(CellText, showsOnlyTheBSideOfAnAlternatingRowInWeekB)
{
    withB().set("newnature", "10/20");
    weekB();
    EXPECT_EQ(text(), "GC1  Martin [Optique]|");
}

TEST_F(CellText, showsARowOfAnotherNatureOnlyInEveryWeek)
{
    for (const char* nature : {"", "20", "00 "}) {
        meeting.set("newnature", nature);
        options.showsWeekA = false;
        options.everyWeek = true;
        EXPECT_EQ(text(), "GC1| Dupont| [Algèbre]|") << nature;
        weekA();
        EXPECT_EQ(text(), "") << nature;
    }
    meeting.null("newnature");
    EXPECT_EQ(text(), "");
}

TEST_F(CellText, showsTheBSideWhateverTheNature)
{
    withB().set("newnature", "00").set("Salle", "A2");
    weekB();
    EXPECT_EQ(text(), "GC1  Martin [Optique]|");
    options.showsWeekB = false;
    options.showsWeekA = true;
    EXPECT_EQ(text(), "");
}

TEST_F(CellText, putsTheAAndTheBOccupantSideBySide)
{
    withB();
    EXPECT_EQ(text(), "GC1| Dupont| [Algèbre] = GC1  Martin [Optique]|");
}

TEST_F(CellText, asksTheAColumnsForTheOtherTeachersOfTheBSide)
{
    withB().set("Salle", "A2").set("Enseignant2b", "Roux").set("Enseignant3b", "Leroy");
    EXPECT_EQ(text(), "GC1  Martin [Optique]|");
    meeting.set("Enseignant3", "Petit");
    EXPECT_EQ(text(), "GC1  Martin/Leroy [Optique]|");
    meeting.set("Enseignant2", "Durand").null("Enseignant2b");
    EXPECT_EQ(text(), "GC1  Martin//Leroy [Optique]|");
}

TEST_F(CellText, showsThePartInASecondRoomInEveryWeek)
{
    onlyIn("XSalle").set("newnature", "10/20").set("XEnseignant1", "Morel");
    meeting.set("XEnseignant2", "Simon").set("XMatière", "TP Algèbre");
    weekB();
    EXPECT_EQ(text(), "GC1|  Morel/Simon [TP Algèbre]|");
}

TEST_F(CellText, namesTheClassOfAPartOnlyInAnEmptyText)
{
    meeting.set("XSalle", "A1").set("XEnseignant1", "Morel").set("XMatière", "TP");
    EXPECT_EQ(text(), "GC1| Dupont| [Algèbre]  Morel [TP]|");
}

TEST_F(CellText, showsThePartInASecondRoomOfTheBSide)
{
    onlyIn("XSalleB").set("XEnseignant1B", "Faure").set("XEnseignant2B", "Girard");
    meeting.set("XEnseignant3B", "").set("XMatièreB", "TP Optique");
    EXPECT_EQ(text(), "GC1  Faure/Girard [TP Optique]|");
    weekA();
    EXPECT_EQ(text(), "");
}

TEST_F(CellText, putsAllFourOccupantsInOneText)
{
    withB().set("XSalle", "A1").set("XEnseignant1", "Morel").set("XMatière", "TP");
    meeting.set("XSalleB", "A1").set("XEnseignant1B", "Faure").set("XMatièreB", "TP Optique");
    EXPECT_EQ(text(), "GC1| Dupont| [Algèbre]  Morel [TP] = GC1  Martin [Optique] = GC1  Faure "
                      "[TP Optique]|");
}

TEST_F(CellText, showsNothingOfAThirdRoom)
{
    onlyIn("YSalle").set("YSalleB", "A1");
    EXPECT_EQ(text(), "");
}

TEST_F(CellText, endsWithTheSeanceType)
{
    options.showType = true;
    meeting.set("TypeS1", 1);
    EXPECT_EQ(text(), "GC1| Dupont| [Algèbre] (CM)|");
}

TEST_F(CellText, endsWithEmptyBracketsForATypeWithoutAShortName)
{
    options.showType = true;
    meeting.set("TypeS1", 15);
    EXPECT_EQ(text(), "GC1| Dupont| [Algèbre] ()|");
}

TEST_F(CellText, hasNoTypeOutside0To15)
{
    options.showType = true;
    for (const int type : {-1, 16, 100000}) {
        meeting.set("TypeS1", type);
        EXPECT_EQ(text(), "GC1| Dupont| [Algèbre]|") << type;
    }
    meeting.null("TypeS1");
    EXPECT_EQ(text(), "GC1| Dupont| [Algèbre]|");
    meeting.without("TypeS1");
    EXPECT_EQ(text(), "GC1| Dupont| [Algèbre]|");
}

TEST_F(CellText, hasNoTypeWithoutAnOccupant)
{
    options.showType = true;
    onlyIn("YSalle").set("TypeS1", 1);
    EXPECT_EQ(text(), "");
}

TEST_F(CellText, showsTheInvigilatorsOfAnExam)
{
    exam();
    options.showTeachers = false;
    options.showInvigilators = true;
    EXPECT_EQ(text(), "GC1| Noir/Blanc| [Algèbre]|");
    meeting.set("Resp3", "Brun");
    EXPECT_EQ(text(), "GC1| Noir/Blanc/Brun| [Algèbre]|");
}

TEST_F(CellText, joinsTeachersAndInvigilatorsOfAnExamWithoutASeparator)
{
    exam();
    options.showInvigilators = true;
    EXPECT_EQ(text(), "GC1| Dupont Noir/Blanc| [Algèbre]|");
    options.showInvigilators = false;
    EXPECT_EQ(text(), "GC1| Dupont| [Algèbre]|");
}

TEST_F(CellText, showsOnlyTheRoomOfAnExamItself)
{
    exam();
    withB().set("XSalle", "A1").set("XSalleB", "A1");
    EXPECT_EQ(text(), "GC1| Dupont| [Algèbre]|");
    meeting.set("Salle", "A2");
    EXPECT_EQ(text(), "");
}

TEST_F(CellText, knowsTheOnlyWeekInWhichItIsHeld)
{
    const auto week = [this] {
        return lookup::composeCellText(meeting.row(), "A1", options, types, missing).week;
    };
    EXPECT_EQ(week(), timetable::Week::Every);
    meeting.set("newnature", "10/20");
    EXPECT_EQ(week(), timetable::Week::A);
    withB();
    EXPECT_EQ(week(), timetable::Week::Every); // both stand side by side
    weekB();
    EXPECT_EQ(week(), timetable::Week::B);
    meeting.set("XSalle", "A1"); // whatever the week
    EXPECT_EQ(week(), timetable::Week::Every);
    meeting.null("XSalle").null("Salle").null("SalleB").set("XSalleB", "A1");
    EXPECT_EQ(week(), timetable::Week::B);
}

TEST_F(CellText, ofAnExamHasNoWeek)
{
    exam();
    meeting.set("newnature", "10/20");
    EXPECT_EQ(lookup::composeCellText(meeting.row(), "A1", options, types, missing).week,
              timetable::Week::Every);
}
