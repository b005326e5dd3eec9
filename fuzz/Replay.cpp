// In the place of a fuzzer, where there is none: runs every file of the given folders once.
#include "fuzz/Input.h"

#include <QDirIterator>
#include <QFile>
#include <cstdio>

int main(int argc, char** argv)
{
    int runs = 0;
    for (int argument = 1; argument < argc; ++argument) {
        QDirIterator files(QString::fromLocal8Bit(argv[argument]), QDir::Files);
        while (files.hasNext()) {
            QFile file(files.next());
            if (!file.open(QIODevice::ReadOnly)) {
                std::fprintf(stderr, "%s cannot be read\n", qUtf8Printable(file.fileName()));
                return 1;
            }
            std::printf("%s\n", qUtf8Printable(file.fileName()));
            std::fflush(stdout); // the last line names what a fault comes from
            const QByteArray bytes = file.readAll();
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                                   static_cast<std::size_t>(bytes.size()));
            ++runs;
        }
    }
    if (runs == 0) {
        std::fprintf(stderr, "There is nothing to run.\n");
        return 1;
    }
    return 0;
}
