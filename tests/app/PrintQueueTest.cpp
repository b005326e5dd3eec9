// Printing through a real queue of the system.

#include "app/CupsServer.h"
#include "app/Printing.h"
#include "print/Pdf.h"
#include "shell/ShellDesk.h"
#include "support/RuntimeMatchers.h"
#include "support/TestFolder.h"

#include <QFile>
#include <QPrinter>
#include <optional>

using namespace test;

namespace
{

class PrintQueue : public testing::Test
{
protected:
    void SetUp() override
    {
        const QString missing = CupsServer::missing();
        if (!missing.isEmpty()) {
            GTEST_SKIP() << missing.toStdString();
        }
        server.emplace();
        qputenv("CUPS_SERVER", server->address().toUtf8());
        createTinyFaculty(m_database);
        desk.play({"--date", "2025-03-17", "--rooms-per-page", "2"});
    }

    /// The dialog's answer of a user who prints on the queue.
    [[nodiscard]] app::PrintDialogs onTheQueue()
    {
        app::PrintDialogs dialogs;
        dialogs.choosePrinter = [this](QPrinter& printer, int) {
            printer.setPrinterName(CupsServer::queue());
            isQueue = printer.isValid() && printer.outputFormat() == QPrinter::NativeFormat;
            return true;
        };
        return dialogs;
    }

private:
    TestDatabase m_database{DatabaseKind::Sqlite};

protected:
    ShellDesk desk{m_database};
    std::optional<CupsServer> server;
    bool isQueue = false;
};

} // namespace

TEST_F(PrintQueue, takesEveryPageInOneDocument)
{
    app::Printing printing(desk.shell().engine(), onTheQueue());
    desk.form().PrintAllPages.press();
    ASSERT_TRUE(isQueue);
    const QStringList files = server->printedFiles();
    ASSERT_EQ(files.size(), 1);
    const Pdf pdf(bytesOf(files.constFirst()));
    EXPECT_EQ(pdf.pageCount(), 2);
    EXPECT_TRUE(pdf.text(1).contains("Occupation des Salles du Lundi"));
    EXPECT_TRUE(pdf.text(1).contains("B1"));
    EXPECT_TRUE(pdf.text(2).contains("Page 2 / 2"));
    EXPECT_EQ(pdf.missingFonts(), QStringList());
}
