#include "demo/Output.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <cstdio>
#include <stdexcept>

namespace
{

using demo::FacultyOptions;
using demo::SizeOption;

/// A mistake on the command line: exit code 2.
struct UsageError {
    QString text;
};

void printLine(std::FILE* stream, const QString& text)
{
    std::fprintf(stream, "%s\n", text.toUtf8().constData());
}

void addOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        "Makes the database of a demo faculty. The same options give the same data.");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption({"sqlite", "Write an SQLite database file.", "FILE"});
    parser.addOption({"mariadb-script",
                      "Write a script for an empty MariaDB or MySQL database (- for standard "
                      "output).",
                      "FILE"});
    parser.addOption({"size", "Start from a small, middle or large faculty.", "SIZE"});
    for (const SizeOption& size : demo::sizeOptions()) {
        parser.addOption({size.name,
                          QString("Number of %1, %2 to %3.")
                              .arg(QLatin1String(size.name))
                              .arg(size.least)
                              .arg(size.most),
                          "N"});
    }
    parser.addOption({"seed", "Another faculty of the same kind (1 if not given).", "N"});
    parser.addOption(
        {"date", "The day around which the faculty lives (today if not given).", "YYYY-MM-DD"});
}

QDate readDate(const QCommandLineParser& parser)
{
    if (!parser.isSet("date")) {
        return QDate::currentDate();
    }
    const QDate date = QDate::fromString(parser.value("date"), "yyyy-MM-dd");
    if (!date.isValid()) {
        throw UsageError{"--date accepts a date written YYYY-MM-DD"};
    }
    return date;
}

FacultyOptions sizeNamed(const QString& name, QDate date)
{
    if (name == "small") {
        return demo::smallFaculty(date);
    }
    if (name == "middle") {
        return demo::middleFaculty(date);
    }
    if (name == "large") {
        return demo::largeFaculty(date);
    }
    throw UsageError{"--size accepts small, middle or large"};
}

FacultyOptions readFaculty(const QCommandLineParser& parser)
{
    FacultyOptions options;
    options.reference = readDate(parser);
    if (parser.isSet("size")) {
        options = sizeNamed(parser.value("size"), options.reference);
    }
    for (const SizeOption& size : demo::sizeOptions()) {
        if (parser.isSet(size.name)) {
            bool isNumber = false;
            const int value = parser.value(size.name).toInt(&isNumber);
            if (!isNumber || value < size.least || value > size.most) {
                throw UsageError{QString("--%1 accepts %2 to %3")
                                     .arg(QLatin1String(size.name))
                                     .arg(size.least)
                                     .arg(size.most)};
            }
            options.*size.value = value;
        }
    }
    if (parser.isSet("seed")) {
        bool isNumber = false;
        options.seed = parser.value("seed").toUInt(&isNumber);
        if (!isNumber) {
            throw UsageError{"--seed accepts 0 to 4294967295"};
        }
    }
    return options;
}

void readAndWrite(const QCommandLineParser& parser)
{
    const bool sqlite = parser.isSet("sqlite");
    if (!parser.positionalArguments().isEmpty()) {
        throw UsageError{"unexpected argument: " + parser.positionalArguments().first()};
    }
    if (sqlite == parser.isSet("mariadb-script")) {
        throw UsageError{"either --sqlite FILE or --mariadb-script FILE must be given"};
    }
    const FacultyOptions options = readFaculty(parser);
    try {
        demo::check(options);
    } catch (const std::invalid_argument& error) {
        throw UsageError{QString::fromUtf8(error.what())};
    }
    if (sqlite) {
        demo::writeSqliteFile(options, parser.value("sqlite"));
    } else {
        demo::writeMariaDbScript(options, parser.value("mariadb-script"));
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName("tempora-demo");
    QCoreApplication::setApplicationVersion(TEMPORA_VERSION);
    QCommandLineParser parser;
    addOptions(parser);
    try {
        if (!parser.parse(QCoreApplication::arguments())) {
            throw UsageError{parser.errorText()};
        }
        if (parser.isSet("help")) {
            parser.showHelp();
        }
        if (parser.isSet("version")) {
            parser.showVersion();
        }
        readAndWrite(parser);
        return 0;
    } catch (const UsageError& error) {
        printLine(stderr, "tempora-demo: " + error.text);
        return 2;
    } catch (const std::exception& error) {
        const QString path =
            parser.isSet("sqlite") ? parser.value("sqlite") : parser.value("mariadb-script");
        printLine(stderr,
                  "tempora-demo: cannot write " + path + ": " + QString::fromUtf8(error.what()));
        return 1;
    }
}
