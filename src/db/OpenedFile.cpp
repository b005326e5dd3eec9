#include "db/OpenedFile.h"

#include <QDateTime>
#include <QFileInfo>
#include <utility>

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
    state.identity = fileIdentity(path);
    state.size = file.size();
    state.written = file.lastModified().toMSecsSinceEpoch();
    return state;
}

} // namespace db
