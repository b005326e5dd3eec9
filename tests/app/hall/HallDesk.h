#pragma once

#include "app/hall/HallReader.h"
#include "support/ProgramSetup.h"
#include "support/TestDatabase.h"

namespace test
{

/// Reads for the screen in the hall with the settings of a setup; the random colours are those of
/// seed 1.
[[nodiscard]] inline app::HallReader hallReader(const ProgramSetup& setup,
                                                const shell::CommandLine& choices = {})
{
    const auto open = [file = setup.settingsFile(), folder = setup.applicationFolder()] {
        engine::Surroundings surroundings;
        surroundings.applicationFolder = folder;
        surroundings.seed = 1;
        return std::make_unique<shell::Shell>(shell::Settings::fromFile(file), surroundings);
    };
    return {open, choices};
}

/// The rooms of a page with the slots of their boxes: "A2: 1 2", of a make-up "2r".
[[nodiscard]] inline QStringList hallRows(const plan::PlanPage& page)
{
    QStringList rows;
    for (const plan::PlanRow& row : page.content.rows) {
        QStringList slots;
        for (const plan::PlanBox& box : row.boxes) {
            slots << QString::number(box.slot) + (box.makeUp ? QStringLiteral("r") : QString());
        }
        rows << row.room + u':' + (slots.isEmpty() ? QString() : u' ' + slots.join(u' '));
    }
    return rows;
}

[[nodiscard]] inline QDateTime hallTime(QDate day, int hour, int minute, int second = 0)
{
    return {day, QTime(hour, minute, second)};
}

} // namespace test
