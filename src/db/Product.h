#pragma once

#include "db/AccessPath.h"
#include "db/Diagnostics.h"
#include "db/EqualTextsSql.h"
#include "db/OdbcApi.h"
#include "db/PackedRow.h"
#include "db/SqlDialect.h"
#include "db/TextCountsSql.h"
#include "db/Value.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace db
{

class Session;

/// A column as a statement names it.
struct ColumnName {
    QString table;
    QString column;
};

/// All in which one database product differs from another. A connection has one such object, chosen
/// once its driver has told who it is (see ProductChoice.h); nobody else asks which product it is.
/// The answers given here are those of a product that does as ODBC says and nothing else.
class Product
{
public:
    Product() = default;
    virtual ~Product() = default;
    Product(const Product&) = delete;
    Product& operator=(const Product&) = delete;

    // Connecting

    /// What to connect with once more, now that the driver is known: no other may be given words
    /// that only this one understands. Nothing where the connection serves as it is.
    [[nodiscard]] virtual std::optional<QString>
    reconnectString(const QString& connectString) const;
    [[nodiscard]] virtual TextForm textForm() const { return TextForm::Utf16; }
    /// The run-time error that a failing call on the open connection amounts to.
    [[nodiscard]] virtual runtime::ErrorNumber errorNumberOf(const Diagnostics& diagnostics) const;
    /// Whether the connection may tell what is so no longer, whatever the driver says of it.
    [[nodiscard]] virtual bool isOutdated() const { return false; }
    /// What became of that call.
    [[nodiscard]] virtual Failure failureOf(const Diagnostics& diagnostics) const;

    // Statements

    /// What a connection needs once, before its first write.
    virtual void beforeWriting(Session& session) const;
    /// Whether a write then waits for another program's lock for as long as a user can be kept
    /// waiting; else it is repeated.
    [[nodiscard]] virtual bool waitsForLocks() const { return false; }
    /// How dates are written into statements; `bySetting` is the dialect that the settings choose.
    [[nodiscard]] virtual SqlDialect dialect(const SqlDialect& bySetting) const;
    /// The statement in the product's own words, where it does not know those of Access.
    [[nodiscard]] virtual QString adapted(const QString& sql) const;
    /// Deletes the first row that the query finds, and no other, even of identical ones. `sql` is a
    /// "select * from" one table. Tells whether there was a row.
    virtual bool deleteFirst(const QString& sql, Session& session) const = 0;

    // Values

    /// What a field is read as (SQL_C_…), by the type that the driver gives for its column (SQL_…).
    [[nodiscard]] virtual SQLSMALLINT cTypeOf(SQLSMALLINT type) const = 0;
    /// What is written into the column for this date, so that the dialect's literal finds it,
    /// whatever the column's type. Error: any that asking for the type raises.
    [[nodiscard]] virtual Value dateToWrite(QDate date, const ColumnName& column,
                                            Session& session) const = 0;

    // What not every product knows

    /// The condition, with a hint that most rows meet it where the product would take them for few.
    [[nodiscard]] virtual QString metByMost(const QString& condition) const;
    /// How rows can arrive as one text each; nothing where they cannot.
    [[nodiscard]] virtual std::optional<Packing> packing() const { return std::nullopt; }
    /// The statements that ask which texts are equal (see EqualTextsSql.h), none where that is
    /// known without; nothing where the product cannot be asked about columns turned into Unicode.
    [[nodiscard]] virtual std::optional<QStringList>
    equalTextsSql(const std::vector<TextQuestion>& questions, TextColumns columns) const = 0;

    /// The quick statement that counts them where rows spell the texts as they are given; empty
    /// where the product is asked whole at once.
    [[nodiscard]] virtual QString spelledCountsSql(const std::vector<CountQuestion>& questions,
                                                   const QStringList& literals) const;
    /// The statement that counts the rows that texts find (see TextCountsSql.h); empty where the
    /// product cannot be asked. The texts are given as literals.
    [[nodiscard]] virtual QString textCountsSql(const std::vector<CountQuestion>& questions,
                                                const QStringList& literals) const;

    // Queries joined by "union all"

    /// How many can be joined: SQLite takes 500, and none is known to take fewer.
    [[nodiscard]] virtual int mostJoined() const { return 450; }
    /// Whether each brings its rows in the order in which it would bring them alone, a view's
    /// "order by" included.
    [[nodiscard]] virtual bool joinedQueriesKeepOrder() const { return false; }
    /// The access path of each joined query, without running them; nothing where the product does
    /// not tell. Error: any database error.
    [[nodiscard]] virtual AccessPaths accessPaths(const QString& sql, Session& session) const;
    /// Whether an access path says that no other index could serve its query (isOnlyOne).
    [[nodiscard]] virtual bool tellsOnlyPaths() const { return false; }
};

} // namespace db
