#include "plan/FaultWords.h"

#include "support/RuntimeMatchers.h"

using namespace plan;
using db::Failure;

namespace
{

PlanContent lacking(std::vector<lookup::ReadFault> faults, bool hasUnknownCells = true)
{
    PlanContent content;
    content.faults = std::move(faults);
    content.rows.emplace_back();
    if (hasUnknownCells) {
        content.rows.back().unknown.emplace_back();
    }
    return content;
}

const lookup::ReadFault silent{{}, "timed out", Failure::NoAnswer};

lookup::ReadFault unheld(const QString& name)
{
    return {name, "syntax error", Failure::Refused};
}

} // namespace

TEST(FaultSentence, isEmptyWithoutAFault)
{
    EXPECT_EQ(faultSentence(PlanContent()), "");
    EXPECT_EQ(faultDetails(PlanContent()), "");
}

TEST(FaultSentence, saysWhatFailedAndSinceWhen)
{
    PlanContent content = lacking({silent});
    content.failingSince = QDateTime(QDate::currentDate(), {9, 5});
    EXPECT_EQ(faultSentence(content), "Plan incomplet depuis 09:05 : la base de données ne répond "
                                      "pas. Les cases « ? » sont inconnues, et non libres.");
    content.failingSince = QDateTime({2025, 3, 17}, {18, 30});
    EXPECT_EQ(faultSentence(content),
              "Plan incomplet depuis 17/03/2025 18:30 : la base de données ne répond pas. Les "
              "cases « ? » sont inconnues, et non libres.");
}

TEST(FaultSentence, speaksOfNoCellsWhereNoneIsUnknown)
{
    EXPECT_EQ(faultSentence(lacking({silent}, false)),
              "Plan incomplet : la base de données ne répond pas.");
}

TEST(FaultSentence, saysWhichNamesCannotBeHeldAndHowToMendIt)
{
    EXPECT_EQ(faultSentence(lacking({unheld("Salle d'info")})),
              "Nom impossible à chercher : « Salle d'info ». Le réglage « Apostrophes=True » y "
              "remédie. Les cases « ? » sont inconnues, et non libres.");
    EXPECT_EQ(faultSentence(lacking({unheld("A'1"), silent, unheld("B'2")}, false)),
              "Plan incomplet : la base de données ne répond pas. Noms impossibles à chercher : "
              "« A'1 », « B'2 ». Le réglage « Apostrophes=True » y remédie.");
}

TEST(FaultSentence, hasRoomForFiveNames)
{
    std::vector<lookup::ReadFault> faults;
    for (const char* name : {"A'1", "A'2", "A'3", "A'4", "A'5", "A'6"}) {
        faults.push_back(unheld(name));
    }
    EXPECT_TRUE(faultSentence(lacking(faults))
                    .startsWith("Noms impossibles à chercher : « A'1 », « A'2 », « A'3 », « A'4 », "
                                "« A'5 » et 1 autre. Le réglage"));
    faults.push_back(unheld("A'7"));
    EXPECT_TRUE(faultSentence(lacking(faults)).contains("« A'5 » et 2 autres. "));
    EXPECT_TRUE(unheldNames(faults, 100).contains("« A'6 », « A'7 ». "));
}

TEST(FaultDetails, areTheDatabasesOwnWordsEachOnce)
{
    EXPECT_EQ(faultDetails(lacking({silent, unheld("A'1"), unheld("B'2")})),
              "timed out\nsyntax error");
}
