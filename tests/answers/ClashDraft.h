#pragma once

#include "answers/Clashes.h"
#include "timetable/Draft.h"

#include <QString>
#include <QStringList>
#include <optional>

namespace test
{

/// A row as a test of clashes writes it down; what is left out is null.
struct ClashRow {
    QString key; ///< of the slot
    QString room;
    QString className = {};
    QString teacher = {};
    QString subject = {};
    QString start = {};
    QString length = {};
    QString nature = {};
    QString xRoom = {};
    QString xTeacher = {};
    QString yRoom = {};
    QString roomB = {};
    QString teacherB = {};
    QString secondTeacher = {};
    QString date = {}; ///< of a make-up
    QString week = {}; ///< of an exam
};

/// A school with the slots of its Mondays, a period from 7 September to 18 December 2026, exams in
/// the week of 4 January 2027 and controls in that of 5 October 2026.
class ClashDraft
{
public:
    ClashDraft();

    void course(const ClashRow& row);
    void makeUp(const ClashRow& row);
    void exam(const ClashRow& row);
    void students(const QString& className, int count);
    [[nodiscard]] Draft& draft() { return m_draft; }

    /// No more may be written down after the first call.
    [[nodiscard]] const timetable::Occupancy& occupancy();
    [[nodiscard]] std::vector<answers::Clash> clashes() { return answers::clashes(occupancy()); }
    /// Each clash as "kind name day-or-date weeks holders", the kind by its number, weeks as "*",
    /// "A" and "B", holders as the classes of their rows, with a "+" between.
    [[nodiscard]] QStringList told();

private:
    Draft m_draft;
    std::optional<timetable::Occupancy> m_occupancy; ///< once it was asked for
};

} // namespace test
