#include "fuzz/MemoryFile.h"

#include "fuzz/Require.h"

#include <array>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fuzz
{

MemoryFile::MemoryFile()
    : m_descriptor(memfd_create("fuzz", MFD_CLOEXEC)),
      m_path(QStringLiteral("/proc/self/fd/%1").arg(m_descriptor))
{
    require(m_descriptor >= 0, "there is memory for a file");
}

MemoryFile::~MemoryFile()
{
    close(m_descriptor);
}

void MemoryFile::write(QByteArrayView bytes)
{
    constexpr qint64 perSecond = 1000; // nobody looks closer than at milliseconds
    constexpr qint64 nanoseconds = 1'000'000;
    ++m_writes;
    const timespec time{m_writes / perSecond, m_writes % perSecond * nanoseconds};
    const bool written = ftruncate(m_descriptor, 0) == 0 &&
                         pwrite(m_descriptor, bytes.data(), static_cast<std::size_t>(bytes.size()),
                                0) == bytes.size() &&
                         futimens(m_descriptor, std::array{time, time}.data()) == 0;
    require(written, "a file in memory can be written");
}

} // namespace fuzz
