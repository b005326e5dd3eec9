// The tests of the gestures: on a real X server. Asked for another window, the program is another
// one of the user's beside the tested one.

#include "support/ScreenMain.h"

#include <QWidget>
#include <cstring>

namespace
{

constexpr const char* otherWindow = "--other-window";

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
    if (argc > 1 && std::strcmp(argv[1], otherWindow) == 0) {
        return showOtherWindow(argc, argv);
    }
    return test::runAllTestsOnAScreen(argc, argv, {1366, 768});
}
