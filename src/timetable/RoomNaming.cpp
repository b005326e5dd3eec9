#include "timetable/RoomNaming.h"

#include "runtime/Numbers.h"
#include "timetable/SchoolColumns.h"

#include <algorithm>
#include <unordered_map>

namespace timetable
{
namespace
{

bool isBlank(const QString& text)
{
    return runtime::trimBlanks(text).isEmpty();
}

void addAll(TextPool& texts, const TextPool& others)
{
    for (const QString& text : others.texts()) {
        texts.add(text);
    }
}

} // namespace

void RoomNaming::addRoom(const QString& name)
{
    m_roomTexts.push_back(m_rooms.add(name));
    m_hasNamelessRoom = m_hasNamelessRoom || isBlank(name);
}

RoomNameId RoomNaming::name(MeetingKind kind, std::size_t field, QStringView text)
{
    // In some timetables most room columns hold an empty text where others hold a null.
    if (text.isNull() || (text.isEmpty() && !m_hasNamelessRoom)) {
        return {};
    }
    const std::size_t which = field / field::kPartFields * 2 + field % field::kPartFields;
    Column& column = m_columns.at(static_cast<std::size_t>(kind) * kColumnsOfKind + which);
    const auto number = static_cast<std::size_t>(column.texts.add(text));
    if (number == column.ids.size()) {
        column.ids.emplace_back(m_nameCount++);
    }
    return column.ids[number];
}

bool RoomNaming::areAllSpeltAsRooms() const
{
    return std::all_of(m_columns.begin(), m_columns.end(), [this](const Column& column) {
        const std::vector<QString>& texts = column.texts.texts();
        return std::all_of(texts.begin(), texts.end(),
                           [this](const QString& text) { return m_rooms.find(text) >= 0; });
    });
}

void RoomNaming::ask(NameInquiry& inquiry)
{
    TextPool everyName = m_rooms;
    for (std::size_t index = 0; index < m_columns.size(); ++index) {
        Column& column = m_columns[index];
        if (column.texts.isEmpty()) {
            continue;
        }
        const auto kind = static_cast<MeetingKind>(index / kColumnsOfKind);
        const std::size_t which = index % kColumnsOfKind;
        // The rooms first, so that columns that name nothing else ask about the same texts.
        NameQuestion question{tableOf(kind), columnOf(which / 2 * field::kPartFields + which % 2),
                              m_rooms};
        addAll(question.texts, column.texts);
        column.question = inquiry.add(std::move(question));
        addAll(everyName, column.texts);
    }
    if (!areAllSpeltAsRooms()) {
        // What the room table does not know may be spelt in several ways, too.
        m_unknownQuestion = inquiry.add({table::kSalle, column::kNom, std::move(everyName)});
    }
}

RoomNaming::Result RoomNaming::take(const NameInquiry& inquiry) const
{
    Result result;
    result.names.resize(static_cast<std::size_t>(m_nameCount));
    for (const Column& column : m_columns) {
        if (!column.texts.isEmpty()) {
            nameRooms(inquiry, column, result);
        }
    }
    if (m_unknownQuestion) {
        addUnknownRooms(inquiry, result);
    }
    return result;
}

void RoomNaming::nameRooms(const NameInquiry& inquiry, const Column& column, Result& result) const
{
    std::unordered_map<int, std::vector<RoomId>> roomsOfGroup;
    for (std::size_t room = 0; room < m_roomTexts.size(); ++room) {
        const int group = inquiry.groupOf(column.question, m_rooms.text(m_roomTexts[room]));
        roomsOfGroup[group].emplace_back(static_cast<int>(room));
    }
    for (std::size_t number = 0; number < column.ids.size(); ++number) {
        RoomName& name = result.names[static_cast<std::size_t>(column.ids[number].index())];
        name.text = column.texts.text(static_cast<int>(number));
        const auto rooms = roomsOfGroup.find(inquiry.groupOf(column.question, name.text));
        if (rooms != roomsOfGroup.end()) {
            name.rooms = rooms->second;
        }
    }
}

void RoomNaming::addUnknownRooms(const NameInquiry& inquiry, Result& result) const
{
    std::unordered_map<int, RoomId> roomOfGroup;
    for (RoomName& name : result.names) {
        if (!name.rooms.empty() || isBlank(name.text)) {
            continue;
        }
        const int group = inquiry.groupOf(*m_unknownQuestion, name.text);
        const RoomId next(static_cast<int>(m_roomTexts.size() + result.unknownRooms.size()));
        const auto [found, isNew] = roomOfGroup.emplace(group, next);
        if (isNew) {
            result.unknownRooms.push_back(name.text);
        }
        name.rooms = {found->second};
    }
}

} // namespace timetable
