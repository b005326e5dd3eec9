#pragma once

#include "db/FileIdentity.h"

#include <QString>
#include <cstdint>

namespace db
{

/// A file that a driver holds open, as it was then.
class OpenedFile
{
public:
    /// Of no file: it never changes.
    OpenedFile() = default;
    /// `path`: where it stands now; empty for none.
    explicit OpenedFile(QString path);

    /// Whether the file of that name is not the one that was opened, or was written since. A driver
    /// reads on in a file that has lost its name, and trusts what it remembers of one whose content
    /// was copied over.
    [[nodiscard]] bool hasChanged() const;

private:
    /// What tells it from other files and from itself in another state.
    struct State {
        FileIdentity identity;
        std::int64_t size = -1;   ///< in bytes; -1 without a file
        std::int64_t written = 0; ///< in milliseconds since 1970
        friend bool operator==(const State&, const State&) = default;
    };
    [[nodiscard]] static State stateOf(const QString& path);

    QString m_path;
    State m_state;
};

} // namespace db
