#include "db/AccessPath.h"

#include <algorithm>

namespace db
{
namespace
{

QString textOf(const Row& row, const QString& column)
{
    return row.field(column).toJoinedText();
}

/// Whether the remarks say nothing about sorted or gathered rows.
bool keepsOrder(const QString& remarks)
{
    const QStringList parts = remarks.split(QStringLiteral("; "), Qt::SkipEmptyParts);
    return std::all_of(parts.begin(), parts.end(), [](const QString& part) {
        return part == u"Using where" || part == u"Using index condition";
    });
}

/// The path that one line of MariaDB's answer tells; empty when it is of another kind. Partitions
/// of a table are read one after the other for one point of an index, but side by side for several.
QString mariaDbPath(const Row& line)
{
    QString type = textOf(line, QStringLiteral("type"));
    if (!keepsOrder(textOf(line, QStringLiteral("Extra"))) ||
        !textOf(line, QStringLiteral("partitions")).isEmpty()) {
        return {};
    }
    if (type == u"ALL") {
        return type;
    }
    // With "in" the path is a "range" of several points, with "=" it is a "ref" of one.
    return type == u"ref" || type == u"range" ? textOf(line, QStringLiteral("key")) + u' ' +
                                                    textOf(line, QStringLiteral("key_len"))
                                              : QString();
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
            paths.push_back({{}, detail, false});
        } else if (detail != u"COMPOUND QUERY" && detail != u"LEFT-MOST SUBQUERY" &&
                   detail != u"UNION ALL") {
            return std::nullopt; // rows gathered by several indexes, for one
        }
    }
    return paths;
}

AccessPaths mariaDbAccessPaths(const Recordset& explained)
{
    std::vector<AccessPath> paths;
    for (const Row& line : explained.rows()) {
        if (textOf(line, QStringLiteral("select_type")) == u"UNION RESULT") {
            continue; // reads no table
        }
        paths.push_back(
            {textOf(line, QStringLiteral("table")), mariaDbPath(line),
             textOf(line, QStringLiteral("possible_keys")) == textOf(line, QStringLiteral("key"))});
    }
    return paths;
}

} // namespace db
