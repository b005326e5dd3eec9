// The file of the embedded database under an open window, and at its start.

#include "absences/AsyncKeyState.h"
#include "engine/EngineDesk.h"
#include "faults/ShownCells.h"
#include "plan/FaultWords.h"
#include "support/FileHolder.h"
#include "support/WithoutPrivileges.h"

#include <QFile>

using namespace test;

namespace
{

/// Shift, held down.
class Shift : public absences::AsyncKeyState
{
public:
    std::int16_t state(absences::VirtualKey key) override
    {
        return key == absences::VirtualKey::Shift ? kDownAndPressed : std::int16_t{0};
    }
};

class ATimetableFile : public testing::Test
{
protected:
    ATimetableFile()
    {
        createTinyFaculty(database);
        QFile file(database.file());
        EXPECT_TRUE(file.open(QFile::ReadOnly));
        bytes = file.readAll();
    }

    /// Writes these bytes into the very file that is there.
    void overwrite(const QByteArray& content) const
    {
        QFile file(database.file());
        ASSERT_TRUE(file.open(QFile::ReadWrite));
        ASSERT_TRUE(file.resize(content.size()));
        ASSERT_EQ(file.write(content), content.size());
    }
    /// Refreshes, and starts anew: what is held is never shown as free.
    void expectNoneFreed(EngineDesk& desk, const ShownCells& whole, const QString& fault) const
    {
        desk.engine.refreshPlan();
        expectNothingFreed(whole, desk.engine.content(), fault);
        try {
            const EngineDesk started(database);
            expectNothingFreed(whole, started.engine.content(), fault);
        } catch (const runtime::RunTimeError& error) {
            EXPECT_FALSE(error.text().isEmpty()) << fault.toStdString();
            EXPECT_FALSE(error.activity().isEmpty()) << fault.toStdString();
        }
    }
    /// Has the window ask about its connection before each page, also one that was just used.
    void distrust(EngineDesk& desk) const
    {
        db::Database distrusting(false, {std::chrono::hours(1), std::chrono::milliseconds(-1),
                                         std::chrono::milliseconds(-1)});
        distrusting.open(database.connectString());
        *desk.connection = std::move(distrusting);
    }
    /// The line above the plan, without the time.
    static QString cause(const EngineDesk& desk)
    {
        return plan::faultSentence(desk.engine.content()).section(" : ", 1);
    }

    TestDatabase database{DatabaseKind::Sqlite};
    QByteArray bytes;
};

const char* const kNotOpened =
    "la base de données ne s’ouvre pas. Les cases « ? » sont inconnues, et non libres.";

} // namespace

TEST_F(ATimetableFile, thatIsCutOffShowsNoRoomAsFree)
{
    EngineDesk desk(database);
    distrust(desk);
    const ShownCells whole = shownCells(desk.engine.content());
    for (qsizetype size = 0; size < bytes.size(); size += size < 200 ? 100 : 4096) {
        overwrite(bytes.left(size));
        expectNoneFreed(desk, whole, QString("%1 of %2 bytes").arg(size).arg(bytes.size()));
    }
    overwrite(bytes);
    desk.engine.refreshPlan();
    EXPECT_EQ(shownCells(desk.engine.content()), whole)
        << plan::faultDetails(desk.engine.content()).toStdString();
    EXPECT_TRUE(desk.engine.content().faults.empty());
}

TEST_F(ATimetableFile, withADamagedPageShowsNoRoomAsFree)
{
    constexpr qsizetype pageSize = 4096;
    EngineDesk desk(database);
    distrust(desk);
    const ShownCells whole = shownCells(desk.engine.content());
    for (qsizetype page = 0; page < bytes.size(); page += pageSize) {
        for (const char filling : {'\0', '\xff', '\x0d'}) {
            overwrite(QByteArray(bytes).replace(page, pageSize, QByteArray(pageSize, filling)));
            expectNoneFreed(desk, whole,
                            QString("page %1 full of %2").arg(page / pageSize).arg(int(filling)));
        }
    }
    overwrite(bytes);
    desk.engine.refreshPlan();
    EXPECT_EQ(shownCells(desk.engine.content()), whole);
}

