#pragma once

#include <QString>
#include <cstdio>
#include <cstdlib>

namespace fuzz
{

/// Ends the program when a property does not hold, and says which and of what.
inline void require(bool holds, const char* property, const QString& shown = {},
                    const QString& other = {})
{
    if (holds) {
        return;
    }
    std::fprintf(stderr, "Not so: %s\n  %s\n  %s\n", property, qUtf8Printable(shown),
                 qUtf8Printable(other));
    std::abort();
}

} // namespace fuzz
