#include "support/WithoutPrivileges.h"

#include <array>
#include <linux/capability.h>
#include <stdexcept>
#include <sys/syscall.h>
#include <unistd.h>

namespace test
{
namespace
{

/// The kernel's two words of capabilities; those that pass over permissions are in the first.
using Capabilities = std::array<__user_cap_data_struct, 2>;

bool call(long number, Capabilities& capabilities)
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    return syscall(number, &header, capabilities.data()) == 0;
}

} // namespace

WithoutPrivileges::WithoutPrivileges()
{
    Capabilities capabilities{};
    bool ok = call(SYS_capget, capabilities);
    m_effectiveBefore = capabilities[0].effective;
    constexpr std::uint32_t passingOver = (1U << CAP_DAC_OVERRIDE) | (1U << CAP_DAC_READ_SEARCH);
    capabilities[0].effective &= ~passingOver;
    ok = ok && call(SYS_capset, capabilities);
    if (!ok) {
        throw std::runtime_error("the kernel refuses to change the capabilities");
    }
}

WithoutPrivileges::~WithoutPrivileges()
{
    Capabilities capabilities{};
    call(SYS_capget, capabilities);
    capabilities[0].effective = m_effectiveBefore;
    call(SYS_capset, capabilities);
}

} // namespace test
