#pragma once

// The ODBC C API, for the sources of this layer only.

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h> // sql.h needs its types
#endif

// Without it the header would turn every narrow function's name into that of the wide one.
#ifndef SQL_NOUNICODEMAP
#define SQL_NOUNICODEMAP
#endif
#include <sql.h>
#include <sqlext.h>

#include <QString>

namespace db
{

static_assert(sizeof(SQLWCHAR) == sizeof(char16_t),
              "a QString's UTF-16 passes to the wide API as it is");

/// How texts pass to and from a driver.
enum class TextForm {
    Utf16, ///< Through the wide API
    Utf8,  ///< Through the narrow API, which the driver reads as UTF-8
};

} // namespace db
