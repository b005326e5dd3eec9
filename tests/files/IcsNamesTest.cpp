#include "files/IcsNames.h"

#include "timetable/Draft.h"

#include <QRegularExpression>
#include <gtest/gtest.h>
#include <initializer_list>

using namespace test;
using namespace timetable;

namespace
{

/// A row of Monday, 16 November 2026; what is left out is null.
struct Row {
    QString className = "L1";
    QString room = "R1";
    QString teacher = "Durand";
    QString start = "8h00";
    QString key = "Lundi1";
    QString otherRoom = {};
    QString roomB = {};
    QString nature = "00";
    QString date = {}; ///< of a make-up
    QString subject = {};
};

void add(Draft& draft, const Row& row)
{
    if (row.date.isNull()) {
        draft.course({{column::kSeance, row.key},
                      {column::kSalle, row.room},
                      {column::kYSalle, row.otherRoom},
                      {column::kSalleB, row.roomB},
                      {column::kClasse, row.className},
                      {column::kEnseignant1, row.teacher},
                      {column::kDebut, row.start},
                      {column::kMatiere, row.subject},
                      {column::kNewNature, row.nature}});
    } else {
        draft.makeUp({{column::kSeance, row.key},
                      {column::kSalle, row.room},
                      {column::kClasse, row.className},
                      {column::kDebut, row.start},
                      {column::kDateX, row.date}});
    }
}

Occupancy rows(std::initializer_list<Row> rows)
{
    Draft draft;
    draft.room("R1").room("R2").period(QDate(2026, 11, 16), QDate(2026, 11, 22));
    for (const Row& row : rows) {
        add(draft, row);
    }
    return draft.occupancy();
}

/// The names of what a room has, in the agenda's order.
QStringList namesOf(const Occupancy& occupancy, const answers::Subject& subject)
{
    files::IcsNames names(occupancy);
    QStringList found;
    const auto agenda = answers::agendaOf(occupancy, subject, {}, WeekRhythm(QDate(2026, 11, 16)));
    for (const answers::AgendaEntry& entry : agenda.entries) {
        found << names.of(entry);
    }
    return found;
}

QStringList names(std::initializer_list<Row> list, const QString& room = "R1")
{
    const Occupancy occupancy = rows(list);
    return namesOf(occupancy, roomNamed(occupancy.timetable(), room));
}

} // namespace

TEST(IcsNames, haveTheDateAndOneFormForAllCalendars)
{
    const QStringList found = names({Row{}});
    ASSERT_EQ(found.size(), 1);
    EXPECT_TRUE(QRegularExpression("^20261116-[0-9a-f]{32}@tempora$").match(found[0]).hasMatch())
        << found[0].toStdString();
}

TEST(IcsNames, outliveWhatIsMendedInARow)
{
    const QStringList before = names({Row{}});
    EXPECT_EQ(names({Row{.room = "R2"}}, "R2"), before);
    EXPECT_EQ(names({Row{.teacher = "Petit", .start = "8h15", .subject = "Algèbre"}}), before);
    EXPECT_EQ(names({Row{.nature = "10/20"}}), before); // a week A
}

TEST(IcsNames, outliveOtherRowsAndTheirOrder)
{
    const Row first{};
    const Row second{.className = "L2", .start = "9h00"};
    const QStringList one = names({first});
    const QStringList other = names({second});
    EXPECT_EQ(names({first, second}), one + other);
    EXPECT_EQ(names({second, first}), one + other);
}

TEST(IcsNames, tellRowsApart)
{
    QStringList all = names(
        {Row{}, Row{.start = "9h00", .key = "Lundi2"}, Row{.className = "L2", .start = "10h00"},
         Row{.start = "11h00", .date = "2026-11-16"}, Row{.start = "11h00", .date = "2026-11-17"}});
    EXPECT_EQ(all.size(), 5);
    EXPECT_EQ(all.removeDuplicates(), 0);
}

TEST(IcsNames, tellThePartsOfARowApart)
{
    const Occupancy occupancy =
        rows({Row{.otherRoom = "R2", .roomB = "R1", .nature = "10/20"}}); // R1 in A and in B
    files::IcsNames names(occupancy);
    QStringList all;
    for (int id = 0; id < 3; ++id) {
        all << names.of({QDate(2026, 11, 16), {}, {HoldingId(id)}});
    }
    EXPECT_EQ(occupancy.holdings().size(), 3U);
    EXPECT_EQ(all.removeDuplicates(), 0);
}

TEST(IcsNames, areTheSameInEachCalendar)
{
    // The same class in the same slot twice: what one calendar lacks counts there, too.
    const Occupancy occupancy =
        rows({Row{.room = "R2", .teacher = "Petit"}, Row{.room = "R1", .teacher = "Durand"}});
    const Timetable& timetable = occupancy.timetable();
    const QStringList ofClass = namesOf(occupancy, timetable.classes().find(u"L1"));
    EXPECT_EQ(ofClass, namesOf(occupancy, roomNamed(timetable, "R1")) +
                           namesOf(occupancy, timetable.teachers().find(u"Petit")));
    EXPECT_NE(ofClass.at(0), ofClass.at(1));
}

TEST(IcsNames, countRowsThatAreAllTheSame)
{
    const Row unknown{.start = "tôt"}; // entries of their own
    QStringList twice = names({unknown, unknown});
    EXPECT_EQ(twice.size(), 2);
    EXPECT_EQ(twice.removeDuplicates(), 0);
    EXPECT_TRUE(twice.contains(names({unknown}).at(0)));
}

TEST(IcsNames, ofACourseOfSeveralClassesIsThatOfOneOfThem)
{
    const Row one{.className = "L1"};
    const Row other{.className = "L2"};
    const QStringList together = names({one, other});
    ASSERT_EQ(together.size(), 1);
    EXPECT_EQ(together, names({other, one}));
    EXPECT_TRUE((names({one}) + names({other})).contains(together[0]));
}
