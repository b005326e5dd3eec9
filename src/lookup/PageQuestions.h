#pragma once

#include "lookup/RoomQuestion.h"

#include <QDate>
#include <QString>
#include <QStringList>

namespace lookup
{

/// What a refresh is about to ask of the timetable: every room of the page in every slot.
struct PageQuestions {
    RoomQuestion::Table table = RoomQuestion::Table::emplois;
    bool makeUps = false; ///< free cells are asked about again among the make-ups of `date`
    QStringList rooms;
    QStringList seanceKeys;
    QString tranche;
    QString examWeek;
    QDate date;
    bool listsOccupants = true; ///< boxes list classes or teachers

    /// One of the questions, on `table` or on the make-ups.
    [[nodiscard]] RoomQuestion question(RoomQuestion::Table askedTable, const QString& room,
                                        const QString& seanceKey) const
    {
        return {askedTable,
                room,
                seanceKey,
                tranche,
                askedTable == RoomQuestion::Table::examen ? examWeek : QString(),
                askedTable == RoomQuestion::Table::ratrap ? date : QDate()};
    }
};

/// What was found ahead of time; a source that fetches nothing ahead has nothing here.
struct PageFacts {
    QStringList classNames; ///< classes that can decide a box's markers, each once
    QStringList starts;     ///< start times that can be a box's, each once
};

} // namespace lookup
