#include "db/Diagnostics.h"

#include "db/OdbcHandles.h"
#include "support/RuntimeMatchers.h"

using namespace db;
using runtime::ErrorNumber;

namespace
{

ErrorNumber numberOf(const char* state)
{
    return errorNumberByState({QLatin1String(state), 0, QString()});
}

} // namespace

TEST(Diagnostics, takeALostConnectionForADatabaseFailure)
{
    for (const char* state : {"08S01", "08003", "HYT00", "HYT01", "IM004"}) {
        EXPECT_EQ(numberOf(state), ErrorNumber::DatabaseFailure) << state;
    }
}

TEST(Diagnostics, takeAFailureWithoutAReasonForADatabaseFailure)
{
    EXPECT_EQ(numberOf(""), ErrorNumber::DatabaseFailure);
}

TEST(Diagnostics, tellAMissingTable)
{
    EXPECT_EQ(numberOf("42S02"), ErrorNumber::TableMissing);
}

TEST(Diagnostics, takeEveryOtherFailureForARefusal)
{
    for (const char* state : {"42000", "22007", "HY000", "HYC00", "IM100"}) {
        EXPECT_EQ(numberOf(state), ErrorNumber::StatementRefused) << state;
    }
}

TEST(Diagnostics, sayThatThereIsNoReasonWhereThereIsNone)
{
    const EnvironmentHandle environment;
    for (const TextForm form : {TextForm::Utf16, TextForm::Utf8}) {
        const Diagnostics diagnostics = diagnosticsOf(SQL_HANDLE_ENV, environment.get(), form);
        EXPECT_EQ(diagnostics.state, QString());
        EXPECT_EQ(diagnostics.text, QStringLiteral("The driver gives no reason."));
    }
}

TEST(Diagnostics, tellStateAndTextInBothForms)
{
    const EnvironmentHandle environment;
    // An attribute that there is not.
    EXPECT_EQ(SQLSetEnvAttr(environment.get(), 99999, nullptr, 0), SQL_ERROR);
    for (const TextForm form : {TextForm::Utf16, TextForm::Utf8}) {
        const Diagnostics diagnostics = diagnosticsOf(SQL_HANDLE_ENV, environment.get(), form);
        EXPECT_EQ(diagnostics.state, QStringLiteral("HY092"));
        EXPECT_TRUE(diagnostics.text.contains(QStringLiteral("attribute")))
            << diagnostics.text.toStdString();
    }
}
