#include "timetable/SlotNaming.h"

#include "timetable/MeetingFields.h"
#include "timetable/ReadTimes.h"
#include "timetable/SchoolColumns.h"
#include "timetable/SlotKeys.h"

#include <algorithm>
#include <unordered_map>

namespace timetable
{

void SlotNaming::addSlot(QStringView key, QStringView start, QStringView end)
{
    if (key.isNull()) {
        return;
    }
    m_slotTexts.push_back(m_slotKeys.texts.add(key));
    DaySlot slot;
    slot.startText = start.toString();
    slot.endText = end.toString();
    slot.start = readTime(start);
    slot.end = readTime(end);
    m_slots.push_back(std::move(slot));
}

void SlotNaming::addKey(MeetingKind kind, TextId id, QStringView key)
{
    Keys& keys = m_keys.at(static_cast<std::size_t>(kind));
    const auto index = static_cast<std::size_t>(id.index());
    if (index < keys.isAdded.size() && keys.isAdded[index]) { // as are those of most rows
        return;
    }
    keys.isAdded.resize(std::max(keys.isAdded.size(), index + 1));
    keys.isAdded[index] = true;
    const auto number = static_cast<std::size_t>(keys.texts.add(key));
    if (number == keys.ids.size()) {
        keys.ids.push_back(id);
    }
}

void SlotNaming::ask(NameInquiry& inquiry)
{
    for (std::size_t kind = 0; kind < kMeetingKinds; ++kind) {
        ask(inquiry, tableOf(static_cast<MeetingKind>(kind)), m_keys.at(kind));
    }
    ask(inquiry, table::kSeances, m_slotKeys);
}

void SlotNaming::ask(NameInquiry& inquiry, SqlName table, Keys& keys)
{
    if (keys.texts.isEmpty()) {
        return;
    }
    const SlotKeys known(keys.texts);
    NameQuestion question{table, column::kSeance, {}};
    for (const QString& key : known.texts()) {
        question.texts.add(key);
    }
    for (const QString& key : keys.texts.texts()) {
        question.texts.add(key);
    }
    keys.question = inquiry.add(std::move(question));
}

std::vector<SlotKey> SlotNaming::meanings(const NameInquiry& inquiry, const Keys& keys)
{
    std::vector<SlotKey> meanings(static_cast<std::size_t>(keys.texts.count()));
    if (keys.texts.isEmpty()) {
        return meanings;
    }
    const SlotKeys known(keys.texts);
    std::unordered_map<int, SlotKey> meaningOfGroup;
    for (std::size_t position = 0; position < known.texts().size(); ++position) {
        meaningOfGroup.emplace(inquiry.groupOf(keys.question, known.texts()[position]),
                               known.meaning(static_cast<int>(position)));
    }
    for (std::size_t number = 0; number < meanings.size(); ++number) {
        const QString& key = keys.texts.text(static_cast<int>(number));
        const auto found = meaningOfGroup.find(inquiry.groupOf(keys.question, key));
        if (found != meaningOfGroup.end()) {
            meanings[number] = found->second;
        }
    }
    return meanings;
}

WeekSlots SlotNaming::takeSlots(const NameInquiry& inquiry) const
{
    WeekSlots week;
    const std::vector<SlotKey> keys = meanings(inquiry, m_slotKeys);
    for (std::size_t row = 0; row < m_slots.size(); ++row) {
        const SlotKey key = keys[static_cast<std::size_t>(m_slotTexts[row])];
        if (key.day == kNoDay || key.number < 1) {
            continue;
        }
        std::vector<DaySlot>& day = week.at(static_cast<std::size_t>(key.day));
        const auto place =
            std::lower_bound(day.begin(), day.end(), key.number,
                             [](const DaySlot& slot, int number) { return slot.number < number; });
        if (place == day.end() || place->number != key.number) {
            DaySlot slot = m_slots[row];
            slot.number = key.number;
            slot.day = key.day;
            day.insert(place, std::move(slot));
        }
    }
    return week;
}

std::vector<SlotKey> SlotNaming::takeKeys(const NameInquiry& inquiry, MeetingKind kind) const
{
    const Keys& keys = m_keys.at(static_cast<std::size_t>(kind));
    const std::vector<SlotKey> known = meanings(inquiry, keys);
    std::vector<SlotKey> byText;
    for (std::size_t number = 0; number < known.size(); ++number) {
        const auto text = static_cast<std::size_t>(keys.ids[number].index());
        byText.resize(std::max(byText.size(), text + 1));
        byText[text] = known[number];
    }
    return byText;
}

} // namespace timetable
