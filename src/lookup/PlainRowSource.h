#pragma once

#include "db/Database.h"
#include "lookup/RowSource.h"

namespace lookup
{

/// Sends one statement per question: the reference that any faster source is judged by.
class PlainRowSource : public RowSource
{
public:
    explicit PlainRowSource(db::Database& database) : m_database(database) {}

    [[nodiscard]] db::Recordset timetableRows(const RoomQuestion& question) override;
    [[nodiscard]] int studentRows(const QString& className) override;
    [[nodiscard]] db::Recordset classRows(const QString& className) override;

private:
    db::Database& m_database;
};

} // namespace lookup
