#pragma once

#include "answers/ClashDraft.h"
#include "answers/WeekOf.h"
#include "files/AnswerDocument.h"

#include <memory>
#include <optional>

namespace test
{

/// A small week as a document: R1 and R2 with courses of both kinds, a make-up on Tuesday, 24
/// November 2026, slots at 8h00 and 9h30.
inline files::AnswerDocument weekDocument(const std::optional<answers::Subject>& subject,
                                          const answers::AskedWeek& week = {})
{
    ClashDraft school;
    school.draft().room("R1").room("R2 <&>", 0);
    school.course({"Lundi1", "R1", "L1 & co", "Durand", "Algèbre"});
    school.course({"Lundi1", "R1", "L2", "Durand", "Algèbre"});
    ClashRow alternating{"Mercredi2", "R1", "L1 & co", "Petit"};
    alternating.nature = "10/20";
    school.course(alternating);
    school.course({"Jeudi1", "R1", "L3", {}, {}, "8h00", "180"}); // both slots
    school.course({"Vendredi1", "R1", "L3", {}, {}, "18h00", "60"});
    school.course({"Samedi9", "R1", "L4"}); // at nobody knows what time
    ClashRow makeUp{"Lundi1", "R1", "L5"};
    makeUp.date = "2026-11-24";
    school.makeUp(makeUp);

    files::AnswerDocument document;
    document.occupancy = std::make_shared<const timetable::Occupancy>(school.occupancy());
    document.title = subject ? "Salle R1" : "Toutes les salles";
    document.about = QStringList{"semaine du 23/11/2026", "Période Semestre 1"};
    document.answer =
        files::WeekAnswer{subject, week,
                          subject ? answers::weekOf(*document.occupancy, *subject, week)
                                  : answers::weekOfAll(*document.occupancy, week)};
    document.roomColors = {form::Colour::fromRgb(250, 230, 120)};
    document.date = week.date;
    return document;
}

/// The first room of that document.
inline std::optional<answers::Subject> firstRoom()
{
    return timetable::RoomId(0);
}

} // namespace test
