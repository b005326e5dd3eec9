#include "db/Recordset.h"

#include "runtime/RunTimeError.h"

#include <algorithm>

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
        m_positions.insert(m_names[i], i);
    }
}

int Columns::position(const QString& name) const
{
    // Nearly every caller writes the name as the table does: folding costs more than a search.
    const auto exact = m_positions.constFind(name);
    if (exact != m_positions.constEnd()) {
        return *exact;
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
