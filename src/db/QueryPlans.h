#pragma once

#include "db/RowOrder.h"

#include <vector>

/// Tells by a database's query plans in which order rows come: queries with one access path read
/// their table in one order. Explaining a hundred joined queries costs a fraction of running them.
namespace db
{

class Session;

/// Where the rows of joined queries stand among those that each alone would bring.
[[nodiscard]] RowOrder joinedRowOrder(Session& session);
/// An answer for each, by one statement at most. Raises no error.
[[nodiscard]] std::vector<RowOrder> rowOrders(const std::vector<WideQuery>& queries,
                                              Session& session);

} // namespace db
