#include "db/OpenedFile.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <utility>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace db
{

OpenedFile::OpenedFile(QString path) : m_path(std::move(path)), m_state(stateOf(m_path)) {}

bool OpenedFile::hasChanged() const
{
    return !m_path.isEmpty() && stateOf(m_path) != m_state;
}

OpenedFile::State OpenedFile::stateOf(const QString& path)
{
    State state;
    const QFileInfo file(path);
    if (!file.exists()) {
        return state;
    }
#ifndef _WIN32
    struct stat facts = {};
    if (stat(QFile::encodeName(path).constData(), &facts) == 0) {
        state.device = facts.st_dev;
        state.number = facts.st_ino;
    }
#endif
    state.size = file.size();
    state.written = file.lastModified().toMSecsSinceEpoch();
    return state;
}

} // namespace db
