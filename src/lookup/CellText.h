#pragma once

#include "db/Recordset.h"
#include "runtime/RunTimeError.h"
#include "timetable/Week.h"

#include <QString>
#include <array>
#include <optional>

namespace lookup
{

/// Short names of the séance types, by their `Ref`.
using SeanceTypeShortNames = std::array<QString, 16>;

/// What a box shows, as the display options of the window say.
struct DisplayOptions {
    bool exam = false;             ///< exam mode
    bool showClass = false;        ///< "Classe"
    bool showTeachers = false;     ///< "Enseignant", in exam mode "Surveillant"
    bool showInvigilators = false; ///< "Responsable"
    bool showSubject = false;      ///< "Matière"
    bool showType = false;         ///< "Type de S."
    bool showsWeekA = false;       ///< alternating courses show their A side
    bool showsWeekB = false;       ///< courses show their B side
    bool everyWeek = false;        ///< "Toute Semaine": both sides
    QString separator;             ///< between the parts of an A text: a line end or nothing

    friend bool operator==(const DisplayOptions&, const DisplayOptions&) = default;
};

/// A step of a box text that was left out because its field could not be read.
struct MissingStep {
    QString column;
    runtime::RunTimeError error;
    bool isSubject = false; ///< it would have added a subject
};

/// What a box tells of a row.
struct ComposedText {
    QString text;
    /// In which week all of it is held; `Every` also for the courses of both weeks side by side.
    timetable::Week week = timetable::Week::Every;
};

/// The text of a room's box, composed from the first timetable row found for it. A field that the
/// table lacks leaves its step out, and is told in `missing`, the first of them unless a subject is
/// among them; a null adds nothing.
[[nodiscard]] ComposedText composeCellText(const db::Row& row, const QString& room,
                                           const DisplayOptions& options,
                                           const SeanceTypeShortNames& typeNames,
                                           std::optional<MissingStep>& missing);

} // namespace lookup
