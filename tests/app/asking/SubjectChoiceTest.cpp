#include "app/asking/SubjectChoice.h"

#include "timetable/Draft.h"

#include <gtest/gtest.h>

using namespace test;
using namespace timetable;

TEST(TheSubjectChoice, offersTheNamesOfAKind)
{
    Draft draft;
    draft.room("R2").room("R1");
    for (const char* teacher : {"petit", "Durand", "petit"}) {
        draft.course({{column::kSeance, "Lundi1"},
                      {column::kSalle, "R1"},
                      {column::kEnseignant1, teacher},
                      {column::kClasse, "L1"}});
    }
    const Occupancy occupancy = draft.occupancy();
    const Timetable& timetable = occupancy.timetable();
    EXPECT_EQ(app::subjectKinds().size(), app::kAllRoomsKind + 1);
    EXPECT_EQ(app::subjectNames(timetable, app::kRoomKind), QStringList({"R2", "R1"}));
    EXPECT_EQ(app::subjectNames(timetable, 1), QStringList({"Durand", "petit"}));
    EXPECT_EQ(app::subjectNames(timetable, 2), QStringList({"L1"}));
    EXPECT_EQ(app::subjectNames(timetable, 3), QStringList());
}

TEST(TheSubjectChoice, isOfItsKind)
{
    Draft draft;
    draft.room("A").course({{column::kSeance, "Lundi1"},
                            {column::kSalle, "A"},
                            {column::kEnseignant1, "B"},
                            {column::kClasse, "C"},
                            {column::kMatiere, "D"}});
    const Occupancy occupancy = draft.occupancy();
    for (int kind = app::kRoomKind; kind < app::kAllRoomsKind; ++kind) {
        const QString name(QChar(u'A' + kind));
        const auto subject = app::chosenSubject(occupancy, kind, name);
        ASSERT_TRUE(subject) << name.toStdString();
        EXPECT_EQ(subject->index(), static_cast<std::size_t>(kind));
        EXPECT_FALSE(app::chosenSubject(occupancy, kind, "E"));
    }
}
