#pragma once

#include "files/AnswerDocument.h"
#include "timetable/Draft.h"

#include <QString>

namespace test
{

/// A school whose weeks become calendars: the period from Monday, 19 October to Friday, 6 November
/// 2026, in which the clocks of Paris go back on Sunday, 25 October; 19 October begins a week A.
/// The first slot begins at 8h00.
class CalendarDraft
{
public:
    CalendarDraft()
    {
        m_draft.period(QDate(2026, 10, 19), QDate(2026, 11, 6));
        m_draft.room("R1").room("R2").slot("Lundi1", "8h00", "9h30");
    }

    [[nodiscard]] Draft& draft() { return m_draft; }
    void course(const QString& key, const QString& room, const QString& className,
                const QString& subject = "Algèbre", const QString& roomB = {})
    {
        m_draft.course({{timetable::column::kSeance, key},
                        {timetable::column::kSalle, room},
                        {timetable::column::kSalleB, roomB},
                        {timetable::column::kNewNature, roomB.isNull() ? "00" : "10/20"},
                        {timetable::column::kClasse, className},
                        {timetable::column::kEnseignant1, "Durand"},
                        {timetable::column::kEnseignant1b, roomB.isNull() ? "" : "Durand"},
                        {timetable::column::kMatiere, subject},
                        {timetable::column::kMatiereb, roomB.isNull() ? "" : subject}});
    }
    void makeUp(const QString& room, const QString& date, const QString& start)
    {
        m_draft.makeUp({{timetable::column::kSeance, "Lundi1"},
                        {timetable::column::kSalle, room},
                        {timetable::column::kDebut, start},
                        {timetable::column::kClasse, "L1"},
                        {timetable::column::kEnseignant1, "Durand"},
                        {timetable::column::kMatiere, "Chimie"},
                        {timetable::column::kDateX, date}});
    }

    /// What Durand has. Uses up what was written down.
    [[nodiscard]] files::AnswerDocument ofTeacher(const answers::AskedWeek& week = {})
    {
        files::AnswerDocument document = make(week);
        std::get<files::WeekAnswer>(document.answer).subject =
            document.timetable().teachers().find(u"Durand");
        return document;
    }
    /// What all rooms have.
    [[nodiscard]] files::AnswerDocument ofAllRooms() { return make({}); }

    timetable::WeekRhythm rhythm{QDate(2026, 10, 19)};

private:
    files::AnswerDocument make(const answers::AskedWeek& week)
    {
        files::AnswerDocument document;
        document.occupancy = std::make_shared<const timetable::Occupancy>(m_draft.occupancy());
        document.title = "Enseignant Durand";
        document.answer = files::WeekAnswer{{}, week, {}};
        document.rhythm = rhythm;
        return document;
    }

    Draft m_draft;
};

} // namespace test
