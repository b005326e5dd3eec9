#pragma once

#include "plan/PlanContent.h"
#include "plan/PlanState.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

namespace bench
{

/// What no program can undercut that shows the plan over the same driver: it fetches a page's rows
/// with the fewest statements and does nothing with them.
class Limit
{
public:
    /// Throws std::runtime_error when the database cannot be opened.
    explicit Limit(const QString& connectString);
    ~Limit();
    Limit(const Limit&) = delete;
    Limit& operator=(const Limit&) = delete;

    /// Fetches what a refresh of this page needs: its rows, students and places of their classes,
    /// and their absences, by three statements. Tells how many rows came.
    int fetchPage(const plan::PlanState& state);

private:
    using Row = std::vector<QByteArray>;
    struct Handles;

    [[nodiscard]] std::vector<Row> rows(const QString& sql);

    std::unique_ptr<Handles> m_handles;
};

} // namespace bench
