#include "support/TestMain.h"

#include <QGuiApplication>

int main(int argc, char** argv)
{
    return test::runAllTests<QGuiApplication>(argc, argv);
}
