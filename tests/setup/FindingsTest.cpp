#include "setup/Findings.h"

#include "db/ConnectString.h"
#include "support/ProgramSetup.h"
#include "support/RuntimeMatchers.h"
#include "support/TinyFaculty.h"
#include "support/WithoutPrivileges.h"

#include <QFile>

using namespace setup;
using runtime::ErrorNumber;
using test::Rights;

namespace
{

class Looking : public test::OnBothDatabases
{
protected:
    [[nodiscard]] Findings look(const QString& connectString) const
    {
        db::Connection connection(connectString,
                                  db::SqlDialect(GetParam() != test::DatabaseKind::Sqlite));
        return lookInto(connection);
    }
};

} // namespace

TEST_P(Looking, countsWhatIsThere)
{
    test::createTinyFaculty(database());
    const Findings found = look(database().connectString());
    EXPECT_EQ(found.rooms, 5);
    EXPECT_EQ(found.periods, 2);
    EXPECT_EQ(found.courses, 6); // B1 holds two classes, C1's row alternates
    EXPECT_TRUE(found.marksAbsences);
    EXPECT_FALSE(found.hasApostrophes);
    EXPECT_EQ(found.lastDay, QDate(2025, 6, 6)); // of spring; autumn ends on 31 January
}

TEST_P(Looking, knowsNoLastDayWithoutADate)
{
    test::createTinyFaculty(database());
    database().execute("update tranche set DateFin = null");
    EXPECT_FALSE(look(database().connectString()).lastDay.isValid());
}

TEST_P(Looking, changesNothing)
{
    test::createTinyFaculty(database());
    const auto before = database().read("select * from abscence order by 1");
    static_cast<void>(look(database().connectString()));
    ASSERT_EQ(before.size(), 1);
    EXPECT_EQ(database().read("select * from abscence order by 1"), before);
    EXPECT_TRUE(database().read("select * from etud_abs").isEmpty());
}

TEST_P(Looking, findsApostrophes)
{
    test::createTinyFaculty(database());
    database().execute("update salle set Nom = 'Salle d''info' where Nom = 'A1'");
    EXPECT_TRUE(look(database().connectString()).hasApostrophes);
}

TEST_P(Looking, findsThemInClassesToo)
{
    test::createTinyFaculty(database());
    database().execute("update emplois set Classe = '1re année d''anglais' where Classe = 'G1'");
    EXPECT_TRUE(look(database().connectString()).hasApostrophes);
}

TEST_P(Looking, tellsADatabaseWithoutATimetable)
{
    database().execute("create table recettes (nom varchar(20))");
    const auto error = test::errorOf([this] { return look(database().connectString()); });
    EXPECT_EQ(error.number(), ErrorNumber::TableMissing);
    EXPECT_TRUE(error.activity().contains("salle"));
}

TEST_P(Looking, seesThatAnAccountMayOnlyRead)
{
    test::createTinyFaculty(database());
    const test::ProgramSetup reader(database(), Rights::Reading);
    QString connect = database().connectString();
    if (GetParam() == test::DatabaseKind::Sqlite) {
        ASSERT_TRUE(QFile::setPermissions(database().file(), QFileDevice::ReadOwner));
    } else {
        connect =
            db::BuildConnectString(database().baseName(), true, {reader.applicationFolder(), {}})
                .ConnectString;
    }
    const test::WithoutPrivileges ordinaryUser;
    const Findings found = look(connect);
    EXPECT_EQ(found.rooms, 5);
    EXPECT_FALSE(found.marksAbsences);
}

TEMPORA_ON_BOTH_DATABASES(Looking);

TEST(Findings, areToldInOneLine)
{
    Findings found{64, 2, 2144, {}, true, false};
    EXPECT_EQ(inWords(found),
              QStringLiteral("64 salles, 2 périodes, 2\u202f144 séances ; droits : lecture et "
                             "absences"));
    found = {1, 0, 1, {}, false, false};
    EXPECT_EQ(inWords(found),
              QStringLiteral("1 salle, 0 période, 1 séance ; droits : lecture seule"));
}
