// A database that holds what nobody expects: other types, nulls everywhere, texts and rows beyond
// measure, names with any character.

#include "db/Connection.h"
#include "demo/Schema.h"
#include "engine/EngineDesk.h"
#include "faults/ShownCells.h"
#include "files/FileFormat.h"
#include "shell/Export.h"
#include "shell/ShellDesk.h"
#include "support/Timetable.h"

#include <QFileInfo>
#include <array>
#include <map>

using namespace test;

namespace
{

class OddData : public OnTheTinyFaculty
{
protected:
    /// Writes the plan in these forms and returns its JSON.
    static QJsonObject exported(ShellDesk& desk,
                                const QStringList& forms = {"csv", "html", "pdf", "png"})
    {
        for (const QString& form : forms + QStringList{"json"}) {
            const QString path = desk.setup.path("plan." + form);
            shell::exportPlan(desk.shell(), path, {false, true});
            EXPECT_GT(QFileInfo(path).size(), 100) << form.toStdString();
        }
        return QJsonDocument::fromJson(fileText(desk.setup.path("plan.json")).toUtf8()).object();
    }
    [[nodiscard]] QString quoted(const QString& name)
    {
        return demo::quotedName(name, database().usesMySql() ? demo::Flavour::MariaDb
                                                             : demo::Flavour::Sqlite);
    }
    /// The tiny faculty's Monday.
    static void chooseMonday(ShellDesk& desk) { desk.today = QDate(2025, 3, 17); }
};

TEMPORA_ON_BOTH_DATABASES(OddData);

enum class Plan { Week, MakeUps, Exams };
constexpr std::array kPlans = {Plan::Week, Plan::MakeUps, Plan::Exams};

const plan::PlanContent& planOf(EngineDesk& desk, Plan which)
{
    desk.form.Check2.setChecked(which == Plan::MakeUps);
    if (which == Plan::Exams) {
        desk.form.OpExam().select();
    }
    desk.engine.refreshPlan();
    return desk.engine.content();
}

/// Other types that a column of each kind may have on a server, with the same values in it.
QStringList otherTypes(demo::ColumnKind kind)
{
    switch (kind) {
    case demo::ColumnKind::Text:
        return {"LONGTEXT", "CHAR(100)", "BLOB", "VARCHAR(100) CHARACTER SET latin1"};
    case demo::ColumnKind::Number:
        return {"VARCHAR(20)", "BIGINT UNSIGNED", "DOUBLE", "DECIMAL(10,2)"};
    case demo::ColumnKind::Flag:
        return {"BIT(1)", "VARCHAR(5)", "BIGINT"};
    case demo::ColumnKind::Date:
        return {"DATETIME"}; // texts that are dates are compared as texts
    }
    return {};
}

} // namespace

// SQLite's columns have no types.
TEST(OddColumns, ofAnotherTypeShowNoRoomAsFree)
{
    for (int turn = 0; turn < 4; ++turn) {
        TestDatabase database(DatabaseKind::MariaDb);
        createTinyFaculty(database);
        std::map<Plan, ShownCells> whole;
        {
            EngineDesk desk(database);
            for (const Plan which : kPlans) {
                whole[which] = shownCells(planOf(desk, which));
            }
        }
        QStringList changes;
        for (const demo::Table& table : demo::tables()) {
            QStringList columns;
            for (const demo::Column& column : table.columns) {
                const QStringList types = otherTypes(column.kind);
                const bool isKey = table.keyedByFirstColumn && columns.isEmpty();
                columns << "MODIFY `" + column.name + "` " +
                               (isKey ? QString("INT") : types[turn % types.size()]);
            }
            changes << "ALTER TABLE `" + table.name + "` " + columns.join(", ");
        }
        database.execute(changes);
        EngineDesk desk(database);
        for (const Plan which : kPlans) {
            expectNothingFreed(whole[which], planOf(desk, which),
                               QString("types %1, plan %2").arg(turn).arg(static_cast<int>(which)));
        }
    }
}

TEST_P(OddData, ofNullsAloneIsTheSameAskedTogetherAndOneByOne)
{
    db::Connection connection(database().connectString());
    for (const demo::Table& table : demo::tables()) {
        const QString name = quoted(table.name);
        QStringList changes;
        for (std::size_t i = table.keyedByFirstColumn ? 1 : 0; i < table.columns.size(); ++i) {
            changes << quoted(table.columns[i].name) + " = NULL";
        }
        connection.execute("CREATE TABLE copie AS SELECT * FROM " + name);
        connection.execute("UPDATE " + name + " SET " + changes.join(", "));
        const auto shown = [&](bool plain) {
            try {
                const EngineDesk desk(database(), plain);
                return shownCells(desk.engine.content());
            } catch (const runtime::RunTimeError& error) {
                EXPECT_FALSE(error.activity().isEmpty()) << table.name.toStdString();
                return ShownCells{{"error", error.text()}};
            }
        };
        EXPECT_EQ(shown(false), shown(true)) << table.name.toStdString();
        connection.execute("DELETE FROM " + name);
        connection.execute("INSERT INTO " + name + " SELECT * FROM copie");
        connection.execute("DROP TABLE copie");
    }
    EXPECT_EQ(EngineDesk(database()).drawn(), QStringList({"A2:1", "B1:1", "B2:1", "C1:1"}));
}

