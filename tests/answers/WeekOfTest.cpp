#include "answers/WeekOf.h"

#include "timetable/Draft.h"

#include <gtest/gtest.h>
#include <optional>

using namespace answers;
using namespace test;
using namespace timetable;

namespace
{

/// Two rooms, two classes, a teacher who has a part in each week.
class TheWeek : public testing::Test
{
protected:
    TheWeek()
    {
        draft.room("R1").room("R2").period(QDate(2026, 9, 7), QDate(2026, 12, 18));
        draft.slot("Lundi1", "8h00", "9h30").slot("Lundi2", "9h30", "11h00");
        add("Mardi1", "R1", "L1", "Durand", "Algèbre");
        add("Lundi2", "R2", "L1", "Petit", "Analyse");
        add("Lundi2", "R1", "L2", "Durand", "Algèbre");
        add("Lundi1", "R1", "L2", "Durand", "Chimie", "R2", "Durand");
        draft.makeUp({{column::kSeance, "Lundi1"},
                      {column::kSalle, "R2"},
                      {column::kDebut, "14h00"},
                      {column::kClasse, "L1"},
                      {column::kEnseignant1, "Durand"},
                      {column::kDateX, "2026-11-18"}}); // a Wednesday
    }
    void add(const QString& key, const QString& room, const QString& className,
             const QString& teacher, const QString& subject, const QString& roomB = {},
             const QString& teacherB = {})
    {
        draft.course({{column::kSeance, key},
                      {column::kSalle, room},
                      {column::kClasse, className},
                      {column::kEnseignant1, teacher},
                      {column::kMatiere, subject},
                      {column::kSalleB, roomB},
                      {column::kEnseignant1b, teacherB},
                      {column::kNewNature, roomB.isNull() ? "00" : "10/20"}});
    }
    /// As "day start room".
    QStringList week(const Subject& subject, const AskedWeek& asked = {})
    {
        QStringList items;
        for (const HoldingId id : weekOf(known(), subject, asked)) {
            const Holder holder = known().describe(known().holding(id));
            items << QString("%1 %2 %3")
                         .arg(holder.day)
                         .arg(holder.time->start.value)
                         .arg(holder.rooms.join('+'));
        }
        return items;
    }
    TeacherId teacher(const QString& name) { return known().timetable().teachers().find(name); }
    ClassId className(const QString& name) { return known().timetable().classes().find(name); }
    SubjectId subject(const QString& name) { return known().timetable().subjects().find(name); }
    const Occupancy& known()
    {
        if (!occupancy) {
            occupancy = draft.occupancy();
        }
        return *occupancy;
    }

    Draft draft;
    std::optional<Occupancy> occupancy; ///< once it is asked for
};

} // namespace

TEST_F(TheWeek, ofARoomIsWhatHoldsIt)
{
    EXPECT_EQ(week(RoomId(0)), QStringList({"0 480 R1", "0 570 R1", "1 480 R1"}));
    EXPECT_EQ(week(RoomId(1)), QStringList({"0 480 R2", "0 570 R2"}));
}

TEST_F(TheWeek, ofATeacherHasThePartsThatNameThem)
{
    EXPECT_EQ(week(teacher("Durand")),
              QStringList({"0 480 R1", "0 480 R2", "0 570 R1", "1 480 R1"}));
    EXPECT_EQ(week(teacher("Durand"), {Week::A, {}}),
              QStringList({"0 480 R1", "0 570 R1", "1 480 R1"}));
    EXPECT_EQ(week(teacher("Durand"), {Week::B, {}}),
              QStringList({"0 480 R2", "0 570 R1", "1 480 R1"}));
    EXPECT_EQ(week(teacher("Petit")), QStringList({"0 570 R2"}));
}

TEST_F(TheWeek, ofAClassAndOfASubject)
{
    EXPECT_EQ(week(className("L1")), QStringList({"0 570 R2", "1 480 R1"}));
    EXPECT_EQ(week(subject("Algèbre")), QStringList({"0 570 R1", "1 480 R1"}));
}

TEST_F(TheWeek, ofADateHasItsMakeUps)
{
    EXPECT_EQ(week(className("L1"), {Week::Every, QDate(2026, 11, 20)}),
              QStringList({"0 570 R2", "1 480 R1", "2 840 R2"}));
    EXPECT_EQ(week(className("L1"), {Week::Every, QDate(2026, 11, 22)}), // its Sunday
              QStringList({"0 570 R2", "1 480 R1", "2 840 R2"}));
    EXPECT_EQ(week(className("L1"), {Week::Every, QDate(2026, 11, 23)}),
              QStringList({"0 570 R2", "1 480 R1"}));
    EXPECT_EQ(week(className("L1"), {Week::Every, QDate(2027, 1, 4)}), QStringList()); // too late
}
