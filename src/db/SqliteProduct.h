#pragma once

#include "db/OpenedFile.h"
#include "db/Product.h"

namespace db
{

class ConnectionHandle;

/// SQLite, the embedded database: a file behind a driver, without a server.
class SqliteProduct : public Product
{
public:
    /// `file` is the one that the driver has opened.
    explicit SqliteProduct(OpenedFile file = {}) : m_file(std::move(file)) {}
    /// The file that is open behind the connection; none where it does not say.
    [[nodiscard]] static OpenedFile fileBehind(const ConnectionHandle& connection);

    /// With limits (see withFileLimits), where the driver's name has not told that it is SQLite's.
    [[nodiscard]] std::optional<QString>
    reconnectString(const QString& connectString) const override;
    [[nodiscard]] TextForm textForm() const override;
    [[nodiscard]] runtime::ErrorNumber errorNumberOf(const Diagnostics& diagnostics) const override;
    [[nodiscard]] Failure failureOf(const Diagnostics& diagnostics) const override;
    /// Once the file is deleted, replaced or written: the driver notices other programs that write
    /// with SQLite, and none that copies a file into its place.
    [[nodiscard]] bool isOutdated() const override { return m_file.hasChanged(); }

    /// That of the setting, whose literals are adapted; a backslash is one.
    [[nodiscard]] SqlDialect dialect(const SqlDialect& bySetting) const override
    {
        return bySetting.withoutBackslashes();
    }
    [[nodiscard]] QString adapted(const QString& sql) const override;
    /// By the row's identity, which every row has: the driver cannot delete through a cursor.
    /// Error: DatabaseFailure when other programs go on deleting what was found.
    bool deleteFirst(const QString& sql, Session& session) const override;

    /// Always text: SQLite keeps the type of the value and not that of the column.
    [[nodiscard]] SQLSMALLINT cTypeOf(SQLSMALLINT type) const override;
    /// The very text that the literal becomes: no column of SQLite makes a date of it.
    [[nodiscard]] Value dateToWrite(QDate date, const ColumnName& column,
                                    Session& session) const override;

    /// With the likelihood: SQLite takes the rows of a condition for few, and looks up each by
    /// itself where a scan of the table is quicker.
    [[nodiscard]] QString metByMost(const QString& condition) const override;
    [[nodiscard]] std::optional<Packing> packing() const override { return Packing::Json; }
    [[nodiscard]] std::optional<QStringList>
    equalTextsSql(const std::vector<TextQuestion>& questions, TextColumns columns) const override;
    [[nodiscard]] QString spelledCountsSql(const std::vector<CountQuestion>& questions,
                                           const QStringList& literals) const override;
    [[nodiscard]] QString textCountsSql(const std::vector<CountQuestion>& questions,
                                        const QStringList& literals) const override;

    [[nodiscard]] bool joinedQueriesKeepOrder() const override { return true; }
    [[nodiscard]] AccessPaths accessPaths(const QString& sql, Session& session) const override;

private:
    OpenedFile m_file;
};

} // namespace db
