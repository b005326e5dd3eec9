#include "support/ProcessLife.h"

#include <cerrno>
#include <csignal>

namespace test
{

bool isAlive(qint64 processId)
{
    return kill(static_cast<pid_t>(processId), 0) == 0 || errno == EPERM;
}

} // namespace test
