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

/// The way of one line of MariaDB's answer; empty when it is of another kind.
QString mySqlAccessPath(const Row& line)
{
    if (!isPlainWalk(textOf(line, QStringLiteral("Extra")))) {
        return {};
    }
    QString type = textOf(line, QStringLiteral("type"));
    if (type == u"ALL") {
        return type;
    }
    // With "in" the walk is a "range" of several points, with "=" it is a "ref" of one.
    return type == u"ref" || type == u"range" ? textOf(line, QStringLiteral("key")) + u' ' +
                                                    textOf(line, QStringLiteral("key_len"))
                                              : QString();
}

} // namespace

std::optional<QStringList> sqliteAccessPaths(const Recordset& explained)
{
    QStringList paths;
    for (const Row& line : explained.rows()) {
        const QString detail = textOf(line, QStringLiteral("detail"));
        if (detail.startsWith(u"SEARCH ") || detail.startsWith(u"SCAN ")) {
            paths << detail;
        } else if (detail != u"COMPOUND QUERY" && detail != u"LEFT-MOST SUBQUERY" &&
                   detail != u"UNION ALL") {
            return std::nullopt; // rows gathered by several indexes, for one
        }
    }
    return paths;
}

std::optional<QStringList> mySqlAccessPaths(const Recordset& explained)
{
    QStringList paths;
    for (const Row& line : explained.rows()) {
        paths << mySqlAccessPath(line);
        if (paths.last().isEmpty()) {
            return std::nullopt;
        }
    }
    return paths;
}

} // namespace db
