#pragma once

#include "timetable/ClassSizing.h"
#include "timetable/MeetingFields.h"
#include "timetable/NameInquiry.h"
#include "timetable/RoomNaming.h"
#include "timetable/SlotNaming.h"
#include "timetable/Timetable.h"

#include <QStringView>
#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace timetable
{

/// Makes a Timetable out of what was read of the tables, whoever read it. Texts come in as they are
/// stored, a null as a null view; in the end `build` has the equal ones found out.
class TimetableBuilder
{
public:
    void setPeriod(const Period& period) { m_result.m_period = period; }
    void setExamWeeks(const ExamWeeks& weeks) { m_result.m_examWeeks = weeks; }
    /// Rooms in the database's order of names, and before the meetings.
    void addRoom(const Room& room);
    /// A row of `seances`.
    void addSlot(QStringView key, QStringView start, QStringView end);
    /// So many more meetings will come.
    void expectMeetings(std::size_t count);
    /// A row of the timetable. The views may end after the call.
    void addMeeting(MeetingKind kind, const MeetingTexts& texts);
    [[nodiscard]] std::size_t meetingCount() const { return m_result.m_meetings.size(); }
    /// Forgets the meetings that were added last, to have them read in another way.
    void keepMeetings(std::size_t count) { m_result.m_meetings.resize(count); }
    /// The sizes of classes.
    [[nodiscard]] ClassSizing& sizes() { return m_sizes; }
    /// A table that could not be read.
    void addUnread(const UnreadTable& table) { m_result.m_unread.push_back(table); }

    /// The finished timetable. `ask` is called once, with all questions about names.
    [[nodiscard]] Timetable build(const AskNames& ask) &&;

private:
    /// The names of one kind, in all columns that hold such.
    struct NameColumns {
        TextPool texts;
        /// The first of these columns that names anybody: it decides which names are equal.
        std::pair<MeetingKind, std::size_t> first{MeetingKind::Exam, field::kCount};
        std::optional<std::size_t> question;
    };

    /// What a text means, read in each way: few texts stand in very many rows.
    struct Reading {
        std::optional<MinuteOfDay> time;
        std::optional<Minutes> length;
        std::optional<int> number;
        std::optional<QDate> date;
    };

    template <typename NameId>
    [[nodiscard]] static NameId name(NameColumns& names, MeetingKind kind, std::size_t field,
                                     QStringView text);
    [[nodiscard]] TextId text(QStringView text);
    [[nodiscard]] const Reading& reading(TextId id);
    [[nodiscard]] MeetingPart part(MeetingKind kind, Part which, const MeetingTexts& texts);
    [[nodiscard]] NameInquiry asked(const AskNames& ask);
    static void askAbout(NameColumns& names, NameInquiry& inquiry);
    template <typename NameId>
    [[nodiscard]] static Names<NameId> taken(const NameColumns& names, const NameInquiry& inquiry);
    void takeRooms(const NameInquiry& inquiry);
    void takeSlots(const NameInquiry& inquiry);

    Timetable m_result;
    RoomNaming m_rooms;
    SlotNaming m_slots;
    ClassSizing m_sizes;
    std::vector<Reading> m_readings; ///< of the texts, as far as they were asked for
    NameColumns m_teachers;
    NameColumns m_classes;
    NameColumns m_subjects;
    NameColumns m_departments; ///< of the room table, which has one such column
};

} // namespace timetable
