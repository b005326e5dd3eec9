#pragma once

#include "db/DatabaseError.h"
#include "db/OdbcApi.h"

#include <QString>

namespace db
{

/// The driver's answer to a failing call.
struct Diagnostics {
    QString state; ///< SQLSTATE of the first record, five characters; empty without a record
    int nativeCode = 0;
    QString text; ///< The texts of all records, a line each
};

/// What the driver and the driver manager say about the last call on a handle, `type` being
/// SQL_HANDLE_….
[[nodiscard]] Diagnostics diagnosticsOf(SQLSMALLINT type, SQLHANDLE handle, TextForm form);

/// The run-time error that a failing call amounts to by its SQLSTATE alone, as ODBC defines it;
/// products know more (Product::errorNumberOf).
[[nodiscard]] runtime::ErrorNumber errorNumberByState(const Diagnostics& diagnostics);

/// What a failing call on an open connection amounts to by its SQLSTATE alone; products know more
/// (Product::failureOf).
[[nodiscard]] Failure failureByState(const Diagnostics& diagnostics);

} // namespace db
