#pragma once

#include "runtime/RunTimeError.h"

#include <QString>
#include <utility>

namespace db
{

/// What became of a call to the database, as far as somebody can act on it.
enum class Failure {
    Refused,        ///< understood and turned down: a wrong word, a missing column or right
    TableMissing,   ///< there is no such table
    RolledBack,     ///< a deadlock: nothing was done, and asked again it may be
    Locked,         ///< somebody else held what was asked for, for too long
    NoAnswer,       ///< the time for an answer ran out
    ConnectionLost, ///< the open connection is gone; a new one may serve
    Unreachable,    ///< no connection could be opened
    Other,          ///< a damaged file, a full disk, a fault of the driver
};

/// Whether a read that failed so need not be tried with other words: nothing would be answered.
[[nodiscard]] bool concernsAllReads(Failure failure);

/// What failed, as the rest of a sentence in French: "la connexion à la base de données est
/// coupée".
[[nodiscard]] QString failureWords(Failure failure);

/// What became of the call that raised an error: of one that says nothing more, by its number.
[[nodiscard]] Failure failureOf(const runtime::RunTimeError& error);

/// A run-time error that the database, its driver or the way there has raised.
class DatabaseError : public runtime::RunTimeError
{
public:
    DatabaseError(Failure failure, runtime::ErrorNumber number, const QString& text);

    [[nodiscard]] Failure failure() const { return m_failure; }

private:
    Failure m_failure;
};

/// What a statement is refused with that is known to be none, because a name cannot stand between
/// its quotes as it is.
[[nodiscard]] DatabaseError nameRefused();

/// Runs `step` and skips it when the database turns it down. What concerns all reads is raised.
/// Tells whether it succeeded.
template <typename Step>
bool skipWhenRefused(Step&& step)
{
    try {
        std::forward<Step>(step)();
        return true;
    } catch (const runtime::RunTimeError& error) {
        if (concernsAllReads(failureOf(error))) {
            throw;
        }
        return false;
    }
}

} // namespace db
