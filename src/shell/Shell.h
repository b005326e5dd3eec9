#pragma once

#include "engine/Engine.h"
#include "engine/Surroundings.h"
#include "shell/DatabaseChoice.h"
#include "shell/Settings.h"

#include <QDate>
#include <QString>
#include <cstdint>

namespace shell
{

/// The life of the program around its engine: start-up from the settings, the window's own events,
/// shutdown.
class Shell
{
public:
    /// Key code by which the form knows F2, as the platforms of its design number their keys.
    static constexpr int kKeyF2 = 113;

    Shell(Settings settings, engine::Surroundings surroundings);

    /// Start-up, in a fixed order: settings, database, header, slots, rooms, date. Errors: a
    /// setting that does not convert (TypeMismatch, Overflow), any database error.
    void Form_Load();
    /// The window has been shown: the first drawing.
    void Form_Activate();
    /// Lays rows and totals out for that inner size of the window's plan, in twips.
    void layOut(int scaleWidth, int scaleHeight);
    /// The window has another size.
    void Form_Resize();
    /// Sizes the plan for a picture that holds all of it.
    void fitPicture();
    /// `kKeyF2` switches pale colours; other keys do nothing.
    void Form_KeyDown(int keyCode);
    /// Closes the database and writes back the settings that changed. Closing twice does nothing.
    /// Error: PathFileAccess when the settings cannot be saved; all else is done by then.
    void Form_Unload();
    /// Writes back the settings that changed, and goes on; before start-up has read them and once
    /// all is closed there are none. Error: PathFileAccess.
    void saveOptions();
    /// Where the window lay when it was closed last, as `saveWindowPlacement` was told; empty where
    /// nobody has told it.
    [[nodiscard]] QString windowPlacement() const;
    /// Keeps it for the next session. What cannot be saved is not worth a word.
    void saveWindowPlacement(const QString& placement);
    /// Gives every control the font of `Label20` and redraws.
    void Label20_Click();
    /// Asks for the focus to go to `Colorer`. The backgrounds of the option controls need no
    /// matching: the window's style sheet sets them, and nothing changes them.
    void MatchControlBackgrounds();

    [[nodiscard]] engine::Engine& engine() { return m_engine; }
    [[nodiscard]] const engine::Engine& engine() const { return m_engine; }
    [[nodiscard]] form::PlanForm& form() { return m_engine.form(); }
    [[nodiscard]] const form::PlanForm& form() const { return m_engine.form(); }

    /// What messages call the database; empty before start-up has chosen it.
    [[nodiscard]] QString databaseName() const { return m_choice.nameInMessages(); }

    /// The settings that it was made with, opened anew. Errors: those of Settings::again.
    [[nodiscard]] Settings settingsAgain() const { return m_settings.again(); }

    /// A day of some week A, as the setting `SemaineA` has it; no valid date where it is empty.
    /// Error: TypeMismatch for a text that is no date.
    [[nodiscard]] QDate weekA() const;

    /// Tells that the shown date was asked for, and is not just the week of the clock.
    void keepDate() { m_dateAskedFor = true; }
    /// The shown date for files that carry one: only where the plan shows it, where it was asked
    /// for and in exam weeks, which the database dates. Elsewhere it is invalid: a plan titled by
    /// its day has the same bytes in every week.
    [[nodiscard]] QDate fileDate() const;

private:
    /// An option that is saved when it was changed, whatever number the settings gave for it.
    struct SavedOption {
        QString key;
        const form::CheckBox& box;
        bool& atStart;
    };

    void chooseDatabase();
    void listExamWeeks();
    void loadPalette();
    void readDisplayOptions();
    [[nodiscard]] bool readOption(const QString& key) const;
    /// A setting that is off unless it is turned on.
    [[nodiscard]] bool isOn(const QString& key) const;
    void readRoomsPerPage();
    void readEveryRoom();
    void writeOptions();
    void saveOption(SavedOption option);
    [[nodiscard]] QString setting(const QString& key, const QString& fallback) const;

    Settings m_settings;
    db::ConfigurationFolders m_folders;
    engine::Engine m_engine;

    DatabaseChoice m_choice;
    bool m_SkinOn = false; ///< installations have the setting; nothing reads it

    // What the settings say, at the start and since they were last saved.
    QString m_PaletteAtStart;
    bool m_ShowTeacherAtStart = true;
    bool m_ShowClassAtStart = true;
    bool m_ShowSubjectAtStart = true;
    bool m_EveryRoomAtStart = false;
    std::int16_t m_RoomsPerPage = 0;
    bool m_dateAskedFor = false;
    bool m_loaded = false;
};

} // namespace shell
