#pragma once

#include "db/Database.h"

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace context
{

/// What start-up asks about rooms and slots. The plain way sends a statement for each question. The
/// other one sends one for all questions about a table, and the database itself tells which row
/// answers which; what that leaves open is asked in the plain way, so the answers are the same.
class StartReads
{
public:
    /// The database outlives this.
    StartReads(db::Database& database, bool plain) : m_database(database), m_plain(plain) {}

    /// Number of rooms of a zone; "0" stands for all zones. Error: any database error; so below.
    [[nodiscard]] int roomCount(const QString& zone);
    /// The rooms of a zone, by name.
    [[nodiscard]] db::Recordset roomsByName(const QString& zone);
    /// All rooms by name, when start-up has read just these; they are given once.
    [[nodiscard]] std::optional<db::Recordset> takeAllRooms();
    /// The slots with these keys: a record set for each, empty where the table has none.
    [[nodiscard]] std::vector<db::Recordset> slotsWithKeys(const QStringList& keys);

private:
    [[nodiscard]] db::Recordset slotWithKey(const QString& key);
    [[nodiscard]] std::vector<std::optional<db::Recordset>> slotsAtOnce(const QStringList& keys);

    db::Database& m_database;
    bool m_plain;
    std::optional<db::Recordset> m_rooms; ///< by name, of `m_zone`
    QString m_zone;
};

} // namespace context
