#pragma once

#include "answers/Narrowing.h"
#include "files/AnswerDocument.h"
#include "shell/Shell.h"

#include <QDateTime>
#include <QString>
#include <memory>
#include <optional>

namespace shell
{

/// The timetable of the chosen period as it was read once, and the answers that it gives: the same
/// for the windows and the command line. A value; what the user chooses afterwards does not change
/// it.
class Inquiry
{
public:
    /// Reads everything that the database says about the chosen period. Errors: any database error.
    explicit Inquiry(Shell& shell);

    [[nodiscard]] const timetable::Occupancy& occupancy() const { return *m_occupancy; }
    [[nodiscard]] const timetable::Timetable& timetable() const { return m_occupancy->timetable(); }
    /// The period's name.
    [[nodiscard]] const QString& period() const { return m_period; }
    /// When it was read.
    [[nodiscard]] QDateTime readAt() const { return m_readAt; }
    /// As the setting `SemaineA` tells.
    [[nodiscard]] const timetable::WeekRhythm& rhythm() const { return m_rhythm; }

    /// Whether the period has a course at all.
    [[nodiscard]] bool hasCourses() const;
    /// Why a question stays open: a table that it needs could not be read. Empty where it does not.
    /// Make-ups and exams play a part on dates and in clashes, students in clashes; the use of
    /// seats says itself where it lacks them.
    [[nodiscard]] QString whyOpen(bool isDated, bool isClashes = false) const;
    /// That a date, or the same day of one of the weeks running from there on, lies outside the
    /// period, whose courses then do not count: a sentence about the first such day; empty where
    /// there is none.
    [[nodiscard]] QString whyOutside(QDate date, int weeks = 1) const;
    /// Which meetings no answer counts, as they have no day: a sentence; empty where there are
    /// none.
    [[nodiscard]] QString whatHasNoDay() const;
    /// Why no room can meet the filter, that of all rooms included; empty where one does.
    [[nodiscard]] QString whyNoRoom(const answers::RoomFilter& filter) const;

    /// The date and the same day of the weeks behind it, `weeks` in all. `first` is the week that
    /// the date lies in, where somebody knows better than the setting.
    [[nodiscard]] std::vector<timetable::When>
    sameDays(QDate date, int weeks, std::optional<timetable::Week> first = {}) const;

    [[nodiscard]] files::AnswerDocument freeRooms(const answers::FreeRoomsQuestion& question) const;
    /// Of all rooms without a subject.
    [[nodiscard]] files::AnswerDocument weekOf(const std::optional<answers::Subject>& subject,
                                               const answers::AskedWeek& week,
                                               const answers::Narrowing& narrowing = {}) const;
    [[nodiscard]] files::AnswerDocument find(const QString& text, const answers::AskedWeek& week,
                                             const answers::Narrowing& narrowing = {}) const;
    [[nodiscard]] files::AnswerDocument clashes(const answers::Narrowing& narrowing = {}) const;
    [[nodiscard]] files::AnswerDocument roomUse(timetable::Week week,
                                                const answers::RoomFilter& filter) const;

private:
    [[nodiscard]] files::AnswerDocument document(QString title, QStringList about,
                                                 files::Answer answer, QDate date = {}) const;

    std::shared_ptr<const timetable::Occupancy> m_occupancy;
    QString m_establishment;
    QString m_period;
    QDateTime m_readAt;
    timetable::WeekRhythm m_rhythm;
    std::vector<form::Colour> m_roomColors;
};

} // namespace shell
