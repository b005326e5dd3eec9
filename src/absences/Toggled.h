#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

namespace absences
{

/// What one gesture on a box has done: each class is toggled by itself, so that some absences may
/// be recorded and others taken back.
struct Toggled {
    enum class What {
        Classes,  ///< the classes were absent
        Students, ///< students of the classes were
    };

    What what = What::Classes;
    QDate day;             ///< of the box
    QStringList recorded;  ///< classes, in the order of the box
    QStringList takenBack; ///< likewise

    friend bool operator==(const Toggled&, const Toggled&) = default;
};

} // namespace absences
