#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <gtest/gtest.h>
#include <ostream>
#include <string>

namespace test
{

enum class DatabaseKind {
    Sqlite,
    MariaDb,
};

/// What the server grants to a program's account; an SQLite file grants everything.
enum class Rights {
    Marking, ///< reading everything, and adding to and deleting from the two tables of absences
    Reading, ///< reading alone
};

/// An empty database of its own, gone with the object. It is filled and read back with the
/// database's own command line client, which shares nothing with the program's access.
class TestDatabase
{
public:
    /// On the server that tests share (MariaDbServer::shared).
    /// Throws std::runtime_error when there is no database to be had.
    explicit TestDatabase(DatabaseKind kind);
    ~TestDatabase();
    TestDatabase(const TestDatabase&) = delete;
    TestDatabase& operator=(const TestDatabase&) = delete;

    [[nodiscard]] DatabaseKind kind() const { return m_kind; }
    /// The setting "Mysql" of a program that uses this database.
    [[nodiscard]] bool usesMySql() const { return m_kind == DatabaseKind::MariaDb; }
    /// What opens it: the data source for SQLite, server and an account with all rights for
    /// MariaDB.
    [[nodiscard]] const QString& connectString() const { return m_connectString; }
    /// The name of the data source (SQLite) or of the server's database (MariaDB): the setting
    /// "Base" or "Base_Sql".
    [[nodiscard]] const QString& baseName() const { return m_name; }
    /// The SQLite file.
    [[nodiscard]] const QString& file() const { return m_file; }
    /// Writes app_data/`baseName`.php into the application folder, for MariaDB only. The account in
    /// it has these rights and no others.
    void writePhpFile(const QString& applicationFolder, Rights rights = Rights::Marking) const;

    /// Runs the statements in this order. Both databases understand names between backquotes,
    /// INTEGER, TEXT, VARCHAR(n), DOUBLE, BIT, BOOLEAN, DATE and DATETIME.
    /// Throws std::runtime_error when one is refused.
    void execute(const QStringList& statements);
    void execute(const QString& statement) { execute(QStringList{statement}); }

    /// The rows of a query, each field as text; null reads "NULL". A BIT column is read as `b` + 0.
    [[nodiscard]] QList<QStringList> read(const QString& query) const;

private:
    void createSqlite();
    void createMariaDb();
    void dropFromServer() const;

    DatabaseKind m_kind;
    QString m_name;
    QString m_file;
    QString m_connectString;
};

/// A fixture whose tests run on both databases:
///     class Absences : public test::OnBothDatabases {};
///     TEST_P(Absences, …) { … database() … }
///     TEMPORA_ON_BOTH_DATABASES(Absences);
class OnBothDatabases : public testing::TestWithParam<DatabaseKind>
{
protected:
    [[nodiscard]] TestDatabase& database() { return m_database; }

private:
    TestDatabase m_database{GetParam()};
};

/// Name of the kind within a test's name.
[[nodiscard]] std::string kindName(const testing::TestParamInfo<DatabaseKind>& info);

void PrintTo(DatabaseKind kind, std::ostream* stream);

} // namespace test

#define TEMPORA_ON_BOTH_DATABASES(Fixture)                                                         \
    INSTANTIATE_TEST_SUITE_P(                                                                      \
        On, Fixture, testing::Values(test::DatabaseKind::Sqlite, test::DatabaseKind::MariaDb),     \
        test::kindName)
