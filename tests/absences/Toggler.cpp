#include "AbsenceTables.h"
#include "absences/AbsenceRecords.h"

#include <QCoreApplication>
#include <iostream>
#include <string>

// A program that toggles the absence of one class again and again:
//   absence_toggler sqlite|mariaDb CONNECTSTRING class|students CLASS COUNT
// It says "ready" when it is connected, waits for a line of input, and then writes what it is told
// at every toggle: "+" for a record added, "-" for one removed. A run-time error ends it with exit
// code 1 and the message on standard error.

namespace
{

void toggle(const QStringList& arguments)
{
    const bool ofStudents = arguments.at(3) == u"students";
    const QString& className = arguments.at(4);
    db::Database database(arguments.at(1) == u"mariaDb");
    database.open(arguments.at(2));
    absences::AbsenceRecords records(database);
    plan::Marqueur marker = test::lesson(className);
    std::cout << "ready" << std::endl;
    std::string line;
    std::getline(std::cin, line);
    for (int i = 0; i < arguments.at(5).toInt(); ++i) {
        if (ofStudents) {
            records.Basculer_AbsEtud(marker, className, className);
        } else {
            records.Basculer_AbsClasse(marker, className);
        }
        std::cout << (marker.AbsClasse || marker.AbsEtud ? "+" : "-") << std::endl;
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    try {
        toggle(QCoreApplication::arguments());
    } catch (const runtime::RunTimeError& error) {
        std::cerr << error.message().toStdString() << std::endl;
        return 1;
    }
    return 0;
}
