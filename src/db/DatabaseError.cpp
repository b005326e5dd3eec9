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

DatabaseError nameRefused()
{
    return {Failure::Refused, runtime::ErrorNumber::StatementRefused,
            QStringLiteral("The name cannot stand between quotes as it is.")};
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

QString failureWords(Failure failure)
{
    switch (failure) {
    case Failure::Unreachable:
        return QStringLiteral("la base de données ne s’ouvre pas");
    case Failure::ConnectionLost:
        return QStringLiteral("la connexion à la base de données est coupée");
    case Failure::NoAnswer:
        return QStringLiteral("la base de données ne répond pas");
    case Failure::Locked:
        return QStringLiteral("un autre programme tient la base de données verrouillée");
    case Failure::TableMissing:
        return QStringLiteral("une table manque dans la base de données");
    case Failure::Refused:
    case Failure::RolledBack:
        return QStringLiteral("la base de données refuse une demande");
    case Failure::Other:
        break;
    }
    return QStringLiteral("la base de données ne se laisse pas lire ou modifier");
}

DatabaseError::DatabaseError(Failure failure, runtime::ErrorNumber number, const QString& text)
    : RunTimeError(number, text), m_failure(failure)
{
    explain(failureWords(failure));
}

} // namespace db
