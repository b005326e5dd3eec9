#pragma once

#include <QByteArrayView>
#include <QString>

namespace fuzz
{

/// A file that lies in memory and leaves nothing behind: for readers that want a path.
class MemoryFile
{
public:
    MemoryFile();
    ~MemoryFile();
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    /// Replaces what it holds. Its time of change is another one each time, so that nobody takes
    /// it for what he has read before.
    void write(QByteArrayView bytes);
    [[nodiscard]] const QString& path() const { return m_path; }

private:
    int m_descriptor;
    QString m_path;
    qint64 m_writes = 0;
};

} // namespace fuzz
