#include "db/DatabaseError.h"

namespace db
{

bool concernsAllReads(Failure failure)
{
    switch (failure) {
    case Failure::Refused:
    case Failure::TableMissing:
    case Failure::RolledBack:
        return false;
    case Failure::Locked:
    case Failure::NoAnswer:
    case Failure::ConnectionLost:
    case Failure::Unreachable:
    case Failure::Other:
        break;
    }
    return true;
}

Failure failureOf(const runtime::RunTimeError& error)
{
    if (const auto* told = dynamic_cast<const DatabaseError*>(&error)) {
        return told->failure();
    }
    switch (error.number()) {
    case runtime::ErrorNumber::DatabaseFailure:
        return Failure::Other;
    case runtime::ErrorNumber::TableMissing:
        return Failure::TableMissing;
    default:
        return Failure::Refused;
    }
}

} // namespace db
