#pragma once

#include "timetable/DaySlot.h"
#include "timetable/TextPool.h"

#include <QString>
#include <vector>

namespace timetable
{

/// The number that a slot's key names: all its digits read as one number, wherever they stand. 3
/// for Lundi3; 0 for a key without digits. As large as the digits say: no slot need have it.
[[nodiscard]] double slotNumber(const QString& key);

/// The keys that a timetable's rows might name, spelt as the plan asks for them: a French day, then
/// a slot number. Whether a row's key is one of them is the database's to say.
class SlotKeys
{
public:
    /// Every day with each number that is found in one of these texts.
    explicit SlotKeys(const TextPool& texts);

    [[nodiscard]] const std::vector<QString>& texts() const { return m_texts; }
    /// What the key at this place of `texts` names.
    [[nodiscard]] SlotKey meaning(int position) const
    {
        return m_meanings[static_cast<std::size_t>(position)];
    }

private:
    std::vector<QString> m_texts;
    std::vector<SlotKey> m_meanings;
};

} // namespace timetable
