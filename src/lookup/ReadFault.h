#pragma once

#include "db/DatabaseError.h"

#include <QString>

namespace lookup
{

/// A question of the plan that got no answer.
struct ReadFault {
    /// The name that a statement cannot hold between its quotes; empty where the database failed.
    QString name;
    /// What the database, its driver or the way there say.
    QString text;
    db::Failure failure = db::Failure::Other;

    friend bool operator==(const ReadFault&, const ReadFault&) = default;
};

} // namespace lookup
