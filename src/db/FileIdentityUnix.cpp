#include "db/FileIdentity.h"

#include <QFile>
#include <sys/stat.h>

namespace db
{

FileIdentity fileIdentity(const QString& path)
{
    struct stat facts = {};
    if (stat(QFile::encodeName(path).constData(), &facts) != 0) {
        return {};
    }
    return {facts.st_dev, facts.st_ino};
}

} // namespace db
