#pragma once

#include <QString>
#include <QStringView>
#include <cstddef>

namespace timetable
{

/// The name of a table or a column as the database spells it. Known when the program is built, and
/// as cheap as a number: becoming a QString copies nothing.
class SqlName
{
public:
    template <std::size_t Size>
    constexpr explicit SqlName(const char16_t (&name)[Size])
        : m_name(name), m_length(static_cast<qsizetype>(Size) - 1)
    {
    }

    [[nodiscard]] constexpr QStringView view() const { return {m_name, m_length}; }
    /// Implicit, so that a name stands wherever a text does: `row.field(column::kSalle)`.
    operator QString() const // NOLINT(google-explicit-constructor)
    {
        return QString::fromRawData(reinterpret_cast<const QChar*>(m_name), m_length);
    }

    friend bool operator==(const SqlName& left, const SqlName& right)
    {
        return left.view() == right.view();
    }

private:
    const char16_t* m_name = u""; ///< ends with a null character, for whoever reads that far
    qsizetype m_length = 0;
};

} // namespace timetable
