#include "MarkedPlan.h"
#include "support/CuttingProxy.h"
#include "support/MariaDbServer.h"

#include <QByteArrayList>

using namespace test;

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
        MarkedPlan plan(true, proxy.through(database.connectString()),
                        {{QStringLiteral(" L1 "), QStringLiteral("L2")}});
        plan.click(1, absences::AsyncKeyState::kDownAndPressed,
                   absences::AsyncKeyState::kDownAndPressed);
    }
    // The driver takes the leading blank off. The refresh asks for the first class, trimmed.
    EXPECT_TRUE(commands.contains("Select * from abscence Where Classe='L1' and "
                                  "Datex='2025/03/17' and Debut='10h15'"));
    EXPECT_TRUE(commands.contains("Select * from etud_abs Where Classe='L1' and Nom='L1' and "
                                  "Jour='2025/03/17' and HeureD='10h15'"));
    // A toggle looks for the row that it removes; before the last tab names keep their blanks.
    EXPECT_TRUE(commands.contains("DELETE FROM abscence WHERE Classe=' L1 ' and "
                                  "Datex='2025/03/17' and Debut='10h15' LIMIT 1"));
    EXPECT_TRUE(commands.contains("DELETE FROM etud_abs WHERE Classe=' L1 '  and Nom=' L1 ' and "
                                  "Jour='2025/03/17' and HeureD='10h15' LIMIT 1"));
    EXPECT_TRUE(commands.contains("DELETE FROM etud_abs WHERE Classe='L2'  and Nom='L2' and "
                                  "Jour='2025/03/17' and HeureD='10h15' LIMIT 1"));
}
