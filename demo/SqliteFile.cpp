#include "demo/Database.h"
#include "demo/Output.h"

#include <filesystem>
#include <memory>
#include <sqlite3.h>
#include <stdexcept>

namespace demo
{
namespace
{

namespace fs = std::filesystem;

struct Close {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
};
using Database = std::unique_ptr<sqlite3, Close>;

[[noreturn]] void fail(sqlite3* database)
{
    throw std::runtime_error(database == nullptr ? "out of memory" : sqlite3_errmsg(database));
}

Database create(const QString& path)
{
    sqlite3* opened = nullptr;
    const int result = sqlite3_open_v2(path.toUtf8().constData(), &opened,
                                       SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    Database database(opened); // a handle even when opening fails, to be closed all the same
    if (result != SQLITE_OK) {
        fail(opened);
    }
    return database;
}

void run(sqlite3* database, const QString& statement)
{
    if (sqlite3_exec(database, statement.toUtf8().constData(), nullptr, nullptr, nullptr) !=
        SQLITE_OK) {
        fail(database);
    }
}

/// A file under construction: gone again unless it is given its real name.
class PartFile
{
public:
    explicit PartFile(const QString& path)
        : m_target(path.toStdU16String()), m_name(path + ".part"), m_part(m_name.toStdU16String())
    {
        fs::remove(m_part); // left over by a run that was killed
    }
    PartFile(const PartFile&) = delete;
    PartFile& operator=(const PartFile&) = delete;
    ~PartFile()
    {
        std::error_code ignored;
        fs::remove(m_part, ignored);
    }

    [[nodiscard]] const QString& name() const { return m_name; }
    void keep() { fs::rename(m_part, m_target); }

private:
    fs::path m_target;
    QString m_name;
    fs::path m_part;
};

} // namespace

void writeSqliteFile(const FacultyOptions& options, const QString& path)
{
    PartFile part(path);
    Database database = create(part.name());
    // Nobody else sees the file before it is complete, so it needs neither journal nor syncing.
    run(database.get(), "PRAGMA journal_mode = OFF");
    run(database.get(), "PRAGMA synchronous = OFF");
    writeDatabase(options, Flavour::Sqlite,
                  [&](const QString& statement) { run(database.get(), statement); });
    if (sqlite3_close(database.get()) != SQLITE_OK) {
        fail(database.get());
    }
    // Closed above, where a failure still counts.
    static_cast<void>(database.release());
    part.keep();
}

} // namespace demo
