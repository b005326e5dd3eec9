#pragma once

#include "context/PlanActions.h"
#include "form/PlanForm.h"
#include "plan/RowColors.h"

#include <QString>
#include <functional>

namespace appearance
{

/// Replaces the row colours by those of a palette file, and lets the user choose the file.
class Palette
{
public:
    /// Asks the user for a file to open, beginning in `startFolder`; empty when the user cancels.
    /// `filter` is a description and a pattern, separated by "|".
    using OpenFile = std::function<QString(const QString& startFolder, const QString& filter)>;

    /// All references outlive the palette. `openFile` must not be empty; `programFolder` holds the
    /// executable and, beside it, the folder `Styles`.
    Palette(plan::RowColors& colors, form::PlanForm& form, context::PlanActions& plan,
            QString programFolder, OpenFile openFile);

    /// Loads a palette file into the table of row colours and shows its name in `Label5`. A file
    /// that cannot be read, or a Numbers file of fewer than 256 good lines, leaves no palette in
    /// use: the name is empty and the label reads "Défaut". Entries read until then stay.
    void Charger_Palette(const QString& Path);

    /// Writes a palette file's colours into a table, with their repetition, and nothing else. False
    /// where that leaves no palette in use, as above.
    static bool fill(plan::RowColors& colors, const QString& path);

    /// Back to "Défaut": random colours anew, and no palette in use, also for the next Cancel. Does
    /// not redraw.
    void useDefault();

    /// The handler of "Changer de Palette": asks for a file, loads it and redraws the plan. Cancel
    /// answers with the file chosen before, which is loaded again; the plan is redrawn in any case.
    void Choisir_Palette();

    /// The file name in a path without its folder and its last four characters, the extension.
    /// The path itself when the name is shorter than that.
    [[nodiscard]] static QString Nom_Palette(const QString& Path);

private:
    /// Copies the entries 2 onward to `repeatFrom` and after it, up to the end of the table.
    /// Error: SubscriptOutOfRange for 1, which would read past the end.
    static void repeatEntries(plan::RowColors& colors, int repeatFrom);
    void useNoPalette();

    plan::RowColors& m_colors;
    form::PlanForm& m_form;
    context::PlanActions& m_plan;
    QString m_programFolder;
    OpenFile m_openFile;
    QString m_chosenFile; ///< what the dialog answered last, Cancel aside
};

} // namespace appearance
