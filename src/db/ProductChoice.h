#pragma once

#include "db/Product.h"

#include <memory>

namespace db
{

class ConnectionHandle;

/// The product behind an open connection, by what its driver calls it; AccessProduct for a name
/// that says nothing. A server is asked about itself.
[[nodiscard]] std::unique_ptr<const Product> productBehind(const ConnectionHandle& connection);

} // namespace db
