#include "db/AccessPaths.h"

#include <algorithm>

namespace db
{
namespace
{

QString textOf(const Row& row, const QString& column)
{
    return row.field(column).toJoinedText();
}

/// Whether the remarks say nothing about an order of the walk's own.
bool isPlainWalk(const QString& remarks)
{
    const QStringList parts = remarks.split(QStringLiteral("; "), Qt::SkipEmptyParts);
    return std::all_of(parts.begin(), parts.end(), [](const QString& part) {
        return part == u"Using where" || part == u"Using index condition";
    });
}

/// The way of one line of MariaDB's answer; nothing when it is of another kind.
std::optional<AccessPath> mySqlAccessPath(const Row& line)
{
    const QString type = textOf(line, QStringLiteral("type"));
    const QString key = textOf(line, QStringLiteral("key"));
    const bool isOnlyWay = textOf(line, QStringLiteral("possible_keys")) == key;
    if (!isPlainWalk(textOf(line, QStringLiteral("Extra")))) {
        return std::nullopt;
    }
    if (type == u"ALL") {
        return AccessPath{type, isOnlyWay};
    }
    // With "in" the walk is a "range" of several points, with "=" it is a "ref" of one.
    if (type == u"ref" || type == u"range") {
        return AccessPath{key + u' ' + textOf(line, QStringLiteral("key_len")), isOnlyWay};
    }
    return std::nullopt;
}

} // namespace

AccessPaths sqliteAccessPaths(const Recordset& explained)
{
    std::vector<AccessPath> paths;
    for (const Row& line : explained.rows()) {
        const QString detail = textOf(line, QStringLiteral("detail"));
        if (detail.contains(QLatin1String("COVERING INDEX"))) {
            return std::nullopt;
        }
        if (detail.startsWith(u"SEARCH ") || detail.startsWith(u"SCAN ")) {
            paths.push_back({detail, false});
        } else if (detail != u"COMPOUND QUERY" && detail != u"LEFT-MOST SUBQUERY" &&
                   detail != u"UNION ALL") {
            return std::nullopt; // rows gathered by several indexes, for one
        }
    }
    return paths;
}

AccessPaths mySqlAccessPaths(const Recordset& explained)
{
    std::vector<AccessPath> paths;
    for (const Row& line : explained.rows()) {
        const std::optional<AccessPath> path = mySqlAccessPath(line);
        if (!path) {
            return std::nullopt;
        }
        paths.push_back(*path);
    }
    return paths;
}

} // namespace db
