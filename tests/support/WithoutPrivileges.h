#pragma once

#include <cstdint>

namespace test
{

/// While it exists, the permissions of files bind the calling thread as they bind an ordinary user,
/// even when the tests are run by root.
class WithoutPrivileges
{
public:
    WithoutPrivileges();
    ~WithoutPrivileges();
    WithoutPrivileges(const WithoutPrivileges&) = delete;
    WithoutPrivileges& operator=(const WithoutPrivileges&) = delete;

private:
    std::uint32_t m_effectiveBefore = 0;
};

} // namespace test
