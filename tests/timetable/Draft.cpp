#include "timetable/Draft.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>

namespace test
{

using namespace timetable;

namespace
{

QStringView viewOf(const QString& text)
{
    return text.isNull() ? QStringView() : text.isEmpty() ? QStringView(u"") : QStringView(text);
}

std::size_t fieldOf(MeetingKind kind, SqlName column)
{
    for (const FieldColumn& each : columnsOf(kind)) {
        if (each.column == column) {
            return each.field;
        }
    }
    throw std::logic_error("a test names a column that this table does not have");
}

template <typename Same>
std::vector<NameGroups> grouped(const std::vector<NameQuestion>& questions, Same same)
{
    std::vector<NameGroups> answers;
    for (const NameQuestion& question : questions) {
        const std::vector<QString>& texts = question.texts.texts();
        NameGroups& groups = answers.emplace_back();
        for (const QString& text : texts) {
            const auto first = std::find_if(texts.begin(), texts.end(),
                                            [&](const QString& each) { return same(each, text); });
            groups.push_back(static_cast<int>(first - texts.begin()));
        }
    }
    return answers;
}

} // namespace

Draft& Draft::room(const QString& name, int places)
{
    m_builder.addRoom({name, 1, std::nullopt, places});
    return *this;
}

Draft& Draft::slot(const QString& key, const QString& start, const QString& end)
{
    m_builder.addSlot(viewOf(key), viewOf(start), viewOf(end));
    return *this;
}

Draft& Draft::period(QDate firstDay, QDate lastDay)
{
    m_builder.setPeriod({1, QStringLiteral("Semestre 1"), firstDay, lastDay});
    return *this;
}

Draft& Draft::examWeeks(QDate first, QDate second, QDate control)
{
    m_builder.setExamWeeks({{first, second, control}});
    return *this;
}

Draft& Draft::meeting(MeetingKind kind, ColumnTexts texts)
{
    MeetingTexts fields;
    for (const auto& [column, text] : texts) {
        fields.at(fieldOf(kind, column)) = viewOf(text);
    }
    m_builder.addMeeting(kind, fields);
    return *this;
}

Draft& Draft::course(ColumnTexts texts)
{
    return meeting(MeetingKind::Course, texts);
}

Draft& Draft::makeUp(ColumnTexts texts)
{
    return meeting(MeetingKind::MakeUp, texts);
}

Draft& Draft::exam(ColumnTexts texts)
{
    return meeting(MeetingKind::Exam, texts);
}

Timetable Draft::build(const AskNames& ask)
{
    return std::exchange(m_builder, {}).build(ask);
}

Occupancy Draft::occupancy()
{
    return Occupancy(std::make_shared<const Timetable>(build()));
}

std::vector<NameGroups> Draft::spelling(const std::vector<NameQuestion>& questions)
{
    return grouped(questions,
                   [](const QString& left, const QString& right) { return left == right; });
}

std::vector<NameGroups> Draft::ignoringCase(const std::vector<NameQuestion>& questions)
{
    return grouped(questions, [](const QString& left, const QString& right) {
        return left.compare(right, Qt::CaseInsensitive) == 0;
    });
}

RoomId roomNamed(const Timetable& timetable, const QString& name)
{
    for (int index = 0; index < timetable.roomCount(); ++index) {
        if (timetable.room(RoomId(index)).name == name) {
            return RoomId(index);
        }
    }
    return {};
}

} // namespace test

namespace timetable
{

void PrintTo(Minutes length, std::ostream* stream)
{
    *stream << length.value << " min";
}

void PrintTo(MinuteOfDay time, std::ostream* stream)
{
    constexpr int hour = 60;
    *stream << time.value / hour << 'h' << time.value % hour;
}

void PrintTo(const TimeSpan& span, std::ostream* stream)
{
    PrintTo(span.start, stream);
    *stream << " for ";
    PrintTo(span.length, stream);
}

void PrintTo(const Holder& holder, std::ostream* stream)
{
    *stream << "kind " << static_cast<int>(holder.kind) << ", part "
            << static_cast<int>(holder.part) << ", rooms "
            << holder.rooms.join(QStringLiteral("+")).toStdString() << ", class "
            << holder.className.toStdString() << ", teachers "
            << holder.teachers.join(QStringLiteral("+")).toStdString() << ", subject "
            << holder.subject.toStdString() << ", day " << holder.day << ", slot " << holder.slot
            << ", weeks " << static_cast<int>(holder.weeks) << ", date "
            << holder.date.toString(Qt::ISODate).toStdString() << ", ";
    if (holder.time) {
        PrintTo(*holder.time, stream);
    } else {
        *stream << "no time";
    }
}

void PrintTo(const RoomName& name, std::ostream* stream)
{
    *stream << '"' << name.text.toStdString() << "\" names";
    for (const RoomId room : name.rooms) {
        *stream << ' ' << room.index();
    }
}

void PrintTo(const UnreadTable& table, std::ostream* stream)
{
    *stream << table.table.toStdString() << ": " << table.reason.toStdString();
}

} // namespace timetable
