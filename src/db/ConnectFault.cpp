#include "db/ConnectFault.h"

#include <algorithm>
#include <array>

namespace db
{
namespace
{

// The numbers by which MySQL and MariaDB servers and their client libraries tell why.
constexpr std::array kWrongAccount{1045, 1698};
constexpr std::array kUnknownBase{1049};
constexpr std::array kNoRightToBase{1044};
constexpr std::array kTooMany{1040, 1203, 1226};
constexpr std::array kNoServer{2002, 2003, 2005, 2013};

template <std::size_t Count>
bool isOneOf(const std::array<int, Count>& codes, int code)
{
    return std::find(codes.begin(), codes.end(), code) != codes.end();
}

} // namespace

QString connectFaultWords(const Diagnostics& diagnostics, const QString& driver)
{
    const QString& state = diagnostics.state;
    const int code = diagnostics.nativeCode;
    if (state == u"IM002" && driver.isEmpty()) {
        return QStringLiteral("la source de données ODBC n’existe pas sur cet ordinateur");
    }
    // The driver manager of other systems has no state of its own for a library that is missing.
    if (state.startsWith(u"IM0") || diagnostics.text.contains(u"Can't open lib")) {
        return QStringLiteral("le pilote ODBC de la base de données ne se charge pas");
    }
    if (state == u"28000" || isOneOf(kWrongAccount, code)) {
        return QStringLiteral("le serveur refuse le nom d’utilisateur ou le mot de passe");
    }
    if (isOneOf(kNoRightToBase, code)) {
        return QStringLiteral("ce compte n’a pas le droit d’ouvrir la base de données");
    }
    if (isOneOf(kUnknownBase, code)) {
        return QStringLiteral("le serveur n’a pas de base de données de ce nom");
    }
    if (isOneOf(kTooMany, code)) {
        return QStringLiteral("le serveur a déjà trop de connexions");
    }
    if (isOneOf(kNoServer, code)) {
        return QStringLiteral("le serveur de la base de données ne répond pas");
    }
    return QStringLiteral("la base de données ne s’ouvre pas");
}

} // namespace db