TEST_P(OddData, ofSixtyFourThousandCharactersIsShownAndExported)
{
    constexpr int length = 65'535;
    const QString room = QString(length, u'é');
    const QString className = QString(length, u'k');
    if (database().usesMySql()) {
        database().execute(
            {"ALTER TABLE emplois MODIFY Salle MEDIUMTEXT, MODIFY Classe MEDIUMTEXT, "
             "MODIFY Enseignant1 MEDIUMTEXT, MODIFY matière MEDIUMTEXT",
             "ALTER TABLE salle MODIFY Nom MEDIUMTEXT"});
    }
    db::Connection connection(database().connectString());
    connection.execute("update salle set Nom = '" + room + "' where Nom = 'B2'");
    connection.execute("update emplois set Salle = '" + room + "', Classe = '" + className +
                       "', Enseignant1 = '" + className + "', matière = '" + className +
                       "' where Salle = 'B2'");
    ShellDesk desk(database());
    chooseMonday(desk);
    desk.start();
    const QString text = boxTexts(exported(desk), room)[2];
    EXPECT_EQ(text, className + "\r\n " + className + "\r\n [" + className + "]\r\n");
}

TEST_P(OddData, ofAHundredThousandRowsForOneCellIsShownAndExported)
{
    database().execute(
        {"CREATE TABLE digits (d INTEGER)",
         "INSERT INTO digits VALUES (0), (1), (2), (3), (4), (5), (6), (7), (8), (9)",
         "INSERT INTO emplois (Salle, Seance, Tranche, newnature, Classe, Enseignant1, Debut, "
         "Durée) SELECT 'A2', 'Lundi3', 1, '00', 'G1', 'Dupont', '14h00', '45' "
         "FROM digits a, digits b, digits c, digits d, digits e"});
    ShellDesk desk(database());
    chooseMonday(desk);
    desk.start();
    // Pages are looked up anew for the other forms, which takes as long as the first time.
    EXPECT_EQ(boxTexts(exported(desk, {"png"}), "A2").keys(), QList<int>({1, 3}));
    const plan::PlanRow& row = desk.shell().engine().content().rows[0];
    EXPECT_EQ(row.boxes[1].cell.CellClasses.count(u'\n'), 99'999);
    EXPECT_EQ(row.boxes[1].cell.CellRowCount,
              1); // more than its 16 bits hold: the step is left out
}

TEST_P(OddData, ofNoRoomAtAllIsAnEmptyPlanThatIsExported)
{
    database().execute("DELETE FROM salle");
    ShellDesk desk(database());
    desk.start();
    EXPECT_TRUE(exported(desk)["rows"].toArray().isEmpty());
    EXPECT_TRUE(desk.shell().engine().content().faults.empty());
}

namespace
{

/// Names that mean something to somebody on their way from the table to the screen.
const QStringList& oddNames()
{
    static const QStringList names{
        "L'amphi",
        "''",
        "\"A\"",
        "A\\",
        "A\\'B",
        "A\\\\'",
        "' OR '1'='1",
        "x'; DROP TABLE salle; --",
        "%1 %s ${x} &amp; <b>",
        "d'%n%s%s%s", // the library of MariaDB's driver takes what a server says for a format
        "'%n",
        "=1+1",
        "A\tB",
        "A\r\nB",
        QString("A%1%2B").arg(QChar(1)).arg(QChar(27)),
        QString("A%1B").arg(QChar(0x7f)),
        QString::fromUtf8("\u202Egauche à droite\u202C"), // right to left from here on
        QString::fromUtf8("\u05D0\u05DE\u05E4\u05D9 3"),
        QString::fromUtf8("\U0001F3EB \u200D \uFEFF"),
    };
    return names;
}

} // namespace

TEST_P(OddData, ofAnyCharacterInANameShowsNoRoomAsFree)
{
    const auto literal = [this](QString name) {
        name.replace("'", "''");
        if (database().usesMySql()) {
            name.replace("\\", "\\\\");
        }
        return u'\'' + name + u'\'';
    };
    QString former = "B2";
    db::Connection connection(database().connectString());
    for (const QString& odd : oddNames()) {
        const QString name = u'Z' + odd; // the first room of all is not on the plan
        for (const char* column : {"salle set Nom", "emplois set Salle"}) {
            const QString field = QString(column).section(' ', -1);
            connection.execute(QString("update ") + column + " = " + literal(name) + " where " +
                               field + " = " + literal(former));
        }
        former = name;
        for (const bool doubles : {false, true}) {
            ShellDesk desk(database());
            chooseMonday(desk);
            desk.setup.set("Apostrophes", doubles ? "True" : "False");
            desk.start();
            const plan::PlanContent& content = desk.shell().engine().content();
            expectNothingFreed({{name + ", 2", {}}}, content, name);
            if (doubles) {
                EXPECT_EQ(shownCells(content)[name + ", 2"], "G2\r\n Petit\r\n [Physique]\r\n")
                    << name.toStdString();
                EXPECT_TRUE(content.faults.empty()) << name.toStdString();
                EXPECT_TRUE(shownRooms(exported(desk, {"html"})).contains(name))
                    << name.toStdString();
            }
        }
    }
    EXPECT_EQ(database().read("select count(*) from salle"), QList<QStringList>({{"5"}}));
}
