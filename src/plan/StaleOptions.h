#pragma once

#include "plan/PlanContent.h"
#include "plan/PlanState.h"

#include <QDate>
#include <QString>
#include <optional>

namespace plan
{

/// Where the options say more, or something else, than the plan shows. Most choices redraw the plan
/// at once; these do not, by design: "Date" ticked or not, the end of the subject filter,
/// "Comptage". And some choices move the picked date away from the day that the plan shows: an exam
/// week opens on its second day, and teaching returns to this week's Monday, while the list of days
/// stays.
struct StaleOptions {
    /// The picked date is not the day that the boxes are of: their absences go to another day than
    /// the plan names.
    struct DayGap {
        int day = 0; ///< what the boxes are of: index in the list of days
        QDate date;  ///< the picked date
        /// Whether the date is on view, too, as the plan's title.
        bool isTitled = false;
        /// First day of the exam week that the boxes are of, where only the week is another one.
        std::optional<QDate> examWeek;

        friend bool operator==(const DayGap&, const DayGap&) = default;
    };

    std::optional<QDate> lacksMakeUps;   ///< the make-ups of this date have not been looked up
    bool keepsMakeUps = false;           ///< make-ups are drawn that are not asked for any more
    std::optional<QString> keepsSubject; ///< the boxes are still filtered by it
    bool lacksTotals = false;            ///< counting is asked for, and this plan is not counted
    bool isOtherwiseOld = false;         ///< another choice differs from what was drawn
    std::optional<DayGap> dayGap;
    /// Whether choosing the day again brings all of it into agreement.
    bool isMended = true;

    [[nodiscard]] bool isEmpty() const;

    friend bool operator==(const StaleOptions&, const StaleOptions&) = default;
};

/// Nothing where no row is drawn: there is nothing to contradict.
[[nodiscard]] StaleOptions staleOptions(const PlanState& state, const PlanContent& content);

/// All of it in one French sentence; empty where there is nothing to say.
[[nodiscard]] QString staleSentence(const StaleOptions& stale);

} // namespace plan
