#pragma once

#include <functional>

namespace db
{

/// Runs a call into the driver that may take long, for a server, a lock or a slow disk, and returns
/// when the call has. It may run it on another thread, but never two calls at once. The call raises
/// nothing.
using Await = std::function<void(const std::function<void()>& call)>;

/// Runs the call as it comes.
inline void awaitHere(const std::function<void()>& call)
{
    call();
}

} // namespace db
