#include "app/SetupOffer.h"

#include "app/Hands.h"
#include "support/TestFolder.h"

#include <QDir>
#include <QFile>
#include <QFileSystemWatcher>
#include <gtest/gtest.h>

using namespace test;
using runtime::ErrorNumber;
using runtime::RunTimeError;

namespace
{

/// A folder with a program in the place of tempora-setup, which writes down what it is told.
class TheOffer : public testing::Test
{
protected:
    void install()
    {
        writeFile(folder + "/tempora-setup", "#!/bin/sh\nprintf '%s' \"$*\" >\"$0.new\"\n"
                                             "mv \"$0.new\" \"$0.told\"\n");
        QFile::setPermissions(folder + "/tempora-setup", QFile::ReadOwner | QFile::ExeOwner);
        m_watcher.addPath(folder);
    }
    [[nodiscard]] std::optional<app::WayOut> offerFor(ErrorNumber number,
                                                      const QString& settings = {}) const
    {
        return app::SetupOffer(folder, settings).wayOutOf(RunTimeError(number));
    }
    [[nodiscard]] QString told() const
    {
        QFile file(folder + "/tempora-setup.told");
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll())
                                              : QStringLiteral("(not run)");
    }

    const QString folder =
        processFolder() + "/offer-" + testing::UnitTest::GetInstance()->current_test_info()->name();

private:
    QFileSystemWatcher m_watcher; // wakes who waits for what the program writes
};

} // namespace

TEST_F(TheOffer, isMadeWhereAnotherDatabaseWouldServe)
{
    install();
    for (const ErrorNumber number :
         {ErrorNumber::DatabaseFailure, ErrorNumber::FileNotFound, ErrorNumber::TableMissing}) {
        const auto offer = offerFor(number);
        ASSERT_TRUE(offer.has_value());
        EXPECT_EQ(offer->label, "Choisir la base…");
    }
    EXPECT_FALSE(offerFor(ErrorNumber::TypeMismatch).has_value());
    EXPECT_FALSE(offerFor(ErrorNumber::PathFileAccess).has_value());
}

TEST_F(TheOffer, isNotMadeWhereTheProgramIsMissing)
{
    QDir().mkpath(folder);
    EXPECT_FALSE(offerFor(ErrorNumber::DatabaseFailure).has_value());
}

TEST_F(TheOffer, startsTheProgramForTheUsersSettings)
{
    install();
    offerFor(ErrorNumber::DatabaseFailure)->take();
    EXPECT_TRUE(until([this] { return told() == ""; })) << told().toStdString();
}

TEST_F(TheOffer, startsTheProgramForTheSettingsThatWereNamed)
{
    install();
    offerFor(ErrorNumber::DatabaseFailure, "/srv/hall.ini")->take();
    EXPECT_TRUE(until([this] { return told() == "--settings /srv/hall.ini"; }))
        << told().toStdString();
}
