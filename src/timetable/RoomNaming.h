#pragma once

#include "timetable/MeetingFields.h"
#include "timetable/NameInquiry.h"
#include "timetable/Timetable.h"

#include <QString>
#include <QStringView>
#include <array>
#include <cstddef>
#include <optional>
#include <vector>

namespace timetable
{

/// Finds out which rooms the texts of the room columns name. Each column compares in its own way,
/// so the same text may name other rooms in another column.
class RoomNaming
{
public:
    /// A room of the room table; their ids count from 0 in the order in which they come. Before the
    /// names of the rows.
    void addRoom(const QString& name);
    /// The id of a text in a room column; nothing for a null, and for an empty text unless a room
    /// of the room table has no name (see NamelessRooms).
    [[nodiscard]] RoomNameId name(MeetingKind kind, std::size_t field, QStringView text);

    void ask(NameInquiry& inquiry);

    struct Result {
        std::vector<RoomName> names;       ///< by their ids; one without rooms names nothing
        std::vector<QString> unknownRooms; ///< their ids follow those of the room table
    };
    /// What the answers amount to.
    [[nodiscard]] Result take(const NameInquiry& inquiry) const;

private:
    struct Column {
        TextPool texts;
        std::vector<RoomNameId> ids; ///< of the texts
        std::size_t question = 0;
    };
    /// Two room columns in each part of each kind; those that no table has stay empty.
    static constexpr std::size_t kColumnsOfKind = kParts * 2;

    [[nodiscard]] bool areAllSpeltAsRooms() const;
    void nameRooms(const NameInquiry& inquiry, const Column& column, Result& result) const;
    void addUnknownRooms(const NameInquiry& inquiry, Result& result) const;

    TextPool m_rooms;             ///< names of the room table, each spelling once
    std::vector<int> m_roomTexts; ///< of each room its name's number there
    bool m_hasNamelessRoom = false;
    std::array<Column, kMeetingKinds * kColumnsOfKind> m_columns;
    int m_nameCount = 0;
    std::optional<std::size_t> m_unknownQuestion;
};

} // namespace timetable
