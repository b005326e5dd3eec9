#include "db/Columns.h"

#include "runtime/RunTimeError.h"

#include <algorithm>
#include <utility>

namespace db
{
namespace
{

/// Equal for names that differ in case alone or in how an accent is encoded.
QString folded(const QString& name)
{
    return name.normalized(QString::NormalizationForm_C).toCaseFolded();
}

} // namespace

Columns::Columns(QStringList names) : m_names(std::move(names))
{
    for (int i = count() - 1; i >= 0; --i) { // of two columns of one name the first is meant
        m_positions.insert_or_assign(m_names[i], i);
    }
}

std::size_t Columns::QuickHash::operator()(const QString& name) const
{
    constexpr std::size_t step = 31;
    const auto length = static_cast<std::size_t>(name.size());
    return name.isEmpty() ? 0
                          : (length * step + name.front().unicode()) * step + name.back().unicode();
}

int Columns::position(const QString& name) const
{
    // Nearly every caller writes the name as the table does: folding costs more than a search.
    const auto exact = m_positions.find(name);
    if (exact != m_positions.end()) {
        return exact->second;
    }
    const auto found =
        std::find_if(m_names.begin(), m_names.end(), [wanted = folded(name)](const QString& each) {
            return folded(each) == wanted;
        });
    if (found == m_names.end()) {
        throw runtime::RunTimeError(runtime::ErrorNumber::ItemNotFound);
    }
    return static_cast<int>(found - m_names.begin());
}

} // namespace db
