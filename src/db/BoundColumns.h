#pragma once

#include "db/FetchedFields.h"
#include "db/OdbcHandles.h"

#include <limits>
#include <vector>

namespace db
{

/// Places in memory for the columns of a result: each row that the statement fetches from now on is
/// put there at one go, where field by field takes a call for each. Undone at the end.
class BoundColumns
{
public:
    /// The statement outlives the binding. Error: any that the driver's refusal amounts to.
    BoundColumns(StatementHandle& statement, const std::vector<FieldForm>& forms);
    ~BoundColumns();
    BoundColumns(const BoundColumns&) = delete;
    BoundColumns& operator=(const BoundColumns&) = delete;

    /// Adds the current row's field to `fields`; false when it is not here: bits and UTF-16 never
    /// are, nor what is longer than its place. `column` counts from 0.
    [[nodiscard]] bool take(std::size_t column, FetchedFields& fields) const;

private:
    /// Bytes of a field's place. Few fields of a timetable are longer.
    static constexpr std::size_t kPlace = 256;
    /// Stands in for the length of a field that is not bound; as long as a field cannot be.
    static constexpr SQLLEN kElsewhere = std::numeric_limits<SQLLEN>::max();

    explicit BoundColumns(StatementHandle& statement) : m_statement(statement) {}

    StatementHandle& m_statement;
    std::vector<std::size_t> m_capacity; ///< bytes of its field that each place can hold
    std::vector<char> m_places;
    std::vector<SQLLEN> m_lengths; ///< of the current row's fields, in bytes, as the driver tells
};

} // namespace db
