#pragma once

#include "db/DatabaseError.h"
#include "db/SqlDialect.h"
#include "db/StatementReading.h"

#include <optional>
#include <utility>

namespace db
{

/// What is known of a table that a statement for a whole page was refused for. The first statement
/// about a single thing tells whether it was the table's fault; then nothing more is asked of it.
/// Nor is a statement sent that is certain to be refused for a name.
class RefusedTable
{
public:
    /// The page's statement was refused.
    void suspect() { m_suspected = true; }

    /// What a read about one thing sends.
    struct Question {
        QStringList names; ///< between its quotes, in their order
        QString sql;
        QStringList further; ///< what else it has of somebody's, not between quotes
    };

    /// Runs a read. Errors: the read's; without running it, that of an earlier read, once the table
    /// is known to refuse, and nameRefused().
    template <typename Read>
    auto ask(const Question& question, const SqlDialect& dialect, Read&& read)
    {
        bool isPlain = true;
        for (const QString& name : question.names) {
            if (isPlain && dialect.isRefused(name)) { // behind other quotes it may read otherwise
                throw nameRefused();
            }
            isPlain = isPlain && dialect.isOneLiteral(name);
        }
        if (!isPlain && isCertainlyRefused(question.sql, question.names + question.further)) {
            throw nameRefused();
        }
        if (isPlain && m_verdict) {
            throw DatabaseError(*m_verdict);
        }
        try {
            auto answer = std::forward<Read>(read)();
            m_suspected = m_suspected && !isPlain;
            return answer;
        } catch (const DatabaseError& error) {
            if (isPlain && m_suspected) {
                m_verdict = error;
            }
            throw;
        }
    }

private:
    bool m_suspected = false;
    std::optional<DatabaseError> m_verdict;
};

} // namespace db
