#include "timetable/MeetingRows.h"

#include "runtime/RunTimeError.h"
#include "support/RuntimeMatchers.h"
#include "support/Timetable.h"

#include <gtest/gtest.h>
#include <optional>

using namespace test;
using timetable::MeetingKind;
using timetable::MeetingRows;
using timetable::MeetingTexts;
using timetable::Part;
namespace field = timetable::field;

namespace
{

/// Keeps the rows; a null field is a null text.
class Rows : public timetable::MeetingTaker
{
public:
    void expect(std::size_t rows) override { expected = rows; }
    void take(const MeetingTexts& texts) override
    {
        std::vector<std::optional<QString>>& row = taken.emplace_back();
        for (const QStringView text : texts) {
            row.push_back(text.isNull() ? std::nullopt : std::optional(text.toString()));
        }
    }

    std::size_t expected = 0;
    std::vector<std::vector<std::optional<QString>>> taken;
};

const std::size_t kSalle = field::of(Part::A, field::kRoom);
const std::size_t kXSalle = field::of(Part::SecondA, field::kRoom);
const std::size_t kYSalle = field::of(Part::A, field::kOtherRoom);
const std::size_t kSubject = field::of(Part::A, field::kSubject);

/// Rows of period 1, read as packed texts and column by column.
class TheRows : public OnBothDatabases
{
protected:
    void SetUp() override
    {
        m_tables.emplace(database(), QStringList{"emplois", "examen"});
        m_tables->load();
    }

    void add(const Fields& fields) { m_tables->row("emplois", fields).load(); }

    [[nodiscard]] bool readPacked(Rows& rows, MeetingKind kind = MeetingKind::Course)
    {
        db::Connection connection(database().connectString());
        return MeetingRows(connection, 1, kind).readPacked(rows);
    }
    void readAll(Rows& rows, MeetingKind kind = MeetingKind::Course)
    {
        db::Connection connection(database().connectString());
        MeetingRows(connection, 1, kind).readAll(rows);
    }

    /// The rows, which must come the same in both ways.
    [[nodiscard]] Rows readBoth(MeetingKind kind = MeetingKind::Course)
    {
        Rows packed;
        EXPECT_TRUE(readPacked(packed, kind));
        Rows all;
        readAll(all, kind);
        EXPECT_EQ(packed.taken, all.taken);
        return all;
    }

private:
    std::optional<test::Timetable> m_tables;
};

} // namespace

TEST_P(TheRows, areThoseOfThePeriod)
{
    add({{"Tranche", 1}, {"Salle", "A1"}});
    add({{"Tranche", 2}, {"Salle", "A2"}});
    add({{"Tranche", 1}, {"Salle", "A3"}});
    const Rows rows = readBoth();
    ASSERT_EQ(rows.taken.size(), 2U);
    EXPECT_EQ(rows.expected, 2U);
    EXPECT_EQ(rows.taken[0][kSalle], QString("A1"));
    EXPECT_EQ(rows.taken[1][kSalle], QString("A3"));
}

TEST_P(TheRows, keepNullsApartFromEmptyTexts)
{
    add({{"Tranche", 1}, {"Salle", "A1"}, {"XSalle", ""}});
    const Rows rows = readBoth();
    ASSERT_EQ(rows.taken.size(), 1U);
    EXPECT_EQ(rows.taken[0][kXSalle], QString(""));
    EXPECT_EQ(rows.taken[0][kYSalle], std::nullopt);
}

TEST_P(TheRows, keepOddTextsAsTheyAre)
{
    const QString odd = "O'Brien \"B\" [x], é%1 ";
    add({{"Tranche", 1}, {"Salle", odd}, {"matière", "null"}, {"Durée", "9\t0\n"}});
    const Rows rows = readBoth();
    ASSERT_EQ(rows.taken.size(), 1U);
    EXPECT_EQ(rows.taken[0][kSalle], odd);
    EXPECT_EQ(rows.taken[0][kSubject], QString("null"));
    EXPECT_EQ(rows.taken[0][field::kLength], QString("9\t0\n"));
}

TEST_P(TheRows, mayBeLong)
{
    const QString name(90, QChar(u'é'));
    add({{"Tranche", 1}, {"Salle", name}, {"XSalle", name}, {"YSalle", name}, {"Classe", name}});
    const Rows rows = readBoth();
    ASSERT_EQ(rows.taken.size(), 1U);
    EXPECT_EQ(rows.taken[0][field::kClass], name);
}

