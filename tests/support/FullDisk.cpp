#include "support/FullDisk.h"

#include <csignal>

namespace test
{

FullDisk::FullDisk(rlim_t bytes)
    : m_handlerBefore(std::signal(SIGXFSZ, SIG_IGN)) // a write fails instead
{
    getrlimit(RLIMIT_FSIZE, &m_before);
    const rlimit limit{bytes, m_before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
}

FullDisk::~FullDisk()
{
    setrlimit(RLIMIT_FSIZE, &m_before);
    std::signal(SIGXFSZ, m_handlerBefore);
}

} // namespace test
