#pragma once

#include <QString>
#include <cstdint>

namespace db
{

/// What tells a file from another one that has taken its name.
struct FileIdentity {
    std::uint64_t device = 0;
    std::uint64_t number = 0; ///< on its device
    friend bool operator==(const FileIdentity&, const FileIdentity&) = default;
};

/// The identity of the file of that name; that of no file where the system does not tell, or where
/// a file that is open cannot lose its name.
[[nodiscard]] FileIdentity fileIdentity(const QString& path);

} // namespace db
