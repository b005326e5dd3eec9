#pragma once

#include "lookup/PageReads.h"
#include "support/RuntimeMatchers.h"

#include <QStringList>
#include <optional>

namespace test
{

[[nodiscard]] inline db::DatabaseError faultOf(db::Failure failure, const char* text = "said")
{
    return {failure, runtime::ErrorNumber::DatabaseFailure, QString::fromUtf8(text)};
}

/// The reads of a page over a connection that fails as it is told.
class ThePage : public testing::Test
{
protected:
    /// One read, which fails so; tells whether it was sent.
    bool asks(std::optional<db::Failure> failure, const QStringList& names = {})
    {
        bool sent = false;
        runtime::skipOnError([&] {
            reads.ask(names, [&] {
                sent = true;
                if (failure) {
                    throw faultOf(*failure);
                }
            });
        });
        return sent;
    }

    int revivals = 0;
    int renewals = 0;
    std::optional<db::Failure> connecting; ///< how opening a connection fails
    QDateTime now{{2026, 11, 22}, {10, 32}};
    lookup::PageReads reads{{[this] {
                                 ++revivals;
                                 connect();
                             },
                             [this] {
                                 ++renewals;
                                 connect();
                             },
                             [](const QString& name) { return !name.contains('\''); },
                             [this] { return now; }}};

private:
    void connect() const
    {
        if (connecting) {
            throw faultOf(*connecting, "no connection");
        }
    }
};

} // namespace test
