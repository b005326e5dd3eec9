#include "app/ErrorReport.h"

#include "support/RuntimeMatchers.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

namespace
{

QString captured(const std::string& text)
{
    return QString::fromStdString(text);
}

const runtime::RunTimeError kFault(runtime::ErrorNumber::Overflow, "<b>Réserver</b>");

} // namespace

TEST(ErrorReport, writesWhatItIsGivenToStandardOutput)
{
    testing::internal::CaptureStdout();
    app::writeOutput("été, séance");
    EXPECT_EQ(captured(testing::internal::GetCapturedStdout()), "été, séance");
}

TEST(ErrorReport, endsALineOfStandardError)
{
    testing::internal::CaptureStderr();
    app::writeError("été");
    EXPECT_EQ(captured(testing::internal::GetCapturedStderr()), "été\n");
}

TEST(ErrorReport, isABoxThatShowsTheMessageAsItStandsAndALineOfStandardError)
{
    QString shown;
    QString beneath;
    Qt::TextFormat format = Qt::AutoText;
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        shown = box->text();
        beneath = box->informativeText();
        format = box->textFormat();
        for (const QLabel* label : box->findChildren<QLabel*>()) {
            EXPECT_TRUE(label->textFormat() == Qt::PlainText) << label->text().toStdString();
        }
        box->button(QMessageBox::Ok)->click();
    });
    testing::internal::CaptureStderr();
    app::reportRunTimeError(nullptr, kFault);
    EXPECT_EQ(captured(testing::internal::GetCapturedStderr()), kFault.message() + '\n');
    EXPECT_EQ(shown, "Un nombre est trop grand.");
    EXPECT_EQ(beneath, "Run-time error '6':\n\n<b>Réserver</b>");
    EXPECT_EQ(format, Qt::PlainText);
}
