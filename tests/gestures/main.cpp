#include "support/TestMain.h"
#include "support/XSession.h"

#include <QApplication>
#include <QWidget>
#include <cstring>
#include <iostream>

// The program starts the screen and then itself once more, to run the tests there. Asked for
// another window, it is another program of the user's beside the tested one.

namespace
{

constexpr const char* onScreen = "--on-screen";
constexpr const char* otherWindow = "--other-window";

int runTestsOnAScreen(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const test::XSession session;
    qputenv("DISPLAY", session.display());
    qputenv("QT_QPA_PLATFORM", "xcb");
    QProcess tests;
    tests.setProcessChannelMode(QProcess::ForwardedChannels);
    tests.start(QCoreApplication::applicationFilePath(),
                QStringList{QString::fromLatin1(onScreen)} + QCoreApplication::arguments().mid(1));
    tests.waitForFinished(-1);
    return tests.exitStatus() == QProcess::NormalExit ? tests.exitCode() : 1;
}

/// A window in the screen's lower right corner, until its input ends.
int showOtherWindow(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("Un autre programme"));
    window.setGeometry(1150, 650, 200, 100);
    window.show();
    std::cout << "ready" << std::endl;
    // The parent ends the process.
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    const char* const role = argc > 1 ? argv[1] : "";
    if (std::strcmp(role, otherWindow) == 0) {
        return showOtherWindow(argc, argv);
    }
    if (std::strcmp(role, onScreen) == 0) {
        return test::runAllTests<QApplication>(argc, argv);
    }
    return runTestsOnAScreen(argc, argv);
}
