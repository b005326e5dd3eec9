// The whole program on a server: two of them at once, and with no more rights than they need.

#include "absences/HeldKey.h"
#include "absences/Marking.h"
#include "shell/ShellDesk.h"

using namespace test;
using runtime::ErrorNumber;

namespace
{

/// A program without its window, with hands for the gestures.
class MarkingDesk
{
public:
    explicit MarkingDesk(const TestDatabase& database, Rights rights = Rights::Marking)
        : m_desk(database, rights)
    {
    }

    /// Shows Monday, 17 March 2025, with its make-ups.
    void start() { m_desk.play({"--date", "2025-03-17", "--makeup"}); }
    void refresh() { m_desk.shell().engine().refreshPlan(); }

    void shiftClick(int marker) { click(marker, absences::VirtualKey::Shift); }
    void ctrlClick(int marker) { click(marker, absences::VirtualKey::Ctrl); }

    [[nodiscard]] const plan::PlanBox& box(int marker)
    {
        return *m_desk.shell().engine().content().box(marker);
    }
    [[nodiscard]] ShellDesk& desk() { return m_desk; }

private:
    void click(int marker, absences::VirtualKey key)
    {
        absences::HeldKey keys(key);
        m_desk.shell().engine().clickMarker(marker, keys);
    }

    ShellDesk m_desk;
};

// The boxes in the order in which a refresh fills them.
constexpr int g1InA2 = 1;
constexpr int makeUpInA2 = 2;
constexpr int g2AndG3InB1 = 3;
constexpr int g2InB2 = 4;

const QMap<int, QString> mondayInA2 = {{1, "G1\r\n Dupont/Durand\r\n [Algèbre]\r\n"},
                                       {2, "G1\r\n Dupont\r\n [Algèbre]\r\n"}};

class OnOneServer : public testing::Test
{
protected:
    void SetUp() override { createTinyFaculty(database); }

    /// Class and start of every record of a table.
    [[nodiscard]] QList<QStringList> records(const QString& table, const QString& start)
    {
        return database.read("SELECT Classe, " + start + " FROM " + table + " ORDER BY Classe, " +
                             start);
    }
    void expectRecords(const QList<QStringList>& ofClasses, const QList<QStringList>& ofStudents)
    {
        EXPECT_EQ(records("abscence", "Debut"), ofClasses);
        EXPECT_EQ(records("etud_abs", "HeureD"), ofStudents);
    }

    TestDatabase database{DatabaseKind::MariaDb};
};

/// Whether the picture of the class and that of the students is shown on a box.
using Pictures = std::pair<bool, bool>;

Pictures picturesOf(MarkingDesk& program, int marker)
{
    return {program.box(marker).classAbsent, program.box(marker).studentAbsent};
}

} // namespace

TEST_F(OnOneServer, twoProgramsShowWhatTheTablesHoldAfterARefresh)
{
    MarkingDesk one(database);
    MarkingDesk other(database);
    one.start();
    other.start();
    ASSERT_EQ(one.box(g1InA2).cell.CellClassList, "G1");
    ASSERT_EQ(one.box(g2AndG3InB1).cell.CellClassList, "G2\tG3");
    ASSERT_EQ(one.box(g2InB2).cell.CellClassList, "G2");
    const auto expectPictures = [&](int marker, Pictures pictures) {
        for (MarkingDesk* program : {&one, &other}) {
            EXPECT_EQ(picturesOf(*program, marker), pictures) << marker;
        }
    };
    expectPictures(g1InA2, {true, false}); // recorded before

    one.shiftClick(g2InB2);
    one.ctrlClick(g2AndG3InB1);
    EXPECT_EQ(picturesOf(other, g2InB2), Pictures(false, false)); // not seen yet
    other.refresh();
    expectRecords({{"G1", "8h30"}, {"G2", "10h15"}}, {{"G2", "14h00"}, {"G3", "14h00"}});
    expectPictures(g1InA2, {true, false});
    expectPictures(makeUpInA2, {false, false});
    expectPictures(g2AndG3InB1, {false, true});
    expectPictures(g2InB2, {true, false});

    // What one has marked, the other takes back.
    other.shiftClick(g2InB2);
    other.ctrlClick(g2AndG3InB1);
    other.shiftClick(makeUpInA2);
    one.refresh();
    expectRecords({{"G1", "10h15"}, {"G1", "8h30"}}, {});
    expectPictures(g1InA2, {true, false});
    expectPictures(makeUpInA2, {true, false});
    expectPictures(g2AndG3InB1, {false, false});
    expectPictures(g2InB2, {false, false});
}

