// The tests of the window: on a real X server.

#include "app/Application.h"
#include "support/ScreenMain.h"

int main(int argc, char** argv)
{
    return test::runAllTestsOnAScreen<app::Application>(argc, argv, {1920, 1080}, [] {
        QApplication::setStyle("Fusion"); // as the program does
        // Two clicks of a test never mean a double click.
        QApplication::setDoubleClickInterval(1);
    });
}
