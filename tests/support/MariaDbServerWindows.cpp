#include "support/MariaDbServer.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace test
{

/// The one that whoever runs the tests has started, and told of as TEMPORA_MARIADB_PORT.
const MariaDbAccess& MariaDbServer::shared()
{
    static const int port = qEnvironmentVariableIntValue("TEMPORA_MARIADB_PORT");
    if (port == 0) {
        throw std::runtime_error("TEMPORA_MARIADB_PORT names no server");
    }
    static const MariaDbAccess server(static_cast<quint16>(port));
    return server;
}

} // namespace test
