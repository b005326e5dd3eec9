#pragma once

#include "timetable/Occupancy.h"
#include "timetable/TimetableBuilder.h"

#include <QDate>
#include <QString>
#include <initializer_list>
#include <memory>
#include <utility>

namespace test
{

/// A column and its text. A null QString is a null of the database.
using ColumnText = std::pair<timetable::SqlName, QString>;
using ColumnTexts = std::initializer_list<ColumnText>;

/// A timetable as a test writes it down, without a database. Names are equal when they are spelt
/// alike, unless the test has somebody else asked.
class Draft
{
public:
    Draft& room(const QString& name, int places = 30);
    Draft& slot(const QString& key, const QString& start, const QString& end);
    /// Period 1.
    Draft& period(QDate firstDay, QDate lastDay);
    Draft& examWeeks(QDate first, QDate second, QDate control);
    /// Fields that a row does not name are null.
    Draft& course(ColumnTexts texts);
    Draft& makeUp(ColumnTexts texts);
    Draft& exam(ColumnTexts texts);

    [[nodiscard]] timetable::TimetableBuilder& builder() { return m_builder; }
    [[nodiscard]] timetable::Timetable build(const timetable::AskNames& ask = spelling);
    [[nodiscard]] timetable::Occupancy occupancy();

    /// Takes texts for equal that are spelt alike.
    [[nodiscard]] static std::vector<timetable::NameGroups>
    spelling(const std::vector<timetable::NameQuestion>& questions);
    /// Takes texts for equal that differ in case alone, in every column.
    [[nodiscard]] static std::vector<timetable::NameGroups>
    ignoringCase(const std::vector<timetable::NameQuestion>& questions);

private:
    Draft& meeting(timetable::MeetingKind kind, ColumnTexts texts);

    timetable::TimetableBuilder m_builder;
};

/// The room of that name; nothing where there is none.
[[nodiscard]] timetable::RoomId roomNamed(const timetable::Timetable& timetable,
                                          const QString& name);

} // namespace test

namespace timetable
{

// How GoogleTest shows these values when an expectation fails.
void PrintTo(Minutes length, std::ostream* stream);
void PrintTo(MinuteOfDay time, std::ostream* stream);
void PrintTo(const TimeSpan& span, std::ostream* stream);
void PrintTo(const Holder& holder, std::ostream* stream);
void PrintTo(const RoomName& name, std::ostream* stream);
void PrintTo(const UnreadTable& table, std::ostream* stream);
template <typename Tag>
void PrintTo(Id<Tag> id, std::ostream* stream)
{
    *stream << (id.isNone() ? -1 : id.index());
}

} // namespace timetable
