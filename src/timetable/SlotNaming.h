#pragma once

#include "timetable/DaySlot.h"
#include "timetable/Id.h"
#include "timetable/Meeting.h"
#include "timetable/NameInquiry.h"

#include <QString>
#include <QStringView>
#include <array>
#include <cstddef>
#include <vector>

namespace timetable
{

/// The slots of each day, by number.
using WeekSlots = std::array<std::vector<DaySlot>, kDaysOfWeek>;

/// Finds out what the slot keys of the meetings and of `seances` mean.
class SlotNaming
{
public:
    /// A row of `seances`; a null start or end is a null view.
    void addSlot(QStringView key, QStringView start, QStringView end);
    /// A key of a meeting; `id` is the text's.
    void addKey(MeetingKind kind, TextId id, QStringView key);

    void ask(NameInquiry& inquiry);

    /// The days' slots; of several rows with equal keys the first counts.
    [[nodiscard]] WeekSlots takeSlots(const NameInquiry& inquiry) const;
    /// What the keys of these meetings mean, by the ids of their texts.
    [[nodiscard]] std::vector<SlotKey> takeKeys(const NameInquiry& inquiry, MeetingKind kind) const;

private:
    struct Keys {
        TextPool texts;
        std::vector<TextId> ids;   ///< of the texts
        std::vector<bool> isAdded; ///< by the id
        std::size_t question = 0;
    };

    static void ask(NameInquiry& inquiry, SqlName table, Keys& keys);
    [[nodiscard]] static std::vector<SlotKey> meanings(const NameInquiry& inquiry,
                                                       const Keys& keys);

    std::array<Keys, kMeetingKinds> m_keys;
    Keys m_slotKeys;              ///< of `seances`
    std::vector<int> m_slotTexts; ///< of each row its key's number there
    std::vector<DaySlot> m_slots; ///< the rows
};

} // namespace timetable
