#include "MarkedPlan.h"
#include "support/CuttingProxy.h"
#include "support/MariaDbServer.h"
#include "support/ProgramSetup.h"
#include "support/TestFolder.h"

#include <QByteArrayList>

using namespace test;

namespace
{

/// Before the last tab names keep their blanks.
const QStringList paddedClasses = {QStringLiteral(" L1 "), QStringLiteral("L2")};

} // namespace

TEST(TheSearchesForAbsences, reachTheServerAsTheyAreWritten)
{
    TestDatabase database(DatabaseKind::MariaDb);
    createAbsenceTables(database);
    QByteArrayList commands;
    {
        const CuttingProxy proxy(MariaDbServer::shared().port(), [&](const QByteArray& command) {
            commands << command.mid(1);
            return CuttingProxy::Verdict::Pass;
        });
        MarkedPlan plan(true, proxy.through(database.connectString()), {paddedClasses});
        plan.click(1, pressed, pressed);
        plan.click(1, pressed, pressed);
    }
    // The driver takes the leading blank off. The refresh asks for the first class, trimmed.
    EXPECT_TRUE(commands.contains("Select * from abscence Where Classe='L1' and "
                                  "Datex='2025/03/17' and Debut='10h15'"));
    EXPECT_TRUE(commands.contains("Select * from etud_abs Where Classe='L1' and Nom='L1' and "
                                  "Jour='2025/03/17' and HeureD='10h15'"));
    // A toggle asks again, about students with one blank more, and removes what it finds.
    EXPECT_EQ(commands.count("Select * from abscence Where Classe=' L1 ' and "
                             "Datex='2025/03/17' and Debut='10h15'"),
              2);
    EXPECT_EQ(commands.count("Select * from etud_abs Where Classe=' L1 '  and Nom=' L1 ' and "
                             "Jour='2025/03/17' and HeureD='10h15'"),
              2);
    EXPECT_EQ(commands.count("Select * from etud_abs Where Classe='L2'  and Nom='L2' and "
                             "Jour='2025/03/17' and HeureD='10h15'"),
              2);
    EXPECT_EQ(commands.count("DELETE FROM abscence WHERE Classe=' L1 ' and "
                             "Datex='2025/03/17' and Debut='10h15'\nLIMIT 1"),
              1);
    EXPECT_EQ(commands.count("DELETE FROM etud_abs WHERE Classe='L2'  and Nom='L2' and "
                             "Jour='2025/03/17' and HeureD='10h15'\nLIMIT 1"),
              1);
}

TEST(TheSearchesForAbsences, reachTheEmbeddedDatabaseWithItsOwnDates)
{
    TestDatabase database(DatabaseKind::Sqlite);
    createAbsenceTables(database);
    const QString trace = processFolder() + QStringLiteral("/statements.log");
    {
        MarkedPlan plan(false, database.connectString() + QStringLiteral(";Tracefile=") + trace,
                        {paddedClasses});
        plan.click(1, pressed, pressed);
        plan.click(1, pressed, pressed);
    }
    const QString statements = fileText(trace);
    const auto sent = [&](const char* statement) {
        return statements.contains(QString::fromUtf8(statement));
    };
    // The refresh asks for the first class, trimmed.
    EXPECT_TRUE(sent(" Select * from abscence Where Classe='L1' and Datex='2025-03-17' and "
                     "Debut='10h15'"));
    EXPECT_TRUE(sent(" Select * from etud_abs Where Classe='L1' and Nom='L1' and "
                     "Jour='2025-03-17' and HeureD='10h15'"));
    // The toggles, about students with one blank more.
    EXPECT_TRUE(sent(" Select * from abscence Where Classe=' L1 ' and Datex='2025-03-17' and "
                     "Debut='10h15'"));
    EXPECT_TRUE(sent(" Select * from etud_abs Where Classe=' L1 '  and Nom=' L1 ' and "
                     "Jour='2025-03-17' and HeureD='10h15'"));
    EXPECT_TRUE(sent(" Select * from etud_abs Where Classe='L2'  and Nom='L2' and "
                     "Jour='2025-03-17' and HeureD='10h15'"));
}
