#pragma once

#include "files/AnswerDocument.h"

#include <QByteArray>
#include <QTimeZone>

namespace files
{

/// The dates of a room, teacher, class or subject as a calendar (iCalendar, RFC 5545), in the time
/// zone of the machine: those of the whole period, or of the week of the date that was asked. What
/// is in it and in which order says `answers::agendaOf`; what has no known start is an entry of the
/// whole day that says why. The same input gives the same bytes, and an entry keeps its name
/// (`IcsNames`), so that a calendar that takes in the file twice has nothing twice. Requires: the
/// answer is a week. Error: AnswerRefusal for all rooms, and where the dates are not known.
[[nodiscard]] QByteArray answerAsIcs(const AnswerDocument& document);
/// The same in another time zone.
[[nodiscard]] QByteArray answerAsIcs(const AnswerDocument& document, const QTimeZone& zone);

} // namespace files
