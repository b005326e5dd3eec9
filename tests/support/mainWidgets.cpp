#include "support/TestMain.h"

#include <QApplication>

int main(int argc, char** argv)
{
    return test::runAllTests<QApplication>(argc, argv);
}
