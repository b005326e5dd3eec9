#pragma once

#include "demo/Options.h"
#include "shell/Shell.h"
#include "support/TestDatabase.h"

#include <QString>
#include <QTemporaryDir>
#include <memory>

namespace bench
{

/// The demo faculty of one size in a private database, and programs that open it.
class Faculty
{
public:
    /// Makes the database; the large one takes a while.
    Faculty(const demo::FacultyOptions& options, test::DatabaseKind kind);

    /// The program, started up and shown, without a window. `port` replaces the server's own
    /// (0: leave it); `plain` sends one statement per question.
    [[nodiscard]] std::unique_ptr<shell::Shell> open(bool plain, quint16 port = 0) const;
    /// Of a faculty on a server: whatever is started between this call and the end of what it
    /// returns finds the server at that port.
    [[nodiscard]] std::shared_ptr<void> reachedAt(quint16 port) const;
    /// What opens the database, and what opens it at that port.
    [[nodiscard]] QString connectString() const { return m_database.connectString(); }
    [[nodiscard]] QString connectStringAt(quint16 port) const;

    /// What a program that uses the faculty is started with.
    struct Start {
        shell::Settings settings;
        engine::Surroundings surroundings;
    };
    [[nodiscard]] Start start(bool plain = false) const;

    /// Puts all courses into the first period, and repeats some of them until there are so many.
    void putIntoOnePeriod(int rows);

    /// Repeats the courses of the first period with other classes, until it has so many rows: each
    /// course becomes one of more classes, and the rooms are held as they were.
    void addCommonCourses(int rows);

    /// The database itself.
    [[nodiscard]] test::TestDatabase& database() { return m_database; }

private:
    test::TestDatabase m_database;
    QTemporaryDir m_folder;
};

} // namespace bench
