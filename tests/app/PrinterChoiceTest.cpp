#include "app/PrinterChoice.h"

#include "app/WhenOpen.h"

#include <QFileDialog>
#include <QPrinter>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace test;

namespace
{

/// A printer for a document, and a user who answers the dialog that asks for its file.
class APdfFile : public testing::Test
{
protected:
    APdfFile() { m_printer.setDocName("Occupation des Salles du Lundi"); }
    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }
    bool choose(const std::function<void(QFileDialog&)>& answer)
    {
        whenOpen<QFileDialog>(answer);
        return app::choosePdfFile(nullptr, m_printer);
    }
    [[nodiscard]] const QPrinter& printer() const { return m_printer; }

private:
    QTemporaryDir m_folder;
    QPrinter m_printer;
};

} // namespace

TEST_F(APdfFile, isNamedByTheUser)
{
    QString offered;
    EXPECT_TRUE(choose([&](QFileDialog& dialog) {
        offered = dialog.selectedFiles().value(0);
        saveAs(dialog, path("couloir.pdf"));
    }));
    EXPECT_TRUE(offered.endsWith("/Occupation des Salles du Lundi.pdf")) << offered.toStdString();
    EXPECT_EQ(printer().outputFileName(), path("couloir.pdf"));
    EXPECT_EQ(printer().outputFormat(), QPrinter::PdfFormat);
}

TEST_F(APdfFile, canBeTurnedDown)
{
    EXPECT_FALSE(choose([](QFileDialog& dialog) { dialog.reject(); }));
    EXPECT_EQ(printer().outputFileName(), "");
}

TEST(ThePrintDialog, takesFilesHere)
{
    EXPECT_TRUE(app::printDialogTakesFiles());
}
