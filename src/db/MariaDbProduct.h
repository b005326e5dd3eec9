#pragma once

#include "db/Product.h"

namespace db
{

class ConnectionHandle;

/// MariaDB and MySQL, whichever of their drivers leads there.
class MariaDbProduct : public Product
{
public:
    /// What the server says of itself; of one that does not answer neither is known.
    struct Server {
        /// The bytes in which it sends texts are UTF-8. The driver spends most of a fetch on
        /// turning them into UTF-16, text by text.
        bool sendsUtf8 = false;
        bool isMariaDb = false;       ///< and not MySQL, whatever the driver
        bool backslashEscapes = true; ///< within a literal, as it does unless told otherwise
    };

    explicit MariaDbProduct(const Server& server) : m_server(server) {}

    /// Asks the server behind an open connection, and tells it in which character set the driver
    /// speaks where somebody else has told it another one (its `init_connect`).
    [[nodiscard]] static Server serverBehind(const ConnectionHandle& connection);

    /// Makes the server give up waiting for a lock before the program gives up waiting for it.
    void beforeWriting(Session& session) const override;
    [[nodiscard]] bool waitsForLocks() const override { return true; }
    [[nodiscard]] runtime::ErrorNumber errorNumberOf(const Diagnostics& diagnostics) const override;
    [[nodiscard]] Failure failureOf(const Diagnostics& diagnostics) const override;

    /// Its own, whatever the settings say of the data source.
    [[nodiscard]] SqlDialect dialect(const SqlDialect& bySetting) const override;
    /// As it is. Error: Refused, without a call, for a statement with a per cent sign that a name
    /// has broken up: the message that it failed with would quote it, and the driver's library
    /// takes messages for formats: "%n" ends the program, others read memory that is not theirs.
    [[nodiscard]] QString adapted(const QString& sql) const override;
    /// By one statement, so that two programs never delete the same row. Not through the cursor:
    /// the driver then looks for a row with the same text in every column, which finds none where a
    /// BIT is set or a number is real, and reports success.
    bool deleteFirst(const QString& sql, Session& session) const override;

    [[nodiscard]] SQLSMALLINT cTypeOf(SQLSMALLINT type) const override;
    /// The text between the literal's quotes: a date column reads it as the literal is read, a text
    /// column keeps it.
    [[nodiscard]] Value dateToWrite(QDate date, const ColumnName& column,
                                    Session& session) const override;

    [[nodiscard]] std::optional<Packing> packing() const override { return Packing::Separated; }
    [[nodiscard]] std::optional<QStringList>
    equalTextsSql(const std::vector<TextQuestion>& questions, TextColumns columns) const override;
    [[nodiscard]] QString textCountsSql(const std::vector<CountQuestion>& questions,
                                        const QStringList& literals) const override;

    [[nodiscard]] AccessPaths accessPaths(const QString& sql, Session& session) const override;
    [[nodiscard]] bool tellsOnlyPaths() const override { return true; }

private:
    Server m_server;
};

} // namespace db