TEST_F(OnOneServer, aProgramThatKnowsNothingOfAnothersRecordTakesItBack)
{
    MarkingDesk one(database);
    MarkingDesk other(database);
    one.start();
    other.start();
    one.shiftClick(g2InB2);
    other.shiftClick(g2InB2); // without a refresh
    EXPECT_FALSE(other.box(g2InB2).classAbsent);
    expectRecords({{"G1", "8h30"}}, {});
    one.refresh();
    EXPECT_FALSE(one.box(g2InB2).classAbsent);
}

TEST_F(OnOneServer, aProgramHasTheRightsThatTheReadmeNamesAndNoOthers)
{
    const MarkingDesk program(database);
    const QString account =
        QString("GRANTEE = \"'tempora'@'%'\" AND TABLE_SCHEMA = '%1'").arg(database.baseName());
    EXPECT_EQ(database.read("SELECT PRIVILEGE_TYPE FROM information_schema.SCHEMA_PRIVILEGES "
                            "WHERE " +
                            account),
              QList<QStringList>({{"SELECT"}}));
    EXPECT_EQ(database.read("SELECT TABLE_NAME, PRIVILEGE_TYPE FROM "
                            "information_schema.TABLE_PRIVILEGES WHERE " +
                            account + " ORDER BY TABLE_NAME, PRIVILEGE_TYPE"),
              QList<QStringList>({{"abscence", "DELETE"},
                                  {"abscence", "INSERT"},
                                  {"etud_abs", "DELETE"},
                                  {"etud_abs", "INSERT"}}));
}

TEST_F(OnOneServer, anAccountThatMayOnlyReadShowsTheWholePlanAndMarksNothing)
{
    database.execute("INSERT INTO etud_abs (Classe, Nom, Jour, HeureD) "
                     "VALUES ('G2', 'G2', '2025-03-17', '10h15')");
    MarkingDesk reader(database, Rights::Reading);
    reader.start();
    const auto plan = [&] { return reader.desk().plan(); };
    EXPECT_EQ(shownRooms(plan()), QStringList({"A2", "B1", "B2", "C1"}));
    EXPECT_EQ(boxTexts(plan(), "A2"), mondayInA2);
    EXPECT_EQ(picturesOf(reader, g1InA2), Pictures(true, false));
    EXPECT_EQ(picturesOf(reader, g2InB2), Pictures(false, true));
    reader.refresh();
    EXPECT_EQ(boxTexts(plan(), "A2"), mondayInA2);

    for (const int marker : {g1InA2, g2AndG3InB1, g2InB2}) {
        for (const auto gesture : {&MarkingDesk::shiftClick, &MarkingDesk::ctrlClick}) {
            const runtime::RunTimeError error = errorOf([&] { (reader.*gesture)(marker); });
            EXPECT_EQ(error.number(), ErrorNumber::StatementRefused) << marker;
            EXPECT_TRUE(error.text().contains("command denied")) << error.what();
        }
    }
    expectRecords({{"G1", "8h30"}}, {{"G2", "10h15"}});
}

TEST_F(OnOneServer, anAccountThatMayOnlyReadSeesExamsSizesDepartmentsAndEveryPage)
{
    ShellDesk reader(database, Rights::Reading);
    ShellDesk marker(database);
    const QList<QStringList> views = {
        {"--mode", "exam", "--exam-week", "1", "--show", "class,teacher,subject,invigilator"},
        {"--department", "INFO", "--neutral", "--zone", "2"},
        {"--rooms-per-page", "2", "--page", "2", "--date", "2025-03-17", "--makeup", "--counting"},
        {"--subject", "Analyse", "--show", "class,subject,type"}};
    for (const QStringList& view : views) {
        reader.play(view);
        marker.play(view);
        EXPECT_FALSE(shownRooms(reader.plan()).isEmpty()) << view.join(' ').toStdString();
        EXPECT_EQ(reader.plan(), marker.plan()) << view.join(' ').toStdString();
    }
}
