#include "demo/Database.h"
#include "demo/Output.h"

#include <QFile>
#include <QSaveFile>
#include <cstdio>
#include <stdexcept>

namespace demo
{
namespace
{

void write(QIODevice& device, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    if (device.write(bytes) != bytes.size()) {
        throw std::runtime_error(device.errorString().toStdString());
    }
}

void writeScript(const FacultyOptions& options, QIODevice& device)
{
    write(device, "-- Tempora: a demo faculty. To be run in an empty database.\n"
                  "SET NAMES utf8mb4;\n");
    writeDatabase(options, Flavour::MariaDb,
                  [&](const QString& statement) { write(device, statement + ";\n"); });
}

} // namespace

void writeMariaDbScript(const FacultyOptions& options, const QString& path)
{
    if (path == "-") {
        QFile output;
        if (!output.open(stdout, QIODevice::WriteOnly)) {
            throw std::runtime_error(output.errorString().toStdString());
        }
        writeScript(options, output);
        if (!output.flush() || std::ferror(stdout) != 0) {
            throw std::runtime_error("the standard output takes no more");
        }
        return;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        throw std::runtime_error(file.errorString().toStdString());
    }
    writeScript(options, file);
    if (!file.commit()) {
        throw std::runtime_error(file.errorString().toStdString());
    }
}

} // namespace demo