TEST_P(TheRows, ofExamsHaveTheirWeek)
{
    database().execute("insert into examen (Salle, Tranche, Semaine) values ('A1', 1, 2)");
    const Rows rows = readBoth(MeetingKind::Exam);
    ASSERT_EQ(rows.taken.size(), 1U);
    EXPECT_EQ(rows.taken[0][field::kExamWeek], QString("2"));
    EXPECT_EQ(rows.taken[0][kXSalle], std::nullopt);
}

TEST_P(TheRows, comeColumnByColumnWhereOneIsMissing)
{
    add({{"Tranche", 1}, {"Salle", "A1"}, {"matière", "Algèbre"}});
    database().execute("alter table emplois drop column `matière`");
    Rows packed;
    EXPECT_FALSE(readPacked(packed));
    EXPECT_TRUE(packed.taken.empty());
    Rows all;
    readAll(all);
    ASSERT_EQ(all.taken.size(), 1U);
    EXPECT_EQ(all.taken[0][kSalle], QString("A1"));
    EXPECT_EQ(all.taken[0][kSubject], std::nullopt);
}

TEST_P(TheRows, areAFaultWithoutAColumnThatSaysWhichRoomIsHeld)
{
    database().execute("alter table emplois drop column XSalle");
    Rows none;
    readAll(none); // no row, and nothing that it would not say
    EXPECT_TRUE(none.taken.empty());
    add({{"Tranche", 1}, {"Salle", "A1"}});
    Rows packed;
    EXPECT_FALSE(readPacked(packed));
    try {
        Rows all;
        readAll(all);
        ADD_FAILURE() << "the rows were taken";
    } catch (const runtime::RunTimeError& error) {
        EXPECT_EQ(error.number(), runtime::ErrorNumber::ItemNotFound);
        EXPECT_EQ(error.text(), "la colonne « XSalle » manque");
    }
}

TEST_P(TheRows, areNotTakenForPackedWhereTheyDoNotComeApart)
{
    // A separator of the server's packed rows, and bytes that SQLite puts into no array.
    add({{"Tranche", 1}, {"Salle", "A1"}});
    database().execute(database().usesMySql() ? "update emplois set Classe = x'611f62'"
                                              : "update emplois set Classe = x'6162'");
    Rows packed;
    EXPECT_FALSE(readPacked(packed));
    Rows all;
    readAll(all);
    ASSERT_EQ(all.taken.size(), 1U);
    EXPECT_EQ(all.taken[0][kSalle], QString("A1"));
}

TEST_P(TheRows, mayBeOfColumnsThatHoldNumbersAndTimes)
{
    database().execute(
        {"drop table emplois",
         "create table emplois (Salle integer, XSalle text, YSalle text, SalleB text, "
         "XSalleB text, YSalleB text, Seance text, Tranche integer, newnature text, "
         "Classe text, Enseignant1 text, Enseignant2 text, Enseignant3 text, "
         "XEnseignant1 text, XEnseignant2 text, XEnseignant3 text, Enseignant1b "
         "text, Enseignant2b text, Enseignant3b text, XEnseignant1B text, "
         "XEnseignant2B text, XEnseignant3B text, `matière` text, `XMatière` text, "
         "`Matièreb` text, `XMatièreB` text, Debut text, `Durée` integer)",
         "insert into emplois (Salle, Tranche, Debut, `Durée`) values (101, 1, "
         "'08:30:00', 45)"});
    const Rows rows = readBoth();
    ASSERT_EQ(rows.taken.size(), 1U);
    EXPECT_EQ(rows.taken[0][kSalle], QString("101"));
    EXPECT_EQ(rows.taken[0][field::kLength], QString("45"));
}

TEST_P(TheRows, ofAMissingTableAreAFault)
{
    database().execute("drop table emplois");
    Rows rows;
    EXPECT_EQ(errorNumberOf([&] { static_cast<void>(readPacked(rows)); }),
              runtime::ErrorNumber::TableMissing);
    EXPECT_EQ(errorNumberOf([&] { readAll(rows); }), runtime::ErrorNumber::TableMissing);
}

TEMPORA_ON_BOTH_DATABASES(TheRows);
