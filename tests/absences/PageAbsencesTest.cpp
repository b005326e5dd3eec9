#include "absences/PageAbsences.h"

#include "AbsenceTables.h"

#include <functional>
#include <memory>

using namespace test;
using absences::AbsenceRecords;
using absences::PageAbsences;
using plan::Marqueur;

namespace
{

class APageOfAbsences : public OnBothDatabases
{
protected:
    void SetUp() override
    {
        createAbsenceTables(database());
        m_database = std::make_unique<db::Database>(database().usesMySql());
        m_database->open(database().connectString());
        m_records = std::make_unique<AbsenceRecords>(*m_database);
        m_page = std::make_unique<PageAbsences>(*m_database, *m_records);
    }

    [[nodiscard]] AbsenceRecords& records() { return *m_records; }
    [[nodiscard]] PageAbsences& page() { return *m_page; }
    void prepare() { page().prepare({lesson({}).Jour, {classA, classB}, {lesson({}).Debut}}); }
    /// Statements that the action sends.
    [[nodiscard]] long long statementsOf(const std::function<void()>& action)
    {
        const long long before = m_database->Db().statementCount();
        action();
        return m_database->Db().statementCount() - before;
    }

private:
    std::unique_ptr<db::Database> m_database;
    std::unique_ptr<AbsenceRecords> m_records;
    std::unique_ptr<PageAbsences> m_page;
};

} // namespace

TEST_P(APageOfAbsences, onceFetchedNeedsNoStatement)
{
    Marqueur marker = lesson(classA);
    records().Basculer_AbsClasse(marker, classA);
    records().Basculer_AbsEtud(marker, classB, classB);
    prepare();
    EXPECT_EQ(statementsOf([&] {
                  EXPECT_TRUE(page().Existe_AbsClasse(marker, classA));
                  EXPECT_FALSE(page().Existe_AbsClasse(marker, classB));
                  EXPECT_FALSE(page().Existe_AbsEtud(marker, classA, classA));
                  EXPECT_TRUE(page().Existe_AbsEtud(marker, classB, classB));
              }),
              0);
}

TEST_P(APageOfAbsences, leavesAnotherDateOrTimeToThePlainTests)
{
    Marqueur later = lesson(classA);
    later.Debut = QStringLiteral("11h45");
    records().Basculer_AbsClasse(later, classA);
    prepare();
    EXPECT_TRUE(page().Existe_AbsClasse(later, classA));
    Marqueur nextDay = lesson(classA);
    nextDay.Jour = QDate(2025, 3, 18);
    EXPECT_FALSE(page().Existe_AbsClasse(nextDay, classA));
}

TEST_P(APageOfAbsences, knowsOfAToggleSinceItWasFetched)
{
    prepare();
    Marqueur marker = lesson(classA);
    records().Basculer_AbsClasse(marker, classA);
    records().Basculer_AbsEtud(marker, classB, classB);
    EXPECT_TRUE(page().Existe_AbsClasse(marker, classA));
    EXPECT_TRUE(page().Existe_AbsEtud(marker, classB, classB));
}

TEMPORA_ON_BOTH_DATABASES(APageOfAbsences);