TEST_F(ATimetableFile, thatIsDeletedIsNotReadOnAndNotMadeAnew)
{
    EngineDesk desk(database);
    distrust(desk);
    const ShownCells whole = shownCells(desk.engine.content());
    ASSERT_TRUE(QFile::rename(database.file(), database.file() + ".away"));
    desk.engine.refreshPlan();
    expectNothingFreed(whole, desk.engine.content(), "deleted");
    EXPECT_EQ(unknownCells(shownCells(desk.engine.content())), 16); // four rooms, four slots
    EXPECT_EQ(cause(desk), kNotOpened);
    EXPECT_FALSE(QFile::exists(database.file()));
    ASSERT_TRUE(QFile::rename(database.file() + ".away", database.file()));
    desk.engine.refreshPlan();
    EXPECT_EQ(shownCells(desk.engine.content()), whole);
}

TEST_F(ATimetableFile, thatIsReplacedIsReadAnew)
{
    EngineDesk desk(database);
    distrust(desk);
    const ShownCells whole = shownCells(desk.engine.content());
    // As a timetable program does that writes its file anew and then puts it into place.
    TestDatabase another(DatabaseKind::Sqlite);
    createTinyFaculty(another);
    another.execute("update emplois set Classe = 'G9' where Salle = 'B2'");
    ASSERT_TRUE(QFile::remove(database.file()));
    ASSERT_TRUE(QFile::rename(another.file(), database.file()));
    desk.engine.refreshPlan();
    const ShownCells now = shownCells(desk.engine.content());
    EXPECT_EQ(now.keys(), whole.keys());
    EXPECT_TRUE(now["B2, 2"].startsWith("G9")) << now["B2, 2"].toStdString();
}

TEST_F(ATimetableFile, thatAnotherIsCopiedOverIsReadAnew)
{
    EngineDesk desk(database);
    distrust(desk);
    const ShownCells whole = shownCells(desk.engine.content());
    desk.engine.refreshPlan(); // over the new connection, whose driver remembers it
    // Written by as many statements, so that nothing in the file tells that it is another.
    TestDatabase another(DatabaseKind::Sqlite);
    createTinyFaculty(another);
    QFile file(another.file());
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    overwrite(file.readAll().replace("Petit", "Grand"));
    desk.engine.refreshPlan();
    EXPECT_EQ(shownCells(desk.engine.content())["B2, 2"], "G2\r\n Grand\r\n [Physique]\r\n");
    EXPECT_EQ(shownCells(desk.engine.content()).keys(), whole.keys());
}

TEST_F(ATimetableFile, thatMayNotBeWrittenIsShownAndAnAbsenceIsRefusedInWords)
{
    ASSERT_TRUE(QFile::setPermissions(database.file(), QFile::ReadOwner));
    const WithoutPrivileges ordinaryUser;
    EngineDesk desk(database);
    EXPECT_EQ(desk.drawn(), QStringList({"A2:1", "B1:1", "B2:1", "C1:1"}));
    EXPECT_TRUE(desk.engine.content().faults.empty());
    Shift shift;
    const int marker = desk.engine.content().rows[1].boxes[0].marker; // B1
    const runtime::RunTimeError error = errorOf([&] { desk.engine.clickMarker(marker, shift); });
    EXPECT_EQ(error.number(), runtime::ErrorNumber::DatabaseFailure);
    EXPECT_TRUE(error.text().contains("readonly")) << error.what();
    EXPECT_TRUE(error.activity().startsWith("Enregistrement de l’absence")) << error.what();
}

TEST_F(ATimetableFile, thatMayNotBeReadIsTold)
{
    EngineDesk desk(database);
    ASSERT_TRUE(QFile::setPermissions(database.file(), QFile::Permissions()));
    const WithoutPrivileges ordinaryUser;
    const runtime::RunTimeError error =
        errorOf([this] { static_cast<void>(EngineDesk(database)); });
    EXPECT_EQ(error.number(), runtime::ErrorNumber::DatabaseFailure);
    EXPECT_TRUE(error.activity().startsWith("Ouverture de la base de données")) << error.what();
}

TEST_F(ATimetableFile, thatIsLockedAtTheStartIsTold)
{
    const FileHolder other(database.file(), "begin exclusive;");
    const runtime::RunTimeError error =
        errorOf([this] { static_cast<void>(EngineDesk(database)); });
    EXPECT_EQ(error.number(), runtime::ErrorNumber::DatabaseFailure);
    EXPECT_TRUE(error.text().contains("locked")) << error.what();
    EXPECT_FALSE(error.activity().isEmpty());
}
