// What start-up reads beside the header, the slots and the rooms.

#include "EngineDesk.h"

using namespace test;
using runtime::ErrorNumber;

namespace
{

class StartUpReads : public OnTheTinyFaculty
{
};

TEMPORA_ON_BOTH_DATABASES(StartUpReads);

} // namespace

TEST_P(StartUpReads, theShortNamesOfTheSeanceTypes)
{
    const EngineDesk desk(database());
    const lookup::SeanceTypeShortNames& names = desk.engine.state().SeanceTypeShortNames;
    EXPECT_EQ(names[0], "C");
    EXPECT_EQ(names[1], "TD");
    EXPECT_EQ(names[2], "");
}

TEST_P(StartUpReads, noTypeBeyondThoseThatThereAre)
{
    EngineDesk desk(database());
    const auto last = desk.engine.state().SeanceTypeShortNames.size() - 1;
    database().execute(
        QString("INSERT INTO typeseance (Ref, NomCourt) VALUES (%1, 'TP')").arg(last));
    desk.engine.readSeanceTypes();
    EXPECT_EQ(desk.engine.state().SeanceTypeShortNames.back(), "TP");
    for (const auto& wrong : {QString::number(last + 1), QString("-1")}) {
        database().execute("UPDATE typeseance SET Ref = " + wrong + " WHERE NomCourt = 'TP'");
        const runtime::RunTimeError error = errorOf([&] { desk.engine.readSeanceTypes(); });
        EXPECT_EQ(error.number(), ErrorNumber::SubscriptOutOfRange);
        EXPECT_TRUE(error.activity().contains("référence " + wrong))
            << error.activity().toStdString();
    }
}

TEST_P(StartUpReads, theDepartments)
{
    EngineDesk desk(database());
    EXPECT_EQ(desk.form.Combo1.items(), QStringList({"INFO", "MATH"}));
    EXPECT_EQ(desk.form.Combo1.listIndex(), -1);
    desk.engine.listDepartments();
    EXPECT_EQ(desk.form.Combo1.items().size(), 2); // not twice
}

TEST_P(StartUpReads, whatIsMissingByItsName)
{
    EngineDesk desk(database());
    database().execute(QStringList{"DROP TABLE typeseance", "DROP TABLE `Département`"});
    EXPECT_TRUE(errorOf([&] { desk.engine.readSeanceTypes(); }).activity().contains("typeseance"));
    EXPECT_TRUE(errorOf([&] { desk.engine.listDepartments(); }).activity().contains("Département"));
}
