#pragma once

#include "files/AnswerDocument.h"
#include "timetable/Draft.h"

namespace test
{

/// A tiny school and its answers. Slots on each of the six days: 8h00 to 9h30 and 9h30 to 11h00.
///
/// | room  | zone | department | places | on Mondays                                             |
/// |-------|------|------------|--------|--------------------------------------------------------|
/// | Amphi | 1    | none       | 100    | slot 1: L1 A and L1 B, Durand, Algèbre                 |
/// | TP 1  | 2    | INFO       | 12     | slot 2, week A: L1 A, Petit, Chimie                    |
/// | TP 2  | none | none       | none   | at nobody knows what time (Lundi9): L2                 |
///
/// On Wednesday, 25 November 2026 TP 1 holds a make-up of L1 A from 10h00 to 11h00 (Petit). L1 A
/// has 10 students, L1 B 30. The period lasts from 7 September to 18 December 2026.
class AnswerSamples
{
public:
    AnswerSamples();

    /// For more rows, before the first answer.
    [[nodiscard]] Draft& draft() { return m_draft; }
    /// Mondays from 8h00 to 9h30, every week.
    [[nodiscard]] files::AnswerDocument freeRooms();
    /// Of class L1 A; a valid date is one of the week.
    [[nodiscard]] files::AnswerDocument week(QDate date = {});
    [[nodiscard]] files::AnswerDocument find(const QString& text, QDate date = {});
    [[nodiscard]] files::AnswerDocument clashes();
    /// The mean of both weeks.
    [[nodiscard]] files::AnswerDocument roomUse();

private:
    [[nodiscard]] const timetable::Occupancy& occupancy();
    [[nodiscard]] files::AnswerDocument document(const QString& title, files::Answer answer,
                                                 QDate date = {});

    Draft m_draft;
    std::shared_ptr<const timetable::Occupancy> m_occupancy; ///< once it was asked for
};

} // namespace test
