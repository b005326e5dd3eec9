#include "support/TestMain.h"

#include <QCoreApplication>

int main(int argc, char** argv)
{
    return test::runAllTests<QCoreApplication>(argc, argv);
}
