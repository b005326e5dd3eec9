#pragma once

#include <sys/resource.h>

namespace test
{

/// While it exists, no file of this process grows beyond some bytes, as on a disk that is full.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes = 2000);
    ~FullDisk();
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_before{};
    void (*m_handlerBefore)(int);
};

} // namespace test
