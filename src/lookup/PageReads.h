#pragma once

#include "db/DatabaseError.h"
#include "lookup/ReadFault.h"

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace lookup
{

/// How the reads of one page go: what got no answer, and whether anything need be asked any more.
/// A database that is gone, locked or silent is waited for once, not once for every cell.
class PageReads
{
public:
    /// What keeps the connection up. Each may raise any database error.
    struct Upkeep {
        /// Sees to it that the connection is there, as far as that can be told quickly.
        std::function<void()> revive = [] {};
        /// Opens another connection in the place of one that is gone.
        std::function<void()> renew = [] {};
        /// Whether a name can stand between the quotes of a statement and mean itself.
        std::function<bool(const QString&)> holds = [](const QString&) { return true; };
        std::function<QDateTime()> now = [] { return QDateTime::currentDateTime(); };
    };

    PageReads() = default;
    explicit PageReads(Upkeep upkeep) : m_upkeep(std::move(upkeep)) {}

    /// A page begins: forgets the last one's faults and revives the connection. Raises no error:
    /// where there is no connection, no read of the page is sent.
    void begin();
    /// Sends a read, notes its failure and raises it again. `names` stand between its quotes.
    template <typename Read>
    decltype(auto) ask(const QStringList& names, Read&& read)
    {
        if (m_verdict) {
            throw db::DatabaseError(*m_verdict);
        }
        try {
            return std::forward<Read>(read)();
        } catch (const runtime::RunTimeError& error) {
            note(names, error);
            throw;
        }
    }
    /// Notes what failed about these names.
    void note(const QStringList& names, const runtime::RunTimeError& error);
    /// Notes that a read about these names found nothing because it asked about others. Error:
    /// StatementRefused, when one of the names cannot be asked about.
    void expectHeld(const QStringList& names);
    /// Whether the page is to be read once more from its beginning: the connection went away, and
    /// there is another one. True once a page.
    [[nodiscard]] bool startAgain();
    /// Takes over since when another one's pages have lacked answers.
    void goOnFrom(const PageReads& other) { m_failingSince = other.m_failingSince; }
    /// The page is read as far as it can be.
    void end();

    /// What got no answer, each once, in the order in which it was met.
    [[nodiscard]] const std::vector<ReadFault>& faults() const { return m_faults; }
    /// Since when pages have lacked answers that the database did not give; nothing while the last
    /// one lacks none.
    [[nodiscard]] const std::optional<QDateTime>& failingSince() const { return m_failingSince; }

private:
    void add(ReadFault fault);

    Upkeep m_upkeep;
    std::vector<ReadFault> m_faults;
    std::optional<db::DatabaseError> m_verdict; ///< what every further read would meet, too
    bool m_lost = false;                        ///< the connection went away under a read
    bool m_startedAgain = false;
    std::optional<QDateTime> m_failingSince;
};

/// Whether the database, the way there or its schema failed, and not just a name.
[[nodiscard]] bool isIncomplete(const std::vector<ReadFault>& faults);

} // namespace lookup
