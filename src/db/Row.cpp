#include "db/Row.h"

#include "runtime/RunTimeError.h"

namespace db
{
namespace
{

/// The values of one row.
class OwnValues : public RowFields
{
public:
    OwnValues(std::shared_ptr<const Columns> columns, std::vector<Value> values)
        : RowFields(std::move(columns)), m_values(std::move(values))
    {
    }

    [[nodiscard]] Value value(std::size_t /*row*/, std::size_t column) const override
    {
        return m_values.at(column);
    }

private:
    std::vector<Value> m_values;
};

} // namespace

Row::Row(std::shared_ptr<const Columns> columns, std::vector<Value> values)
    : Row(std::make_shared<const OwnValues>(std::move(columns), std::move(values)), 0)
{
}

Value Row::field(const QString& name) const
{
    return field(m_fields->columns()->position(name));
}

Value Row::field(int position) const
{
    if (position < 0 || position >= m_fields->columns()->count()) {
        throw runtime::RunTimeError(runtime::ErrorNumber::ItemNotFound);
    }
    return m_fields->value(m_row, static_cast<std::size_t>(position));
}

} // namespace db
